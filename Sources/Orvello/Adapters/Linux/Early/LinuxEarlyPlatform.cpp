#include "Orvello/Adapters/Linux/Early/BusInstance.h"
#include "Orvello/Adapters/Linux/Early/JsonUserDefaults.h"
#include "Orvello/Adapters/Portable/PosixProcessSignals.h"
#include "Orvello/Adapters/Portable/QtChildProcess.h"
#include "Orvello/Adapters/Portable/QtTimeSource.h"
#include "Orvello/Platform/Early/EarlyPlatform.h"
#include "Orvello/Platform/Early/Folders.h"
#include "Orvello/Platform/Early/SystemLog.h"

#include <QDir>
#include <QSysInfo>

#include <optional>
#include <string>
#include <syslog.h>
#include <unistd.h>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// syslog(3) under the name "Orvello", and standard error.
class Syslog final : public SystemLog {
public:
    Syslog() { ::openlog("Orvello", LOG_PID, LOG_USER); }

    void write(std::string_view message) override
    {
        std::string line(message);
        ::syslog(LOG_NOTICE, "%s", line.c_str());
        // One call for each line, so that lines from several threads stay whole.
        line += '\n';
        [[maybe_unused]] const ssize_t written = ::write(STDERR_FILENO, line.data(), line.size());
    }
};

/// The folders of the XDG base directories.
class XdgFolders final : public Folders {
public:
    QString applicationSupport() const override
    {
        return folder("XDG_DATA_HOME", u"/.local/share"_s);
    }
    QString configuration() const { return folder("XDG_CONFIG_HOME", u"/.config"_s); }

private:
    static QString folder(const char* variable, const QString& belowHome)
    {
        const QString named = qEnvironmentVariable(variable);
        // "All paths set in these environment variables must be absolute. If an implementation
        // encounters a relative path […] it should consider the path invalid and ignore it." (XDG
        // base directories, basics)
        return QDir::isAbsolutePath(named) ? QDir::cleanPath(named) : QDir::homePath() + belowHome;
    }
};

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

private:
    QtTimeSource m_time;
    XdgFolders m_folders;
    const QStringList m_arguments;
    std::optional<JsonUserDefaults> m_userDefaults;
    Syslog m_systemLog;
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
