#include "Orvello/Adapters/Portable/PosixProcessSignals.h"
#include "Orvello/Adapters/Portable/QtChildProcess.h"
#include "Orvello/Adapters/Portable/QtTimeSource.h"
#include "Orvello/Adapters/macOS/Early/CocoaFolders.h"
#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Early/CocoaUserDefaults.h"
#include "Orvello/Adapters/macOS/Early/MacInstance.h"
#include "Orvello/Adapters/macOS/Early/UnifiedLog.h"
#include "Orvello/Platform/Early/EarlyPlatform.h"

namespace Orvello {

namespace {

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
