#include "Orvello/Shell/Windows/OnboardingWindowController.h"

#include "Orvello/Platform/Desktop/AssignedKeys.h"
#include "Orvello/Platform/Desktop/WindowChrome.h"
#include "Orvello/Platform/Desktop/Workspace.h"
#include "Orvello/Prompting/Text/PromptFont.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Shell/Windows/ViewWindow.h"
#include "Orvello/Shell/Windows/WindowPlacement.h"
#include "Orvello/Voice/VoiceActivityEngine.h"

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr QColor background(18, 18, 23); // Red and green 0.07, blue 0.09.

int initialPage()
{
    return WelcomeTour::pageNamed(qEnvironmentVariable("ORVELLO_ONBOARDING_PAGE"));
}

} // namespace

OnboardingWindowController::OnboardingWindowController(
    const Services& services, std::function<void()> onFinish, PanelSpace panel)
    : m_settings(services.settings)
    , m_onFinish(std::move(onFinish))
    , m_tour(initialPage(), services.workspace.isInstalled(u"us.zoom.xos"_s), services.facts)
    , m_shortcuts(services.hotKeys, ShortcutList::Width::Narrow)
    , m_panel(std::move(panel))
{
    m_view.setTitle(tr("Welcome to Orvello"));
    m_view.setFlags(ViewWindow::titledAndClosable);
    m_view.setColor(background);
    m_view.resize(contentSize);
    const bool hasSystemCloseButton = services.chrome.hideTitleBar(m_view);
    ViewWindow::load(m_view, u"OnboardingView"_s,
        {
            { u"tour"_s, QVariant::fromValue(&m_tour) },
            { u"headingFamily"_s, PromptFont::family() },
            { u"shortcuts"_s, QVariant::fromValue(&m_shortcuts) },
            { u"facts"_s, QVariant::fromValue(services.facts) },
            { u"voice"_s, QVariant::fromValue(&services.voice) },
            { u"hasCloseButton"_s, !hasSystemCloseButton },
        });

    connect(&m_tour, &WelcomeTour::exitRequested, this, [this] {
        finish();
        m_view.close();
    });
    m_view.installEventFilter(this);
}

void OnboardingWindowController::bringToFront()
{
    WindowPlacement::bringToFrontFixed(m_view, { contentSize, contentSize }, m_panel);
}

bool OnboardingWindowController::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Close)
        finish();
    return QObject::eventFilter(watched, event);
}

void OnboardingWindowController::finish()
{
    if (std::exchange(m_finished, true))
        return;
    m_settings.setOnboardingSeenVersion(version);
    // Later: the view is still handling the press or the close that led here.
    QMetaObject::invokeMethod(
        this, &OnboardingWindowController::tellFinished, Qt::QueuedConnection);
}

void OnboardingWindowController::tellFinished()
{
    std::exchange(m_onFinish, {})(); // May destroy the controller.
}

} // namespace Orvello
