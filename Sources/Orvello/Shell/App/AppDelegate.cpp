#include "Orvello/Shell/App/AppDelegate.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Foundation/Observe.h"
#include "Orvello/Platform/Desktop/CaptureHiding.h"
#include "Orvello/Platform/Desktop/DesktopPlatform.h"
#include "Orvello/Platform/Desktop/DesktopServices.h"
#include "Orvello/Platform/Desktop/HotKeys.h"
#include "Orvello/Platform/Desktop/StatusBar.h"
#include "Orvello/Platform/Early/EarlyPlatform.h"
#include "Orvello/Platform/Early/UserDefaults.h"
#include "Orvello/Platform/Sound/SoundPlatform.h"
#include "Orvello/Presentations/Decks/PptxImporter.h"
#include "Orvello/Presentations/Presenters/AppleScriptPresenters.h"
#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"
#include "Orvello/Shell/App/StayAwake.h"
#include "Orvello/Shell/Commands/PlainPKey.h"
#include "Orvello/Shell/Commands/StatusItem.h"
#include "Orvello/Shell/Windows/Branding.h"
#include "Orvello/Shell/Windows/ImpressAdviceDialog.h"
#include "Orvello/Shell/Windows/PrompterWindow.h"
#include "Orvello/Shell/Windows/RightClickFilter.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QGuiApplication>

#include <algorithm>
#include <csignal>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

AppDelegate::AppDelegate(const Platforms& platforms, ShellWindows::Factory makeWindows,
    LaunchOptions options, ReadDecks decks)
    : m_platforms(platforms)
    , m_makeWindows(std::move(makeWindows))
    , m_options(std::move(options))
    , m_readDecks(std::move(decks))
    , m_settings(platforms.early.userDefaults())
    , m_library(platforms.early.userDefaults(), platforms.early.folders(), platforms.early.time(),
          platforms.early.facts())
    , m_scriptRunner(platforms.early.childProcess())
    , m_openDecks(m_library, platforms.desktop.workspace(), m_scriptRunner)
    , m_deckFiles(m_library)
    , m_deckUpdates(m_library, m_deckFiles, platforms.early.time())
    , m_micActivity(platforms.sound.audioProcesses(), QCoreApplication::applicationPid())
    , m_engine(m_settings, platforms.early.time())
    , m_pace(m_settings, m_engine, platforms.early.time())
    , m_voice(m_settings,
          VoiceActivityEngine::Ports { platforms.early.time(),
              platforms.sound.microphonePermission(), platforms.sound.voiceProcessing(),
              platforms.sound.rawMicrophone(), m_micActivity, platforms.sound.microphones(),
              platforms.desktop.workspace() })
    , m_presentation({ m_presenters, platforms.desktop.workspace(),
          platforms.desktop.windowServer(), m_micActivity, platforms.early.time() })
    , m_slideSync(m_presentation, m_presenters, platforms.early.time())
    , m_deck(m_library, m_settings, m_slideSync)
    , m_updates({ platforms.desktop.updater(), platforms.early.userDefaults(),
          [this] { m_platforms.desktop.desktopServices().activateApplication(); },
          [this] { return !m_onboarding; } })
    , m_hotKeys(platforms.desktop.hotKeys())
{
    addPresenters();
    quitAtSignals();
}

AppDelegate::~AppDelegate() = default;

void AppDelegate::addPresenters()
{
    const auto add = [this](PresenterApp app) {
        app.isForThisSystem = m_platforms.early.facts().hasKeynoteAndPowerPoint;
        m_presenters.add(std::move(app));
    };
    add(AppleScriptPresenters::keynote(m_scriptRunner));
    add(AppleScriptPresenters::powerPoint(m_scriptRunner));
    if (HelperProcess* helper = m_platforms.desktop.impressHelper()) {
        m_impress = std::make_unique<ImpressPresenter>(
            *helper, m_presentation, m_platforms.early.userDefaults());
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
    importDecks();
    m_plainPKey
        = std::make_unique<PlainPKey>(PlainPKey::Services { m_hotKeys, m_settings, m_presentation },
            [this] { m_engine.toggle(); });
    scroll(m_options);
    handle(std::exchange(m_pendingURLs, {}));
    installSignalHandlers();
    openWindows(m_options);
    m_hasLaunched = true;
    for (const EarlyStart& start : std::exchange(m_earlyStarts, {}))
        follow(start.options, start.answer);
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

void AppDelegate::applicationStartedAgain(
    const LaunchOptions& options, const RunningInstance::Answer& answer)
{
    applicationOpen(options.urls);
    if (!m_hasLaunched)
        m_earlyStarts.push_back({ options, answer });
    else if (!follow(options, answer) && options.urls.isEmpty())
        m_statusItem->openMenu();
}

/// Whether there was anything for this process to do; addresses are for the one that runs.
bool AppDelegate::follow(const LaunchOptions& options, const RunningInstance::Answer& answer)
{
    QStringList decks = options.files;
    if (!options.importedPath.isEmpty())
        decks.prepend(options.importedPath);
    const bool isForThis = !decks.isEmpty() || options.onboarding || options.checkUpdates
        || options.voice || options.autostart || options.toggle || options.scripts
        || options.settings;
    if (decks.isEmpty()) {
        followRead(options, answer, {});
        return isForThis;
    }
    // By another thread, as the reader may be in the middle of a talk.
    const auto refusals = std::make_shared<QStringList>();
    for (qsizetype i = 0; i < decks.size(); ++i) {
        const bool isLast = i + 1 == decks.size();
        const bool isKnownUpdated = i > 0 || options.importedPath.isEmpty();
        m_deckFiles.read(decks[i],
            [this, path = decks[i], isLast, isKnownUpdated, options, answer, refusals](
                const DeckFileImport::ReadDeck& deck) {
                if (!deck)
                    refusals->append(path + u": "_s + refusal(deck.error()));
                else if (isKnownUpdated)
                    addDeck(path, *deck);
                else
                    m_library.addReadDeck(path, *deck);
                if (isLast)
                    followRead(options, answer, *refusals);
            });
    }
    return isForThis;
}

/// Once its decks are in the library, or refused.
void AppDelegate::followRead(const LaunchOptions& options, const RunningInstance::Answer& answer,
    const QStringList& refusals)
{
    const bool hasDecks = refusals.isEmpty();
    // Before anything that may keep the user, and with it the other process, waiting.
    answer(options.mistakes + refusals + comesTooLate(options));

    if (options.onboarding)
        showOnboarding();
    if (options.checkUpdates)
        m_updates.checkForUpdates();
    if (options.voice)
        m_settings.setVoiceFollow(true);
    if (hasDecks)
        scroll(options);
    openWindows(options);
}

/// What would have to be different from the launch on.
QStringList AppDelegate::comesTooLate(const LaunchOptions& options) const
{
    const QString text = tr("%1 counts only at the launch: quit the Orvello that runs first");
    QStringList refusals;
    if (options.noStealth && !m_options.noStealth)
        refusals.append(text.arg(u"--no-stealth"_s));
    for (auto pair = options.preferences.begin(); pair != options.preferences.end(); ++pair) {
        const QVariant current = m_platforms.early.userDefaults().value(pair.key());
        if (current.toString() != pair.value().toString())
            refusals.append(text.arg(u'-' + pair.key() + u' ' + pair.value().toString()));
    }
    for (auto variable = options.environment.begin(); variable != options.environment.end();
         ++variable) {
        const bool isImport = variable.key() == u"ORVELLO_IMPORT_PPTX"_s;
        if (!isImport && variable.value() != m_options.environment.value(variable.key()))
            refusals.append(text.arg(variable.key()));
    }
    return refusals;
}

void AppDelegate::scroll(const LaunchOptions& options)
{
    if (options.autostart)
        m_engine.start();
    if (options.toggle)
        m_engine.toggle();
}

void AppDelegate::openWindows(const LaunchOptions& options)
{
    if (options.scripts)
        m_commands->openLibrary();
    if (options.settings)
        m_commands->openSettings();
}

void AppDelegate::makePanel()
{
    m_prompterWindow
        = std::make_unique<PrompterWindow>(PrompterWindow::Services { .engine = m_engine,
            .settings = m_settings,
            .voice = m_voice,
            .presentation = m_presentation,
            .deck = m_deck,
            .library = m_library,
            .openDecks = m_openDecks,
            .time = m_platforms.early.time(),
            .forceCapturable = m_options.noStealth });
    m_panel = m_platforms.desktop.makePanel(m_prompterWindow->window());
    m_panelController = std::make_unique<PrompterPanelController>(
        PrompterPanelController::Services { .panel = *m_panel,
            .engine = m_engine,
            .settings = m_settings,
            .presentation = m_presentation,
            .time = m_platforms.early.time(),
            .screens = m_platforms.desktop.screens(),
            .folders = m_platforms.early.folders() },
        m_options.noStealth, m_platforms.captureExclusion);
}

void AppDelegate::makeWindows()
{
    m_windows = m_makeWindows({ m_settings, m_library, m_voice, m_pace, m_updates, m_presenters,
        m_openDecks, m_deckFiles, m_deckUpdates, m_platforms.desktop.workspace(),
        m_platforms.desktop.openPanel(), m_platforms.desktop.windowChrome(),
        m_platforms.desktop.statusBar(), m_platforms.desktop.hotKeys(),
        m_platforms.desktop.compositing(), m_platforms.early.facts(), m_impress.get(),
        PanelSpace {
            .frame = [this] { return m_panel->isVisible() ? m_panel->frame() : QRectF(); },
            .stepAside = [this] { m_panel->hide(); },
            .comeBack = [this] { showPanel(); },
        },
        [this](qsizetype position) {
            if (!m_panel->isVisible())
                showPanel();
            m_prompterWindow->startAt(position);
        } });
    m_commands = std::make_unique<AppCommands>(
        AppCommands::Services { m_engine, m_settings, m_updates,
            m_platforms.desktop.desktopServices(), *m_windows, m_platforms.early.facts() },
        AppCommands::Delegate {
            .togglePanel = [this] { togglePanel(); },
            .putUnderCamera = [this] { putUnderCamera(); },
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
    m_panelController->panel().show();
    m_panelController->reassertStealth();
}

void AppDelegate::togglePanel()
{
    if (m_panelController->panel().isVisible())
        m_panelController->panel().hide();
    else
        showPanel();
}

void AppDelegate::putUnderCamera()
{
    m_panelController->putUnderCamera();
    showPanel();
}

void AppDelegate::showOnboarding()
{
    if (!m_onboarding)
        m_onboarding = m_windows->makeOnboarding([this] { onboardingFinished(); });
    m_platforms.desktop.desktopServices().activateApplication();
    m_onboarding->bringToFront();
}

void AppDelegate::onboardingFinished()
{
    // The window is still closing; it goes once it has closed.
    QMetaObject::invokeMethod(
        this, [closing = std::shared_ptr(std::move(m_onboarding))] {}, Qt::QueuedConnection);
    showPanel();
}

void AppDelegate::setupStatusItem()
{
    m_statusMenu = std::make_unique<StatusMenu>(
        *m_commands, m_platforms.desktop.hotKeys(), AppCommands::versionText());
    m_statusItem = m_windows->makeStatusItem(*m_statusMenu);
    m_prompterMenu = std::make_unique<StatusMenu>(*m_commands, m_platforms.desktop.hotKeys(),
        AppCommands::versionText(), StatusMenu::Owner::Prompter);
    // The prompter is always at hand, a status bar is not.
    m_rightClicks = std::make_unique<RightClickFilter>(
        m_prompterWindow->window(), [this] { m_windows->popUp(*m_prompterMenu); });
}

void AppDelegate::registerHotKeys()
{
    for (const Command& command : Commands::all()) {
        if (command.key)
            m_hotKeys.registerHotKey(
                *command.key, [this, run = command.run] { (m_commands.get()->*run)(); },
                Commands::purpose(command));
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
            m_engine.setVoiceFollowActive(on);
            if (on)
                m_voice.requestPermissionAndStart();
            else
                m_voice.stop();
        });
    observe(m_voice, &VoiceActivityEngine::isSpeaking, &VoiceActivityEngine::isSpeakingChanged,
        *this, [this](bool isSpeaking) { m_engine.setVoiceGate(isSpeaking); });
    connect(&m_deck, &DeckController::promptTextChanged, this,
        [this] { m_pace.setText(m_deck.promptText()); });
    m_pace.setText(m_deck.promptText());
    m_stayAwake
        = std::make_unique<StayAwake>(StayAwake::Services { m_platforms.desktop.wakefulness(),
            m_engine, m_slideSync, m_presentation, m_voice, m_platforms.early.time() });
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
    if (!m_impress)
        return;
    // A consent given while a slideshow runs counts at once.
    connect(m_impress.get(), &ImpressPresenter::isAllowedChanged, this, [this] {
        if (m_slideSync.state() != SlideSyncService::State::Denied || !m_impress->isAllowed())
            return;
        m_slideSync.setActive(false);
        m_slideSync.setActive(true);
    });
}

void AppDelegate::importDecks()
{
    if (!m_options.importedPath.isEmpty())
        importDeck(m_options.importedPath);
    for (const QString& file : m_options.files) {
        if (const auto deck = m_readDecks.find(file); deck != m_readDecks.end())
            addDeck(file, deck->second);
        else
            importDeck(file);
    }
    m_readDecks.clear();
}

/// A deck that is opened once more brings the script up to date that was made of it.
void AppDelegate::addDeck(const QString& path, const PptxImporter::Deck& deck)
{
    const auto known = m_library.scriptOfDeckFile(QFileInfo(path).absoluteFilePath());
    if (!known) {
        m_library.addReadDeck(path, deck);
        return;
    }
    m_library.setActiveScriptID(known);
    m_library.updateDeck(*known, path, deck);
}

/// Why a deck could not be imported, in words for the user.
QString AppDelegate::refusal(PptxImporter::ImportError error)
{
    const QString problem = PptxImporter::description(error);
    AppLog::write("Orvello IMPORT_PPTX failed: %@", problem);
    return problem;
}

/// Returns why it could not be imported, in words for the user.
std::optional<QString> AppDelegate::importDeck(const QString& path)
{
    const auto imported = m_library.importPptx(path);
    return imported ? std::nullopt : std::optional(refusal(imported.error()));
}

/// A kill, Ctrl-C or the end of the terminal is an ordinary quit: the session ends cleanly and
/// leaves no marker. Not where the parent has it ignored, as nohup does.
void AppDelegate::quitAtSignals()
{
    for (const int signal : { SIGTERM, SIGINT, SIGHUP }) {
        if (!m_platforms.early.processSignals().isIgnored(signal))
            m_signals.push_back(m_platforms.early.processSignals().handle(
                signal, [] { QCoreApplication::exit(); }));
    }
}

void AppDelegate::installSignalHandlers()
{
    ProcessSignals& processSignals = m_platforms.early.processSignals();
    m_signals.push_back(processSignals.handle(SIGUSR1, [this] {
        m_settings.setStealthMode(!m_settings.stealthMode());
        AppLog::write(
            "Orvello DEBUG stealth toggled -> %d", static_cast<int>(m_settings.stealthMode()));
    }));
    m_signals.push_back(processSignals.handle(SIGUSR2, [this] { togglePanel(); }));
}

} // namespace Orvello
