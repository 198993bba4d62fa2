#include "Orvello/Prompting/Engine/ScrollEngine.h"

#include "Orvello/Settings/Store/SettingsStore.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/ManualTimeSource.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <limits>
#include <vector>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

constexpr double frame = 1.0 / 60.0;

/// A text of 1000 points in a viewport of 200: it ends at 1000 - 0.3 * 200 = 940. The speed is 60
/// points per second, one point per frame, and there is no countdown.
class ScrollEngineTest : public ::testing::Test {
protected:
    ScrollEngineTest()
    {
        settings.setSpeed(60);
        settings.setCountdownSeconds(0);
        engine.setContentHeight(1000);
        engine.setViewportHeight(200);
    }

    Testing::FakeUserDefaults defaults;
    SettingsStore settings { defaults };
    Testing::ManualTimeSource time;
    ScrollEngine engine { settings, time };
};

TEST_F(ScrollEngineTest, isStillAndEmptyAtFirst)
{
    const ScrollEngine fresh(settings, time);

    EXPECT_EQ(fresh.offset(), 0);
    EXPECT_FALSE(fresh.isRunning());
    EXPECT_FALSE(fresh.hoverPaused());
    EXPECT_EQ(fresh.countdown(), std::nullopt);
    EXPECT_FALSE(fresh.isCountingDown());
    EXPECT_TRUE(fresh.countdownText().isEmpty());
    EXPECT_FALSE(fresh.voiceFollowActive());
    EXPECT_FALSE(fresh.voiceGate());
    EXPECT_EQ(fresh.contentHeight(), 0);
    EXPECT_EQ(fresh.viewportHeight(), 0);
    EXPECT_EQ(time.pendingCalls(), 0u);
}

TEST_F(ScrollEngineTest, ticksSixtyTimesASecond)
{
    engine.start();
    const QSignalSpy offsetChanged(&engine, &ScrollEngine::offsetChanged);

    time.advance(1);

    EXPECT_EQ(offsetChanged.count(), 60);
}

TEST_F(ScrollEngineTest, movesAtTheSpeedOfTheSettings)
{
    engine.start();

    time.advance(2);
    EXPECT_NEAR(engine.offset(), 120, 1e-6);

    settings.setSpeed(25);
    time.advance(2);
    EXPECT_NEAR(engine.offset(), 170, 1e-6);
}

TEST_F(ScrollEngineTest, stopsInTheTickThatReachesTheEnd)
{
    engine.start();
    engine.setOffset(939.5);
    bool wasRunningAtTheEnd = true;
    QObject::connect(&engine, &ScrollEngine::offsetChanged,
        [&] { wasRunningAtTheEnd = engine.offset() >= 940 && engine.isRunning(); });

    time.advance(frame);

    EXPECT_EQ(engine.offset(), 940);
    EXPECT_FALSE(engine.isRunning());
    EXPECT_FALSE(wasRunningAtTheEnd);
}

TEST_F(ScrollEngineTest, staysAtTheEndUntilStartedAgain)
{
    engine.start();
    time.advance(60);

    EXPECT_EQ(engine.offset(), 940);

    engine.start();
    EXPECT_EQ(engine.offset(), 0);
    EXPECT_TRUE(engine.isRunning());
}

TEST_F(ScrollEngineTest, countsDownAgainWhenAFinishedTextRestarts)
{
    settings.setCountdownSeconds(3);
    engine.setOffset(940);

    engine.toggle();

    EXPECT_EQ(engine.offset(), 0);
    EXPECT_EQ(engine.countdown(), 3);
    EXPECT_EQ(engine.countdownText(), u"3"_s);
    EXPECT_FALSE(engine.isRunning());
}

TEST_F(ScrollEngineTest, rewindsATextThatEndedAboveANewShorterEnd)
{
    engine.setOffset(500);
    engine.setContentHeight(300);

    engine.start();

    EXPECT_EQ(engine.offset(), 0);
}

TEST_F(ScrollEngineTest, countsDownSecondBySecondAndThenRuns)
{
    settings.setCountdownSeconds(3);
    std::vector<std::optional<qint64>> seen;
    QObject::connect(
        &engine, &ScrollEngine::countdownChanged, [&] { seen.push_back(engine.countdown()); });

    engine.start();
    time.advance(2.99);
    EXPECT_FALSE(engine.isRunning());
    EXPECT_EQ(engine.offset(), 0);
    time.advance(0.01);

    EXPECT_TRUE(engine.isRunning());
    EXPECT_EQ(seen, (std::vector<std::optional<qint64>> { 3, 2, 1, std::nullopt }));
}

TEST_F(ScrollEngineTest, neverShowsItselfIdleBetweenCountdownAndRunning)
{
    settings.setCountdownSeconds(1);
    engine.start();
    bool wasSeenIdle = false;
    const auto look = [&] { wasSeenIdle |= !engine.isRunning() && !engine.isCountingDown(); };
    QObject::connect(&engine, &ScrollEngine::countdownChanged, look);
    QObject::connect(&engine, &ScrollEngine::isRunningChanged, look);

    time.advance(1);

    EXPECT_TRUE(engine.isRunning());
    EXPECT_FALSE(wasSeenIdle);
}

TEST_F(ScrollEngineTest, truncatesTheCountdownTowardZero)
{
    settings.setCountdownSeconds(0.9);
    engine.start();
    EXPECT_EQ(engine.countdown(), std::nullopt);
    EXPECT_TRUE(engine.isRunning());
    engine.toggle();

    settings.setCountdownSeconds(3.99);
    engine.start();
    EXPECT_EQ(engine.countdown(), 3);
}

TEST_F(ScrollEngineTest, startsAtOnceForACountdownThatIsNoInteger)
{
    for (const double seconds : { std::numeric_limits<double>::infinity(),
             std::numeric_limits<double>::quiet_NaN(), 9223372036854775808.0, -1e300, -3.0 }) {
        ScrollEngine fresh(settings, time);
        settings.setCountdownSeconds(seconds);

        fresh.start();

        EXPECT_EQ(fresh.countdown(), std::nullopt) << seconds;
        EXPECT_TRUE(fresh.isRunning()) << seconds;
    }
}

TEST_F(ScrollEngineTest, countsDownFromTheTopOnly)
{
    settings.setCountdownSeconds(3);

    engine.setOffset(0.5);
    engine.start();
    EXPECT_EQ(engine.countdown(), 3);

    engine.toggle();
    engine.setOffset(1.0);
    engine.start();
    EXPECT_EQ(engine.countdown(), std::nullopt);
    EXPECT_TRUE(engine.isRunning());
}

TEST_F(ScrollEngineTest, doesNotCountDownWhileRunning)
{
    engine.start();
    settings.setCountdownSeconds(3);

    engine.start();

    EXPECT_EQ(engine.countdown(), std::nullopt);
    EXPECT_TRUE(engine.isRunning());
}

TEST_F(ScrollEngineTest, runsAtOnceWhenStartedDuringTheCountdown)
{
    settings.setCountdownSeconds(3);
    engine.start();

    engine.start();
    EXPECT_TRUE(engine.isRunning());
    EXPECT_EQ(engine.countdown(), 3);

    time.advance(3);
    EXPECT_TRUE(engine.isRunning());
    EXPECT_EQ(engine.countdown(), std::nullopt);
    EXPECT_NEAR(engine.offset(), 180, 1e-6);
}

TEST_F(ScrollEngineTest, togglesBetweenRunningAndIdle)
{
    engine.toggle();
    EXPECT_TRUE(engine.isRunning());

    engine.toggle();
    EXPECT_FALSE(engine.isRunning());
}

TEST_F(ScrollEngineTest, cancelsTheCountdownWhenToggled)
{
    settings.setCountdownSeconds(3);
    engine.toggle();
    time.advance(1);

    engine.toggle();
    EXPECT_EQ(engine.countdown(), std::nullopt);
    EXPECT_FALSE(engine.isRunning());

    time.advance(10);
    EXPECT_FALSE(engine.isRunning());
    EXPECT_EQ(engine.offset(), 0);
}

TEST_F(ScrollEngineTest, countsAWholeSecondAgainAfterACancelledCountdown)
{
    settings.setCountdownSeconds(3);
    engine.toggle();
    time.advance(0.9);
    engine.toggle();
    engine.toggle();

    time.advance(0.9);
    EXPECT_EQ(engine.countdown(), 3);
    time.advance(0.1);
    EXPECT_EQ(engine.countdown(), 2);
}

TEST_F(ScrollEngineTest, stopsBothWhenToggledWhileRunningInsideACountdown)
{
    settings.setCountdownSeconds(3);
    engine.start();
    engine.start();

    engine.toggle();
    time.advance(10);

    EXPECT_FALSE(engine.isRunning());
    EXPECT_EQ(engine.countdown(), std::nullopt);
}

TEST_F(ScrollEngineTest, holdsWhileThePointerHoversAndResumesWithoutAJump)
{
    engine.start();
    time.advance(1);
    engine.setHoverPaused(true);
    time.advance(5);
    EXPECT_NEAR(engine.offset(), 60, 1e-6);
    EXPECT_TRUE(engine.isRunning());

    engine.setHoverPaused(false);
    time.advance(frame);
    EXPECT_NEAR(engine.offset(), 61, 1e-6);
}

TEST_F(ScrollEngineTest, holdsWhileTheSpeakerIsSilentAndResumesWithoutAJump)
{
    engine.start();
    engine.setVoiceFollowActive(true);
    time.advance(5);
    EXPECT_EQ(engine.offset(), 0);
    EXPECT_TRUE(engine.isRunning());

    engine.setVoiceGate(true);
    time.advance(frame);
    EXPECT_NEAR(engine.offset(), 1, 1e-6);
}

TEST_F(ScrollEngineTest, ignoresTheVoiceGateWithoutVoiceFollow)
{
    engine.start();
    engine.setVoiceGate(false);

    time.advance(1);

    EXPECT_NEAR(engine.offset(), 60, 1e-6);
}

TEST_F(ScrollEngineTest, resumesAfterAPauseWithoutAJump)
{
    engine.toggle();
    time.advance(1);
    engine.toggle();
    time.advance(30);

    engine.toggle();
    time.advance(frame);

    EXPECT_NEAR(engine.offset(), 61, 1e-6);
}

TEST_F(ScrollEngineTest, neverMovesATextShorterThanTheRestingPlace)
{
    engine.setContentHeight(60);
    engine.start();

    time.advance(10);

    EXPECT_EQ(engine.progress(), 1);
    EXPECT_EQ(engine.offset(), 0);
    EXPECT_TRUE(engine.isRunning());
    engine.toggle();
    EXPECT_FALSE(engine.isRunning());
}

TEST_F(ScrollEngineTest, neverRewindsATextShorterThanTheRestingPlace)
{
    engine.setContentHeight(30);
    engine.setOffset(20);

    engine.start();
    time.advance(1);

    EXPECT_EQ(engine.offset(), 20);
}

TEST_F(ScrollEngineTest, waitsForTheFirstLayout)
{
    engine.setContentHeight(0);
    engine.setViewportHeight(-1);
    engine.start();
    time.advance(1);
    EXPECT_EQ(engine.offset(), 0);
    EXPECT_TRUE(engine.isRunning());

    engine.setViewportHeight(200);
    engine.setContentHeight(1000);
    time.advance(1);
    EXPECT_NEAR(engine.offset(), 60, 1e-6);
}

TEST_F(ScrollEngineTest, takesOneLargeStepAfterAStall)
{
    engine.start();

    time.stall(5);
    EXPECT_NEAR(engine.offset(), 300, 1e-6);

    time.stall(3600);
    EXPECT_EQ(engine.offset(), 940);
    EXPECT_FALSE(engine.isRunning());
}

TEST_F(ScrollEngineTest, isPulledBackToANewEndByTheNextTick)
{
    engine.start();
    engine.setOffset(900);
    engine.setContentHeight(500);

    time.advance(frame);

    EXPECT_EQ(engine.offset(), 440);
    EXPECT_FALSE(engine.isRunning());
}

TEST_F(ScrollEngineTest, goesBackToTheTopInTheSameState)
{
    engine.start();
    time.advance(1);

    engine.setOffset(0);
    EXPECT_TRUE(engine.isRunning());

    time.advance(frame);
    EXPECT_NEAR(engine.offset(), 1, 1e-6);
}

TEST_F(ScrollEngineTest, nudgesBackByAPositiveDelta)
{
    engine.setOffset(100);

    engine.nudge(30);
    EXPECT_EQ(engine.offset(), 70);

    engine.nudge(-15);
    EXPECT_EQ(engine.offset(), 85);
}

TEST_F(ScrollEngineTest, nudgesNoFurtherThanTheEnds)
{
    engine.setOffset(100);

    engine.nudge(1000);
    EXPECT_EQ(engine.offset(), 0);

    engine.nudge(-5000);
    EXPECT_EQ(engine.offset(), 940);
}

TEST_F(ScrollEngineTest, nudgesWithoutStartingOrStopping)
{
    engine.nudge(-5000);
    EXPECT_FALSE(engine.isRunning());

    engine.setOffset(10);
    engine.start();
    engine.nudge(-5000);
    EXPECT_TRUE(engine.isRunning());
}

TEST_F(ScrollEngineTest, reportsItsProgress)
{
    EXPECT_EQ(engine.progress(), 0);

    engine.setOffset(470);
    EXPECT_DOUBLE_EQ(engine.progress(), 0.5);

    engine.setOffset(5000);
    EXPECT_EQ(engine.progress(), 1);
}

TEST_F(ScrollEngineTest, ends30PercentOfTheViewportBelowItsTop)
{
    EXPECT_EQ(engine.endOffset(), 940);

    engine.setContentHeight(59);
    EXPECT_EQ(engine.endOffset(), 0);
}

TEST_F(ScrollEngineTest, startsOneFrameTimerForItsLife)
{
    engine.toggle();
    engine.toggle();
    engine.toggle();
    engine.toggle();
    engine.start();

    EXPECT_EQ(time.pendingCalls(), 1u);
}

TEST_F(ScrollEngineTest, keepsTickingButPublishesNothingWhileStill)
{
    engine.toggle();
    time.advance(1);
    engine.toggle();
    const QSignalSpy offsetChanged(&engine, &ScrollEngine::offsetChanged);
    const QSignalSpy isRunningChanged(&engine, &ScrollEngine::isRunningChanged);
    const QSignalSpy countdownChanged(&engine, &ScrollEngine::countdownChanged);

    time.advance(10);

    EXPECT_EQ(time.pendingCalls(), 1u);
    EXPECT_EQ(offsetChanged.count() + isRunningChanged.count() + countdownChanged.count(), 0);
}

TEST_F(ScrollEngineTest, doesNotAnnounceUnchangedValues)
{
    const QSignalSpy offsetChanged(&engine, &ScrollEngine::offsetChanged);
    const QSignalSpy hoverPausedChanged(&engine, &ScrollEngine::hoverPausedChanged);
    const QSignalSpy followChanged(&engine, &ScrollEngine::voiceFollowActiveChanged);
    const QSignalSpy gateChanged(&engine, &ScrollEngine::voiceGateChanged);

    engine.setOffset(0);
    engine.nudge(10);
    engine.setHoverPaused(false);
    engine.setVoiceFollowActive(false);
    engine.setVoiceGate(false);

    EXPECT_EQ(offsetChanged.count(), 0);
    EXPECT_EQ(hoverPausedChanged.count(), 0);
    EXPECT_EQ(followChanged.count(), 0);
    EXPECT_EQ(gateChanged.count(), 0);
}

TEST_F(ScrollEngineTest, announcesEveryChange)
{
    const QSignalSpy offsetChanged(&engine, &ScrollEngine::offsetChanged);
    const QSignalSpy hoverPausedChanged(&engine, &ScrollEngine::hoverPausedChanged);
    const QSignalSpy followChanged(&engine, &ScrollEngine::voiceFollowActiveChanged);
    const QSignalSpy gateChanged(&engine, &ScrollEngine::voiceGateChanged);

    engine.setOffset(12);
    engine.setHoverPaused(true);
    engine.setVoiceFollowActive(true);
    engine.setVoiceGate(true);

    EXPECT_EQ(offsetChanged.count(), 1);
    EXPECT_EQ(hoverPausedChanged.count(), 1);
    EXPECT_EQ(followChanged.count(), 1);
    EXPECT_EQ(gateChanged.count(), 1);
}

TEST_F(ScrollEngineTest, leavesNoTimerBehind)
{
    settings.setCountdownSeconds(3);
    {
        ScrollEngine other(settings, time);
        other.start();
        EXPECT_EQ(time.pendingCalls(), 2u);
    }

    EXPECT_EQ(time.pendingCalls(), 0u);
    time.advance(10);
}

} // namespace
} // namespace Orvello
