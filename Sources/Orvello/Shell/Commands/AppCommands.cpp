#include "Orvello/Shell/Commands/AppCommands.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Platform/Desktop/DesktopServices.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Shell/Commands/ShellWindows.h"
#include "Orvello/Shell/Commands/Support.h"
#include "Orvello/Shell/Updates/UpdateController.h"

#include "Version.h"

#include <QCoreApplication>

#include <algorithm>
#include <utility>

namespace Orvello {

namespace {

// What the speed keys do, in points per second.
constexpr double speedStep = 10;
constexpr double slowestSpeed = 15;
constexpr double fastestSpeed = 240;

} // namespace

AppCommands::AppCommands(Services services, Delegate delegate)
    : m_services(std::move(services))
    , m_delegate(std::move(delegate))
{
}

AppCommands::~AppCommands() = default;

QString AppCommands::versionText()
{
    return Support::versionText(QString::fromLatin1(version), QString::fromLatin1(buildNumber));
}

void AppCommands::toggleScroll() { m_services.engine.toggle(); }

void AppCommands::speedUp()
{
    m_services.settings.setSpeed(std::min(m_services.settings.speed() + speedStep, fastestSpeed));
}

void AppCommands::slowDown()
{
    const double speed = m_services.settings.speed();
    // A pace in words can be slower than the keys go; they never make it faster then.
    m_services.settings.setSpeed(std::max(speed - speedStep, std::min(speed, slowestSpeed)));
}

void AppCommands::backToTop() { m_services.engine.setOffset(0); }

void AppCommands::toggleVoice()
{
    m_services.settings.setVoiceFollow(!m_services.settings.voiceFollow());
}

void AppCommands::toggleSlideTracking()
{
    m_services.settings.setSlideSync(!m_services.settings.slideSync());
}

void AppCommands::toggleStealth()
{
    m_services.settings.setStealthMode(!m_services.settings.stealthMode());
}

void AppCommands::togglePanel() { m_delegate.togglePanel(); }

void AppCommands::putUnderCamera() { m_delegate.putUnderCamera(); }

void AppCommands::openLibrary()
{
    if (!m_libraryWindow)
        m_libraryWindow = m_services.windows.makeLibrary();
    show(*m_libraryWindow);
}

void AppCommands::openSettings()
{
    if (!m_settingsWindow)
        m_settingsWindow = m_services.windows.makeSettings();
    show(*m_settingsWindow);
}

void AppCommands::show(ShellWindow& window)
{
    m_services.desktop.activateApplication();
    window.bringToFront();
}

void AppCommands::openTour() { m_delegate.showOnboarding(); }

void AppCommands::checkForUpdates() { m_services.updates.checkForUpdates(); }

QUrl AppCommands::supportLetter() const
{
    return Support::mailLink(
        QString::fromLatin1(supportAddress), versionText(), m_services.facts.operatingSystem);
}

void AppCommands::contactSupport()
{
    if (const QUrl letter = supportLetter(); !letter.isEmpty())
        m_services.desktop.open(letter);
}

bool AppCommands::hasSupportAddress() const { return !supportLetter().isEmpty(); }

void AppCommands::revealLogs()
{
    m_services.desktop.reveal(QString::fromStdString(AppLog::fileURL()));
}

/// Windows that are open are not asked: closing the tour would count as having seen it.
void AppCommands::terminate() { QCoreApplication::exit(); }

bool AppCommands::isScrolling() const { return m_services.engine.isRunning(); }

bool AppCommands::isPanelVisible() const { return m_delegate.isPanelVisible(); }

bool AppCommands::isVoiceOn() const { return m_services.settings.voiceFollow(); }

bool AppCommands::isSlideTrackingOn() const { return m_services.settings.slideSync(); }

bool AppCommands::isStealthOn() const { return m_services.settings.stealthMode(); }

} // namespace Orvello
