#pragma once

#include <QString>

#include <memory>

class QWindow;

namespace Orvello {

class Compositing;
class DesktopServices;
class EarlyPlatform;
class HelperProcess;
class HotKeys;
class NativePanel;
class OpenPanel;
class Screens;
class StatusBar;
class Updater;
class Wakefulness;
class WindowChrome;
class WindowServer;
class Workspace;

/// The second step: what is on the user's desktop. Whatever it returns by reference lives as long
/// as the platform.
class DesktopPlatform {
public:
    /// Settles what must be settled before the application object is made. Returns why the program
    /// cannot run here, in words for the user, or an empty text.
    static QString prepare();

    /// After the application object, before whose end the platform must end. `early` must outlive
    /// the platform.
    static std::unique_ptr<DesktopPlatform> create(EarlyPlatform& early);

    virtual ~DesktopPlatform() = default;

    virtual Screens& screens() = 0;
    virtual Workspace& workspace() = 0;
    virtual WindowServer& windowServer() = 0;
    virtual DesktopServices& desktopServices() = 0;
    virtual OpenPanel& openPanel() = 0;
    virtual StatusBar& statusBar() = 0;
    virtual HotKeys& hotKeys() = 0;
    virtual Updater& updater() = 0;
    virtual WindowChrome& windowChrome() = 0;
    virtual Wakefulness& wakefulness() = 0;
    virtual Compositing& compositing() = 0;

    /// The program that asks LibreOffice Impress, or null in an edition that does not follow it.
    virtual HelperProcess* impressHelper() = 0;

    /// Whether graphics hardware draws the windows, and not the processor in its place. May take as
    /// long as loading the hardware's driver.
    virtual bool hasHardwareRenderer() = 0;

    /// The prompter's window around the window that shows its view, which must not have been shown
    /// and must outlive it.
    virtual std::unique_ptr<NativePanel> makePanel(QWindow& view) = 0;
};

} // namespace Orvello
