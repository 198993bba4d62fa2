#include "Orvello/Presentations/Slideshow/PresentedDeck.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Presentations/Slideshow/SlideSyncService.h"

namespace Orvello {

PresentedDeck::PresentedDeck(
    const LibraryStore& library, const SlideSyncService& sync, QObject* parent)
    : QObject(parent)
    , m_library(library)
    , m_sync(sync)
{
    connect(&library, &LibraryStore::scriptsChanged, this, &PresentedDeck::followScripts);
    connect(&library, &LibraryStore::activeScriptIDChanged, this, &PresentedDeck::update);
    connect(&sync, &SlideSyncService::presentedDeckChanged, this, &PresentedDeck::update);
}

QString PresentedDeck::name() const
{
    return m_sync.presentedDeck() ? m_sync.presentedDeck()->name : QString();
}

const PresenterApp* PresentedDeck::app() const { return m_sync.app(); }

void PresentedDeck::accept()
{
    const Script* const script = m_library.activeScript();
    if (!m_isOther || !script)
        return;
    m_accepted.emplace(script->id, name());
    update();
}

/// A text that is being typed tells nothing about decks.
void PresentedDeck::followScripts(const LibraryChange& change)
{
    if (change.kind != LibraryChange::Kind::Edited || change.hasNewTitle || change.hasNewSlides)
        update();
}

void PresentedDeck::update()
{
    const auto& deck = m_sync.presentedDeck();
    const Script* const active = m_library.activeScript();
    if (!deck || !active || !active->slides) {
        const bool wasFitting = assign(m_fittingScript, std::nullopt);
        if (assign(m_isOther, false) || wasFitting)
            Q_EMIT changed();
        return;
    }

    const Script* best = nullptr;
    DeckLikeness bestLikeness { DeckLikeness::Kind::Unknown, 0 };
    for (const Script& script : m_library.scripts()) {
        const DeckLikeness likeness = DeckLikeness::of(script, *deck);
        if (likeness.kind > DeckLikeness::Kind::Unknown && likeness > bestLikeness) {
            best = &script;
            bestLikeness = likeness;
        }
    }
    const DeckLikeness likeness = DeckLikeness::of(*active, *deck);
    // Between two versions of one deck, the name decides only where the titles do, too.
    const bool isBeaten = best && bestLikeness.kind > likeness.kind
        && (likeness.kind == DeckLikeness::Kind::Unknown
            || bestLikeness.sharedTitles > likeness.sharedTitles);
    const bool isOther = (likeness.kind == DeckLikeness::Kind::Other || isBeaten)
        && !m_accepted.contains({ active->id, deck->name });
    const bool hasOtherFit
        = assign(m_fittingScript, isOther && best ? std::optional(best->id) : std::nullopt);
    if (assign(m_isOther, isOther) || hasOtherFit)
        Q_EMIT changed();
}

} // namespace Orvello
