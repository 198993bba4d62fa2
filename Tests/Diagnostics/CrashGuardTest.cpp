#include "Tests/Diagnostics/ChildProgram.h"
#include "Tests/Diagnostics/TextFile.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <csignal>

using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::StartsWith;

namespace Orvello {
namespace {

using Testing::ChildEnd;
using Testing::linesOf;
using Testing::readFile;
using Testing::runCrashProgram;

constexpr std::string_view headlineEnd
    = " \xE2\x80\x94 backtrace follows; macOS report in ~/Library/Logs/DiagnosticReports ===\n";
constexpr std::string_view blockEnd = "=== end of crash ===\n";

/// A crashed run: how it ended, and the log it left, cut where the crash block starts.
struct Crash {
    ChildEnd end;
    std::string linesBefore;
    std::string block;
};

Crash crashBy(const std::string& way)
{
    const QTemporaryDir folder;
    Crash crash;
    crash.end = runCrashProgram({ way, folder.path().toStdString() });
    const std::string log
        = readFile(folder.filePath(QStringLiteral("Orvello/logs/orvello.log")).toStdString());
    const std::size_t start = std::min(log.find("\n=== CRASH "), log.size());
    crash.linesBefore = log.substr(0, start);
    crash.block = log.substr(start);
    return crash;
}

std::string headline(const std::string& signalName)
{
    return "\n=== CRASH " + signalName + std::string(headlineEnd);
}

/// The frame lines of a whole crash block.
std::vector<std::string> framesOf(const std::string& block, const std::string& signalName)
{
    const std::string start = headline(signalName);
    EXPECT_THAT(block, StartsWith(start));
    EXPECT_THAT(block, EndsWith(std::string(blockEnd)));
    if (block.size() < start.size() + blockEnd.size())
        return {};
    return linesOf(block.substr(start.size(), block.size() - start.size() - blockEnd.size()));
}

void expectCrashBlock(const Crash& crash, int signal, const std::string& signalName)
{
    EXPECT_EQ(crash.end.signal, signal);
    EXPECT_THAT(crash.linesBefore, HasSubstr("Z LAUNCH Orvello ? (?)"));
    EXPECT_THAT(crash.linesBefore, EndsWith("\n"));
    const std::vector<std::string> frames = framesOf(crash.block, signalName);
    EXPECT_GE(frames.size(), 3u);
    for (const std::string& frame : frames) {
        EXPECT_FALSE(frame.empty());
        EXPECT_THAT(frame, ::testing::Not(HasSubstr("===")));
    }
}

// In a program that no sanitizer watches, each of these also proves that nothing is allocated from
// the fault to the end: an allocation would end the program before its signal does.

TEST(CrashGuardTest, recordsASegmentationFault)
{
    const Crash crash = crashBy("segmentation-fault");

    expectCrashBlock(crash, SIGSEGV, "SIGSEGV");
    EXPECT_THAT(crash.block, HasSubstr("crashBySegmentationFault"));
}

TEST(CrashGuardTest, recordsABusError)
{
    const Crash crash = crashBy("bus-error");

    expectCrashBlock(crash, SIGBUS, "SIGBUS");
    EXPECT_THAT(crash.block, HasSubstr("crashByBusError"));
}

TEST(CrashGuardTest, recordsAnIllegalInstruction)
{
    const Crash crash = crashBy("illegal-instruction");

    expectCrashBlock(crash, SIGILL, "SIGILL");
    EXPECT_THAT(crash.block, HasSubstr("crashByIllegalInstruction"));
}

TEST(CrashGuardTest, recordsADivisionByZero)
{
    const Crash crash = crashBy("division");

    expectCrashBlock(crash, SIGFPE, "SIGFPE");
    EXPECT_THAT(crash.block, HasSubstr("crashByDivision"));
}

TEST(CrashGuardTest, recordsAnAbort) { expectCrashBlock(crashBy("abort"), SIGABRT, "SIGABRT"); }

TEST(CrashGuardTest, recordsATrap)
{
    const Crash crash = crashBy("trap");

    expectCrashBlock(crash, SIGTRAP, "SIGTRAP");
    EXPECT_THAT(crash.block, HasSubstr("crashByTrap"));
}

TEST(CrashGuardTest, recordsASignalThatIsSent)
{
    expectCrashBlock(crashBy("raise"), SIGSEGV, "SIGSEGV");
}

TEST(CrashGuardTest, writesTextsOfFixedLengths)
{
    EXPECT_EQ(headline("SIGSEGV").size(), 11u + 7u + 77u);
    EXPECT_EQ(headline("SIGBUS").size(), 11u + 6u + 77u);
    EXPECT_EQ(blockEnd.size(), 21u);
}

TEST(CrashGuardTest, recordsACrashOfAnyThread)
{
    const Crash crash = crashBy("on-a-thread");

    expectCrashBlock(crash, SIGSEGV, "SIGSEGV");
    EXPECT_THAT(crash.block, HasSubstr("crashBySegmentationFault"));
}

TEST(CrashGuardTest, startsTheBlockOnAFreshLine)
{
    const Crash crash = crashBy("after-half-a-line");

    EXPECT_EQ(crash.end.signal, SIGSEGV);
    EXPECT_THAT(crash.linesBefore, EndsWith("\nhalf a line"));
    EXPECT_GE(framesOf(crash.block, "SIGSEGV").size(), 3u);
}

TEST(CrashGuardTest, doesNotWaitForTheLogsLock)
{
    const Crash crash = crashBy("while-writing");

    expectCrashBlock(crash, SIGSEGV, "SIGSEGV");
    EXPECT_THAT(crash.linesBefore, ::testing::Not(HasSubstr("NEVER")));
}

TEST(CrashGuardTest, endsAtOnceOnAnotherFaultInTheHandler)
{
    const Crash crash = crashBy("other-fault-in-handler");

    EXPECT_EQ(crash.end.exitStatus, 128 + SIGSEGV);
    EXPECT_EQ(crash.block, headline("SIGABRT"));
}

TEST(CrashGuardTest, endsAtOnceOnAnAbortInTheHandler)
{
    const Crash crash = crashBy("abort-in-handler");

    EXPECT_EQ(crash.end.exitStatus, 128 + SIGABRT);
    EXPECT_EQ(crash.block, headline("SIGSEGV"));
}

// The disposition is the default again, so the system ends the process; a shell calls that 139 too.
TEST(CrashGuardTest, diesOfTheSameFaultInTheHandler)
{
    const Crash crash = crashBy("same-fault-in-handler");

    EXPECT_EQ(crash.end.signal, SIGSEGV);
    EXPECT_EQ(crash.block, headline("SIGSEGV"));
}

TEST(CrashGuardTest, endsAtOnceWhenASecondThreadCrashes)
{
    const Crash crash = crashBy("on-two-threads");

    EXPECT_EQ(crash.end.exitStatus, 128 + SIGSEGV);
    EXPECT_EQ(crash.block, headline("SIGABRT"));
}

TEST(CrashGuardTest, diesOfTheSignalWithoutALog)
{
    EXPECT_EQ(runCrashProgram({ "segmentation-fault" }).signal, SIGSEGV);
    EXPECT_EQ(runCrashProgram({ "bus-error" }).signal, SIGBUS);
    EXPECT_EQ(runCrashProgram({ "illegal-instruction" }).signal, SIGILL);
    EXPECT_EQ(runCrashProgram({ "division" }).signal, SIGFPE);
    EXPECT_EQ(runCrashProgram({ "abort" }).signal, SIGABRT);
    EXPECT_EQ(runCrashProgram({ "trap" }).signal, SIGTRAP);
}

TEST(CrashGuardTest, writesNothingAnywhereWithoutALog)
{
    const ChildEnd end = runCrashProgram({ "segmentation-fault" });

    EXPECT_THAT(end.standardOutput, IsEmpty());
    EXPECT_THAT(end.standardError, IsEmpty());
}

/// The two records of an uncaught exception: a stamped line whose stack goes on over further lines,
/// and then the crash block of the abort.
void expectException(const Crash& crash, const std::string& nameAndReason)
{
    expectCrashBlock(crash, SIGABRT, "SIGABRT");
    const std::vector<std::string> lines = linesOf(crash.linesBefore);
    ASSERT_GE(lines.size(), 5u);
    EXPECT_EQ(lines[1].at(23), 'Z');
    EXPECT_EQ(lines[1].substr(25), "CRASH uncaught exception " + nameAndReason);
    for (std::size_t i = 2; i < lines.size(); ++i)
        EXPECT_THAT(lines[i], HasSubstr("["));
}

TEST(CrashGuardTest, recordsAnUncaughtExceptionAndThenItsAbort)
{
    const Crash crash = crashBy("exception");

    expectException(crash, "std::runtime_error: out of paper");
    EXPECT_THAT(crash.end.standardError, HasSubstr("CRASH uncaught exception std::runtime_error"));
}

TEST(CrashGuardTest, recordsAnUncaughtExceptionOfAnyThread)
{
    expectException(crashBy("exception-on-a-thread"), "std::runtime_error: out of paper");
}

TEST(CrashGuardTest, recordsAnExceptionThatLeavesANoexceptFunction)
{
    expectException(crashBy("exception-in-noexcept"), "std::runtime_error: out of paper");
}

TEST(CrashGuardTest, recordsAnExceptionWithoutAReason)
{
    expectException(crashBy("exception-without-reason"), "int: ");
}

TEST(CrashGuardTest, recordsOnlyTheAbortOfAnEndWithoutAnException)
{
    const Crash crash = crashBy("terminate");

    expectCrashBlock(crash, SIGABRT, "SIGABRT");
    EXPECT_THAT(crash.linesBefore, ::testing::Not(HasSubstr("uncaught exception")));
}

TEST(CrashGuardTest, recordsAnExceptionThatAnAdapterReports)
{
    const Crash crash = crashBy("foreign-exception");

    expectCrashBlock(crash, SIGABRT, "SIGABRT");
    EXPECT_THAT(crash.linesBefore,
        EndsWith("Z CRASH uncaught exception NSRangeException: \n0 here\n1 there\n"));
}

TEST(CrashGuardTest, endsOnAnUncaughtExceptionWithoutALog)
{
    EXPECT_EQ(runCrashProgram({ "exception" }).signal, SIGABRT);
}

TEST(CrashGuardTest, handlesTheSixFatalSignalsAndNoOther)
{
    constexpr const char* handled = " handled=1 masked=0 RESETHAND=1 ONSTACK=0 NODEFER=0 RESTART=0";
    constexpr const char* left = " handled=0 masked=0 RESETHAND=0 ONSTACK=0 NODEFER=0 RESTART=0";

    const ChildEnd end = runCrashProgram({ "describe" });

    EXPECT_THAT(linesOf(end.standardOutput),
        ElementsAre(std::string("SIGSEGV") + handled, std::string("SIGBUS") + handled,
            std::string("SIGILL") + handled, std::string("SIGFPE") + handled,
            std::string("SIGABRT") + handled, std::string("SIGTRAP") + handled,
            std::string("SIGUSR1") + left, std::string("SIGUSR2") + left,
            std::string("SIGTERM") + left));
}

TEST(CrashGuardTest, recordsNoSignalThatIsNotFatal)
{
    const Crash crash = crashBy("user-signal");

    EXPECT_EQ(crash.end.signal, SIGUSR1);
    EXPECT_THAT(crash.block, IsEmpty());
}

} // namespace
} // namespace Orvello
