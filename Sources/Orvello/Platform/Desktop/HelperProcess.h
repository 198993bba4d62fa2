#pragma once

#include "Orvello/Platform/Early/ScriptResult.h"

namespace Orvello {

/// A program of ours that is kept running and answers questions over its pipes. Main thread;
/// nothing here blocks the main loop.
class HelperProcess {
public:
    virtual ~HelperProcess() = default;

    /// Asks one question, a line of text without a line feed. The program is started when it is not
    /// running, and answers one question after the other. `completion` is called exactly once, on
    /// the main loop and never from inside this call, in the order of the questions, with what the
    /// program would print if it were a script run for this question alone. A program that cannot
    /// be started, or ends before it answers, gives the status of a script that could not be
    /// started. One that takes longer than `seconds`, counted from the answer before, is ended, and
    /// everything asked so far counts as timed out; the next question starts it anew. Destroying
    /// the helper ends the program and drops its completions.
    virtual void ask(const QString& question, double seconds, ScriptCompletion completion) = 0;

    /// Lets the program end by itself, in its own time. What it was asked meanwhile counts as not
    /// started.
    virtual void end() = 0;
};

} // namespace Orvello
