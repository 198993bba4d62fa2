#pragma once

#include "Orvello/Platform/Early/Facts.h"

#include <QString>
#include <QStringList>

#include <memory>

namespace Orvello {

class ChildProcess;
class Folders;
class ProcessSignals;
class RunningInstance;
class SystemLog;
class TimeSource;
class UserDefaults;

/// The first of three steps in which the composition root gets the ports, which it hands down by
/// reference: what the log and the settings need, before there is an application object. Whatever
/// it returns by reference lives as long as the platform.
class EarlyPlatform {
public:
    /// The platform that this program was built for. `arguments` are the command line's, without
    /// the program's name.
    static std::unique_ptr<EarlyPlatform> create(const QStringList& arguments);

    virtual ~EarlyPlatform() = default;

    virtual TimeSource& time() = 0;
    virtual UserDefaults& userDefaults() = 0;
    virtual Folders& folders() = 0;
    virtual SystemLog& systemLog() = 0;
    virtual ProcessSignals& processSignals() = 0;
    virtual ChildProcess& childProcess() = 0;
    virtual RunningInstance& runningInstance() = 0;

    /// The operating system's version for people, such as "Debian GNU/Linux 12 (bookworm)".
    virtual QString operatingSystemVersion() const = 0;

    /// What the program's texts may say about this machine.
    virtual Facts facts() const = 0;

    /// Another program's user defaults, by the name of their domain; empty if it has none.
    virtual std::unique_ptr<UserDefaults> userDefaultsOf(const QString& domain) = 0;
};

} // namespace Orvello
