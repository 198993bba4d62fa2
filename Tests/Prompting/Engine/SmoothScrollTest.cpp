#include "Orvello/Prompting/Engine/SmoothScroll.h"

#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/ManualTimeSource.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <vector>

namespace Orvello {
namespace {

class SmoothScrollTest : public ::testing::Test {
protected:
    SmoothScrollTest()
    {
        settings.setCountdownSeconds(0);
        engine.setContentHeight(100000);
        engine.setViewportHeight(200);
    }

    struct Frame {
        double time;
        double offset;
    };

    /// What a display with that many frames a second shows, for some seconds from now. Each frame
    /// is prepared up to `jitter` seconds later than the beat.
    std::vector<Frame> show(double framesPerSecond, double seconds, double jitter = 0)
    {
        std::uniform_real_distribution<double> lateness(0, jitter);
        std::vector<Frame> frames;
        const double start = time.now();
        for (int i = 1; i <= seconds * framesPerSecond; ++i) {
            const double moment = start + i / framesPerSecond + lateness(random);
            time.advance(moment - time.now());
            frames.push_back({ moment, scroll.offsetAt(moment, 1 / framesPerSecond) });
        }
        return frames;
    }

    static std::vector<double> stepsOf(const std::vector<Frame>& frames, std::size_t from = 0)
    {
        std::vector<double> steps;
        for (std::size_t i = from + 1; i < frames.size(); ++i)
            steps.push_back(frames[i].offset - frames[i - 1].offset);
        return steps;
    }

    static double smallest(const std::vector<double>& steps)
    {
        return *std::min_element(steps.begin(), steps.end());
    }
    static double largest(const std::vector<double>& steps)
    {
        return *std::max_element(steps.begin(), steps.end());
    }

    void start(double speed)
    {
        settings.setSpeed(speed);
        engine.start();
        startTime = time.now();
    }

    std::mt19937 random { 7 };
    Testing::FakeUserDefaults defaults;
    SettingsStore settings { defaults };
    Testing::ManualTimeSource time;
    ScrollEngine engine { settings, time };
    SmoothScroll scroll { engine };
    double startTime = 0;
};

TEST_F(SmoothScrollTest, standsWithinHalfAPointOfTheIdealLineAt25PointsASecond)
{
    for (const double display : { 50.0, 59.94, 60.0, 75.0, 120.0, 144.0 }) {
        engine.setOffset(0);
        start(25);
        const double idealStart = engine.offset();
        for (const Frame& frame : show(display, 10, 0.001)) {
            const double ideal = idealStart + (frame.time - startTime) * 25;
            ASSERT_LT(std::abs(frame.offset - ideal), 0.5) << display << " at " << frame.time;
        }
        engine.toggle();
        show(display, 0.1);
    }
}

TEST_F(SmoothScrollTest, stepsEvenlyOnEveryDisplayAt240PointsASecond)
{
    for (const double display : { 60.0, 120.0, 144.0 }) {
        engine.setOffset(0);
        start(240);
        const std::size_t untilSettled = 12;
        const std::vector<double> steps = stepsOf(show(display, 10, 0.002), untilSettled);

        const double even = 240 / display;
        EXPECT_GT(smallest(steps), 0.97 * even) << display;
        EXPECT_LT(largest(steps), 1.03 * even) << display;
        engine.toggle();
        show(display, 0.1);
    }
}

TEST_F(SmoothScrollTest, wouldJudderIfItShowedTheTicksThemselves)
{
    // What the class is there for: the engine's own offset on a display that ticks otherwise.
    start(240);
    std::vector<Frame> frames;
    for (int i = 0; i < 144; ++i) {
        time.advance(1 / 144.0);
        frames.push_back({ time.now(), engine.offset() });
    }

    EXPECT_EQ(smallest(stepsOf(frames)), 0);
    EXPECT_GT(largest(stepsOf(frames)), 2 * 240 / 144.0);
}

TEST_F(SmoothScrollTest, stepsEvenlyOnADisplayThatIsNotQuiteWhatItSays)
{
    start(240);
    std::vector<Frame> frames;
    for (int i = 0; i < 3000; ++i) {
        time.advance(1 / 59.94);
        frames.push_back({ time.now(), scroll.offsetAt(time.now(), 1 / 60.0) });
    }

    const std::vector<double> steps = stepsOf(frames, 12);
    EXPECT_GT(smallest(steps), 0.97 * 4);
    EXPECT_LT(largest(steps), 1.03 * 4);
}

TEST_F(SmoothScrollTest, neverGoesBackNorFarAheadOfTheOffset)
{
    for (const double speed : { 15.0, 25.0, 60.0, 240.0 }) {
        start(speed);
        double last = scroll.offsetAt(time.now(), 0);
        for (const Frame& frame : show(144, 3)) {
            ASSERT_GE(frame.offset, last) << speed;
            last = frame.offset;
            ASSERT_LE(frame.offset, engine.offset() + 0.5) << speed;
        }
        engine.toggle();
        show(144, 0.2);
    }
}

TEST_F(SmoothScrollTest, restsExactlyAtTheOffsetWithoutAJump)
{
    for (const double speed : { 25.0, 240.0 }) {
        start(speed);
        const double last = show(120, 1.003).back().offset;

        engine.toggle();
        const std::vector<Frame> after = show(120, 0.2);

        EXPECT_GE(after.front().offset, last - 0.5);
        EXPECT_LE(largest(stepsOf(after)), 1.01 * speed / 120);
        EXPECT_EQ(after.back().offset, engine.offset());
        EXPECT_FALSE(scroll.isMoving());
    }
}

TEST_F(SmoothScrollTest, goesOnAfterAHoldWithoutAJump)
{
    start(240);
    show(120, 1);
    engine.setHoverPaused(true);
    const double held = show(120, 2).back().offset;
    EXPECT_EQ(held, engine.offset());

    engine.setHoverPaused(false);
    const std::vector<Frame> after = show(120, 0.5);

    EXPECT_LE(after.front().offset - held, 0.5 + 240.0 / 60);
    EXPECT_LE(largest(stepsOf(after)), 1.3 * 240 / 120);
    EXPECT_GE(smallest(stepsOf(after)), 0);
}

TEST_F(SmoothScrollTest, obeysTheVoiceGate)
{
    engine.setVoiceFollowActive(true);
    start(60);
    EXPECT_EQ(show(60, 1).back().offset, 0);
    EXPECT_FALSE(scroll.isMoving());

    engine.setVoiceGate(true);
    EXPECT_TRUE(scroll.isMoving());
    EXPECT_NEAR(show(60, 1).back().offset, 60, 1.5);

    engine.setVoiceGate(false);
    const double stopped = show(60, 0.1).back().offset;
    EXPECT_EQ(stopped, engine.offset());
    EXPECT_EQ(show(60, 1).back().offset, stopped);
}

TEST_F(SmoothScrollTest, followsANudgeAtOnce)
{
    start(240);
    const double before = show(60, 1).back().offset;

    engine.nudge(-300);
    EXPECT_NEAR(show(60, 1 / 60.0).back().offset, before + 300 + 4, 5);

    engine.nudge(300);
    EXPECT_NEAR(show(60, 1 / 60.0).back().offset, before + 8, 5);
}

TEST_F(SmoothScrollTest, followsANudgeWhileNothingMoves)
{
    engine.nudge(-30);
    EXPECT_TRUE(scroll.isMoving());
    EXPECT_EQ(show(60, 0.1).back().offset, 30);

    engine.setOffset(0);
    EXPECT_EQ(show(60, 1 / 60.0).back().offset, 0);
    EXPECT_FALSE(scroll.isMoving());
}

TEST_F(SmoothScrollTest, endsExactlyAtTheEnd)
{
    engine.setContentHeight(200);
    start(60);

    for (const Frame& frame : show(144, 5))
        ASSERT_LE(frame.offset, engine.endOffset());

    EXPECT_EQ(scroll.offsetAt(time.now(), 0), engine.endOffset());
    EXPECT_FALSE(scroll.isMoving());
}

TEST_F(SmoothScrollTest, takesOverAChangeOfSpeed)
{
    start(25);
    show(60, 1);
    settings.setSpeed(240);
    const std::vector<Frame> after = show(60, 1);

    EXPECT_NEAR(after.back().offset - after.front().offset, 240 * 59 / 60.0, 5);
    EXPECT_GE(smallest(stepsOf(after)), 0);
}

TEST_F(SmoothScrollTest, catchesUpAfterAStall)
{
    start(25);
    show(60, 1);
    time.stall(2);

    EXPECT_NEAR(scroll.offsetAt(time.now(), 1 / 60.0), engine.offset(), 0.5);
}

TEST_F(SmoothScrollTest, standsStillWhileTheEngineDoes)
{
    EXPECT_FALSE(scroll.isMoving());
    EXPECT_EQ(show(60, 1).back().offset, 0);

    settings.setCountdownSeconds(3);
    engine.start();
    EXPECT_FALSE(scroll.isMoving());
}

} // namespace
} // namespace Orvello
