#include "Orvello/Shell/AppDelegate.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Platform/Observe.h"
#include "Orvello/Platform/Platform.h"
#include "Orvello/Presentations/AppleScriptPresenters.h"
#include "Orvello/Presentations/ImpressPresenter.h"
#include "Orvello/Presentations/PptxImporter.h"
#include "Orvello/Shell/ImpressAdviceDialog.h"
#include "Orvello/Shell/PrompterWindow.h"

#include <QCoreApplication>

#include <csignal>

namespace Orvello {

AppDelegate::AppDelegate(Platform& platform, const LaunchOptions& options)
    : m_platform(platform)
    , m_options(options)
    , m_settings(platform.userDefaults())
    , m_library(platform.userDefaults(), platform.folders(), platform.time())
    , m_scriptRunner(platform.childProcess())
    , m_micActivity(platform.audioProcesses(), QCoreApplication::applicationPid())
    , m_presentation({ m_presenters, platform.workspace(), platform.windowServer(), m_micActivity,
          platform.time() })
    , m_engine(m_settings, platform.time())
    , m_voice(m_settings,
          { platform.time(), platform.microphonePermission(), platform.voiceProcessing(),
              platform.rawMicrophone(), m_micActivity, platform.workspace() })
    , m_slideSync(m_presentation, m_presenters, platform.time())
    , m_deck(m_library, m_settings, m_slideSync)
{
    SettingsStore::adoptShared(m_settings);
    LibraryStore::adoptShared(m_library);
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
    makePanel();
    showPanel();
    if (m_options.voice)
        m_settings.setVoiceFollow(true);
    subscribe();
    m_presentation.start();
    followSlideTracking();
    importDeckFromEnvironment();
    if (m_options.autostart)
        m_engine.start();
    installSignalHandlers();
}

void AppDelegate::applicationWillTerminate() { AppLog::endSession(); }

void AppDelegate::togglePanel()
{
    if (m_panelController->panel().isVisible())
        m_panelController->panel().orderOut();
    else
        showPanel();
}

void AppDelegate::makePanel()
{
    m_prompterWindow = std::make_unique<PrompterWindow>(PrompterWindow::Services {
        m_engine, m_settings, m_deck, m_platform.time(), m_options.noStealth });
    m_panel = m_platform.makePanel(m_prompterWindow->window());
    m_panelController = std::make_unique<PrompterPanelController>(
        PrompterPanelController::Services { *m_panel, m_engine, m_settings, m_presentation,
            m_platform.time(), m_platform.screens(), m_platform.folders() },
        m_options.noStealth);
}

void AppDelegate::showPanel()
{
    m_panelController->panel().orderFrontRegardless();
    m_panelController->reassertStealth();
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
            m_engine.setVoiceFollowActive(on);
            if (on)
                m_voice.requestPermissionAndStart();
            else
                m_voice.stop();
        });
    observe(m_voice, &VoiceActivityEngine::isSpeaking, &VoiceActivityEngine::isSpeakingChanged,
        *this, [this](bool isSpeaking) { m_engine.setVoiceGate(isSpeaking); });
}

/// Slide tracking is on exactly while the setting is and the active script has slides.
void AppDelegate::followSlideTracking()
{
    const auto isTracking = [this] {
        const Script* script = m_library.activeScript();
        return m_settings.slideSync() && script && script->slides && !script->slides->isEmpty();
    };
    observeCombined(
        *this, isTracking, [this](bool isOn) { m_slideSync.setActive(isOn); },
        changeOf(m_settings, &SettingsStore::slideSyncChanged),
        changeOf(m_library, &LibraryStore::activeScriptIDChanged),
        changeOf(m_library, &LibraryStore::scriptsChanged));
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
