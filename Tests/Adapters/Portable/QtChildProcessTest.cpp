#include "Orvello/Adapters/Portable/QtChildProcess.h"

#include "Orvello/Presentations/Presenters/AppleScriptRunner.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <optional>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

constexpr qint64 fiftyMegabytes = 50 * 1000 * 1000;

class QtChildProcessTest : public ::testing::Test {
protected:
    /// Runs a shell script to its end and returns what became of it.
    ChildProcessOutcome outcomeOf(const QString& script)
    {
        std::optional<ChildProcessOutcome> outcome;
        process->run(u"/bin/sh"_s, { u"-c"_s, script },
            [&](const ChildProcessOutcome& result) { outcome = result; });
        EXPECT_FALSE(outcome.has_value());
        waitUntil([&] { return outcome.has_value(); });
        return *outcome;
    }

    template <typename Condition>
    static void waitUntil(Condition condition)
    {
        while (!condition())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    /// Waits for the process id that a script writes to the file, whole.
    static pid_t processIdIn(const QString& path)
    {
        QFile file(path);
        while (
            !(file.open(QIODevice::ReadOnly) && file.size() > 0 && file.readAll().endsWith('\n')))
            file.close();
        file.seek(0);
        return file.readAll().trimmed().toInt();
    }

    std::unique_ptr<QtChildProcess> process = std::make_unique<QtChildProcess>();
    QTemporaryDir folder;
};

TEST_F(QtChildProcessTest, passesArgumentsAndOutputsOnByteForByte)
{
    std::optional<ChildProcessOutcome> outcome;
    process->run(u"/bin/sh"_s,
        { u"-c"_s, u"printf '%s|' \"$@\"; printf e >&2"_s, u"sh"_s, u"-e"_s,
            u"two words\nand a \"line\""_s, u""_s },
        [&](const ChildProcessOutcome& result) { outcome = result; });
    waitUntil([&] { return outcome.has_value(); });

    EXPECT_TRUE(outcome->isLaunched);
    EXPECT_EQ(outcome->status, 0);
    EXPECT_EQ(outcome->standardOutput, "-e|two words\nand a \"line\"||");
    EXPECT_EQ(outcome->standardError, "e");
}

TEST_F(QtChildProcessTest, reportsTheExitStatus) { EXPECT_EQ(outcomeOf(u"exit 3"_s).status, 3); }

TEST_F(QtChildProcessTest, givesItsChildAnEmptyInput)
{
    EXPECT_EQ(outcomeOf(u"cat; echo end"_s).standardOutput, "end\n");
}

TEST_F(QtChildProcessTest, drainsBothOutputsHoweverMuchIsWrittenToEither)
{
    const QString megabytes = u"head -c %1 /dev/zero"_s.arg(fiftyMegabytes);

    const ChildProcessOutcome together
        = outcomeOf(megabytes + u" >&2 & "_s + megabytes + u"; wait"_s);
    EXPECT_EQ(together.standardOutput.size(), fiftyMegabytes);
    EXPECT_EQ(together.standardError.size(), fiftyMegabytes);

    const ChildProcessOutcome errorFirst = outcomeOf(megabytes + u" >&2; "_s + megabytes);
    EXPECT_EQ(errorFirst.standardOutput.size(), fiftyMegabytes);
    EXPECT_EQ(errorFirst.standardError.size(), fiftyMegabytes);
}

TEST_F(QtChildProcessTest, reportsTheSignalThatEndedAChild)
{
    const ChildProcessOutcome outcome = outcomeOf(u"echo before; kill -KILL $$"_s);

    EXPECT_TRUE(outcome.isLaunched);
    EXPECT_EQ(outcome.status, SIGKILL);
    EXPECT_EQ(outcome.standardOutput, "before\n");
}

TEST_F(QtChildProcessTest, reportsAProgramThatCannotBeLaunchedFromTheMainLoop)
{
    for (const QString& program : { folder.filePath(u"none"_s), folder.path(), QString() }) {
        std::optional<ChildProcessOutcome> outcome;
        process->run(program, {}, [&](const ChildProcessOutcome& result) { outcome = result; });
        EXPECT_FALSE(outcome.has_value());
        waitUntil([&] { return outcome.has_value(); });

        EXPECT_FALSE(outcome->isLaunched);
        EXPECT_EQ(outcome->status, -1);
        EXPECT_FALSE(outcome->launchError.isEmpty());
    }
}

TEST_F(QtChildProcessTest, runsSeveralChildrenAtATime)
{
    QByteArrayList ends;
    const QString gate = folder.filePath(u"gate"_s);
    const auto run = [&](const QString& script) {
        process->run(u"/bin/sh"_s, { u"-c"_s, script }, [&](const ChildProcessOutcome& outcome) {
            ends.append(outcome.standardOutput);
            EXPECT_TRUE(QFile(gate).open(QIODevice::WriteOnly));
        });
    };
    run(u"until [ -e '%1' ]; do sleep 0.01; done; echo first"_s.arg(gate));
    run(u"echo second"_s);
    waitUntil([&] { return ends.size() == 2; });

    EXPECT_EQ(ends, QByteArrayList({ "second\n", "first\n" }));
}

TEST_F(QtChildProcessTest, killsAChildThatNeverEndsAndDropsItsCompletion)
{
    bool isCompleted = false;
    const QString path = folder.filePath(u"pid"_s);
    process->run(u"/bin/sh"_s,
        { u"-c"_s, u"trap '' TERM; echo $$ > '%1'; exec sleep 1000"_s.arg(path) },
        [&](const ChildProcessOutcome&) { isCompleted = true; });
    const pid_t child = processIdIn(path);
    ASSERT_EQ(::kill(child, 0), 0);

    process.reset();
    QCoreApplication::processEvents();

    EXPECT_FALSE(isCompleted);
    EXPECT_EQ(::kill(child, 0), -1);
    EXPECT_EQ(errno, ESRCH);
}

TEST_F(QtChildProcessTest, leavesTheMainLoopFreeWhileAChildRuns)
{
    const QString gate = folder.filePath(u"gate"_s);
    bool isCompleted = false;
    process->run(u"/bin/sh"_s, { u"-c"_s, u"until [ -e '%1' ]; do sleep 0.01; done"_s.arg(gate) },
        [&](const ChildProcessOutcome&) { isCompleted = true; });

    // The child waits for what only a running main loop does.
    QMetaObject::invokeMethod(
        qApp, [&] { QFile(gate).open(QIODevice::WriteOnly); }, Qt::QueuedConnection);
    waitUntil([&] { return isCompleted; });
}

TEST_F(QtChildProcessTest, runsAnAppleScriptRunnerOfThisPath)
{
    const QString path = folder.filePath(u"osascript"_s);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("#!/bin/sh\n[ \"$1\" = -e ] && printf '%s' \"$2\"; printf '\\377' >&2; exit 4\n");
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    file.close();
    const AppleScriptRunner runner(*process, path);

    std::optional<ScriptResult> received;
    runner.run(u"return \"ünï\"\n  end"_s, [&](const ScriptResult& result) { received = result; });
    waitUntil([&] { return received.has_value(); });

    EXPECT_EQ(received->status, 4);
    EXPECT_EQ(received->standardOutput, u"return \"ünï\"\n  end"_s);
    EXPECT_EQ(received->standardError, QString());
}

} // namespace
} // namespace Orvello
