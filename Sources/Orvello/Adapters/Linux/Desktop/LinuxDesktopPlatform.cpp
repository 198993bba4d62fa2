#include "Orvello/Adapters/Linux/Desktop/FileDialog.h"
#include "Orvello/Adapters/Linux/Desktop/HardwareRenderer.h"
#include "Orvello/Adapters/Linux/Desktop/ImpressHelper.h"
#include "Orvello/Adapters/Linux/Desktop/LinuxDesktopServices.h"
#include "Orvello/Adapters/Linux/Desktop/LinuxStatusBar.h"
#include "Orvello/Adapters/Linux/Desktop/LinuxWakefulness.h"
#include "Orvello/Adapters/Linux/Desktop/LinuxWorkspace.h"
#include "Orvello/Adapters/Linux/Desktop/PortalHotKeys.h"
#include "Orvello/Adapters/Linux/Desktop/UpdateDialogs.h"
#include "Orvello/Adapters/Linux/Desktop/X11Compositing.h"
#include "Orvello/Adapters/Linux/Desktop/X11HotKeys.h"
#include "Orvello/Adapters/Linux/Desktop/X11Panel.h"
#include "Orvello/Adapters/Linux/Desktop/X11WindowServer.h"
#include "Orvello/Adapters/Linux/Desktop/X11Windows.h"
#include "Orvello/Adapters/Portable/QtScreens.h"
#include "Orvello/Platform/Desktop/DesktopPlatform.h"
#include "Orvello/Platform/Desktop/WindowChrome.h"
#include "Orvello/Platform/Early/EarlyPlatform.h"
#include "Orvello/Shell/Updates/AppcastUpdater.h"

#include "Version.h"

#include <QDBusConnection>
#include <QGuiApplication>
#include <QWindow>

#include <memory>
#include <optional>
#include <utility>
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

/// X11 window managers draw a title bar whole or not at all.
class FramelessChrome final : public WindowChrome {
public:
    bool hideTitleBar(QWindow& window) override
    {
        window.setFlag(Qt::FramelessWindowHint);
        return false;
    }
};

/// What is read from the X display.
struct Desktop {
    QtScreens screens;
    X11Compositing compositing;
    X11Windows windows;
    LinuxWorkspace workspace { windows };
    X11WindowServer windowServer { windows };
};

/// What talks to the desktop and its user.
struct Session {
    explicit Session(bool isWayland)
    {
        // Only the portal can be asked by a program that has no keyboard of its own there. On a
        // connection of its own: the toolkit may have asked a portal something on the shared one.
        if (isWayland && bus.isConnected())
            portalKeys.emplace(
                QDBusConnection::connectToBus(QDBusConnection::SessionBus, u"hot keys"_s),
                QGuiApplication::desktopFileName(), x11Keys);
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
    LinuxWakefulness wakefulness { bus };
    X11HotKeys x11Keys;
    std::optional<PortalHotKeys> portalKeys;
};

/// The updater and the windows in which it asks.
struct Updates {
    Updates(TimeSource& time, UserDefaults& defaults, DesktopServices& desktop)
        : updater({ time, defaults, dialogs, desktop }, QString::fromLatin1(buildNumber),
            QString::fromLatin1(feedAddress))
    {
    }

    UpdateDialogs dialogs { QString::fromLatin1(version) };
    AppcastUpdater updater;
};

class LinuxDesktopPlatform final : public DesktopPlatform {
public:
    explicit LinuxDesktopPlatform(EarlyPlatform& early)
        : m_early(early)
    {
    }

    Screens& screens() override { return m_desktop.screens; }
    Workspace& workspace() override { return m_desktop.workspace; }
    WindowServer& windowServer() override { return m_desktop.windowServer; }
    DesktopServices& desktopServices() override { return m_session.services; }
    OpenPanel& openPanel() override { return m_openPanel; }
    StatusBar& statusBar() override { return m_session.statusBar; }
    HotKeys& hotKeys() override { return m_session.hotKeys(); }
    Updater& updater() override { return m_updates.updater; }
    WindowChrome& windowChrome() override { return m_windowChrome; }
    Wakefulness& wakefulness() override { return m_session.wakefulness; }
    Compositing& compositing() override { return m_desktop.compositing; }
    HelperProcess* impressHelper() override { return m_impressHelper.get(); }
    bool hasHardwareRenderer() override { return HardwareRenderer::isThere(); }

    std::unique_ptr<NativePanel> makePanel(QWindow& view) override
    {
        return std::make_unique<X11Panel>(view, m_early.userDefaults(), m_desktop.compositing);
    }

private:
    EarlyPlatform& m_early;
    Session m_session { qEnvironmentVariableIsSet("WAYLAND_DISPLAY") };
    Desktop m_desktop;
    FileDialog m_openPanel;
    FramelessChrome m_windowChrome;
    Updates m_updates { m_early.time(), m_early.userDefaults(), m_session.services };
    std::unique_ptr<HelperProcess> m_impressHelper = makeImpressHelper();
    std::unique_ptr<HelperProcess> m_formerPermission = FormerImpressPermission::takeBack();
};

} // namespace

QString DesktopPlatform::prepare()
{
    if (!canConnectToDisplay())
        return u"Orvello needs an X11 display (under Wayland: XWayland). Is DISPLAY set?"_s;
    // The panel's place above everything is an X11 matter: a Wayland client may not ask for it.
    qputenv("QT_QPA_PLATFORM", "xcb");
    return {};
}

std::unique_ptr<DesktopPlatform> DesktopPlatform::create(EarlyPlatform& early)
{
    return std::make_unique<LinuxDesktopPlatform>(early);
}

} // namespace Orvello
