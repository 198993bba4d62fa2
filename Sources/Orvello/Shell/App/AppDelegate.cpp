#include "Orvello/Shell/App/AppDelegate.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Foundation/Observe.h"
#include "Orvello/Platform/Desktop/DesktopServices.h"
#include "Orvello/Platform/Desktop/Platform.h"
#include "Orvello/Platform/Desktop/StatusBar.h"
#include "Orvello/Presentations/Decks/PptxImporter.h"
#include "Orvello/Presentations/Presenters/AppleScriptPresenters.h"
#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"
#include "Orvello/Shell/Commands/PlainPKey.h"
#include "Orvello/Shell/Commands/StatusItem.h"
#include "Orvello/Shell/Windows/Branding.h"
#include "Orvello/Shell/Windows/ImpressAdviceDialog.h"
#include "Orvello/Shell/Windows/PrompterWindow.h"
#include "Orvello/Shell/Windows/RightClickFilter.h"

#include <QCoreApplication>
#include <QGuiApplication>

#include <algorithm>
#include <csignal>
#include <utility>

namespace Orvello {

AppDelegate::AppDelegate(
    Platform& platform, ShellWindows::Factory makeWindows, LaunchOptions options)
    : m_platform(platform)
    , m_makeWindows(std::move(makeWindows))
    , m_options(std::move(options))
    , m_settings(platform.userDefaults())
    , m_library(platform.userDefaults(), platform.folders(), platform.time(), platform.facts())
    , m_scriptRunner(platform.childProcess())
    , m_micActivity(platform.audioProcesses(), QCoreApplication::applicationPid())
    , m_engine([this] { return std::make_unique<ScrollEngine>(m_settings, m_platform.time()); })
    , m_voice([this] {
        return std::make_unique<VoiceActivityEngine>(m_settings,
            VoiceActivityEngine::Ports { m_platform.time(), m_platform.microphonePermission(),
                m_platform.voiceProcessing(), m_platform.rawMicrophone(), m_micActivity,
                m_platform.workspace() });
    })
    , m_presentation({ m_presenters, platform.workspace(), platform.windowServer(), m_micActivity,
          platform.time() })
    , m_slideSync([this] {
        return std::make_unique<SlideSyncService>(m_presentation, m_presenters, m_platform.time());
    })
    , m_deck(
          [this] { return std::make_unique<DeckController>(m_library, m_settings, m_slideSync()); })
    , m_updates({ platform.updater(), platform.userDefaults(),
          [&platform] { platform.desktopServices().activateApplication(); } })
    , m_hotKeys(platform.hotKeys())
{
    SettingsStore::adoptShared(m_settings);
    LibraryStore::adoptShared(m_library);
    HotKeyCenter::adoptShared(m_hotKeys);
    addPresenters();
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::addPresenters()
{
    m_presenters.add(AppleScriptPresenters::keynote(m_scriptRunner));
    m_presenters.add(AppleScriptPresenters::powerPoint(m_scriptRunner));
    if (HelperProcess* helper = m_platform.impressHelper()) {
        m_impress = std::make_unique<ImpressPresenter>(*helper, m_presentation);
        m_presenters.add(m_impress->row());
        m_impressAdvice = std::make_unique<ImpressAdviceDialog>(*m_impress);
    }
}

void AppDelegate::applicationDidFinishLaunching()
{
    QGuiApplication::setWindowIcon(Branding::appIcon());
    makePanel();
    makeWindows();
    showFirstWindow();
    setupStatusItem();
    registerHotKeys();
    startUpdates();
    if (m_options.voice)
        m_settings.setVoiceFollow(true);
    subscribe();
    m_presentation.start();
    followSlideTracking();
    importDeckFromEnvironment();
    m_plainPKey = std::make_unique<PlainPKey>(
        PlainPKey::Services { HotKeyCenter::shared(), m_settings, m_presentation },
        [this] { m_engine().toggle(); });
    if (m_options.autostart)
        m_engine().start();
    handle(std::exchange(m_pendingURLs, {}));
    installSignalHandlers();
    m_hasLaunched = true;
    for (const LaunchOptions& options : std::exchange(m_earlyStarts, {}))
        follow(options);
}

void AppDelegate::applicationWillTerminate() { AppLog::endSession(); }

void AppDelegate::applicationOpen(const QList<QUrl>& urls)
{
    if (m_panelController)
        handle(urls);
    else
        m_pendingURLs += urls;
}

void AppDelegate::handle(const QList<QUrl>& urls)
{
    for (const QUrl& url : urls)
        AppLog::write("Orvello URL ignored: %@", url.toString(QUrl::FullyEncoded));
}

void AppDelegate::applicationStartedAgain(const LaunchOptions& options)
{
    applicationOpen(options.urls);
    if (!m_hasLaunched)
        m_earlyStarts.push_back(options);
    else if (options.asksRunningProgram())
        follow(options);
    else
        m_statusItem->openMenu();
}

void AppDelegate::follow(const LaunchOptions& options)
{
    if (options.onboarding)
        showOnboarding();
    if (options.checkUpdates)
        m_updates.checkForUpdates();
    if (options.voice)
        m_settings.setVoiceFollow(true);
    if (options.autostart)
        m_engine().start();
}

void AppDelegate::makePanel()
{
    ScrollEngine& engine = m_engine();
    VoiceActivityEngine& voice = m_voice();
    DeckController& deck = m_deck();
    m_prompterWindow = std::make_unique<PrompterWindow>(PrompterWindow::Services {
        engine, m_settings, voice, m_presentation, deck, m_platform.time(), m_options.noStealth });
    m_panel = m_platform.makePanel(m_prompterWindow->window());
    m_panelController = std::make_unique<PrompterPanelController>(
        PrompterPanelController::Services { *m_panel, engine, m_settings, m_presentation,
            m_platform.time(), m_platform.screens(), m_platform.folders() },
        m_options.noStealth);
}

void AppDelegate::makeWindows()
{
    m_windows = m_makeWindows({ m_settings, m_library, m_voice(), m_updates, m_presenters,
        m_scriptRunner, m_platform.workspace(), m_platform.openPanel(), m_platform.windowChrome(),
        m_platform.statusBar(), m_platform.hotKeys(), m_platform.facts() });
    m_commands = std::make_unique<AppCommands>(
        AppCommands::Services { m_engine(), m_settings, m_updates, m_platform.desktopServices(),
            *m_windows, m_platform.facts() },
        AppCommands::Delegate {
            .togglePanel = [this] { togglePanel(); },
            .isPanelVisible = [this] { return m_panel->isVisible(); },
            .showOnboarding = [this] { showOnboarding(); },
        });
}

void AppDelegate::showFirstWindow()
{
    if (m_settings.onboardingSeenVersion() >= 1 && !m_options.onboarding)
        showPanel();
    else
        showOnboarding();
}

void AppDelegate::showPanel()
{
    m_panelController->panel().orderFrontRegardless();
    m_panelController->reassertStealth();
}

void AppDelegate::togglePanel()
{
    if (m_panelController->panel().isVisible())
        m_panelController->panel().orderOut();
    else
        showPanel();
}

void AppDelegate::showOnboarding()
{
    if (!m_onboarding)
        m_onboarding = m_windows->makeOnboarding([this] { onboardingFinished(); });
    m_platform.desktopServices().activateApplication();
    m_onboarding->makeKeyAndOrderFront();
}

void AppDelegate::onboardingFinished()
{
    // The window is still closing: it goes when it has closed.
    QMetaObject::invokeMethod(
        this, [closing = std::shared_ptr(std::move(m_onboarding))] {}, Qt::QueuedConnection);
    showPanel();
}

void AppDelegate::setupStatusItem()
{
    m_statusMenu = std::make_unique<StatusMenu>(
        *m_commands, m_platform.hotKeys(), AppCommands::versionText());
    m_statusItem = m_windows->makeStatusItem(*m_statusMenu);
    // The prompter is always at hand, a status bar is not.
    m_rightClicks = std::make_unique<RightClickFilter>(
        m_prompterWindow->window(), [this] { m_statusItem->openMenu(); });
}

void AppDelegate::registerHotKeys()
{
    for (const Command& command : Commands::all()) {
        if (command.key)
            HotKeyCenter::shared().registerHotKey(command.key->code, command.key->modifiers,
                [this, run = command.run] { (m_commands.get()->*run)(); });
    }
}

void AppDelegate::startUpdates()
{
    m_updates.start();
    if (m_options.checkUpdates)
        m_updates.checkForUpdates();
}

void AppDelegate::subscribe()
{
    observe(*m_panelController, &PrompterPanelController::isVisibleInRecordings,
        &PrompterPanelController::visibleInRecordingsChanged, *this,
        [this](bool isVisible) { m_prompterWindow->setVisibleInRecordings(isVisible); });
    observe(m_settings, &SettingsStore::stealthMode, &SettingsStore::stealthModeChanged, *this,
        [this](bool on) { m_panelController->applyStealthMode(on); });
    observe(m_settings, &SettingsStore::voiceFollow, &SettingsStore::voiceFollowChanged, *this,
        [this](bool on) {
            m_engine().setVoiceFollowActive(on);
            if (on)
                m_voice().requestPermissionAndStart();
            else
                m_voice().stop();
        });
    observe(m_voice(), &VoiceActivityEngine::isSpeaking, &VoiceActivityEngine::isSpeakingChanged,
        *this, [this](bool isSpeaking) { m_engine().setVoiceGate(isSpeaking); });
}

/// Slide tracking is on exactly while the setting is and the active script has slides.
void AppDelegate::followSlideTracking()
{
    const auto isTracking = [this] {
        const Script* script = m_library.activeScript();
        return m_settings.slideSync() && script && script->slides && !script->slides->isEmpty();
    };
    observeCombined(
        *this, isTracking, [this](bool isOn) { m_slideSync().setActive(isOn); },
        changeOf(m_settings, &SettingsStore::slideSyncChanged),
        changeOf(m_library, &LibraryStore::activeScriptIDChanged),
        changeOf(m_library, &LibraryStore::scriptsChanged));
}

void AppDelegate::importDeckFromEnvironment()
{
    constexpr const char* variable = "ORVELLO_IMPORT_PPTX";
    if (!qEnvironmentVariableIsSet(variable))
        return;
    const auto imported = m_library.importPptx(qEnvironmentVariable(variable));
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
        m_signals.push_back(processSignals.handle(signal, [this] { m_commands->terminate(); }));
}

} // namespace Orvello
