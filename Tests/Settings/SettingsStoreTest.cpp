#include "Orvello/Settings/SettingsStore.h"

#include "Tests/Support/FakeUserDefaults.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class SettingsStoreTest : public ::testing::Test {
protected:
    Testing::FakeUserDefaults defaults;
};

TEST_F(SettingsStoreTest, hasTheDefaultsOfAFreshAccount)
{
    const SettingsStore settings(defaults);

    EXPECT_EQ(settings.fontSize(), 30.0);
    EXPECT_EQ(settings.textColorName(), u"White"_s);
    EXPECT_EQ(settings.backgroundOpacity(), 0.72);
    EXPECT_EQ(settings.speed(), 25.0);
    EXPECT_TRUE(settings.stealthMode());
    EXPECT_FALSE(settings.voiceFollow());
    EXPECT_EQ(settings.voiceSensitivity(), 0.6);
    EXPECT_EQ(settings.countdownSeconds(), 3.0);
    EXPECT_TRUE(settings.slideshowPauseKey());
    EXPECT_TRUE(settings.slideSync());
    EXPECT_EQ(settings.onboardingSeenVersion(), 0);
    EXPECT_EQ(defaults.writes, 0);
}

} // namespace
} // namespace Orvello
