#pragma once

#include "Orvello/Foundation/Result.h"
#include "Orvello/Presentations/Decks/PptxImporter.h"

#include <QObject>
#include <QThreadPool>
#include <QUuid>

#include <atomic>
#include <functional>

namespace Orvello {

class LibraryStore;

/// Makes deck scripts from files, one after the other, without holding up the main thread: a file
/// may be large, or made to cost time. Main thread; destroying the import gives up what is left.
class DeckFileImport final : public QObject {
    Q_OBJECT

public:
    using Imported = Result<QUuid, PptxImporter::ImportError>;
    using Completion = std::function<void(const Imported&)>;

    explicit DeckFileImport(
        LibraryStore& library, QObject* parent = nullptr); ///< `library` must outlive it.
    ~DeckFileImport() override;

    /// `completion` is called once the deck is in the library, or could not be read, in the order
    /// of the calls and never from inside this one.
    void import(const QString& path, Completion completion);

    bool isBusy() const { return m_waiting > 0; }

private:
    LibraryStore& m_library;
    std::atomic<bool> m_isCancelled = false;
    int m_waiting = 0; ///< How many files are not in the library yet.
    QThreadPool m_reader; ///< Of one thread.
};

} // namespace Orvello
