#include "Orvello/Prompting/View/OtherDeckNotice.h"

#include "Orvello/Library/Import/LiveDeckImport.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Presentations/Presenters/PresenterApp.h"
#include "Orvello/Presentations/Slideshow/DeckController.h"

namespace Orvello {

OtherDeckNotice::OtherDeckNotice(
    DeckController& deck, LibraryStore& library, LiveDeckImport& openDecks, QObject* parent)
    : QObject(parent)
    , m_deck(deck)
    , m_library(library)
    , m_openDecks(openDecks)
{
    connect(&deck, &DeckController::otherDeckChanged, this, &OtherDeckNotice::followDeck);
    connect(&deck.presentedDeck(), &PresentedDeck::changed, this, &OtherDeckNotice::followDeck);
    connect(&openDecks, &LiveDeckImport::sourceChanged, this, &OtherDeckNotice::changed);
}

bool OtherDeckNotice::isShown() const
{
    return m_deck.isOtherDeck() && m_deck.presentedDeck().isOther();
}

QString OtherDeckNotice::text() const
{
    if (const QString source = m_openDecks.source(); !source.isEmpty())
        //: %1: a presentation program, such as Keynote.
        return tr("Reading what is open in %1…").arg(source);
    if (!m_failure.isEmpty())
        return m_failure;
    const QString name = m_deck.presentedDeck().name();
    //: On the card. %1: the name of a presentation.
    return name.isEmpty()
        ? tr("These notes are from another presentation than the one on screen.")
        : tr("“%1” is on screen. These notes are from another presentation.").arg(name);
}

QString OtherDeckNotice::action() const
{
    if (!m_openDecks.source().isEmpty() || !m_failure.isEmpty())
        return {};
    return m_deck.presentedDeck().fittingScript()
        //: A button on the card: shows the notes of the presentation that is on screen.
        ? tr("Switch to its notes")
        //: A button on the card: takes over the notes of the presentation that is on screen.
        : tr("Import its notes");
}

void OtherDeckNotice::act()
{
    if (const auto script = m_deck.presentedDeck().fittingScript())
        m_library.setActiveScriptID(script);
    else
        importDeck();
}

void OtherDeckNotice::importDeck()
{
    const PresenterApp* const app = m_deck.presentedDeck().app();
    if (!app || !m_openDecks.source().isEmpty())
        return;
    const auto finish = [self = QPointer(this)](const auto& imported) {
        if (self && !imported)
            self->showFailure(imported.error());
    };
    if (app->hasDeckFiles)
        m_openDecks.importFromOpenPowerPointDeck(*app, finish);
    else
        m_openDecks.importFromOpenDeck(*app, finish);
}

void OtherDeckNotice::showFailure(const DeckImportError& error)
{
    m_failure = error.description();
    Q_EMIT changed();
}

void OtherDeckNotice::keepNotes() { m_deck.presentedDeck().accept(); }

void OtherDeckNotice::followDeck()
{
    m_failure.clear();
    Q_EMIT changed();
}

} // namespace Orvello
