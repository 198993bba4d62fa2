#include "Orvello/Prompting/View/ShareWarning.h"

#include "Tests/Support/PrompterServices.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

class ShareWarningTest : public ::testing::Test {
protected:
    Testing::PrompterServices services;
    ShareWarning warning { services.stage.monitor, services.settings, services.engine };
};

TEST_F(ShareWarningTest, isNotShownOnAQuietDesktop)
{
    ASSERT_TRUE(services.settings.stealthMode());
    EXPECT_FALSE(warning.isShown());
}

TEST_F(ShareWarningTest, isShownDuringACall)
{
    services.setInCall(true);
    EXPECT_TRUE(warning.isShown());

    services.setInCall(false);
    EXPECT_FALSE(warning.isShown());
}

TEST_F(ShareWarningTest, isShownDuringASlideshowBesideAMeetingApp)
{
    services.startSlideshow();
    EXPECT_FALSE(warning.isShown());

    services.openMeetingApp();
    EXPECT_TRUE(warning.isShown());

    services.stage.endSlideshow();
    services.stage.time.advance(1.0);
    EXPECT_FALSE(warning.isShown());
}

TEST_F(ShareWarningTest, isNotShownWithoutStealthMode)
{
    services.setInCall(true);

    services.settings.setStealthMode(false);
    EXPECT_FALSE(warning.isShown());

    services.settings.setStealthMode(true);
    EXPECT_TRUE(warning.isShown());
}

TEST_F(ShareWarningTest, givesWayToACountdown)
{
    services.settings.setCountdownSeconds(3);
    services.engine.setContentHeight(1000);
    services.setInCall(true);

    services.engine.start();
    EXPECT_FALSE(warning.isShown());

    services.stage.time.advance(3.0);
    EXPECT_TRUE(warning.isShown());
}

TEST_F(ShareWarningTest, isDismissedForGood)
{
    services.setInCall(true);

    warning.dismiss();
    EXPECT_FALSE(warning.isShown());

    services.setInCall(false);
    services.setInCall(true);
    EXPECT_FALSE(warning.isShown());
}

TEST_F(ShareWarningTest, comesBackWithANewPanel)
{
    services.setInCall(true);
    warning.dismiss();

    const ShareWarning ofANewPanel(services.stage.monitor, services.settings, services.engine);

    EXPECT_TRUE(ofANewPanel.isShown());
}

TEST_F(ShareWarningTest, announcesEachChangeOnce)
{
    const QSignalSpy changes(&warning, &ShareWarning::isShownChanged);

    services.setInCall(true);
    services.openMeetingApp();
    warning.dismiss();
    warning.dismiss();

    EXPECT_EQ(changes.count(), 2);
}

} // namespace
} // namespace Orvello
