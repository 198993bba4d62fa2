#include "Orvello/Shell/App/StayAwake.h"

#include "Tests/Support/FakeWakefulness.h"
#include "Tests/Support/PrompterServices.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using Need = Wakefulness::Need;

/// A reader whose desktop would like to sleep.
class StayAwakeTest : public ::testing::Test {
protected:
    StayAwakeTest()
    {
        services.settings.setCountdownSeconds(0);
        services.engine.setViewportHeight(200);
        services.engine.setContentHeight(100000);
        Testing::drainEvents();
    }

    void pass(double seconds)
    {
        services.stage.time.advance(seconds);
        Testing::drainEvents();
    }

    void toggle()
    {
        services.engine.toggle();
        Testing::drainEvents();
    }

    std::vector<Need> held() { return std::exchange(wakefulness.held, {}); }

    Testing::PrompterServices services;
    Testing::FakeWakefulness wakefulness;
    StayAwake awake { { wakefulness, services.engine, services.sync, services.stage.monitor,
        services.voice, services.stage.time } };
};

TEST_F(StayAwakeTest, asksForNothingWhileNothingHappens)
{
    pass(600);

    EXPECT_THAT(held(), ElementsAre(Need::None));
}

TEST_F(StayAwakeTest, keepsTheDisplayOnWhileTheTextScrolls)
{
    held();
    toggle();
    pass(600);
    ASSERT_TRUE(services.engine.isRunning());

    EXPECT_THAT(held(), ElementsAre(Need::Display));
}

TEST_F(StayAwakeTest, keepsTheDisplayOnFromTheCountdownOn)
{
    held();
    services.settings.setCountdownSeconds(3);
    toggle();
    EXPECT_THAT(held(), ElementsAre(Need::Display));

    pass(4);
    ASSERT_TRUE(services.engine.isRunning());
    EXPECT_THAT(held(), ElementsAre());
}

TEST_F(StayAwakeTest, letsTheDisplaySleepAMinuteAfterAPause)
{
    held();
    toggle();
    toggle();
    pass(59);
    EXPECT_THAT(held(), ElementsAre(Need::Display));

    pass(2);
    EXPECT_THAT(held(), ElementsAre(Need::None));
}

TEST_F(StayAwakeTest, beginsTheMinuteAnewAtEveryPause)
{
    toggle();
    toggle();
    pass(50);
    toggle();
    toggle();
    held();
    pass(50);
    EXPECT_THAT(held(), ElementsAre());

    pass(11);
    EXPECT_THAT(held(), ElementsAre(Need::None));
}

TEST_F(StayAwakeTest, letsTheDisplaySleepAMinuteAfterTheEndOfTheText)
{
    services.engine.setContentHeight(100);
    held();
    toggle();
    pass(30);
    ASSERT_FALSE(services.engine.isRunning());
    held();

    pass(61);
    EXPECT_THAT(held(), ElementsAre(Need::None));
}

TEST_F(StayAwakeTest, keepsTheDisplayOnWhileItFollowsASlideshow)
{
    services.openDeck({ { 1, u"One"_s, u"Notes"_s }, { 2, u"Two"_s, u"More"_s } });
    services.startSlideshow();
    services.showLiveSlide(1);
    ASSERT_EQ(services.sync.state(), SlideSyncService::State::Live);
    EXPECT_EQ(held().back(), Need::Display);

    services.stage.endSlideshow();
    pass(2);
    EXPECT_EQ(held().back(), Need::None);
}

TEST_F(StayAwakeTest, keepsTimersOnTimeForASlideshowThatNothingFollows)
{
    held();
    services.startSlideshow();

    EXPECT_THAT(held(), ElementsAre(Need::Timers));
}

TEST_F(StayAwakeTest, keepsTimersOnTimeWhileItListens)
{
    held();
    services.hear(0);

    EXPECT_THAT(held(), ElementsAre(Need::Timers));
}

} // namespace
} // namespace Orvello
