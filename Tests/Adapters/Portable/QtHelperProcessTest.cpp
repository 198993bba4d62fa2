#include "Orvello/Adapters/Portable/QtHelperProcess.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QFile>
#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <memory>
#include <vector>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

class QtHelperProcessTest : public ::testing::Test {
protected:
    /// The helper is a shell script.
    void makeHelper(const QString& script)
    {
        helper = std::make_unique<QtHelperProcess>(u"/bin/sh"_s, QStringList { u"-c"_s, script });
    }

    void ask(const QString& question, double seconds = 60.0)
    {
        helper->ask(
            question, seconds, [this](const ScriptResult& result) { results.push_back(result); });
    }

    void waitForResults(std::size_t count)
    {
        while (results.size() < count)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    std::vector<std::string> outputs() const
    {
        std::vector<std::string> texts;
        for (const ScriptResult& result : results)
            texts.push_back(result.standardOutput.toStdString());
        return texts;
    }

    /// Answers each question with itself and the helper's process id.
    const QString echo
        = u"while read -r n q; do echo \"{\\\"id\\\":\\\"$n\\\",\\\"status\\\":0,\\\"output\\\":\\\"$q $$\\\"}\"; done"_s;
    std::unique_ptr<QtHelperProcess> helper;
    std::vector<ScriptResult> results;
};

TEST_F(QtHelperProcessTest, answersEveryQuestionInOrderFromOneProcess)
{
    makeHelper(echo);
    ask(u"one"_s);
    ask(u"two"_s);
    EXPECT_TRUE(results.empty());
    waitForResults(2);
    ask(u"three"_s);
    waitForResults(3);

    const QString process = results[0].standardOutput.section(u' ', 1);
    EXPECT_THAT(outputs(),
        ElementsAre("one " + process.toStdString(), "two " + process.toStdString(),
            "three " + process.toStdString()));
}

TEST_F(QtHelperProcessTest, passesOnStatusAndError)
{
    makeHelper(
        u"read -r q; echo '{\"id\":\"1\",\"status\":1,\"output\":\"\",\"error\":\"NO_DOCUMENT ü\"}'; read -r q"_s);
    ask(u"deck"_s);
    waitForResults(1);

    EXPECT_EQ(results[0].status, 1);
    EXPECT_EQ(results[0].standardOutput, QString());
    EXPECT_EQ(results[0].standardError, u"NO_DOCUMENT ü"_s);
}

TEST_F(QtHelperProcessTest, leavesLinesAsideThatAnswerNoOpenQuestion)
{
    makeHelper(u"read -r q; echo nonsense; echo '[1]'; echo '{\"status\":0,\"output\":\"stray\"}'; "
               "echo '{\"id\":\"2\",\"status\":0,\"output\":\"early\"}'; "
               "echo '{\"id\":\"1\",\"status\":0,\"output\":\"first\"}'; "
               "echo '{\"id\":\"1\",\"status\":0,\"output\":\"again\"}'; "
               "read -r q; echo '{\"id\":\"2\",\"status\":0,\"output\":\"second\"}'; read -r q"_s);
    ask(u"slide"_s);
    waitForResults(1);
    ask(u"slide"_s);
    waitForResults(2);

    EXPECT_THAT(outputs(), ElementsAre("first", "second"));
}

TEST_F(QtHelperProcessTest, asksAProgramAnewThatDoesNotAnswerInTime)
{
    makeHelper(
        u"read -r n q; case $q in hang) exec sleep 1000;; esac; echo \"{\\\"id\\\":\\\"$n\\\",\\\"status\\\":0,\\\"output\\\":\\\"$q\\\"}\"; read -r q"_s);
    ask(u"hang"_s, 0.2);
    ask(u"behind it"_s);
    waitForResults(2);
    EXPECT_EQ(results[0].status, ScriptResult::timedOut);
    EXPECT_EQ(results[1].status, ScriptResult::timedOut);

    ask(u"again"_s);
    waitForResults(3);
    EXPECT_EQ(results[2].standardOutput, u"again"_s);
}

TEST_F(QtHelperProcessTest, countsTheTimeFromTheAnswerBefore)
{
    makeHelper(
        u"while read -r n q; do sleep 0.6; echo \"{\\\"id\\\":\\\"$n\\\",\\\"status\\\":0}\"; done"_s);
    ask(u"one"_s, 1.0);
    ask(u"two"_s, 1.0);
    waitForResults(2);

    EXPECT_EQ(results[0].status, 0);
    EXPECT_EQ(results[1].status, 0);
}

TEST_F(QtHelperProcessTest, letsTheProgramEndByItself)
{
    QTemporaryDir folder;
    const QString note = folder.filePath(u"note"_s);
    makeHelper(
        u"while read -r n q; do echo \"{\\\"id\\\":\\\"$n\\\",\\\"status\\\":0}\"; done; sleep 0.3; touch "_s
        + note);
    ask(u"one"_s);
    waitForResults(1);

    helper->end();
    helper->end();
    while (!QFile::exists(note))
        QCoreApplication::processEvents(QEventLoop::AllEvents, 50);

    ask(u"two"_s);
    waitForResults(2);
    EXPECT_EQ(results[1].status, 0);
    helper.reset(); // It touches the file as well.
}

TEST_F(QtHelperProcessTest, failsWhatAHelperThatEndsLeavesOpenAndStartsItAgain)
{
    makeHelper(
        u"read -r n q; echo \"{\\\"id\\\":\\\"$n\\\",\\\"status\\\":0,\\\"output\\\":\\\"$q\\\"}\"; read -r q; kill -KILL $$"_s);
    ask(u"one"_s);
    ask(u"two"_s);
    ask(u"three"_s);
    waitForResults(3);
    EXPECT_EQ(results[0].status, 0);
    EXPECT_EQ(results[1].status, -1);
    EXPECT_EQ(results[2].status, -1);

    ask(u"four"_s);
    waitForResults(4);
    EXPECT_EQ(results[3].standardOutput, u"four"_s);
}

TEST_F(QtHelperProcessTest, failsWithoutAProgram)
{
    helper = std::make_unique<QtHelperProcess>(u"/nonexistent/helper"_s, QStringList());
    ask(u"one"_s);
    EXPECT_TRUE(results.empty());
    waitForResults(1);
    ask(u"two"_s);
    waitForResults(2);

    for (const ScriptResult& result : results) {
        EXPECT_EQ(result.status, -1);
        EXPECT_FALSE(result.standardError.isEmpty());
    }
}

TEST_F(QtHelperProcessTest, readsALongAnswer)
{
    makeHelper(
        u"read -r q; printf '{\"id\":\"1\",\"status\":0,\"output\":\"'; head -c 5000000 /dev/zero | tr '\\0' x; echo '\"}'; read -r q"_s);
    ask(u"deck"_s);
    waitForResults(1);

    EXPECT_EQ(results[0].standardOutput.size(), 5000000);
}

TEST_F(QtHelperProcessTest, endsItsProgramAlsoWhenThatHangs)
{
    makeHelper(
        u"trap '' TERM; read -r n q; echo \"{\\\"id\\\":\\\"$n\\\",\\\"status\\\":0,\\\"output\\\":\\\"$$\\\"}\"; exec sleep 1000"_s);
    ask(u"one"_s);
    waitForResults(1);
    const pid_t child = results[0].standardOutput.toInt();
    ask(u"never answered"_s);

    helper.reset();
    QCoreApplication::processEvents();

    EXPECT_EQ(results.size(), 1u);
    EXPECT_EQ(::kill(child, 0), -1);
    EXPECT_EQ(errno, ESRCH);
}

} // namespace
} // namespace Orvello
