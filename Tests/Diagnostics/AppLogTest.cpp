#include "Orvello/Diagnostics/AppLog.h"

#include "Orvello/Diagnostics/Timestamp.h"
#include "Tests/Diagnostics/ChildProgram.h"
#include "Tests/Diagnostics/TextFile.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeSystemLog.h"

#include <QRegularExpression>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <map>
#include <thread>
#include <unistd.h>

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::EndsWith;
using ::testing::MatchesRegex;
using ::testing::StartsWith;

namespace Orvello {
namespace {

using Testing::linesOf;
using Testing::readFile;
using Testing::writeFile;

namespace fs = std::filesystem;

constexpr std::size_t messageStart = Timestamp::length + 1;

std::string repeated(std::size_t size) { return std::string(size - 1, 'x') + '\n'; }

/// Each launch stands for a process of its own: it leaves the session before without an end.
class AppLogTest : public ::testing::Test {
protected:
    void launch()
    {
        AppLog::Session session;
        session.applicationSupport = folders.applicationSupport().toStdString();
        session.version = "2.1";
        session.build = "57";
        session.architecture = "arm64";
        session.osVersion = "Version 15.1 (Build 24B83)";
        session.systemLog = &systemLog;
        AppLog::start(session);
    }

    /// The messages in the live log file.
    std::vector<std::string> messages() const
    {
        std::vector<std::string> messages;
        for (const std::string& line : linesOf(readFile(logPath)))
            messages.push_back(line.substr(std::min(messageStart, line.size())));
        return messages;
    }

    Testing::FakeSystemLog systemLog;
    Testing::FakeFolders folders;
    std::string directory = (folders.path + u"/Orvello/logs"_s).toStdString();
    std::string logPath = directory + "/orvello.log";
    std::string markerPath = directory + "/session.marker";
    std::string launchMessage
        = "LAUNCH Orvello 2.1 (57) arm64 macOS Version 15.1 (Build 24B83) pid "
        + std::to_string(::getpid());
};

TEST_F(AppLogTest, startsWithTheLaunchLine)
{
    launch();

    EXPECT_THAT(messages(), ElementsAre(launchMessage));
}

TEST_F(AppLogTest, putsAQuestionMarkWhereVersionAndBuildAreUnknown)
{
    AppLog::Session session;
    session.applicationSupport = folders.applicationSupport().toStdString();
    session.architecture = "x86_64";
    session.osVersion = "Debian";
    session.systemLog = &systemLog;

    AppLog::start(session);

    const std::string pid = std::to_string(::getpid());
    EXPECT_THAT(messages(), ElementsAre("LAUNCH Orvello ? (?) x86_64 macOS Debian pid " + pid));
    EXPECT_THAT(readFile(markerPath), StartsWith("? (?) pid " + pid + " started "));
}

TEST_F(AppLogTest, livesInTheApplicationSupportFolder)
{
    folders.path += u"/not/made/yet"_s;
    launch();

    const std::string support = folders.path.toStdString();
    EXPECT_EQ(AppLog::directory(), support + "/Orvello/logs");
    EXPECT_EQ(AppLog::fileURL(), support + "/Orvello/logs/orvello.log");
    EXPECT_TRUE(fs::is_regular_file(AppLog::fileURL()));
}

TEST_F(AppLogTest, stampsEachLineWithTheTime)
{
    launch();
    const std::string before(Timestamp::now().text());
    AppLog::write("TAG text");
    const std::string after(Timestamp::now().text());

    const std::string line = linesOf(readFile(logPath)).at(1);
    EXPECT_THAT(line,
        MatchesRegex("[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}\\.[0-9]{3}Z TAG text"));
    EXPECT_LE(before, line.substr(0, Timestamp::length));
    EXPECT_LE(line.substr(0, Timestamp::length), after);
}

TEST_F(AppLogTest, removesOneLeadingProductName)
{
    launch();
    AppLog::write("Orvello SYNC slide=%d", 3);
    AppLog::write("%@SYNC", "Orvello ");
    AppLog::write("Orvello Orvello SYNC");
    AppLog::write("UPDATES for Orvello started");
    AppLog::write("Orvello");
    AppLog::write("Orvello ");
    AppLog::write("OrvelloSYNC");
    AppLog::write("");

    EXPECT_THAT(messages(),
        ElementsAre(launchMessage, "SYNC slide=3", "SYNC", "Orvello SYNC",
            "UPDATES for Orvello started", "Orvello", "", "OrvelloSYNC", ""));
}

TEST_F(AppLogTest, sendsEveryMessageToTheSystemLog)
{
    launch();
    AppLog::write("Orvello SYNC slide=%d", 3);

    EXPECT_THAT(systemLog.messages(), ElementsAre(launchMessage, "SYNC slide=3"));
}

TEST_F(AppLogTest, neverTakesAMessageForAFormat)
{
    launch();
    AppLog::write("FILE %@", "100%d %@ %n");

    EXPECT_EQ(messages().back(), "FILE 100%d %@ %n");
    EXPECT_EQ(systemLog.messages().back(), "FILE 100%d %@ %n");
}

TEST_F(AppLogTest, callsTheSystemLogWithoutHoldingItsLock)
{
    class LoggingSystemLog final : public SystemLog {
    public:
        void write(std::string_view message) override
        {
            if (message == "OUTER")
                AppLog::write("INNER");
        }
    } loggingSystemLog;
    AppLog::Session session;
    session.applicationSupport = folders.applicationSupport().toStdString();
    session.systemLog = &loggingSystemLog;
    AppLog::start(session);

    AppLog::write("OUTER");

    const std::vector<std::string> all = messages();
    EXPECT_THAT(std::vector(all.begin() + 1, all.end()), ElementsAre("INNER", "OUTER"));
}

TEST_F(AppLogTest, takesArgumentsOfEveryKind)
{
    launch();
    AppLog::write("Orvello STEALTH %@ wid=%ld fresh=%d rms=%.4f file=%@ text=%@", "apply", 42L,
        true, 0.12345F, u"Präsentation 🎤"_s, std::string("text"));

    EXPECT_EQ(
        messages().back(), "STEALTH apply wid=42 fresh=1 rms=0.1235 file=Präsentation 🎤 text=text");
}

TEST_F(AppLogTest, keepsNulAndReplacesWhatIsNotUtf8)
{
    launch();
    AppLog::write("A %@ B %@", std::string_view("n\0l", 3), "\xFF");

    EXPECT_EQ(messages().back(), std::string("A n\0l B \uFFFD", 11));
    EXPECT_EQ(systemLog.messages().back(), messages().back());
}

TEST_F(AppLogTest, writesALongLineWhole)
{
    launch();
    const std::string text(100'000, 'y');
    AppLog::write("LONG %@", text);

    EXPECT_EQ(messages().back(), "LONG " + text);
}

TEST_F(AppLogTest, describesTheRunningSessionInAMarker)
{
    const std::string before(Timestamp::now().text());
    launch();
    const std::string after(Timestamp::now().text());

    const std::string marker = readFile(markerPath);
    const std::string start = "2.1 (57) pid " + std::to_string(::getpid()) + " started ";
    ASSERT_THAT(marker, StartsWith(start));
    const std::string stamp = marker.substr(start.size());
    EXPECT_EQ(stamp.size(), Timestamp::length);
    EXPECT_LE(before, stamp);
    EXPECT_LE(stamp, after);
}

TEST_F(AppLogTest, reportsASessionThatDidNotEnd)
{
    launch();
    EXPECT_FALSE(AppLog::previousSessionEndedAbnormally());
    const std::string firstMarker = readFile(markerPath);

    launch();

    EXPECT_TRUE(AppLog::previousSessionEndedAbnormally());
    EXPECT_THAT(messages(),
        ElementsAre(
            launchMessage, launchMessage, "PREVIOUS_SESSION did not end cleanly: " + firstMarker));
}

TEST_F(AppLogTest, reportsTheTrimmedTextOfAnyMarker)
{
    fs::create_directories(directory);
    writeFile(markerPath, "  1.0 (3) pid 99 started long ago \r\n");

    launch();

    EXPECT_EQ(
        messages().back(), "PREVIOUS_SESSION did not end cleanly: 1.0 (3) pid 99 started long ago");
    EXPECT_THAT(readFile(markerPath), StartsWith("2.1 (57) pid "));
}

TEST_F(AppLogTest, doesNotReportAMarkerThatCannotBeRead)
{
    fs::create_directories(directory);
    writeFile(markerPath, "\xFF\xFF");

    launch();

    EXPECT_FALSE(AppLog::previousSessionEndedAbnormally());
    EXPECT_THAT(messages(), ElementsAre(launchMessage));
    EXPECT_THAT(readFile(markerPath), StartsWith("2.1 (57) pid "));
}

TEST_F(AppLogTest, leavesNoMarkerAfterAnOrderlyEnd)
{
    launch();
    AppLog::endSession();

    EXPECT_FALSE(fs::exists(markerPath));
    EXPECT_THAT(messages(), ElementsAre(launchMessage, "QUIT clean"));

    launch();

    EXPECT_FALSE(AppLog::previousSessionEndedAbnormally());
    EXPECT_THAT(messages(), ElementsAre(launchMessage, "QUIT clean", launchMessage));
}

TEST_F(AppLogTest, staysOpenAfterTheEnd)
{
    launch();
    AppLog::endSession();
    AppLog::write("LATE line");

    EXPECT_GE(AppLog::fd(), 0);
    EXPECT_EQ(messages().back(), "LATE line");
}

TEST_F(AppLogTest, keepsAFileOfExactlyTheLimitAtStart)
{
    fs::create_directories(directory);
    writeFile(logPath, repeated(1'000'000));

    launch();

    // The launch line still went to the old file, and passed the limit.
    EXPECT_THAT(readFile(logPath + ".1"), EndsWith(launchMessage + "\n"));
    EXPECT_THAT(messages(), ElementsAre());
}

TEST_F(AppLogTest, rotatesAFileAboveTheLimitAtStart)
{
    fs::create_directories(directory);
    writeFile(logPath, repeated(1'000'001));

    launch();

    EXPECT_EQ(readFile(logPath + ".1"), repeated(1'000'001));
    EXPECT_THAT(messages(), ElementsAre(launchMessage));
}

TEST_F(AppLogTest, goesOnWithTheSystemLogAloneWhereNoFileCanBeMade)
{
    folders.path += u"/file"_s;
    writeFile(folders.path.toStdString(), "no folder");

    launch();
    AppLog::write("TAG text");
    AppLog::endSession();

    EXPECT_EQ(AppLog::fd(), -1);
    EXPECT_FALSE(AppLog::previousSessionEndedAbnormally());
    EXPECT_THAT(systemLog.messages(), ElementsAre(launchMessage, "TAG text", "QUIT clean"));
    EXPECT_EQ(readFile(folders.path.toStdString()), "no folder");
}

// The three files hold all that is written, so no line may be missing, doubled or torn.
TEST_F(AppLogTest, losesNoLineOfManyThreadsAcrossRotations)
{
    constexpr int threadCount = 8;
    constexpr int linesPerThread = 2'000;
    launch();
    std::atomic<int> threadsAtWork { threadCount };
    const auto writeLines = [&threadsAtWork](int thread) {
        for (int i = 0; i < linesPerThread; ++i)
            AppLog::write(
                "T%d N%d %@", thread, i, std::string(static_cast<std::size_t>(100 + i % 50), 'x'));
        --threadsAtWork;
    };

    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int thread = 0; thread < threadCount; ++thread)
        threads.emplace_back(writeLines, thread);
    while (threadsAtWork > 0) // Reads the descriptor meanwhile, as a crash handler would.
        EXPECT_GE(AppLog::fd(), -1);
    for (std::thread& thread : threads)
        thread.join();

    const QRegularExpression pattern(u"^[0-9T:.Z-]{24} T([0-9]+) N([0-9]+) x{100,149}$"_s);
    std::map<int, int> nextOfThread;
    std::size_t lineCount = 0;
    for (const char* generation : { ".2", ".1", "" }) {
        for (const std::string& line : linesOf(readFile(logPath + generation))) {
            if (line.ends_with(launchMessage))
                continue;
            const auto match = pattern.match(QString::fromStdString(line));
            ASSERT_TRUE(match.hasMatch()) << line;
            ASSERT_EQ(match.captured(2).toInt(), nextOfThread[match.captured(1).toInt()]++);
            ++lineCount;
        }
    }
    EXPECT_EQ(lineCount, threadCount * linesPerThread);
    EXPECT_GT(fs::file_size(logPath + ".2"), 1'000'000u);
}

TEST_F(AppLogTest, reachesOnlyStandardErrorBeforeTheStart)
{
    const Testing::ChildEnd end = Testing::runCrashProgram({ "log-before-start" });

    EXPECT_EQ(end.exitStatus, 0);
    EXPECT_EQ(end.standardError, "EARLY message 1\n");
    EXPECT_EQ(end.standardOutput, "fd=-1 directory= fileURL= previous=0\n");
}

} // namespace
} // namespace Orvello
