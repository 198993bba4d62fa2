#pragma once

#include <QString>

#include <functional>

namespace Orvello {

class ChildProcess;

/// What a script printed and how it ended.
struct ScriptResult {
    static constexpr qint32 notStarted = -1;

    qint32 status = 0; ///< 0 for success; `notStarted` when the script could not be started.
    QString standardOutput; ///< Empty when it is not UTF-8.
    QString standardError; ///< Empty when it is not UTF-8; the launch error if not started.
};

using ScriptCompletion = std::function<void(const ScriptResult&)>;

/// Runs AppleScripts through the system's script runner. Main thread.
class AppleScriptRunner {
public:
    static QString systemProgram(); ///< "/usr/bin/osascript".

    /// `process` must outlive the runner.
    explicit AppleScriptRunner(ChildProcess& process, QString program = systemProgram());

    /// Runs `source`; `completion` is called on the main loop, never from inside this call. There
    /// is no time-out.
    void run(const QString& source, ScriptCompletion completion) const;

private:
    ChildProcess& m_process;
    QString m_program;
};

} // namespace Orvello
