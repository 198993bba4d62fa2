#include "Orvello/Presentations/Slideshow/DeckController.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Foundation/Observe.h"
#include "Orvello/Library/Records/UuidText.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Settings/Store/SettingsStore.h"

#include <algorithm>
#include <cstdlib>
#include <utility>
#include <variant>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// Stands for a value that is looked up when the change arrives. A copy of the library would wait
/// in the event queue, and make every key press meanwhile copy the whole list.
std::monostate nothing(const QObject&) { return {}; }

/// A place in a deck's joined text: the slide, 0-based, and the place in its notes.
struct PlaceInDeck {
    qint64 slide = 0;
    qsizetype inNotes = 0;
};

PlaceInDeck placeInDeck(const QList<SlideNote>& slides, qsizetype position)
{
    qsizetype blockStart = 0;
    PlaceInDeck place;
    for (const SlideNote& slide : slides) {
        const qsizetype blockEnd = blockStart + joinedBody({ slide }).size();
        const qsizetype notesStart = blockEnd - slide.notes.size();
        place.inNotes = std::clamp<qsizetype>(position - notesStart, 0, slide.notes.size());
        constexpr qsizetype blankLine = 2;
        blockStart = blockEnd + blankLine;
        if (position < blockStart || place.slide + 1 == slides.size())
            break;
        ++place.slide;
    }
    return place;
}

qint64 slideCountOf(const Script* script)
{
    return script && script->slides ? script->slides->size() : 0;
}

QString unitKey(const Script* script, const std::optional<qint64>& slide, bool isOtherDeck)
{
    if (isOtherDeck)
        return u"other deck"_s;
    const QString id = script ? UuidText::format(script->id) : QString(u'-');
    return id + u'|' + (slide ? "true"_L1 : "false"_L1) + u'|'
        + QString::number(slide.value_or(-1));
}

} // namespace

DeckController::DeckController(const LibraryStore& library, const SettingsStore& settings,
    const SlideSyncService& sync, QObject* parent)
    : QObject(parent)
    , m_library(library)
    , m_settings(settings)
    , m_sync(sync)
    , m_presentedDeck(library, sync)
{
    const auto recomputed = [this](auto) { recompute(); };
    connect(&library, &LibraryStore::scriptsChanged, this, &DeckController::noteEdit);
    observe(library, nothing, &LibraryStore::scriptsChanged, *this, recomputed);
    observe(library, nothing, &LibraryStore::activeScriptIDChanged, *this, recomputed);
    observe(settings, nothing, &SettingsStore::slideSyncChanged, *this, recomputed);
    observe(sync, &SlideSyncService::liveSlide, &SlideSyncService::liveSlideChanged, *this,
        [this](const std::optional<qint64>& slide) { followLiveSlide(slide); });
    observe(m_presentedDeck, &PresentedDeck::isOther, &PresentedDeck::changed, *this, recomputed);
    observe(sync, &SlideSyncService::state, &SlideSyncService::stateChanged, *this,
        [this](SlideSyncService::State state) { setSyncState(state); });
}

std::optional<qsizetype> DeckController::goTo(qsizetype position)
{
    const Script* const script = m_library.activeScript();
    PlaceInDeck place;
    if (slideCountOf(script) > 0) {
        place = placeInDeck(*script->slides, position);
        m_lastScriptID = script->id; // Else another script's first slide would be shown.
        m_manualIndex = place.slide;
    }
    recompute(); // The library's last edits may still be on their way.
    if (!m_trackingActive)
        return position;
    return m_displayIndex == place.slide ? std::optional(place.inNotes) : std::nullopt;
}

void DeckController::showPreviousSlide()
{
    --m_manualIndex;
    recompute();
}

void DeckController::showNextSlide()
{
    ++m_manualIndex;
    recompute();
}

/// Taken at once, unlike what follows from it: the library may have more edits by the time the
/// change arrives.
void DeckController::noteEdit(const LibraryChange& change)
{
    if (change.hasNewSlides && change.id == m_lastScriptID)
        m_isReadAnew = true;
    if (change.body && change.id == m_lastScriptID)
        m_edit = m_edit ? m_edit->followedBy(*change.body) : change.body;
}

void DeckController::followLiveSlide(const std::optional<qint64>& slide)
{
    if (slide)
        m_manualIndex = *slide - 1;
    recompute();
}

void DeckController::setSyncState(SlideSyncService::State state)
{
    if (!assign(m_syncState, state))
        return;
    Q_EMIT syncStateChanged();
}

void DeckController::recompute()
{
    const Script* script = m_library.activeScript();
    settlePosition(script);
    publish(script, unitOf(script));
}

/// Puts the position inside the deck: on the live slide when there is one, and on the first of
/// another script.
void DeckController::settlePosition(const Script* script)
{
    const auto id = script ? std::optional(script->id) : std::nullopt;
    if (id != m_lastScriptID) {
        m_lastScriptID = id;
        m_isReadAnew = false;
        m_manualIndex = 0;
    }
    const qint64 count = slideCountOf(script);
    if (count == 0) {
        m_manualIndex = 0;
        return;
    }
    if (m_settings.slideSync() && m_sync.liveSlide())
        m_manualIndex = *m_sync.liveSlide() - 1;
    else if (m_isReadAnew)
        followSlide(*script->slides);
    m_manualIndex = std::clamp<qint64>(m_manualIndex, 0, count - 1);
}

/// Goes where the slide has gone that was stepped to by hand: to the one like it that is nearest,
/// or else of its title. To whom the notes are shown, it is the same one.
void DeckController::followSlide(const QList<SlideNote>& slides)
{
    if (m_manualIndex >= m_slides.size())
        return;
    const SlideNote& before = m_slides[m_manualIndex];
    const auto nearest = [&](const auto& isIt) {
        std::optional<qint64> found;
        for (qint64 i = 0; i < slides.size(); ++i) {
            if (isIt(slides[i])
                && (!found || std::abs(i - m_manualIndex) < std::abs(*found - m_manualIndex)))
                found = i;
        }
        return found;
    };
    auto place = nearest([&](const SlideNote& slide) {
        return slide.title == before.title && slide.notes == before.notes;
    });
    if (!place && before.title)
        place = nearest([&](const SlideNote& slide) { return slide.title == before.title; });
    if (!place)
        return;
    const QString keyBefore = unitKey(m_library.activeScript(), m_manualIndex, false);
    m_manualIndex = *place;
    if (m_lastUnitKey == keyBefore)
        m_lastUnitKey = unitKey(m_library.activeScript(), m_manualIndex, false);
}

DeckController::Unit DeckController::unitOf(const Script* script) const
{
    if (!script)
        return {};
    if (slideCountOf(script) == 0 || !m_settings.slideSync())
        return { script->body, std::nullopt, std::nullopt };
    if (m_presentedDeck.isOther())
        return { tr("(Another presentation is on screen)"), std::nullopt, m_manualIndex, true };
    const SlideNote& slide = script->slides->at(m_manualIndex);
    return { slide.notes.isEmpty() ? tr("(No speaker notes on this slide)") : slide.notes,
        slide.title, m_manualIndex };
}

/// The edit that turns the text shown into the unit's, if it has to change.
std::optional<TextEdit> DeckController::editTo(const Unit& unit, bool isOtherUnit) const
{
    if (isOtherUnit && unit.text != m_promptText)
        return TextEdit { 0, m_promptText.size(), unit.text.size() };
    if (isOtherUnit || unit.slide || !m_edit)
        return std::nullopt; // A slide's notes never change, unless the deck is read anew.
    const QStringView removed = QStringView(m_promptText).sliced(m_edit->position, m_edit->removed);
    const QStringView inserted = QStringView(unit.text).sliced(m_edit->position, m_edit->inserted);
    return removed == inserted ? std::nullopt : m_edit;
}

void DeckController::publish(const Script* script, const Unit& unit)
{
    const bool isOtherUnit = assign(m_lastUnitKey, unitKey(script, unit.slide, unit.isOtherDeck));
    if (isOtherUnit)
        ++m_slideChangeToken;
    const bool isReadAnew = std::exchange(m_isReadAnew, false) && !isOtherUnit;
    const std::optional<TextEdit> edit = isReadAnew ? std::nullopt : editTo(unit, isOtherUnit);
    const TextDifferences differences
        = isReadAnew ? differencesBetween(m_promptText, unit.text) : TextDifferences();
    m_promptText = unit.text;
    m_slides = script && script->slides ? *script->slides : QList<SlideNote>();
    m_edit.reset();
    const bool isOtherTracking = assign(m_trackingActive, unit.slide.has_value());
    const bool isOtherIndex = assign(m_displayIndex, m_manualIndex);
    const bool isOtherCount = assign(m_slideCount, slideCountOf(script));
    const bool hasNewTitle = assign(m_slideTitle, unit.title);
    const bool isOtherDeckNews = assign(m_isOtherDeck, unit.isOtherDeck);

    if (isOtherUnit)
        Q_EMIT slideChangeTokenChanged();
    if (edit)
        Q_EMIT promptTextChanged(*edit);
    if (!differences.empty())
        Q_EMIT promptTextUpdated(differences);
    if (isOtherTracking)
        Q_EMIT trackingActiveChanged();
    if (isOtherIndex)
        Q_EMIT displayIndexChanged();
    if (isOtherCount)
        Q_EMIT slideCountChanged();
    if (hasNewTitle)
        Q_EMIT slideTitleChanged();
    if (isOtherDeckNews)
        Q_EMIT otherDeckChanged();
}

} // namespace Orvello
