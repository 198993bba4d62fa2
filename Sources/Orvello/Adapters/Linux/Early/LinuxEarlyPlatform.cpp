#include "Orvello/Adapters/Linux/Early/BusInstance.h"
#include "Orvello/Adapters/Linux/Early/JsonUserDefaults.h"
#include "Orvello/Adapters/Linux/Early/Syslog.h"
#include "Orvello/Adapters/Linux/Early/XdgFolders.h"
#include "Orvello/Adapters/Portable/PosixProcessSignals.h"
#include "Orvello/Adapters/Portable/QtChildProcess.h"
#include "Orvello/Adapters/Portable/QtTimeSource.h"
#include "Orvello/Platform/Early/EarlyPlatform.h"

#include <QSysInfo>

#include <optional>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

class LinuxEarlyPlatform final : public EarlyPlatform {
public:
    explicit LinuxEarlyPlatform(QStringList arguments)
        : m_arguments(std::move(arguments))
    {
    }

    TimeSource& time() override { return m_time; }
    /// Read at the first use: until the claim another process may write them.
    UserDefaults& userDefaults() override
    {
        if (!m_userDefaults)
            m_userDefaults.emplace(m_folders.configuration(), u"app.orvello"_s, m_arguments);
        return *m_userDefaults;
    }
    Folders& folders() override { return m_folders; }
    /// Never destroyed: threads that outlive this, and static objects, may still log.
    SystemLog& systemLog() override
    {
        static Syslog& log = *new Syslog;
        return log;
    }
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

private:
    QtTimeSource m_time;
    XdgFolders m_folders;
    const QStringList m_arguments;
    std::optional<JsonUserDefaults> m_userDefaults;
    PosixProcessSignals m_processSignals;
    QtChildProcess m_childProcess;
    BusInstance m_runningInstance { { qEnvironmentVariable("DISPLAY"),
        m_folders.applicationSupport() + u"/Orvello/logs"_s, {} } };
};

} // namespace

std::unique_ptr<EarlyPlatform> EarlyPlatform::create(const QStringList& arguments)
{
    return std::make_unique<LinuxEarlyPlatform>(arguments);
}

} // namespace Orvello
