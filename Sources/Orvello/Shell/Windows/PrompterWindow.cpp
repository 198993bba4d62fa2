#include "Orvello/Shell/Windows/PrompterWindow.h"

#include "Orvello/Presentations/Slideshow/DeckController.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Prompting/Text/PromptFont.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Shell/Windows/ViewWindow.h"
#include "Orvello/Voice/VoiceActivityEngine.h"

#include <QQuickItem>

#include <algorithm>

namespace Orvello {

using namespace Qt::StringLiterals;

PrompterWindow::PrompterWindow(const Services& services)
    : m_deck(services.deck)
    , m_lines(services.time)
    , m_status(services.engine)
    , m_clock(services.settings, services.engine, services.time)
    , m_levelMeter(services.voice)
    , m_slideStatus(services.deck)
    , m_otherDeckNotice(services.deck, services.library, services.openDecks)
    , m_shareWarning(services.presentation, services.settings, services.engine)
{
    connectText(services);
    m_view.setTitle(u"Orvello"_s);
    m_view.setColor(Qt::transparent);
    ViewWindow::load(m_view, u"PrompterView"_s,
        {
            { u"engine"_s, QVariant::fromValue(&services.engine) },
            { u"settings"_s, QVariant::fromValue(&services.settings) },
            { u"lines"_s, QVariant::fromValue(&m_lines) },
            { u"status"_s, QVariant::fromValue(&m_status) },
            { u"clock"_s, QVariant::fromValue(&m_clock) },
            { u"levelMeter"_s, QVariant::fromValue(&m_levelMeter) },
            { u"voice"_s, QVariant::fromValue(&services.voice) },
            { u"slideStatus"_s, QVariant::fromValue(&m_slideStatus) },
            { u"otherDeckNotice"_s, QVariant::fromValue(&m_otherDeckNotice) },
            { u"shareWarning"_s, QVariant::fromValue(&m_shareWarning) },
            { u"fontFamily"_s, PromptFont::family() },
            { u"forceCapturable"_s, services.forceCapturable },
        });
}

PrompterWindow::~PrompterWindow() = default;

void PrompterWindow::setVisibleInRecordings(bool isVisible)
{
    m_status.setVisibleInRecordings(isVisible);
}

void PrompterWindow::startAt(qsizetype position)
{
    if (const std::optional<qsizetype> character = m_deck.goTo(position))
        m_lines.find(*character);
}

/// The text and its size go from the services to the layout, its height from there to the engine.
void PrompterWindow::connectText(const Services& services)
{
    const auto follow = [this](const auto& source, auto changed, const auto& takeOver) {
        connect(&source, changed, this, takeOver);
        takeOver();
    };
    follow(services.settings, &SettingsStore::fontSizeChanged,
        [this, &settings = services.settings] { m_lines.setFontSize(settings.fontSize()); });
    follow(m_lines, &PromptLines::contentHeightChanged,
        [this, &engine = services.engine] { engine.setContentHeight(m_lines.contentHeight()); });
    follow(services.engine, &ScrollEngine::offsetChanged,
        [this, &engine = services.engine] { m_lines.setReadingTop(engine.offset()); });
    connect(&m_lines, &PromptLines::readingTopMoved, this, [this, &engine = services.engine] {
        engine.setOffset(std::min(m_lines.readingTop(), engine.endOffset()));
    });
    connect(&m_lines, &PromptLines::found, this, [&engine = services.engine](double top) {
        if (engine.isCountingDown())
            engine.toggle();
        engine.setOffset(std::min(top, engine.endOffset()));
        // A text that stands at its end would start again from the top.
        if (engine.offset() < engine.endOffset())
            engine.start();
    });
    m_lines.setText(services.deck.promptText());
    connect(&services.deck, &DeckController::promptTextChanged, this,
        [this, &deck = services.deck](
            const TextEdit& edit) { m_lines.edit(deck.promptText(), edit); });
    connect(&services.deck, &DeckController::promptTextUpdated, this,
        [this, &deck = services.deck](const TextDifferences& differences) {
            m_lines.update(deck.promptText(), differences);
        });
    // Every slide's notes start at the top.
    connect(&services.deck, &DeckController::slideChangeTokenChanged, this,
        [&engine = services.engine] { engine.setOffset(0); });
}

} // namespace Orvello
