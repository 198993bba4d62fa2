#include "Orvello/Foundation/FileKeeper.h"

#include "Orvello/Foundation/AtomicFile.h"

#include <QFile>

#include <chrono>
#include <system_error>
#include <utility>

namespace Orvello {

namespace {

/// How long replacements are collected, so that fast typing is one flush and not ten.
constexpr std::chrono::milliseconds collecting(60);

} // namespace

FileKeeper::FileKeeper() = default;

FileKeeper::~FileKeeper()
{
    {
        const std::scoped_lock lock(m_lock);
        m_isEnding = true;
    }
    m_changed.notify_all();
    if (m_thread.joinable())
        m_thread.join();
    else
        perform(m_work);
}

void FileKeeper::flushSoon(const QString& path)
{
    {
        const std::scoped_lock lock(m_lock);
        m_work.flushed = path;
    }
    startThread();
    m_changed.notify_all();
}

void FileKeeper::copySoon(const QString& path, const QString& copy, Judgement isGood)
{
    {
        const std::scoped_lock lock(m_lock);
        m_work.copied = path;
        m_work.copy = copy;
        m_work.isGood = std::move(isGood);
    }
    startThread();
    m_changed.notify_all();
}

void FileKeeper::finish()
{
    std::unique_lock lock(m_lock);
    m_isHurried = true;
    m_changed.notify_all();
    if (m_thread.joinable())
        m_changed.wait(lock, [this] { return m_work.isEmpty() && !m_isBusy; });
    else
        perform(std::exchange(m_work, {}));
    m_isHurried = false;
}

/// At the first use, because most programs of the tests never need it.
void FileKeeper::startThread()
{
    if (m_thread.joinable())
        return;
    try {
        m_thread = std::thread([this] { run(); });
    } catch (const std::system_error&) {
        // Whoever waits for the work does it; until then the file system decides.
    }
}

void FileKeeper::run()
{
    std::unique_lock lock(m_lock);
    for (;;) {
        m_changed.wait(lock, [this] { return !m_work.isEmpty() || m_isEnding; });
        if (m_work.isEmpty())
            return;
        m_changed.wait_for(lock, collecting, [this] { return m_isHurried || m_isEnding; });
        const Work work = std::exchange(m_work, {});
        m_isBusy = true;
        lock.unlock();
        perform(work);
        lock.lock();
        m_isBusy = false;
        m_changed.notify_all();
    }
}

void FileKeeper::perform(const Work& work)
{
    if (!work.flushed.isEmpty())
        AtomicFile::flush(work.flushed);
    if (work.copied.isEmpty())
        return;
    QFile file(work.copied);
    if (!file.open(QIODevice::ReadOnly | QIODevice::Unbuffered))
        return;
    const QByteArray bytes = file.readAll();
    if (bytes.size() == file.size() && work.isGood(bytes))
        static_cast<void>(AtomicFile::replace(work.copy,
            std::string_view(bytes.constData(), static_cast<std::size_t>(bytes.size())),
            AtomicFile::Durability::Flushed));
}

} // namespace Orvello
