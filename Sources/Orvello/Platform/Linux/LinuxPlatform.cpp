#include "Orvello/Platform/Linux/ImpressHelper.h"
#include "Orvello/Platform/Linux/JsonUserDefaults.h"
#include "Orvello/Platform/Linux/LinuxWorkspace.h"
#include "Orvello/Platform/Linux/Syslog.h"
#include "Orvello/Platform/Linux/X11Panel.h"
#include "Orvello/Platform/Linux/X11WindowServer.h"
#include "Orvello/Platform/Linux/X11Windows.h"
#include "Orvello/Platform/Linux/XdgFolders.h"
#include "Orvello/Platform/Platform.h"
#include "Orvello/Platform/PosixProcessSignals.h"
#include "Orvello/Platform/QtChildProcess.h"
#include "Orvello/Platform/QtScreens.h"
#include "Orvello/Platform/QtTimeSource.h"

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

class LinuxPlatform final : public Platform {
public:
    explicit LinuxPlatform(const QStringList& arguments)
        : m_userDefaults(m_folders.configuration(), u"app.orvello"_s, arguments)
    {
    }

    TimeSource& time() override { return m_time; }
    UserDefaults& userDefaults() override { return m_userDefaults; }
    Folders& folders() override { return m_folders; }
    SystemLog& systemLog() override { return m_systemLog; }
    ProcessSignals& processSignals() override { return m_processSignals; }
    Screens& screens() override { return m_screens; }
    Workspace& workspace() override { return m_workspace; }
    WindowServer& windowServer() override { return m_windowServer; }
    ChildProcess& childProcess() override { return m_childProcess; }

    HelperProcess* impressHelper() override
    {
        if (!m_impressHelper)
            m_impressHelper = makeImpressHelper();
        return m_impressHelper.get();
    }

    QString prepareApplication() override
    {
        if (!canConnectToDisplay())
            return u"Orvello needs an X11 display (under Wayland: XWayland). Is DISPLAY set?"_s;
        // The panel's place above everything is an X11 matter: a Wayland client may not ask for it.
        qputenv("QT_QPA_PLATFORM", "xcb");
        return {};
    }

    std::unique_ptr<NativePanel> makePanel(QWindow& view) override
    {
        return std::make_unique<X11Panel>(view, m_userDefaults);
    }

private:
    QtTimeSource m_time;
    XdgFolders m_folders;
    JsonUserDefaults m_userDefaults;
    Syslog m_systemLog;
    PosixProcessSignals m_processSignals;
    QtScreens m_screens;
    X11Windows m_windows;
    LinuxWorkspace m_workspace { m_windows };
    X11WindowServer m_windowServer { m_windows };
    QtChildProcess m_childProcess;
    std::unique_ptr<HelperProcess> m_impressHelper;
};

} // namespace

std::unique_ptr<Platform> Platform::create(const QStringList& arguments)
{
    return std::make_unique<LinuxPlatform>(arguments);
}

} // namespace Orvello
