#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <functional>

namespace Orvello {

/// What a child process left behind.
struct ChildProcessOutcome {
    bool isLaunched = false;
    int status = -1; ///< The exit status, or the number of the signal that ended the process.
    QByteArray standardOutput;
    QByteArray standardError;
    QString launchError; ///< Why it could not be launched, in the system's words.
};

/// Runs programs. Main thread; nothing here blocks the main loop.
class ChildProcess {
public:
    using Completion = std::function<void(const ChildProcessOutcome&)>;

    virtual ~ChildProcess() = default;

    /// Starts `program` (an absolute path) with empty standard input and drains both outputs,
    /// however much it writes to either and in whatever order. `completion` runs exactly once, on
    /// the main loop and never from inside this call, after the process has ended or could not be
    /// launched; there is no time-out. Destroying the runner kills what still runs, and its
    /// completions are dropped.
    virtual void run(const QString& program, const QStringList& arguments, Completion completion)
        = 0;
};

} // namespace Orvello
