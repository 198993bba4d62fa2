#include "Orvello/Diagnostics/CrashGuard.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Diagnostics/ExceptionReport.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstdlib>
#include <exception>
#include <execinfo.h>
#include <unistd.h>

namespace Orvello::CrashGuard {

namespace {

constexpr std::array signals { SIGSEGV, SIGBUS, SIGILL, SIGFPE, SIGABRT, SIGTRAP };

// The same texts in both editions, although only macOS makes the report that the headline names:
// one tool finds the crash blocks in the logs of either.
constexpr std::string_view blockStart = "\n=== CRASH ";
constexpr std::string_view headlineEnd
    = " — backtrace follows; macOS report in ~/Library/Logs/DiagnosticReports ===\n";
constexpr std::string_view blockEnd = "=== end of crash ===\n";
static_assert(blockStart.size() == 11 && headlineEnd.size() == 77 && blockEnd.size() == 21);

// Prepared by install(), so that the handler allocates nothing.
constinit std::array<void*, 128> frames {};
constinit std::atomic<int> entered { 0 }; ///< 1 once the handler has started, for good.
static_assert(std::atomic<int>::is_always_lock_free);

constinit std::terminate_handler nextTerminateHandler = nullptr;

std::string_view nameOf(int signal)
{
    switch (signal) {
    case SIGILL:
        return "SIGILL";
    case SIGTRAP:
        return "SIGTRAP";
    case SIGABRT:
        return "SIGABRT";
    case SIGFPE:
        return "SIGFPE";
    case SIGBUS:
        return "SIGBUS";
    case SIGSEGV:
        return "SIGSEGV";
    default:
        return "signal";
    }
}

void writeRaw(int descriptor, std::string_view bytes)
{
    [[maybe_unused]] const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
}

void writeCrashBlock(int descriptor, int signal)
{
    writeRaw(descriptor, blockStart);
    writeRaw(descriptor, nameOf(signal));
    writeRaw(descriptor, headlineEnd);
    const int count = ::backtrace(frames.data(), static_cast<int>(frames.size()));
    ::backtrace_symbols_fd(frames.data(), count, descriptor);
    writeRaw(descriptor, blockEnd);
}

/// Calls nothing that could lock or allocate. The log's lock is left alone as well: its holder may
/// be the one that crashed, and a torn line is better than no trace.
extern "C" void crashSignalHandler(int signal)
{
    if (entered.exchange(1) != 0)
        ::_exit(signal + 128);
    if (const int descriptor = AppLog::fd(); descriptor >= 0)
        writeCrashBlock(descriptor, signal);
    static_cast<void>(std::signal(signal, SIG_DFL));
    static_cast<void>(::raise(signal));
}

/// Runs on a normal thread, so the ordinary log call is safe. The abort that follows leaves a crash
/// block as well.
[[noreturn]] void recordAndTerminate() noexcept
{
    try {
        if (const auto report = ExceptionReport::ofCurrentException())
            recordUncaughtException(report->name, report->reason, report->stack);
    } catch (...) {
        // No memory to describe it; the crash block is still to come.
    }
    nextTerminateHandler();
    std::abort();
}

} // namespace

void install()
{
    nextTerminateHandler = std::set_terminate(recordAndTerminate);

    // The first call may load and allocate what unwinding needs, which the handler must not.
    ::backtrace(frames.data(), static_cast<int>(frames.size()));
    frames.fill(nullptr);
    entered = 0;

    for (const int signal : signals) {
        struct sigaction action { };
        action.sa_handler = crashSignalHandler;
        sigemptyset(&action.sa_mask);
        action.sa_flags = static_cast<int>(SA_RESETHAND);
        ::sigaction(signal, &action, nullptr);
    }
}

void recordUncaughtException(std::string_view name, std::string_view reason, std::string_view stack)
{
    AppLog::write("CRASH uncaught exception %@: %@\n%@", name, reason, stack);
}

} // namespace Orvello::CrashGuard
