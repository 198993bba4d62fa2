#pragma once

#include "Orvello/Library/Import/DeckFileImport.h"
#include "Orvello/Library/Import/DeckFileUpdates.h"
#include "Orvello/Library/Import/LiveDeckImport.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Platform/Early/ProcessSignals.h"
#include "Orvello/Platform/Early/RunningInstance.h"
#include "Orvello/Presentations/Presenters/AppleScriptRunner.h"
#include "Orvello/Presentations/Presenters/PresenterApp.h"
#include "Orvello/Presentations/Slideshow/DeckController.h"
#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"
#include "Orvello/Presentations/Slideshow/SlideSyncService.h"
#include "Orvello/Prompting/Engine/ReadingPace.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Prompting/Panel/PrompterPanelController.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Shell/Commands/AppCommands.h"
#include "Orvello/Shell/Commands/HotKeyCenter.h"
#include "Orvello/Shell/Commands/ShellWindows.h"
#include "Orvello/Shell/Commands/StatusMenu.h"
#include "Orvello/Shell/Launch/LaunchOptions.h"
#include "Orvello/Shell/Updates/UpdateController.h"
#include "Orvello/Voice/ProcessMicActivity.h"
#include "Orvello/Voice/VoiceActivityEngine.h"

#include <QObject>
#include <QUrl>

#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace Orvello {

class DesktopPlatform;
class EarlyPlatform;
class ImpressAdviceDialog;
class ImpressPresenter;
class PlainPKey;
class PrompterWindow;
class RightClickFilter;
class SoundPlatform;
class StatusItem;
class StayAwake;

/// Makes every long-lived object, wires them together, shows the first window, and closes the
/// session at quit. One for the life of the process; everything it makes lives as long.
class AppDelegate final : public QObject {
    Q_OBJECT

public:
    /// All that the system does. All of it must outlive the delegate.
    struct Platforms {
        EarlyPlatform& early;
        DesktopPlatform& desktop;
        SoundPlatform& sound;
        /// Found in this process, where nobody gives another.
        CaptureExclusion captureExclusion {};
    };

    /// What is in decks, by their paths.
    using ReadDecks = std::map<QString, PptxImporter::Deck>;

    /// `decks` are those among the options' files that have been read already.
    AppDelegate(const Platforms& platforms, ShellWindows::Factory makeWindows,
        LaunchOptions options, ReadDecks decks = {});
    ~AppDelegate() override;

    /// Once, when the event loop is about to run.
    void applicationDidFinishLaunching();

    /// Once, when the event loop has ended in an ordinary quit.
    void applicationWillTerminate();

    /// Addresses that the application is asked to open. Until the launch is over they wait.
    void applicationOpen(const QList<QUrl>& urls);

    /// The user has started the program once more, while it runs. Does what that start asks for,
    /// once the launch is over, and answers what it could not do. A start that asks for nothing
    /// opens the menu, unless the launch is about to show a window anyway.
    void applicationStartedAgain(
        const LaunchOptions& options, const RunningInstance::Answer& answer);

    /// Opens the welcome tour, or brings it to the front.
    void showOnboarding();

    /// Shows the prompter panel if it is hidden, hides it if it is shown.
    void togglePanel();

    /// Moves the panel to the top of the screen that the pointer is on, and shows it.
    void putUnderCamera();

private:
    void addPresenters();
    void makePanel();
    void showPanel();
    void makeWindows();
    void showFirstWindow();
    void onboardingFinished();
    void setupStatusItem();
    void registerHotKeys();
    void startUpdates();
    void subscribe();
    void followSlideTracking();
    void importDecks();
    std::optional<QString> importDeck(const QString& path);
    void addDeck(const QString& path, const PptxImporter::Deck& deck);
    static QString refusal(PptxImporter::ImportError error);
    void openWindows(const LaunchOptions& options);
    void scroll(const LaunchOptions& options);
    bool follow(const LaunchOptions& options, const RunningInstance::Answer& answer);
    void followRead(const LaunchOptions& options, const RunningInstance::Answer& answer,
        const QStringList& refusals);
    QStringList comesTooLate(const LaunchOptions& options) const;
    static void handle(const QList<QUrl>& urls);
    void quitAtSignals();
    void installSignalHandlers();

    // In this order: what is made later uses what was made before.
    const Platforms m_platforms;
    const ShellWindows::Factory m_makeWindows;
    const LaunchOptions m_options;
    ReadDecks m_readDecks; ///< Until they are imported.
    SettingsStore m_settings;
    LibraryStore m_library;
    AppleScriptRunner m_scriptRunner;
    PresenterTable m_presenters;
    LiveDeckImport m_openDecks;
    DeckFileImport m_deckFiles;
    DeckFileUpdates m_deckUpdates;
    ProcessMicActivity m_micActivity;
    ScrollEngine m_engine;
    ReadingPace m_pace;
    VoiceActivityEngine m_voice;
    PresentationMonitor m_presentation;
    std::unique_ptr<ImpressPresenter> m_impress; ///< None in an edition that does not follow it.
    std::unique_ptr<ImpressAdviceDialog> m_impressAdvice;
    SlideSyncService m_slideSync;
    DeckController m_deck;
    UpdateController m_updates;
    HotKeyCenter m_hotKeys;
    std::unique_ptr<PrompterWindow> m_prompterWindow;
    std::unique_ptr<NativePanel> m_panel;
    /// None until the part of the launch that the user sees is over.
    std::unique_ptr<PrompterPanelController> m_panelController;
    std::unique_ptr<ShellWindows> m_windows;
    std::unique_ptr<ShellWindow> m_onboarding; ///< While the tour is open.
    std::unique_ptr<AppCommands> m_commands;
    std::unique_ptr<StatusMenu> m_statusMenu;
    std::unique_ptr<StatusMenu> m_prompterMenu;
    std::unique_ptr<StatusItem> m_statusItem;
    std::unique_ptr<RightClickFilter> m_rightClicks;
    std::unique_ptr<StayAwake> m_stayAwake;
    std::unique_ptr<PlainPKey> m_plainPKey;
    std::vector<std::unique_ptr<ProcessSignals::Subscription>> m_signals;
    QList<QUrl> m_pendingURLs;
    bool m_hasLaunched = false;
    struct EarlyStart {
        LaunchOptions options;
        RunningInstance::Answer answer;
    };
    std::vector<EarlyStart> m_earlyStarts; ///< Starts that arrived before the launch was over.
};

} // namespace Orvello
