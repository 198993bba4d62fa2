#pragma once

#include "Orvello/Platform/Desktop/Compositing.h"
#include "Orvello/Platform/Desktop/DesktopPlatform.h"
#include "Orvello/Platform/Desktop/StatusBar.h"
#include "Orvello/Platform/Early/EarlyPlatform.h"
#include "Orvello/Platform/Early/RunningInstance.h"
#include "Orvello/Platform/Sound/SoundPlatform.h"
#include "Tests/Support/FactsOf.h"
#include "Tests/Support/FakeAudioProcesses.h"
#include "Tests/Support/FakeChildProcess.h"
#include "Tests/Support/FakeDesktopServices.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeHotKeys.h"
#include "Tests/Support/FakeMicrophonePermission.h"
#include "Tests/Support/FakeMicrophones.h"
#include "Tests/Support/FakeNativePanel.h"
#include "Tests/Support/FakeOpenPanel.h"
#include "Tests/Support/FakeProcessSignals.h"
#include "Tests/Support/FakeRawMicrophone.h"
#include "Tests/Support/FakeScreens.h"
#include "Tests/Support/FakeSystemLog.h"
#include "Tests/Support/FakeUpdater.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/FakeVoiceProcessing.h"
#include "Tests/Support/FakeWakefulness.h"
#include "Tests/Support/FakeWindowChrome.h"
#include "Tests/Support/FakeWindowServer.h"
#include "Tests/Support/FakeWorkspace.h"
#include "Tests/Support/Journal.h"
#include "Tests/Support/ManualTimeSource.h"

namespace Orvello::Testing {

/// A bar that comes and goes as a test says.
class FakeStatusBar final : public StatusBar {
public:
    MenuBar* menuBar() override { return menuBarFake; }
    void observe(std::function<void(bool isThere)> changed) override { tell = std::move(changed); }

    MenuBar* menuBarFake = nullptr;
    std::function<void(bool)> tell;
};

/// The only process.
class FakeRunningInstance final : public RunningInstance {
public:
    Outcome claim(const ProgramStart&) override { return {}; }
    void listen(Handlers newHandlers) override { handlers = std::move(newHandlers); }
    void release() override { }

    Handlers handlers;
};

/// Every port as a fake, with one journal for all that has an order.
class FakePlatform final : public EarlyPlatform, public DesktopPlatform, public SoundPlatform {
public:
    FakePlatform()
    {
        userDefaultsFake.journal = &journal;
        processSignalsFake.journal = &journal;
        workspaceFake.journal = &journal;
        desktop.journal = &journal;
        hotKeysFake.journal = &journal;
        updaterFake.journal = &journal;
    }

    TimeSource& time() override { return manualTime; }
    UserDefaults& userDefaults() override { return userDefaultsFake; }
    Folders& folders() override { return foldersFake; }
    SystemLog& systemLog() override { return systemLogFake; }
    ProcessSignals& processSignals() override { return processSignalsFake; }
    ChildProcess& childProcess() override { return childProcessFake; }
    RunningInstance& runningInstance() override { return runningInstanceFake; }
    QString operatingSystemVersion() const override { return QStringLiteral("Version 14.5"); }
    Facts facts() const override { return factsFake; }
    std::unique_ptr<UserDefaults> userDefaultsOf(const QString&) override
    {
        return std::make_unique<FakeUserDefaults>();
    }

    Screens& screens() override { return screensFake; }
    Workspace& workspace() override { return workspaceFake; }
    WindowServer& windowServer() override { return windowServerFake; }
    WindowChrome& windowChrome() override { return windowChromeFake; }
    Compositing& compositing() override { return compositingFake; }
    DesktopServices& desktopServices() override { return desktop; }
    OpenPanel& openPanel() override { return openPanelFake; }
    StatusBar& statusBar() override { return statusBarFake; }
    HotKeys& hotKeys() override { return hotKeysFake; }
    Updater& updater() override { return updaterFake; }
    HelperProcess* impressHelper() override { return nullptr; }
    Wakefulness& wakefulness() override { return wakefulnessFake; }
    bool hasHardwareRenderer() override { return false; }

    MicrophonePermission& microphonePermission() override { return permission; }
    VoiceProcessing& voiceProcessing() override { return voiceProcessingFake; }
    RawMicrophone& rawMicrophone() override { return rawMicrophoneFake; }
    Microphones& microphones() override { return microphonesFake; }
    AudioProcesses& audioProcesses() override { return audioProcessesFake; }

    std::unique_ptr<NativePanel> makePanel(QWindow& window) override
    {
        panelView = &window;
        note(&journal, "panel made");
        if (panelMade)
            panelMade();
        auto made = std::make_unique<FakeNativePanel>();
        made->journal = &journal;
        panel = made.get();
        return made;
    }

    Journal journal;
    Facts factsFake = factsOfAMac();
    ManualTimeSource manualTime;
    FakeUserDefaults userDefaultsFake;
    FakeFolders foldersFake;
    FakeSystemLog systemLogFake;
    FakeProcessSignals processSignalsFake;
    FakeChildProcess childProcessFake;
    FakeRunningInstance runningInstanceFake;
    FakeScreens screensFake;
    FakeWorkspace workspaceFake;
    FakeWindowServer windowServerFake;
    FakeWindowChrome windowChromeFake;
    Compositing compositingFake;
    FakeWakefulness wakefulnessFake;
    FakeDesktopServices desktop;
    FakeOpenPanel openPanelFake;
    FakeStatusBar statusBarFake;
    FakeHotKeys hotKeysFake;
    FakeUpdater updaterFake;
    FakeMicrophonePermission permission;
    Journal soundJournal;
    FakeVoiceProcessing voiceProcessingFake { soundJournal };
    FakeRawMicrophone rawMicrophoneFake { soundJournal };
    FakeMicrophones microphonesFake;
    FakeAudioProcesses audioProcessesFake;
    FakeNativePanel* panel = nullptr; ///< The one that was made last.
    QWindow* panelView = nullptr; ///< Its content.
    std::function<void()> panelMade; ///< Called when it is, if anybody wants to know.
};

} // namespace Orvello::Testing
