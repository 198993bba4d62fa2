#pragma once

#include "Orvello/Library/LibraryStore.h"
#include "Orvello/Platform/AppleScriptRunner.h"
#include "Orvello/Platform/ProcessSignals.h"
#include "Orvello/Presentations/DeckController.h"
#include "Orvello/Presentations/PresentationMonitor.h"
#include "Orvello/Presentations/PresenterApp.h"
#include "Orvello/Presentations/SlideSyncService.h"
#include "Orvello/Prompting/PrompterPanelController.h"
#include "Orvello/Prompting/ScrollEngine.h"
#include "Orvello/Settings/SettingsStore.h"
#include "Orvello/Shell/LaunchOptions.h"
#include "Orvello/Voice/ProcessMicActivity.h"
#include "Orvello/Voice/VoiceActivityEngine.h"

#include <QObject>

#include <memory>
#include <vector>

namespace Orvello {

class ImpressAdviceDialog;
class ImpressPresenter;
class Platform;
class PrompterWindow;

/// Makes every long-lived object, wires them together, shows the first window, and closes the
/// session at quit. One for the life of the process; everything it makes lives as long.
class AppDelegate final : public QObject {
    Q_OBJECT

public:
    /// `platform` must outlive the delegate.
    AppDelegate(Platform& platform, const LaunchOptions& options);
    ~AppDelegate() override;

    /// Once, when the event loop is about to run.
    void applicationDidFinishLaunching();

    /// Once, when the event loop has ended in an ordinary quit.
    void applicationWillTerminate();

    /// Shows the prompter panel if it is hidden, hides it if it is shown.
    void togglePanel();

private:
    void addPresenters();
    void makePanel();
    void showPanel();
    void subscribe();
    void followSlideTracking();
    void importDeckFromEnvironment();
    void installSignalHandlers();

    Platform& m_platform;
    LaunchOptions m_options;
    SettingsStore m_settings;
    LibraryStore m_library;
    AppleScriptRunner m_scriptRunner;
    PresenterTable m_presenters;
    ProcessMicActivity m_micActivity;
    PresentationMonitor m_presentation;
    std::unique_ptr<ImpressPresenter> m_impress; ///< None in an edition that does not follow it.
    std::unique_ptr<ImpressAdviceDialog> m_impressAdvice;
    ScrollEngine m_engine;
    VoiceActivityEngine m_voice;
    SlideSyncService m_slideSync;
    DeckController m_deck;
    std::unique_ptr<PrompterWindow> m_prompterWindow;
    std::unique_ptr<NativePanel> m_panel;
    std::unique_ptr<PrompterPanelController> m_panelController;
    std::vector<std::unique_ptr<ProcessSignals::Subscription>> m_signals;
};

} // namespace Orvello
