#include "Orvello/Prompting/View/LevelMeter.h"

#include "Tests/Support/PrompterServices.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

TEST(LevelMeterTest, lightsTheBarsWhoseFifthIsBelowTheLevel)
{
    EXPECT_EQ(LevelMeter::litBarsAt(0.0F), 0);
    EXPECT_EQ(LevelMeter::litBarsAt(0.001F), 1);
    EXPECT_EQ(LevelMeter::litBarsAt(0.2F), 1);
    EXPECT_EQ(LevelMeter::litBarsAt(0.21F), 2);
    EXPECT_EQ(LevelMeter::litBarsAt(0.4F), 2);
    EXPECT_EQ(LevelMeter::litBarsAt(0.6F), 3);
    EXPECT_EQ(LevelMeter::litBarsAt(0.8F), 4);
    EXPECT_EQ(LevelMeter::litBarsAt(0.81F), 5);
    EXPECT_EQ(LevelMeter::litBarsAt(1.0F), 5);
}

TEST(LevelMeterTest, lightsNothingForALevelThatIsNone)
{
    EXPECT_EQ(LevelMeter::litBarsAt(-1.0F), 0);
    EXPECT_EQ(LevelMeter::litBarsAt(std::numeric_limits<float>::quiet_NaN()), 0);
}

TEST(LevelMeterTest, followsTheVoice)
{
    Testing::PrompterServices services;
    const LevelMeter meter(services.voice);
    EXPECT_EQ(meter.litBars(), 0);

    services.hear(1.0F);
    EXPECT_EQ(meter.litBars(), 5);

    services.hear(0.0F);
    EXPECT_LE(meter.litBars(), 1);
}

TEST(LevelMeterTest, announcesNoChangeThatDoesNotShow)
{
    Testing::PrompterServices services;
    const LevelMeter meter(services.voice);
    const QSignalSpy levels(&services.voice, &VoiceActivityEngine::levelChanged);
    const QSignalSpy changes(&meter, &LevelMeter::litBarsChanged);

    services.hear(1.0F);

    EXPECT_GT(levels.count(), 10);
    EXPECT_LE(changes.count(), 5);
}

} // namespace
} // namespace Orvello
