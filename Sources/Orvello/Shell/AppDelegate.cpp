#include "Orvello/Shell/AppDelegate.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Platform/Platform.h"
#include "Orvello/Presentations/PptxImporter.h"
#include "Orvello/Shell/PrompterWindow.h"

#include <QCoreApplication>

#include <csignal>

namespace Orvello {

AppDelegate::AppDelegate(Platform& platform, const LaunchOptions& options)
    : m_platform(platform)
    , m_options(options)
    , m_settings(platform.userDefaults())
    , m_library(platform.userDefaults(), platform.folders(), platform.time())
    , m_engine(m_settings, platform.time())
{
    SettingsStore::adoptShared(m_settings);
    LibraryStore::adoptShared(m_library);
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::applicationDidFinishLaunching()
{
    makePanel();
    m_panelController->orderFrontRegardless();
    importDeckFromEnvironment();
    if (m_options.autostart)
        m_engine.start();
    installSignalHandlers();
}

void AppDelegate::applicationWillTerminate() { AppLog::endSession(); }

void AppDelegate::togglePanel()
{
    if (m_panelController->isPanelVisible())
        m_panelController->orderOut();
    else
        m_panelController->orderFrontRegardless();
}

void AppDelegate::makePanel()
{
    m_prompterWindow = std::make_unique<PrompterWindow>(
        PrompterWindow::Services { m_engine, m_settings, m_library, m_options.noStealth });
    m_panel = m_platform.makePanel(m_prompterWindow->window());
    m_panelController = std::make_unique<PrompterPanelController>(
        *m_panel, m_platform.screens(), m_engine, m_options.noStealth);
}

void AppDelegate::importDeckFromEnvironment()
{
    const QString path = qEnvironmentVariable("ORVELLO_IMPORT_PPTX");
    if (path.isEmpty())
        return;
    const auto imported = m_library.importPptx(path);
    if (!imported)
        AppLog::write(
            "Orvello IMPORT_PPTX failed: %@", PptxImporter::description(imported.error()));
}

void AppDelegate::installSignalHandlers()
{
    ProcessSignals& processSignals = m_platform.processSignals();
    m_signals.push_back(processSignals.handle(SIGUSR1, [this] {
        m_settings.setStealthMode(!m_settings.stealthMode());
        AppLog::write(
            "Orvello DEBUG stealth toggled -> %d", static_cast<int>(m_settings.stealthMode()));
    }));
    m_signals.push_back(processSignals.handle(SIGUSR2, [this] { togglePanel(); }));

    // A kill or Ctrl-C is an ordinary quit: the session ends cleanly and leaves no marker.
    for (const int signal : { SIGTERM, SIGINT })
        m_signals.push_back(processSignals.handle(signal, [] { QCoreApplication::quit(); }));
}

} // namespace Orvello
