#include "Orvello/Prompting/Engine/ReadingClock.h"

#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/ManualTimeSource.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

/// A text that takes 200 seconds.
class ReadingClockTest : public ::testing::Test {
protected:
    ReadingClockTest()
    {
        settings.setCountdownSeconds(0);
        settings.setSpeed(20);
        settings.setCardTime(u"both"_s);
        engine.setViewportHeight(200);
        engine.setContentHeight(4060);
    }

    Testing::FakeUserDefaults defaults;
    SettingsStore settings { defaults };
    Testing::ManualTimeSource time;
    ScrollEngine engine { settings, time };
    ReadingClock clock { settings, engine, time };
};

TEST_F(ReadingClockTest, showsWhatTheSettingsWant)
{
    EXPECT_EQ(clock.text(), u"0:00 · 3:20 left"_s);
    settings.setCardTime(u"left"_s);
    EXPECT_EQ(clock.text(), u"3:20 left"_s);
    settings.setCardTime(u"elapsed"_s);
    EXPECT_EQ(clock.text(), u"0:00"_s);
    for (const QString& none : { u""_s, u"off"_s, u"clock"_s }) {
        settings.setCardTime(none);
        EXPECT_EQ(clock.text(), QString());
    }
}

TEST_F(ReadingClockTest, countsWhileTheTextScrolls)
{
    engine.start();
    time.advance(80);

    EXPECT_EQ(clock.text(), u"1:20 · 2:00 left"_s);
}

TEST_F(ReadingClockTest, standsStillInAPause)
{
    engine.start();
    time.advance(80);
    engine.toggle();
    time.advance(600);
    EXPECT_EQ(clock.text(), u"1:20 · 2:00 left"_s);

    engine.toggle();
    time.advance(20);
    EXPECT_EQ(clock.text(), u"1:40 · 1:40 left"_s);
}

TEST_F(ReadingClockTest, goesOnWhileThePointerHoldsTheText)
{
    engine.start();
    time.advance(80);
    engine.setHoverPaused(true);
    time.advance(30);

    EXPECT_EQ(clock.text(), u"1:50 · 2:00 left"_s);
}

TEST_F(ReadingClockTest, doesNotCountTheCountdown)
{
    settings.setCountdownSeconds(5);
    engine.start();
    time.advance(4);
    EXPECT_EQ(clock.text(), u"0:00 · 3:20 left"_s);

    time.advance(11);
    EXPECT_EQ(clock.text(), u"0:10 · 3:10 left"_s);
}

TEST_F(ReadingClockTest, takesTheShareOfTalkingSoFar)
{
    engine.setVoiceFollowActive(true);
    engine.start();
    engine.setVoiceGate(true);
    time.advance(40);
    engine.setVoiceGate(false);
    time.advance(40);

    // 40 of 200 seconds are read, and every second of text has taken two.
    EXPECT_NEAR(clock.left(), 320, 4);
    EXPECT_NEAR(clock.elapsed(), 80, 0.5);
}

TEST_F(ReadingClockTest, staysAfterTheEndAndBeginsAnewFromTheTop)
{
    engine.start();
    time.advance(300);
    ASSERT_FALSE(engine.isRunning());
    EXPECT_EQ(clock.text(), u"3:20 · 0:00 left"_s);
    time.advance(60);
    EXPECT_EQ(clock.text(), u"3:20 · 0:00 left"_s);

    engine.start();
    time.advance(10);
    EXPECT_EQ(clock.text(), u"0:10 · 3:10 left"_s);
}

TEST_F(ReadingClockTest, followsTheWheelTheSpeedAndTheText)
{
    engine.nudge(-2000);
    EXPECT_EQ(clock.text(), u"0:00 · 1:40 left"_s);
    settings.setSpeed(40);
    EXPECT_EQ(clock.text(), u"0:00 · 0:50 left"_s);
    engine.setContentHeight(200000);
    EXPECT_EQ(clock.text(), u"0:00 · 1:22:29 left"_s);
}

TEST_F(ReadingClockTest, announcesNothingWhileItShowsNothing)
{
    settings.setCardTime(u""_s);
    const QSignalSpy changed(&clock, &ReadingClock::textChanged);

    engine.start();
    time.advance(30);

    EXPECT_EQ(changed.count(), 0);
}

TEST_F(ReadingClockTest, announcesOnceASecond)
{
    settings.setCardTime(u"left"_s);
    engine.start();
    const QSignalSpy changed(&clock, &ReadingClock::textChanged);

    time.advance(30);

    EXPECT_NEAR(static_cast<double>(changed.count()), 30, 1);
}

} // namespace
} // namespace Orvello
