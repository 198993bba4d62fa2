#pragma once

#include "Orvello/Platform/Early/ScriptResult.h"

namespace Orvello {

/// A program of ours that is kept running and answers questions over its pipes. Main thread;
/// nothing here blocks the main loop.
class HelperProcess {
public:
    virtual ~HelperProcess() = default;

    /// Asks one question, a line of text without a line feed. The program is started when it is not
    /// running. `completion` is called exactly once, on the main loop and never from inside this
    /// call, in the order of the questions, with what the program would print if it were a script
    /// run for this question alone. A program that cannot be started, or ends before it answers,
    /// gives the status of a script that could not be started. Destroying the helper ends the
    /// program and drops its completions.
    virtual void ask(const QString& question, ScriptCompletion completion) = 0;
};

} // namespace Orvello
