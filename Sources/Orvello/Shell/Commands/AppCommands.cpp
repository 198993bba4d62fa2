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

#include <utility>

namespace Orvello {

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
    window.makeKeyAndOrderFront();
}

void AppCommands::openTour() { m_delegate.showOnboarding(); }

void AppCommands::checkForUpdates() { m_services.updates.checkForUpdates(); }

void AppCommands::contactSupport()
{
    const QUrl letter = Support::mailLink(
        QString::fromLatin1(supportAddress), versionText(), m_services.operatingSystemVersion);
    if (!letter.isEmpty())
        m_services.desktop.open(letter);
}

void AppCommands::revealLogs()
{
    m_services.desktop.reveal(QString::fromStdString(AppLog::fileURL()));
}

/// Windows that are open are not asked: closing the tour would count as having seen it.
void AppCommands::terminate() { QCoreApplication::exit(); }

} // namespace Orvello
