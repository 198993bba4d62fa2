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

/// Reads decks from files and makes scripts of them, one after the other, without holding up the
/// main thread: a file may be large, or made to cost time. Main thread; destroying the import gives
/// up what is left.
class DeckFileImport final : public QObject {
    Q_OBJECT

public:
    using Imported = Result<QUuid, PptxImporter::ImportError>;
    using Completion = std::function<void(const Imported&)>;
    using ReadDeck = Result<PptxImporter::Deck, PptxImporter::ImportError>;

    explicit DeckFileImport(
        LibraryStore& library, QObject* parent = nullptr); ///< `library` must outlive it.
    ~DeckFileImport() override;

    /// `completion` is called once the deck is in the library, or could not be read, in the order
    /// of the calls and never from inside this one.
    void import(const QString& path, Completion completion);

    /// Reads a file without importing it.
    void read(const QString& path, std::function<void(const ReadDeck&)> completion);

    /// Asks the disk about a file, which may take as long as reading it.
    void look(const QString& path, std::function<void(const PptxImporter::FileStamp&)> completion);

    bool isBusy() const { return m_waiting > 0; }

private:
    LibraryStore& m_library;
    std::atomic<bool> m_isCancelled = false;
    int m_waiting = 0; ///< How many files are still to be read.
    QThreadPool m_reader; ///< Of one thread.
};

} // namespace Orvello
