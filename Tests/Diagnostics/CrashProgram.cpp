// CrashProgram WAY [FOLDER]: starts the log in the application-support folder FOLDER (without one
// the log stays closed), installs the crash guard, and ends in the WAY given. CrashGuardTest and
// AppLogTest run it.

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Diagnostics/CrashGuard.h"
#include "Tests/Diagnostics/RefusedAllocation.h"

#include <array>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <dlfcn.h>
#include <map>
#include <stdexcept>
#include <string>
#include <sys/mman.h>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

using namespace Orvello;

namespace {

using Action = void (*)();

/// What the next call of backtrace(3) or write(2) does first. The crash handler calls both.
constinit std::atomic<Action> beforeBacktrace { nullptr };
constinit std::atomic<Action> beforeWrite { nullptr };

void runOnce(std::atomic<Action>& action)
{
    if (const Action chosen = action.exchange(nullptr))
        chosen();
}

template <typename Function>
Function* nextFunction(const char* name)
{
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

} // namespace

// These stand before the C library's functions.
extern "C" {

int backtrace(void** frames, int size)
{
    static auto* const next = nextFunction<int(void**, int)>("backtrace");
    runOnce(beforeBacktrace);
    return next(frames, size);
}

ssize_t write(int descriptor, const void* bytes, std::size_t count)
{
    static auto* const next = nextFunction<ssize_t(int, const void*, std::size_t)>("write");
    runOnce(beforeWrite);
    return next(descriptor, bytes, count);
}
}

// Not inlined and with external names, so that a backtrace shows them.

[[gnu::noinline]] void crashBySegmentationFault()
{
    void* const page = ::mmap(nullptr, 1, PROT_NONE, MAP_PRIVATE | MAP_ANON, -1, 0);
    *static_cast<volatile char*>(page) = 1;
}

[[gnu::noinline]] void crashByBusError()
{
    std::FILE* const file = std::tmpfile();
    Testing::refuseAllocation(); // Only now: opening a file allocates.
    void* const page = ::mmap(nullptr, 1, PROT_READ | PROT_WRITE, MAP_SHARED, ::fileno(file), 0);
    *static_cast<volatile char*>(page) = 1; // Past the end of the empty file.
}

#if defined(__x86_64__)
[[gnu::noinline]] void crashByIllegalInstruction() { asm volatile("ud2"); }
[[gnu::noinline]] void crashByTrap() { asm volatile("int3"); }
[[gnu::noinline]] void crashByDivision()
{
    asm volatile("xorl %%ecx, %%ecx\n\tdivl %%ecx" ::: "eax", "ecx", "edx");
}
#else
[[gnu::noinline]] void crashByIllegalInstruction() { static_cast<void>(::raise(SIGILL)); }
[[gnu::noinline]] void crashByTrap() { static_cast<void>(::raise(SIGTRAP)); }
[[gnu::noinline]] void crashByDivision() { static_cast<void>(::raise(SIGFPE)); }
#endif

namespace {

void throwError() { throw std::runtime_error("out of paper"); }

void failInTheHandlerWith(Action secondFault) { beforeBacktrace = secondFault; }

/// ThreadSanitizer blocks them all during a handler.
void allowEverySignal()
{
    sigset_t none;
    sigemptyset(&none);
    ::pthread_sigmask(SIG_SETMASK, &none, nullptr);
}

/// While the handler of the first thread is at work, a second thread crashes.
void crashOnTwoThreads()
{
    static std::atomic<bool> isHandlerAtWork { false };
    std::thread second([] {
        while (!isHandlerAtWork)
            std::this_thread::yield();
        crashBySegmentationFault();
    });
    failInTheHandlerWith([] {
        isHandlerAtWork = true;
        for (;;)
            ::pause(); // Until the second thread ends the process.
    });
    std::abort();
}

void describeSignal(const char* name, int signal)
{
    struct sigaction action { };
    ::sigaction(signal, nullptr, &action);
    int masked = 0;
    for (int other = 1; other < NSIG; ++other)
        masked += sigismember(&action.sa_mask, other) == 1;
    const auto flags = static_cast<unsigned>(action.sa_flags);
    const auto has = [flags](unsigned flag) { return (flags & flag) != 0; };
    std::printf("%s handled=%d masked=%d RESETHAND=%d ONSTACK=%d NODEFER=%d RESTART=%d\n", name,
        action.sa_handler != SIG_DFL, masked, has(SA_RESETHAND), has(SA_ONSTACK), has(SA_NODEFER),
        has(SA_RESTART));
}

void describeSignals()
{
    describeSignal("SIGSEGV", SIGSEGV);
    describeSignal("SIGBUS", SIGBUS);
    describeSignal("SIGILL", SIGILL);
    describeSignal("SIGFPE", SIGFPE);
    describeSignal("SIGABRT", SIGABRT);
    describeSignal("SIGTRAP", SIGTRAP);
    describeSignal("SIGUSR1", SIGUSR1);
    describeSignal("SIGUSR2", SIGUSR2);
    describeSignal("SIGTERM", SIGTERM);
}

const std::map<std::string, Action> waysToEnd {
    { "segmentation-fault",
        [] {
            Testing::refuseAllocation();
            crashBySegmentationFault();
        } },
    { "bus-error", crashByBusError },
    { "illegal-instruction",
        [] {
            Testing::refuseAllocation();
            crashByIllegalInstruction();
        } },
    { "division",
        [] {
            Testing::refuseAllocation();
            crashByDivision();
        } },
    { "abort",
        [] {
            Testing::refuseAllocation();
            std::abort();
        } },
    { "trap",
        [] {
            Testing::refuseAllocation();
            crashByTrap();
        } },
    { "raise", [] { static_cast<void>(::raise(SIGSEGV)); } },
    { "on-a-thread", [] { std::thread(crashBySegmentationFault).join(); } },
    { "after-half-a-line",
        [] {
            const std::string half = "half a line";
            [[maybe_unused]] const auto count = ::write(AppLog::fd(), half.data(), half.size());
            crashBySegmentationFault();
        } },
    { "while-writing",
        [] {
            beforeWrite = crashBySegmentationFault; // In the middle of the next line, lock held.
            AppLog::write("NEVER written");
        } },
    { "same-fault-in-handler",
        [] {
            failInTheHandlerWith(crashBySegmentationFault);
            crashBySegmentationFault();
        } },
    { "other-fault-in-handler",
        [] {
            failInTheHandlerWith([] {
                allowEverySignal();
                crashBySegmentationFault();
            });
            std::abort();
        } },
    { "abort-in-handler",
        [] {
            failInTheHandlerWith(std::abort);
            crashBySegmentationFault();
        } },
    { "on-two-threads", crashOnTwoThreads },
    { "exception", throwError },
    { "exception-on-a-thread", [] { std::thread(throwError).join(); } },
    { "exception-without-reason", [] { throw 42; } },
    { "exception-in-noexcept", []() noexcept { throwError(); } },
    { "terminate", [] { std::terminate(); } },
    { "foreign-exception",
        [] {
            CrashGuard::recordUncaughtException("NSRangeException", "", "0 here\n1 there");
            std::abort();
        } },
    { "user-signal", [] { static_cast<void>(::raise(SIGUSR1)); } },
    { "describe", describeSignals },
    { "log-before-start",
        [] {
            AppLog::write("Orvello EARLY message %d", 1);
            std::printf("fd=%d directory=%s fileURL=%s previous=%d\n", AppLog::fd(),
                AppLog::directory().c_str(), AppLog::fileURL().c_str(),
                AppLog::previousSessionEndedAbnormally());
        } },
};

} // namespace

int main(int argc, char** argv)
{
    const rlimit noCoreFile { 0, 0 };
    ::setrlimit(RLIMIT_CORE, &noCoreFile);
    const auto way = waysToEnd.find(argc > 1 ? argv[1] : "");
    if (way == waysToEnd.end())
        return EXIT_FAILURE;
    if (argc > 2) {
        AppLog::Session session;
        session.applicationSupport = argv[2];
        AppLog::start(session);
    }
    CrashGuard::install();
    way->second();
    return EXIT_SUCCESS;
}
