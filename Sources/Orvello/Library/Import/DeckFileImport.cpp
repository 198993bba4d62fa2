#include "Orvello/Library/Import/DeckFileImport.h"

#include "Orvello/Library/Store/LibraryStore.h"

#include <utility>

namespace Orvello {

DeckFileImport::DeckFileImport(LibraryStore& library, QObject* parent)
    : QObject(parent)
    , m_library(library)
{
    m_reader.setMaxThreadCount(1);
}

DeckFileImport::~DeckFileImport()
{
    m_isCancelled = true;
    m_reader.clear();
    m_reader.waitForDone();
}

void DeckFileImport::import(const QString& path, Completion completion)
{
    read(path, [this, path, completion = std::move(completion)](const ReadDeck& deck) {
        if (!deck)
            completion(Failure { deck.error() });
        else
            completion(m_library.addReadDeck(path, *deck));
    });
}

void DeckFileImport::read(const QString& path, std::function<void(const ReadDeck&)> completion)
{
    ++m_waiting;
    m_reader.start([this, path, completion = std::move(completion)] {
        const auto deck = PptxImporter::importDeck(path, &m_isCancelled);
        // Dropped with the import, which waits for this thread.
        QMetaObject::invokeMethod(
            this,
            [this, completion, deck] {
                --m_waiting;
                completion(deck);
            },
            Qt::QueuedConnection);
    });
}

void DeckFileImport::look(
    const QString& path, std::function<void(const PptxImporter::FileStamp&)> completion)
{
    m_reader.start([this, path, completion = std::move(completion)] {
        const auto stamp = PptxImporter::FileStamp::of(path);
        QMetaObject::invokeMethod(
            this, [completion, stamp] { completion(stamp); }, Qt::QueuedConnection);
    });
}

} // namespace Orvello
