#pragma once

#include <string_view>

/// Leaves the trace of a crash in the application log before the process dies: the name of the
/// fatal signal and a symbolised backtrace, or the name, reason and stack of an uncaught exception.
/// The process still dies of its signal, so the system's own crash report is made as usual.
namespace Orvello::CrashGuard {

/// Takes over SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT and SIGTRAP, and the end of the program by
/// an uncaught C++ exception. Called once, right after AppLog::start().
///
/// The signal handler may run on any thread, and touches only memory prepared here. It has no stack
/// of its own: an overflow of the stack may leave no trace. A second fault while it runs ends the
/// process at once, with the exit status 128 + signal.
void install();

/// Logs an exception that nobody caught. An adapter calls it from the handler that its platform has
/// for exceptions of another language; those of C++ are recorded without it.
void recordUncaughtException(
    std::string_view name, std::string_view reason, std::string_view stack);

} // namespace Orvello::CrashGuard
