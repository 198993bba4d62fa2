#include "Orvello/Prompting/View/SlideStatus.h"

#include "Orvello/Presentations/Slideshow/DeckController.h"
#include "Orvello/Prompting/View/CardStyle.h"

namespace Orvello {

namespace {

struct Appearance {
    QString label;
    QColor color;
};

Appearance live()
{
    //: On the card, at most about 12 characters: the notes follow the running slideshow.
    return { SlideStatus::tr("Live"), CardStyle::green };
}

Appearance noAccess()
{
    //: On the card, at most about 12 characters: the presentation program may not be asked.
    return { SlideStatus::tr("No access"), CardStyle::red };
}

Appearance otherDeck()
{
    //: On the card, at most about 12 characters: the slideshow shows another presentation.
    return { SlideStatus::tr("Other deck"), CardStyle::yellow };
}

Appearance manual()
{
    //: On the card, at most about 12 characters: the user turns the notes by hand.
    return { SlideStatus::tr("Manual"), QColor::fromRgbF(1, 1, 1, 0.5F) };
}

Appearance appearanceOf(const DeckController& deck)
{
    if (deck.isOtherDeck())
        return otherDeck();
    switch (deck.syncState()) {
    case SlideSyncService::State::Live:
        return live();
    case SlideSyncService::State::Denied:
        return noAccess();
    case SlideSyncService::State::Idle:
    case SlideSyncService::State::Manual:
        break;
    }
    return manual();
}

QString positionOf(qint64 number, qint64 count)
{
    //: On the card: which slide of how many.
    return SlideStatus::tr("%1 / %2").arg(number).arg(count);
}

} // namespace

SlideStatus::SlideStatus(DeckController& deck, QObject* parent)
    : QObject(parent)
    , m_deck(deck)
{
    for (const auto signal :
        { &DeckController::trackingActiveChanged, &DeckController::displayIndexChanged,
            &DeckController::slideCountChanged, &DeckController::slideTitleChanged,
            &DeckController::syncStateChanged, &DeckController::otherDeckChanged })
        connect(&deck, signal, this, &SlideStatus::changed);
}

bool SlideStatus::isShown() const { return m_deck.trackingActive(); }

bool SlideStatus::isOtherDeck() const { return m_deck.isOtherDeck(); }

QString SlideStatus::position() const
{
    return positionOf(m_deck.displayIndex() + 1, m_deck.slideCount());
}

QString SlideStatus::widestPosition() const
{
    return positionOf(m_deck.slideCount(), m_deck.slideCount());
}

QString SlideStatus::title() const { return m_deck.slideTitle().value_or(QString()); }

bool SlideStatus::hasPrevious() const { return m_deck.displayIndex() > 0; }

bool SlideStatus::hasNext() const { return m_deck.displayIndex() < m_deck.slideCount() - 1; }

QString SlideStatus::stateLabel() const { return appearanceOf(m_deck).label; }

QColor SlideStatus::stateColor() const { return appearanceOf(m_deck).color; }

QStringList SlideStatus::stateLabels()
{
    return { live().label, noAccess().label, otherDeck().label, manual().label };
}

void SlideStatus::previous()
{
    if (hasPrevious())
        m_deck.showPreviousSlide();
}

void SlideStatus::next()
{
    if (hasNext())
        m_deck.showNextSlide();
}

} // namespace Orvello
