#include "Orvello/Prompting/Panel/PanelFrame.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

const QRectF mainScreen { 0, 0, 1440, 900 };
const QRectF leftScreen { -1920, 0, 1920, 1080 };
const QList<QRectF> screens { mainScreen, leftScreen };

TEST(PanelFrameTest, startsCentredJustUnderTheTopOfTheMainScreen)
{
    EXPECT_EQ(PanelFrame::initial({ { 0, 0, 2560, 1440 } }), QRectF(920, 6, 720, 200));
    EXPECT_EQ(
        PanelFrame::initial({ { 100, 50, 1000, 600 }, mainScreen }), QRectF(240, 56, 720, 200));
}

TEST(PanelFrameTest, startsOnAnAssumedScreenWhenThereIsNone)
{
    EXPECT_EQ(PanelFrame::initial({}), QRectF(360, 6, 720, 200));
}

TEST(PanelFrameTest, isWrittenAsOriginAndSizeCountedFromTheBottomOfThePrimaryScreen)
{
    EXPECT_EQ(
        PanelFrame::description({ 360, 6, 720, 200 }, screens), u"{{360, 694}, {720, 200}}"_s);
    EXPECT_EQ(PanelFrame::description({ -12.5, 700, 720.25, 200 }, screens),
        u"{{-12.5, 0}, {720.25, 200}}"_s);
    EXPECT_EQ(PanelFrame::description({ 360, 6, 720, 200 }, { leftScreen, mainScreen }),
        u"{{360, 694}, {720, 200}}"_s)
        << "whichever screen is the main one";
    EXPECT_EQ(PanelFrame::description({ 360, 6, 720, 200 }, {}), u"{{360, 694}, {720, 200}}"_s);
}

TEST(PanelFrameTest, comesBackFromItsText)
{
    const PanelFrame::Home home { { -300.5, 688, 720, 200 }, mainScreen };

    const QString text = PanelFrame::text(home, screens);

    EXPECT_EQ(text, u"-300.5 12 720 200 0 0 1440 900"_s);
    EXPECT_EQ(PanelFrame::parsed(text, screens), home);
}

TEST(PanelFrameTest, isWrittenWithTheScreenThatItIsOn)
{
    const PanelFrame::Home home { { -1000, 6, 720, 200 }, leftScreen };

    const QString text = PanelFrame::text(home, screens);

    EXPECT_EQ(text, u"-1000 694 720 200 -1920 -180 1920 1080"_s);
    EXPECT_EQ(PanelFrame::parsed(text, screens), home);
}

TEST(PanelFrameTest, comesBackFromATextWithoutAScreen)
{
    EXPECT_EQ(PanelFrame::parsed(u"360 694 720 200"_s, screens),
        (PanelFrame::Home { { 360, 6, 720, 200 }, {} }));
    EXPECT_EQ(PanelFrame::parsed(u"360 694 720 200 0 0 x 900"_s, screens),
        (PanelFrame::Home { { 360, 6, 720, 200 }, {} }));
}

TEST(PanelFrameTest, ignoresTextsThatHoldNoFrame)
{
    for (const QString& text : { u""_s, u"1 2 3"_s, u"a b c d"_s, u"0 0 0 200"_s, u"0 0 720 -1"_s,
             u"nan 0 720 200"_s, u"0 inf 720 200"_s, u"1e300 0 720 200"_s })
        EXPECT_EQ(PanelFrame::parsed(text, screens), std::nullopt) << text.toStdString();
}

TEST(PanelFrameTest, standsUnderTheTopOfABiggerScreenAsUnderThatWhereItWasSaved)
{
    const QRectF big { 0, 0, 2560, 1440 };
    const auto home = PanelFrame::parsed(u"360 694 720 200 0 0 1440 900"_s, { big });
    ASSERT_TRUE(home.has_value());

    EXPECT_EQ(PanelFrame::placeOf(*home, { big }), QRectF(920, 6, 720, 200));
    EXPECT_EQ(PanelFrame::placeOf(*home, { mainScreen }), QRectF(360, 6, 720, 200));
}

TEST(PanelFrameTest, staysWhereEnoughOfItLiesOnAScreen)
{
    const PanelFrame::Home home { { 1390, 860, 720, 200 }, mainScreen };

    EXPECT_EQ(PanelFrame::placeOf(home, screens), home.frame);
    EXPECT_EQ(PanelFrame::placeOf(home, {}), home.frame);
    EXPECT_EQ(PanelFrame::placeOf({ home.frame, {} }, screens), home.frame);
}

TEST(PanelFrameTest, comesBackOntoTheNearestScreenFromNowhere)
{
    EXPECT_EQ(
        PanelFrame::placeOf({ { 3000, 6, 720, 200 }, {} }, screens), QRectF(720, 6, 720, 200));
    EXPECT_EQ(PanelFrame::placeOf({ { -4000, 5000, 720, 200 }, leftScreen }, screens),
        QRectF(-1920, 880, 720, 200));
}

TEST(PanelFrameTest, movesToTheScreenThatIsLeftAndBackAgain)
{
    const PanelFrame::Home home { { -1220, 40, 720, 200 }, leftScreen };

    EXPECT_EQ(PanelFrame::placeOf(home, { mainScreen }), QRectF(460, 40, 720, 200));
    EXPECT_EQ(PanelFrame::placeOf(home, screens), home.frame);
}

TEST(PanelFrameTest, movesOntoItsScreenWhenThatShrinks)
{
    const PanelFrame::Home home { { 700, 650, 720, 200 }, mainScreen };

    EXPECT_EQ(PanelFrame::placeOf(home, { { 0, 0, 1024, 768 } }), QRectF(304, 568, 720, 200));
}

TEST(PanelFrameTest, shrinksToAScreenThatIsSmallerThanIt)
{
    EXPECT_EQ(PanelFrame::placeOf({ { 9000, 0, 1600, 900 }, {} }, { { 0, 0, 800, 480 } }),
        QRectF(0, 0, 800, 480));
}

TEST(PanelFrameTest, isAtHomeOnTheScreenThatMostOfItIsOn)
{
    EXPECT_EQ(PanelFrame::homeAt({ -400, 0, 720, 200 }, screens).screen, leftScreen);
    EXPECT_EQ(PanelFrame::homeAt({ -300, 0, 720, 200 }, screens).screen, mainScreen);
    EXPECT_EQ(PanelFrame::homeAt({ 9000, 0, 720, 200 }, screens).screen, mainScreen);
    EXPECT_EQ(PanelFrame::homeAt({ 9000, 0, 720, 200 }, {}).screen, QRectF());
}

TEST(PanelFrameTest, isPutUnderTheCameraOfTheScreenThatThePointerIsOn)
{
    const QSizeF size { 800, 300 };

    EXPECT_EQ(PanelFrame::underCamera(size, { -5, 800 }, screens), QRectF(-1360, 6, 800, 300));
    EXPECT_EQ(PanelFrame::underCamera(size, { 20, 20 }, screens), QRectF(320, 6, 800, 300));
    EXPECT_EQ(
        PanelFrame::underCamera(size, { 20, 20 }, { { 0, 0, 640, 480 } }), QRectF(0, 6, 640, 300));
}

TEST(PanelFrameTest, keepsItsTopLeftCornerWhenItsSizeIsLimited)
{
    EXPECT_EQ(PanelFrame::withSizeBetween({ 10, 500, 100, 2000 }, { 340, 130 }, { 1600, 900 }),
        QRectF(10, 500, 340, 900));
}

} // namespace
} // namespace Orvello
