#include "Orvello/Adapters/Linux/Desktop/FileDialog.h"
#include "Orvello/Adapters/Linux/Desktop/FramelessChrome.h"
#include "Orvello/Adapters/Linux/Desktop/ImpressHelper.h"
#include "Orvello/Adapters/Linux/Desktop/LinuxDesktopServices.h"
#include "Orvello/Adapters/Linux/Desktop/LinuxStatusBar.h"
#include "Orvello/Adapters/Linux/Desktop/LinuxWorkspace.h"
#include "Orvello/Adapters/Linux/Desktop/PortalHotKeys.h"
#include "Orvello/Adapters/Linux/Desktop/UpdateDialogs.h"
#include "Orvello/Adapters/Linux/Desktop/X11HotKeys.h"
#include "Orvello/Adapters/Linux/Desktop/X11Panel.h"
#include "Orvello/Adapters/Linux/Desktop/X11WindowServer.h"
#include "Orvello/Adapters/Linux/Desktop/X11Windows.h"
#include "Orvello/Adapters/Linux/Early/BusInstance.h"
#include "Orvello/Adapters/Linux/Early/JsonUserDefaults.h"
#include "Orvello/Adapters/Linux/Early/Syslog.h"
#include "Orvello/Adapters/Linux/Early/XdgFolders.h"
#include "Orvello/Adapters/Linux/Sound/PulseSound.h"
#include "Orvello/Adapters/Portable/PosixProcessSignals.h"
#include "Orvello/Adapters/Portable/QtChildProcess.h"
#include "Orvello/Adapters/Portable/QtScreens.h"
#include "Orvello/Adapters/Portable/QtTimeSource.h"
#include "Orvello/Platform/Desktop/Platform.h"
#include "Orvello/Shell/Updates/AppcastUpdater.h"

#include "Version.h"

#include <QDBusConnection>
#include <QSysInfo>

#include <memory>
#include <optional>
#include <xcb/xcb.h>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

bool canConnectToDisplay()
{
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    const bool isConnected = !xcb_connection_has_error(connection);
    xcb_disconnect(connection);
    return isConnected;
}

/// What is read from the X display.
struct Desktop {
    QtScreens screens;
    X11Windows windows;
    LinuxWorkspace workspace { windows };
    X11WindowServer windowServer { windows };
};

/// What talks to the desktop and its user.
struct Session {
    explicit Session(bool isWayland)
    {
        // Only the portal can be asked by a program that has no keyboard of its own there.
        if (isWayland && bus.isConnected())
            portalKeys.emplace(bus, x11Keys);
    }

    HotKeys& hotKeys()
    {
        if (portalKeys)
            return *portalKeys;
        return x11Keys;
    }

    QDBusConnection bus = QDBusConnection::sessionBus();
    LinuxDesktopServices services { bus };
    LinuxStatusBar statusBar { bus };
    X11HotKeys x11Keys;
    std::optional<PortalHotKeys> portalKeys;
};

/// The updater and the windows in which it asks.
struct Updates {
    Updates(TimeSource& time, UserDefaults& defaults, DesktopServices& desktop)
        : updater({ time, defaults, dialogs, desktop },
            { QString::fromLatin1(buildNumber), QSysInfo::kernelVersion(), u"linux"_s },
            QString::fromLatin1(feedAddress))
    {
    }

    UpdateDialogs dialogs { QString::fromLatin1(version) };
    AppcastUpdater updater;
};

/// Made in two steps: the log and the preferences are needed before there is an application object,
/// and a display or a sound server that nobody asks for is not connected to.
class LinuxPlatform final : public Platform {
public:
    explicit LinuxPlatform(const QStringList& arguments)
        : m_userDefaults(m_folders.configuration(), u"app.orvello"_s, arguments)
    {
    }

    QString prepareApplication() override
    {
        if (!canConnectToDisplay())
            return u"Orvello needs an X11 display (under Wayland: XWayland). Is DISPLAY set?"_s;
        // The panel's place above everything is an X11 matter: a Wayland client may not ask for it.
        qputenv("QT_QPA_PLATFORM", "xcb");
        return {};
    }

    TimeSource& time() override { return m_time; }
    UserDefaults& userDefaults() override { return m_userDefaults; }
    Folders& folders() override { return m_folders; }
    SystemLog& systemLog() override { return m_systemLog; }
    ProcessSignals& processSignals() override { return m_processSignals; }
    ChildProcess& childProcess() override { return m_childProcess; }
    RunningInstance& runningInstance() override { return m_runningInstance; }

    QString operatingSystemVersion() const override { return QSysInfo::prettyProductName(); }

    Facts facts() const override
    {
        return {
            .operatingSystem = operatingSystemVersion(),
            .keyPrefix = u"Alt+Super+"_s,
        };
    }

    std::unique_ptr<UserDefaults> userDefaultsOf(const QString& domain) override
    {
        return std::make_unique<JsonUserDefaults>(m_folders.configuration(), domain);
    }

    Screens& screens() override { return desktop().screens; }
    Workspace& workspace() override { return desktop().workspace; }
    WindowServer& windowServer() override { return desktop().windowServer; }
    DesktopServices& desktopServices() override { return session().services; }
    OpenPanel& openPanel() override { return m_openPanel; }
    StatusBar& statusBar() override { return session().statusBar; }
    HotKeys& hotKeys() override { return session().hotKeys(); }
    Updater& updater() override
    {
        if (!m_updates)
            m_updates.emplace(m_time, m_userDefaults, session().services);
        return m_updates->updater;
    }
    WindowChrome& windowChrome() override { return m_windowChrome; }

    MicrophonePermission& microphonePermission() override { return sound().permission; }
    VoiceProcessing& voiceProcessing() override { return sound().voiceProcessing; }
    RawMicrophone& rawMicrophone() override { return sound().microphone; }
    AudioProcesses& audioProcesses() override { return sound().processes; }

    HelperProcess* impressHelper() override
    {
        if (!m_impressHelper)
            m_impressHelper = makeImpressHelper();
        return m_impressHelper.get();
    }

    std::unique_ptr<NativePanel> makePanel(QWindow& view) override
    {
        return std::make_unique<X11Panel>(view, m_userDefaults);
    }

private:
    Desktop& desktop() { return m_desktop ? *m_desktop : m_desktop.emplace(); }
    Session& session()
    {
        return m_session ? *m_session
                         : m_session.emplace(qEnvironmentVariableIsSet("WAYLAND_DISPLAY"));
    }
    PulseSound& sound() { return m_sound ? *m_sound : m_sound.emplace(); }

    QtTimeSource m_time;
    XdgFolders m_folders;
    JsonUserDefaults m_userDefaults;
    Syslog m_systemLog;
    PosixProcessSignals m_processSignals;
    QtChildProcess m_childProcess;
    FileDialog m_openPanel;
    FramelessChrome m_windowChrome;
    std::optional<Desktop> m_desktop;
    BusInstance m_runningInstance;
    std::optional<Session> m_session;
    std::optional<Updates> m_updates;
    std::optional<PulseSound> m_sound;
    std::unique_ptr<HelperProcess> m_impressHelper;
};

} // namespace

std::unique_ptr<Platform> Platform::create(const QStringList& arguments)
{
    return std::make_unique<LinuxPlatform>(arguments);
}

} // namespace Orvello
