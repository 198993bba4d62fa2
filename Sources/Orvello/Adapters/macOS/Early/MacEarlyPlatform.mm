#include "Orvello/Adapters/Portable/PosixProcessSignals.h"
#include "Orvello/Adapters/Portable/QtChildProcess.h"
#include "Orvello/Adapters/Portable/QtTimeSource.h"
#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Early/CocoaUserDefaults.h"
#include "Orvello/Adapters/macOS/Early/MacInstance.h"
#include "Orvello/Adapters/macOS/Early/SharingType.h"
#include "Orvello/Platform/Early/EarlyPlatform.h"
#include "Orvello/Platform/Early/Folders.h"
#include "Orvello/Platform/Early/SystemLog.h"
#include "Orvello/Prompting/Panel/CaptureExclusion.h"

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
        // Where the sharing type is ignored, the exclude shape alone hides a window; and a setting
        // of Zoom's helps only what is hidden.
        const bool canHideWindows = !isSharingTypeIgnored() || CaptureExclusion().isUsable();
        return {
            .canHideWindows = canHideWindows,
            .capturesMayShowHidden = isSharingTypeIgnored(),
            .hasMenuBar = true,
            .isMac = true,
            .hasQuickTime = true,
            .asksBeforeControl = true,
            .hasPrivacySettings = true,
            .installsUpdates = true,
            .zoomChoosesCapture = canHideWindows,
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
    MacInstance m_runningInstance { m_folders.applicationSupport()
        + QStringLiteral("/Orvello/logs") };
};

} // namespace

/// The user defaults read the launch arguments by themselves.
std::unique_ptr<EarlyPlatform> EarlyPlatform::create(const QStringList&)
{
    return std::make_unique<MacEarlyPlatform>();
}

} // namespace Orvello
