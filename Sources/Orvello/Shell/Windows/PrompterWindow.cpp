#include "Orvello/Shell/Windows/PrompterWindow.h"

#include "Orvello/Presentations/Slideshow/DeckController.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Prompting/Text/PromptFont.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Shell/Windows/ViewWindow.h"

#include <QQuickItem>

namespace Orvello {

using namespace Qt::StringLiterals;

PrompterWindow::PrompterWindow(const Services& services)
    : m_lines(services.time)
    , m_status(services.engine)
    , m_levelMeter(services.voice)
    , m_slideStatus(services.deck)
    , m_shareWarning(services.presentation, services.settings, services.engine)
{
    m_view.setTitle(u"Orvello"_s);
    m_view.setColor(Qt::transparent);
    ViewWindow::load(m_view, u"PrompterView"_s,
        {
            { u"engine"_s, QVariant::fromValue(&services.engine) },
            { u"settings"_s, QVariant::fromValue(&services.settings) },
            { u"lines"_s, QVariant::fromValue(&m_lines) },
            { u"status"_s, QVariant::fromValue(&m_status) },
            { u"levelMeter"_s, QVariant::fromValue(&m_levelMeter) },
            { u"slideStatus"_s, QVariant::fromValue(&m_slideStatus) },
            { u"shareWarning"_s, QVariant::fromValue(&m_shareWarning) },
            { u"promptText"_s, services.deck.promptText() },
            { u"fontFamily"_s, PromptFont::family() },
            { u"forceCapturable"_s, services.forceCapturable },
        });

    followDeck(services.deck, services.engine);
}

PrompterWindow::~PrompterWindow() = default;

void PrompterWindow::setVisibleInRecordings(bool isVisible)
{
    m_view.rootObject()->setProperty("visibleInRecordings", isVisible);
}

void PrompterWindow::followDeck(const DeckController& deck, ScrollEngine& engine)
{
    connect(&deck, &DeckController::promptTextChanged, this,
        [this, &deck] { m_view.rootObject()->setProperty("promptText", deck.promptText()); });
    // Every slide's notes start at the top.
    connect(
        &deck, &DeckController::slideChangeTokenChanged, this, [&engine] { engine.setOffset(0); });
}

} // namespace Orvello
