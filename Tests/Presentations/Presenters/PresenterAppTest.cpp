#include "Orvello/Presentations/Presenters/AppleScriptPresenters.h"
#include "Tests/Support/FakeChildProcess.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class PresenterAppTest : public ::testing::Test {
protected:
    PresenterAppTest()
    {
        presenters.add(AppleScriptPresenters::keynote(runner));
        presenters.add(AppleScriptPresenters::powerPoint(runner));
    }

    Testing::FakeChildProcess process;
    AppleScriptRunner runner { process };
    PresenterTable presenters;
};

TEST_F(PresenterAppTest, isFoundByItsExactDisplayName)
{
    EXPECT_EQ(presenters.named(u"Keynote"_s)->logName, u"Keynote"_s);
    EXPECT_EQ(presenters.named(u"Microsoft PowerPoint"_s)->logName, u"PowerPoint"_s);
    EXPECT_EQ(presenters.named(u"PowerPoint"_s), nullptr);
    EXPECT_EQ(presenters.named(u"keynote"_s), nullptr);
    EXPECT_EQ(presenters.named(u"Keynote "_s), nullptr);
    EXPECT_EQ(presenters.named(u""_s), nullptr);
    EXPECT_EQ(presenters.named(std::nullopt), nullptr);
}

TEST_F(PresenterAppTest, isFoundByItsExactBundleIdentifier)
{
    EXPECT_EQ(
        presenters.identifiedBy(u"com.apple.iWork.Keynote"_s), presenters.named(u"Keynote"_s));
    EXPECT_EQ(presenters.identifiedBy(u"com.microsoft.Powerpoint"_s),
        presenters.named(u"Microsoft PowerPoint"_s));
    EXPECT_EQ(presenters.identifiedBy(u"com.microsoft.PowerPoint"_s), nullptr);
    EXPECT_EQ(presenters.identifiedBy(std::nullopt), nullptr);
}

TEST_F(PresenterAppTest, keepsItsAddressWhenTheEditionAddsAnother)
{
    const PresenterApp* keynote = presenters.named(u"Keynote"_s);

    for (int i = 0; i < 100; ++i) {
        PresenterApp other;
        other.displayName = u"Presenter %1"_s.arg(i);
        presenters.add(other);
    }

    EXPECT_EQ(presenters.named(u"Keynote"_s), keynote);
    EXPECT_NE(presenters.named(u"Presenter 99"_s), nullptr);
}

TEST_F(PresenterAppTest, asksKeynoteForItsSlideInOneLine)
{
    presenters.named(u"Keynote"_s)->askCurrentSlide([](const ScriptResult&) {});

    ASSERT_EQ(process.runs.size(), 1);
    EXPECT_EQ(process.runs[0].program, u"/usr/bin/osascript"_s);
    EXPECT_EQ(process.runs[0].arguments,
        QStringList({ u"-e"_s,
            u"tell application \"Keynote\" to slide number of current slide of front document"_s }));
}

TEST_F(PresenterAppTest, asksPowerPointForItsSlideInNineLines)
{
    presenters.named(u"Microsoft PowerPoint"_s)->askCurrentSlide([](const ScriptResult&) {});

    ASSERT_EQ(process.runs.size(), 1);
    EXPECT_EQ(process.runs[0].arguments,
        QStringList({ u"-e"_s,
            u"tell application \"Microsoft PowerPoint\"\n"
            "    tell slideshow view of slide show window 1\n"
            "        try\n"
            "            slide index of slide\n"
            "        on error\n"
            "            current show position\n"
            "        end try\n"
            "    end tell\n"
            "end tell"_s }));
}

TEST_F(PresenterAppTest, passesOnWhatTheScriptPrinted)
{
    ScriptResult received;
    presenters.named(u"Keynote"_s)->askCurrentSlide([&](const ScriptResult& result) {
        received = result;
    });

    process.finish(0, 7, "out", "err");

    EXPECT_EQ(received.status, 7);
    EXPECT_EQ(received.standardOutput, u"out"_s);
    EXPECT_EQ(received.standardError, u"err"_s);
}

TEST_F(PresenterAppTest, readsBytesThatAreNotTextAsNothing)
{
    ScriptResult received;
    const auto receive = [&](const ScriptResult& result) { received = result; };

    presenters.named(u"Keynote"_s)->askCurrentSlide(receive);
    process.finish(0, 0, "7\xff", "\xc3");

    EXPECT_EQ(received.standardOutput, QString());
    EXPECT_EQ(received.standardError, QString());
}

TEST_F(PresenterAppTest, reportsAScriptRunnerThatCannotBeLaunched)
{
    ScriptResult received;
    presenters.named(u"Keynote"_s)->askCurrentSlide([&](const ScriptResult& result) {
        received = result;
    });

    process.failToLaunch(0, u"No such file"_s);

    EXPECT_EQ(received.status, -1);
    EXPECT_EQ(received.standardOutput, QString());
    EXPECT_EQ(received.standardError, u"No such file"_s);
}

} // namespace
} // namespace Orvello
