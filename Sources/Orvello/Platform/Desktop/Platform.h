#pragma once

#include "Orvello/Foundation/Facts.h"

#include <QString>
#include <QStringList>

#include <memory>

class QWindow;

namespace Orvello {

class AudioProcesses;
class ChildProcess;
class DesktopServices;
class Folders;
class HelperProcess;
class HotKeys;
class MicrophonePermission;
class NativePanel;
class OpenPanel;
class ProcessSignals;
class RawMicrophone;
class RunningInstance;
class Screens;
class StatusBar;
class SystemLog;
class TimeSource;
class Updater;
class UserDefaults;
class VoiceProcessing;
class WindowChrome;
class WindowServer;
class Workspace;

/// Every port, for the composition root, which hands them down by reference. Made before the
/// application object; only those parts that say so need it. Whatever it returns by reference lives
/// as long as the platform.
class Platform {
public:
    /// The platform that this program was built for. `arguments` are the command line's, without
    /// the program's name.
    static std::unique_ptr<Platform> create(const QStringList& arguments);

    virtual ~Platform() = default;

    virtual TimeSource& time() = 0;
    virtual UserDefaults& userDefaults() = 0;
    virtual Folders& folders() = 0;
    virtual SystemLog& systemLog() = 0;
    virtual ProcessSignals& processSignals() = 0;
    virtual ChildProcess& childProcess() = 0;
    virtual RunningInstance& runningInstance() = 0;

    /// The operating system's version for people, such as "Debian GNU/Linux 12 (bookworm)".
    virtual QString operatingSystemVersion() const = 0;

    /// What the program's texts may say of this machine.
    virtual Facts facts() const = 0;

    /// Another program's user defaults, by the name of their domain; empty if it has none.
    virtual std::unique_ptr<UserDefaults> userDefaultsOf(const QString& domain) = 0;

    // What is on the user's desktop. Each of these needs the application object.
    virtual Screens& screens() = 0;
    virtual Workspace& workspace() = 0;
    virtual WindowServer& windowServer() = 0;
    virtual DesktopServices& desktopServices() = 0;
    virtual OpenPanel& openPanel() = 0;
    virtual StatusBar& statusBar() = 0;
    virtual HotKeys& hotKeys() = 0;
    virtual Updater& updater() = 0;
    virtual WindowChrome& windowChrome() = 0;

    /// The program that asks LibreOffice Impress, or null in an edition that does not follow it.
    /// Needs the application object.
    virtual HelperProcess* impressHelper() = 0;

    // Sound. The first use starts a thread.
    virtual MicrophonePermission& microphonePermission() = 0;
    virtual VoiceProcessing& voiceProcessing() = 0;
    virtual RawMicrophone& rawMicrophone() = 0;
    virtual AudioProcesses& audioProcesses() = 0;

    /// Settles what must be settled before the application object is made. Returns why the program
    /// cannot run here, in words for the user, or an empty text.
    virtual QString prepareApplication() = 0;

    /// The prompter's window around the window that shows its view, which must not have been shown
    /// and must outlive it.
    virtual std::unique_ptr<NativePanel> makePanel(QWindow& view) = 0;
};

} // namespace Orvello
