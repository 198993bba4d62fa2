#include "Orvello/Platform/Desktop/Platform.h"

#include "Orvello/Adapters/Portable/PosixProcessSignals.h"
#include "Orvello/Adapters/Portable/QtChildProcess.h"
#include "Orvello/Adapters/Portable/QtTimeSource.h"
#include "Orvello/Adapters/macOS/Desktop/CarbonHotKeys.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaDesktop.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaOpenPanel.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaPanel.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaScreens.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaStatusBar.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaWindowChrome.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaWorkspace.h"
#include "Orvello/Adapters/macOS/Desktop/MacUpdater.h"
#include "Orvello/Adapters/macOS/Desktop/OrvelloApplication.h"
#include "Orvello/Adapters/macOS/Desktop/QuartzWindowServer.h"
#include "Orvello/Adapters/macOS/Early/CocoaFolders.h"
#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Early/CocoaUserDefaults.h"
#include "Orvello/Adapters/macOS/Early/LaunchServicesInstance.h"
#include "Orvello/Adapters/macOS/Early/UnifiedLog.h"
#include "Orvello/Adapters/macOS/Sound/CapturePermission.h"
#include "Orvello/Adapters/macOS/Sound/EngineMicrophone.h"
#include "Orvello/Adapters/macOS/Sound/HalAudioProcesses.h"
#include "Orvello/Adapters/macOS/Sound/VoiceProcessingIO.h"

#include <optional>

namespace Orvello {

namespace {

class MacPlatform final : public Platform {
public:
    QString prepareApplication() override
    {
        makeApplicationObject();
        return {};
    }

    TimeSource& time() override { return m_time; }
    UserDefaults& userDefaults() override { return m_userDefaults; }
    Folders& folders() override { return m_folders; }
    SystemLog& systemLog() override { return m_systemLog; }
    ProcessSignals& processSignals() override { return m_processSignals; }
    ChildProcess& childProcess() override { return m_childProcess; }
    RunningInstance& runningInstance() override { return m_runningInstance; }

    QString operatingSystemVersion() const override
    {
        return qString(NSProcessInfo.processInfo.operatingSystemVersionString);
    }

    Facts facts() const override
    {
        return {
            .canHideWindows = true,
            .hasMenuBar = true,
            .isMac = true,
            .asksBeforeControl = true,
            .hasPrivacySettings = true,
            .installsUpdates = true,
            .zoomChoosesCapture = true,
            .hasKeynoteAndPowerPoint = true,
            .operatingSystem = QStringLiteral("macOS ") + operatingSystemVersion(),
            .keyPrefix = QStringLiteral("Option-Command-"),
        };
    }

    std::unique_ptr<UserDefaults> userDefaultsOf(const QString& domain) override
    {
        return std::make_unique<CocoaUserDefaults>(domain);
    }

    Screens& screens() override { return m_screens; }
    Workspace& workspace() override { return m_workspace; }
    WindowServer& windowServer() override { return m_windowServer; }
    DesktopServices& desktopServices() override { return m_desktop; }
    OpenPanel& openPanel() override { return m_openPanel; }
    StatusBar& statusBar() override { return m_statusBar; }
    HotKeys& hotKeys() override { return m_hotKeys; }

    Updater& updater() override
    {
        if (!m_updater)
            m_updater = makeMacUpdater();
        return *m_updater;
    }
    WindowChrome& windowChrome() override { return m_windowChrome; }

    /// Keynote and PowerPoint are the presenters here.
    HelperProcess* impressHelper() override { return nullptr; }

    MicrophonePermission& microphonePermission() override { return m_microphonePermission; }
    VoiceProcessing& voiceProcessing() override { return m_voiceProcessing; }
    RawMicrophone& rawMicrophone() override
    {
        return m_rawMicrophone ? *m_rawMicrophone : m_rawMicrophone.emplace();
    }
    AudioProcesses& audioProcesses() override { return m_audioProcesses; }

    std::unique_ptr<NativePanel> makePanel(QWindow& view) override
    {
        return std::make_unique<CocoaPanel>(view, m_screens);
    }

private:
    QtTimeSource m_time;
    CocoaFolders m_folders;
    CocoaUserDefaults m_userDefaults;
    UnifiedLog m_systemLog;
    PosixProcessSignals m_processSignals;
    QtChildProcess m_childProcess;
    CocoaScreens m_screens;
    CocoaWorkspace m_workspace;
    QuartzWindowServer m_windowServer;
    LaunchServicesInstance m_runningInstance;
    CocoaDesktop m_desktop;
    CocoaOpenPanel m_openPanel;
    CocoaStatusBar m_statusBar;
    CarbonHotKeys m_hotKeys;
    std::unique_ptr<Updater> m_updater;
    CocoaWindowChrome m_windowChrome;
    CapturePermission m_microphonePermission;
    VoiceProcessingIO m_voiceProcessing;
    std::optional<EngineMicrophone> m_rawMicrophone; ///< Nobody's until the microphone is wanted.
    HalAudioProcesses m_audioProcesses;
};

} // namespace

/// The user defaults read the launch arguments by themselves.
std::unique_ptr<Platform> Platform::create(const QStringList&)
{
    return std::make_unique<MacPlatform>();
}

} // namespace Orvello
