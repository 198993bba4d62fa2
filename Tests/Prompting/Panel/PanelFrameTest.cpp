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
    const QRectF frame(-300.5, 688, 720, 200);

    const QString text = PanelFrame::text(frame, screens);

    EXPECT_EQ(text, u"-300.5 12 720 200 0 0 1440 900"_s);
    EXPECT_EQ(PanelFrame::parsed(text, screens), frame);
}

TEST(PanelFrameTest, ignoresTextsThatHoldNoFrame)
{
    for (const QString& text : { u""_s, u"1 2 3"_s, u"a b c d"_s, u"0 0 0 200"_s, u"0 0 720 -1"_s,
             u"nan 0 720 200"_s, u"0 inf 720 200"_s, u"1e300 0 720 200"_s })
        EXPECT_EQ(PanelFrame::parsed(text, screens), std::nullopt) << text.toStdString();
}

TEST(PanelFrameTest, staysWhereEnoughOfItLiesOnAScreen)
{
    const QRectF frame(1390, 860, 720, 200);

    EXPECT_EQ(PanelFrame::onScreen(frame, { mainScreen }), frame);
    EXPECT_EQ(PanelFrame::onScreen(frame, {}), frame);
}

TEST(PanelFrameTest, comesBackOntoTheNearestScreen)
{
    EXPECT_EQ(PanelFrame::onScreen({ 3000, 6, 720, 200 }, screens), QRectF(720, 6, 720, 200));
    EXPECT_EQ(
        PanelFrame::onScreen({ -4000, 5000, 720, 200 }, screens), QRectF(-1920, 880, 720, 200));
}

TEST(PanelFrameTest, shrinksToAScreenThatIsSmallerThanIt)
{
    EXPECT_EQ(PanelFrame::onScreen({ 9000, 0, 1600, 900 }, { { 0, 0, 800, 480 } }),
        QRectF(0, 0, 800, 480));
}

TEST(PanelFrameTest, keepsItsTopLeftCornerWhenItsSizeIsLimited)
{
    EXPECT_EQ(PanelFrame::withSizeBetween({ 10, 500, 100, 2000 }, { 340, 130 }, { 1600, 900 }),
        QRectF(10, 500, 340, 900));
}

} // namespace
} // namespace Orvello
