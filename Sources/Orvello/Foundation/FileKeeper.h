#pragma once

#include <QByteArray>
#include <QString>

#include <condition_variable>
#include <functional>
#include <mutex>
#include <thread>

namespace Orvello {

/// Brings a file that is replaced often to the disk, on a thread of its own, so that whoever
/// replaces it never waits for the disk. Main thread.
class FileKeeper final {
public:
    FileKeeper();
    ~FileKeeper(); ///< What was asked for is done first.
    FileKeeper(const FileKeeper&) = delete;
    FileKeeper& operator=(const FileKeeper&) = delete;

    /// The file at `path` has been replaced: it is on the disk, as AtomicFile::flush() says, within
    /// 100 ms and the disk's own time. Calls meanwhile count as one.
    void flushSoon(const QString& path);

    /// Says, on the keeper's thread, whether bytes are worth keeping.
    using Judgement = std::function<bool(const QByteArray&)>;

    /// Copies the file at `path`, as it is then and if it is good, to `copy` and brings that to the
    /// disk.
    void copySoon(const QString& path, const QString& copy, Judgement isGood);

    /// Waits until all that was asked for is done.
    void finish();

private:
    struct Work {
        QString flushed; ///< Empty for nothing to do.
        QString copied;
        QString copy;
        Judgement isGood;
        bool isEmpty() const { return flushed.isEmpty() && copied.isEmpty(); }
    };

    void startThread();
    void run();
    static void perform(const Work& work);

    std::mutex m_lock; ///< Guards all that follows, but for the thread.
    std::condition_variable m_changed;
    Work m_work;
    bool m_isHurried = false; ///< Somebody waits for the work.
    bool m_isBusy = false;
    bool m_isEnding = false;
    std::thread m_thread;
};

} // namespace Orvello
