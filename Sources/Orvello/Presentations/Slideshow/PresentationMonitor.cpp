#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Foundation/Assign.h"
#include "Orvello/Platform/Desktop/WindowServer.h"
#include "Orvello/Platform/Desktop/Workspace.h"
#include "Orvello/Presentations/Presenters/PresenterApp.h"
#include "Orvello/Voice/MeetingApplications.h"
#include "Orvello/Voice/MicActivity.h"

#include <algorithm>
#include <cmath>

namespace Orvello {

namespace {

constexpr double pollSeconds = 1.0;
constexpr double topEdgeLimit = 2.0; ///< A slideshow's top edge lies above this.
constexpr double sizeTolerance = 4.0; ///< A slideshow is less than this off its screen's size.

bool hasSizeOf(const QRectF& window, const QSizeF& screen)
{
    return std::abs(window.width() - screen.width()) < sizeTolerance
        && std::abs(window.height() - screen.height()) < sizeTolerance;
}

/// True for bounds that start at the top of the desktop and fill one screen.
bool isFullScreen(const QRectF& bounds, const QList<QSizeF>& screens)
{
    return bounds.y() < topEdgeLimit
        && std::any_of(screens.begin(), screens.end(),
            [&](const QSizeF& screen) { return hasSizeOf(bounds, screen); });
}

} // namespace

PresentationMonitor::PresentationMonitor(const Sources& sources, QObject* parent)
    : QObject(parent)
    , m_sources(sources)
{
}

PresentationMonitor::~PresentationMonitor() = default;

void PresentationMonitor::start()
{
    if (m_timer)
        return;
    poll();
    m_timer = m_sources.time.callEvery(pollSeconds, [this] { poll(); });
}

void PresentationMonitor::poll()
{
    pollPresentingApp();
    pollMeetingApps();
    pollMicrophone();
}

void PresentationMonitor::pollPresentingApp()
{
    const bool isFrontmost = isPresenterFrontmost();
    // Nobody's windows are of interest before a presenter was frontmost once.
    const std::optional<QString> slideshow
        = isFrontmost || m_isSlideshowOnScreen ? slideshowOnScreen() : std::nullopt;
    const std::optional<QString> app = isFrontmost ? slideshow : std::nullopt;
    const bool comesOrGoes = assign(m_isSlideshowOnScreen, slideshow.has_value());
    m_presentingApp = app;
    const bool isTransition = assign(m_isPresenting, app.has_value());
    if (isTransition) {
        AppLog::write(
            "Orvello PRESENTING=%d app=%@", app ? 1 : 0, app ? *app : QStringLiteral("-"));
        Q_EMIT isPresentingChanged();
    }
    if (comesOrGoes)
        Q_EMIT isSlideshowOnScreenChanged();
}

void PresentationMonitor::pollMeetingApps()
{
    const QList<RunningApplication> running = m_sources.workspace.runningApplications();
    const bool isRunning = std::any_of(running.begin(), running.end(), [](const auto& app) {
        return app.bundleIdentifier && MeetingApplications::contain(*app.bundleIdentifier);
    });
    if (!assign(m_meetingAppRunning, isRunning))
        return;
    Q_EMIT meetingAppRunningChanged();
}

void PresentationMonitor::pollMicrophone()
{
    const bool isCapturing = m_sources.microphone.otherProcessCapturingInput();
    if (!assign(m_inCall, isCapturing))
        return;
    AppLog::write("Orvello IN_CALL=%d", m_inCall ? 1 : 0);
    Q_EMIT inCallChanged();
}

bool PresentationMonitor::isPresenterFrontmost() const
{
    const auto frontmost = m_sources.workspace.frontmostApplication();
    return frontmost && m_sources.presenters.identifiedBy(frontmost->bundleIdentifier);
}

/// The owner of a presenter's window over a whole screen.
std::optional<QString> PresentationMonitor::slideshowOnScreen() const
{
    const auto windows = m_sources.windowServer.windowsOnScreen();
    if (!windows)
        return std::nullopt;
    const QList<QSizeF> screens = m_sources.windowServer.screenSizes();

    // Any presenter's window will do, not only the frontmost one's.
    for (const WindowOnScreen& window : *windows) {
        if (m_sources.presenters.named(window.ownerName) && window.bounds
            && isFullScreen(*window.bounds, screens))
            return window.ownerName;
    }
    return std::nullopt;
}

} // namespace Orvello
