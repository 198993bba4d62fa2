#include "Orvello/Adapters/Portable/OpenedUrls.h"
#include "Orvello/Adapters/Portable/PosixProcessSignals.h"
#include "Orvello/Adapters/Portable/QtChildProcess.h"
#include "Orvello/Adapters/Portable/QtTimeSource.h"
#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Early/CocoaUserDefaults.h"
#include "Orvello/Platform/Early/EarlyPlatform.h"
#include "Orvello/Platform/Early/Folders.h"
#include "Orvello/Platform/Early/RunningInstance.h"
#include "Orvello/Platform/Early/SystemLog.h"

#include <optional>

namespace Orvello {

namespace {

class CocoaFolders final : public Folders {
public:
    QString applicationSupport() const override
    {
        NSArray<NSString*>* const folders = NSSearchPathForDirectoriesInDomains(
            NSApplicationSupportDirectory, NSUserDomainMask, YES);
        return qString(folders.firstObject);
    }
};

/// NSLog: the unified log, and standard error where it is a terminal.
class UnifiedLog final : public SystemLog {
public:
    void write(std::string_view message) override
    {
        // Threads without a run loop have no pool of their own.
        @autoreleasepool {
            const QByteArrayView bytes(message.data(), static_cast<qsizetype>(message.size()));
            NSLog(@"%@", nsString(QString::fromUtf8(bytes)));
        }
    }
};

/// The system starts an application once, and tells the one that runs what else is asked of it.
class LaunchServicesInstance final : public RunningInstance {
public:
    Outcome claim(const ProgramStart&) override { return {}; }

    /// A second start is nothing: the menu bar has the menu.
    void listen(Handlers handlers) override
    {
        m_openedUrls.emplace(QStringLiteral("orvello")); // The scheme of the bundle's Info.plist.
        QObject::connect(&*m_openedUrls, &OpenedUrls::opened, &*m_openedUrls, handlers.opened);
    }
    void release() override { }

private:
    std::optional<OpenedUrls> m_openedUrls;
};

class MacEarlyPlatform final : public EarlyPlatform {
public:
    TimeSource& time() override { return m_time; }
    UserDefaults& userDefaults() override { return m_userDefaults; }
    Folders& folders() override { return m_folders; }
    /// Never destroyed: threads that outlive this, and static objects, may still log.
    SystemLog& systemLog() override
    {
        static UnifiedLog& log = *new UnifiedLog;
        return log;
    }
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
            .hasQuickTime = true,
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

private:
    QtTimeSource m_time;
    CocoaFolders m_folders;
    CocoaUserDefaults m_userDefaults;
    PosixProcessSignals m_processSignals;
    QtChildProcess m_childProcess;
    LaunchServicesInstance m_runningInstance;
};

} // namespace

/// The user defaults read the launch arguments by themselves.
std::unique_ptr<EarlyPlatform> EarlyPlatform::create(const QStringList&)
{
    return std::make_unique<MacEarlyPlatform>();
}

} // namespace Orvello
