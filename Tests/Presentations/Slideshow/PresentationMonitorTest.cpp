#include "Orvello/Presentations/Slideshow/PresentationMonitor.h"

#include "Orvello/Voice/MeetingApplications.h"
#include "Tests/Support/LogCapture.h"
#include "Tests/Support/SlideshowStage.h"

#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class PresentationMonitorTest : public ::testing::Test {
protected:
    /// What the monitor finds with one PowerPoint window of these bounds.
    std::optional<QString> detect(const QRectF& bounds)
    {
        stage.presentPowerPoint();
        stage.windowServer.windows = { { u"Microsoft PowerPoint"_s, bounds } };
        monitor.start();
        stage.time.advance(1.0);
        return monitor.presentingApp();
    }

    Testing::SlideshowStage stage;
    PresentationMonitor& monitor = stage.monitor;
    Testing::LogCapture log;
};

TEST_F(PresentationMonitorTest, seesNothingAtFirst)
{
    EXPECT_FALSE(monitor.isPresenting());
    EXPECT_EQ(monitor.presentingApp(), std::nullopt);
    EXPECT_FALSE(monitor.meetingAppRunning());
    EXPECT_FALSE(monitor.inCall());
}

TEST_F(PresentationMonitorTest, pollsAtOnceAndThenEverySecond)
{
    stage.presentKeynote();

    monitor.start();
    EXPECT_TRUE(monitor.isPresenting());

    stage.endSlideshow();
    stage.time.advance(0.99);
    EXPECT_TRUE(monitor.isPresenting());
    stage.time.advance(0.01);
    EXPECT_FALSE(monitor.isPresenting());
}

TEST_F(PresentationMonitorTest, startsOnlyOnce)
{
    monitor.start();
    stage.presentKeynote();
    monitor.start();

    EXPECT_FALSE(monitor.isPresenting());
    EXPECT_EQ(stage.time.pendingCalls(), 1u);
}

TEST_F(PresentationMonitorTest, reportsTheSlideshowInFront)
{
    stage.presentPowerPoint();
    monitor.start();

    EXPECT_TRUE(monitor.isPresenting());
    EXPECT_EQ(monitor.presentingApp(), u"Microsoft PowerPoint"_s);
    EXPECT_THAT(log.lines(), ElementsAre("PRESENTING=1 app=Microsoft PowerPoint"));
}

TEST_F(PresentationMonitorTest, seesAnAudienceUntilTheSlideshowsWindowsAreGone)
{
    const QSignalSpy changes(&monitor, &PresentationMonitor::isSlideshowOnScreenChanged);
    stage.presentKeynote();
    monitor.start();
    EXPECT_TRUE(monitor.isSlideshowOnScreen());

    stage.workspace.frontmost = Testing::FakeWorkspace::application(u"com.apple.Safari"_s);
    stage.time.advance(2.0);
    EXPECT_FALSE(monitor.isPresenting());
    EXPECT_TRUE(monitor.isSlideshowOnScreen());

    stage.endSlideshow();
    stage.time.advance(1.0);
    EXPECT_FALSE(monitor.isSlideshowOnScreen());
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(PresentationMonitorTest, ignoresASlideshowBehindAnotherApplication)
{
    stage.presentKeynote();
    stage.workspace.frontmost = Testing::FakeWorkspace::application(u"com.apple.Safari"_s);
    monitor.start();

    EXPECT_FALSE(monitor.isPresenting());
}

TEST_F(PresentationMonitorTest, needsAFrontmostApplicationWithAnIdentifier)
{
    stage.presentKeynote();
    stage.workspace.frontmost = RunningApplication { std::nullopt, u"Keynote"_s };
    monitor.start();
    EXPECT_FALSE(monitor.isPresenting());

    stage.workspace.frontmost.reset();
    stage.time.advance(1.0);
    EXPECT_FALSE(monitor.isPresenting());
}

TEST_F(PresentationMonitorTest, comparesBundleIdentifiersExactly)
{
    stage.presentPowerPoint();
    stage.workspace.frontmost = Testing::FakeWorkspace::application(u"com.microsoft.PowerPoint"_s);
    monitor.start();

    EXPECT_FALSE(monitor.isPresenting());
}

TEST_F(PresentationMonitorTest, needsAWindowListAndScreens)
{
    stage.presentKeynote();
    const auto windows = std::exchange(stage.windowServer.windows, std::nullopt);
    monitor.start();
    EXPECT_FALSE(monitor.isPresenting());

    stage.windowServer.windows = windows;
    stage.windowServer.screens.clear();
    stage.time.advance(1.0);
    EXPECT_FALSE(monitor.isPresenting());
}

TEST_F(PresentationMonitorTest, skipsWindowsOfOthersAndWindowsWithoutBounds)
{
    stage.presentKeynote();
    stage.windowServer.windows
        = { { u"Dock"_s, QRectF(0, 0, 1920, 1080) }, { u"Keynote"_s, std::nullopt } };
    monitor.start();
    EXPECT_FALSE(monitor.isPresenting());

    stage.windowServer.windows->append({ u"Keynote"_s, QRectF(0, 0, 1920, 1080) });
    stage.time.advance(1.0);
    EXPECT_TRUE(monitor.isPresenting());
}

TEST_F(PresentationMonitorTest, takesTheFirstMatchingWindowWhicheverPresenterIsInFront)
{
    stage.presentKeynote();
    stage.windowServer.windows = { { u"Microsoft PowerPoint"_s, QRectF(0, 0, 1920, 1080) },
        { u"Keynote"_s, QRectF(0, 0, 1920, 1080) } };
    monitor.start();

    EXPECT_EQ(monitor.presentingApp(), u"Microsoft PowerPoint"_s);
}

TEST_F(PresentationMonitorTest, acceptsASizeLessThanFourPointsOff)
{
    EXPECT_TRUE(detect(QRectF(0, 0, 1919, 1081)).has_value());
    EXPECT_TRUE(detect(QRectF(0, 0, 1916.01, 1083.99)).has_value());
    EXPECT_FALSE(detect(QRectF(0, 0, 1916, 1080)).has_value());
    EXPECT_FALSE(detect(QRectF(0, 0, 1920, 1084)).has_value());
}

TEST_F(PresentationMonitorTest, needsBothSidesToFitTheSameScreen)
{
    stage.windowServer.screens = { QSizeF(1920, 1080), QSizeF(1440, 900) };

    EXPECT_FALSE(detect(QRectF(0, 0, 1920, 900)).has_value());
    EXPECT_TRUE(detect(QRectF(1920, 0, 1440, 900)).has_value());
}

TEST_F(PresentationMonitorTest, needsATopEdgeAtTheTopOfTheDesktop)
{
    EXPECT_TRUE(detect(QRectF(0, 1.99, 1920, 1080)).has_value());
    EXPECT_FALSE(detect(QRectF(0, 2, 1920, 1080)).has_value());
    EXPECT_TRUE(detect(QRectF(0, -1080, 1920, 1080)).has_value());
    EXPECT_FALSE(detect(QRectF(0, 1080, 1920, 1080)).has_value());
}

TEST_F(PresentationMonitorTest, seesASlideshowBesideThePresenterView)
{
    stage.presentPowerPoint();
    stage.windowServer.screens = { QSizeF(1440, 900), QSizeF(1920, 1080) };
    stage.windowServer.windows = { { u"Microsoft PowerPoint"_s, QRectF(0, 25, 1440, 875) },
        { u"Microsoft PowerPoint"_s, QRectF(1440, 0, 1920, 1080) } };
    monitor.start();
    EXPECT_TRUE(monitor.isPresenting());

    stage.windowServer.windows->removeLast();
    stage.time.advance(1.0);
    EXPECT_FALSE(monitor.isPresenting());
}

TEST_F(PresentationMonitorTest, logsOnlyTransitions)
{
    monitor.start();
    stage.time.advance(3.0);
    EXPECT_THAT(log.lines(), IsEmpty());

    stage.presentKeynote();
    stage.time.advance(3.0);
    stage.endSlideshow();
    stage.time.advance(3.0);

    EXPECT_THAT(log.lines(), ElementsAre("PRESENTING=1 app=Keynote", "PRESENTING=0 app=-"));
}

TEST_F(PresentationMonitorTest, changesTheApplicationWithoutALine)
{
    stage.presentKeynote();
    monitor.start();
    const QSignalSpy presentingChanged(&monitor, &PresentationMonitor::isPresentingChanged);
    log.clear();

    stage.presentPowerPoint();
    stage.time.advance(2.0);

    EXPECT_EQ(monitor.presentingApp(), u"Microsoft PowerPoint"_s);
    EXPECT_EQ(presentingChanged.count(), 0);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(PresentationMonitorTest, announcesAConsistentState)
{
    std::optional<QString> seen;
    QObject::connect(&monitor, &PresentationMonitor::isPresentingChanged, &monitor,
        [&] { seen = monitor.presentingApp(); });

    stage.presentKeynote();
    monitor.start();

    EXPECT_EQ(seen, u"Keynote"_s);
}

TEST_F(PresentationMonitorTest, knowsTheNineMeetingApplications)
{
    EXPECT_EQ(MeetingApplications::bundleIdentifiers.size(), 9u);
    for (const char16_t* identifier :
        { u"us.zoom.xos", u"com.microsoft.teams2", u"com.microsoft.teams", u"Cisco-Systems.Spark",
            u"com.cisco.webexmeetingsapp", u"com.apple.FaceTime", u"com.tinyspeck.slackmacgap",
            u"com.hnc.Discord", u"com.skype.skype" })
        EXPECT_TRUE(MeetingApplications::contain(identifier));
    EXPECT_FALSE(MeetingApplications::contain(u"us.zoom.XOS"));
}

TEST_F(PresentationMonitorTest, reportsAMeetingApplicationThatMerelyRuns)
{
    monitor.start();
    const QSignalSpy changed(&monitor, &PresentationMonitor::meetingAppRunningChanged);

    stage.workspace.running = { { std::nullopt, u"helper"_s },
        Testing::FakeWorkspace::application(u"com.apple.finder"_s),
        Testing::FakeWorkspace::application(u"us.zoom.xos"_s) };
    stage.time.advance(2.0);
    EXPECT_TRUE(monitor.meetingAppRunning());
    EXPECT_FALSE(monitor.inCall());

    stage.workspace.running.clear();
    stage.time.advance(2.0);
    EXPECT_FALSE(monitor.meetingAppRunning());
    EXPECT_EQ(changed.count(), 2);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(PresentationMonitorTest, isInACallWhileAnotherProcessCaptures)
{
    monitor.start();
    const QSignalSpy changed(&monitor, &PresentationMonitor::inCallChanged);

    stage.microphone.otherProcessCaptures = true;
    stage.time.advance(3.0);
    EXPECT_TRUE(monitor.inCall());
    stage.microphone.otherProcessCaptures = false;
    stage.time.advance(3.0);

    EXPECT_FALSE(monitor.inCall());
    EXPECT_EQ(changed.count(), 2);
    EXPECT_THAT(log.lines(), ElementsAre("IN_CALL=1", "IN_CALL=0"));
}

} // namespace
} // namespace Orvello
