#pragma once

#include "Orvello/Platform/Early/ScriptResult.h"

#include <QString>

namespace Orvello {

class ChildProcess;

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
