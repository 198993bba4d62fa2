#include "Orvello/Shell/Windows/WindowPlacement.h"

#include <QCoreApplication>
#include <QWindow>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

constexpr QRect screen(0, 0, 1440, 900);
constexpr QSize settings(500, 780);

TEST(WindowPlacementTest, centresAWindowThatFits)
{
    EXPECT_EQ(WindowPlacement::centered(QSize(500, 600), screen), QRect(470, 150, 500, 600));
}

TEST(WindowPlacementTest, leavesRoomForTheTitleBar)
{
    EXPECT_EQ(WindowPlacement::centered(QSize(500, 850), screen), QRect(470, 40, 500, 850));
}

TEST(WindowPlacementTest, makesAWindowAsLowAsTheScreen)
{
    EXPECT_EQ(
        WindowPlacement::centered(settings, QRect(0, 0, 1024, 600)), QRect(262, 40, 500, 552));
}

TEST(WindowPlacementTest, centresOnTheFreePartOfAnyScreen)
{
    EXPECT_EQ(WindowPlacement::centered(settings, QRect(1440, 30, 1920, 1050)),
        QRect(2150, 165, 500, 780));
}

struct SmallScreen {
    QRect available;
    QRect panel;
};

constexpr QSize library(720, 480);
constexpr QSize smallestLibrary(660, 440);
constexpr QSize smallestSettings(500, 260);

/// With the panel where it comes up, in a corner, low, in the middle and at its narrowest.
const QList<SmallScreen>& smallScreens()
{
    static const QList<SmallScreen> screens {
        { QRect(0, 0, 1280, 720), QRect(280, 6, 720, 200) },
        { QRect(0, 28, 1280, 692), QRect(280, 6, 720, 200) },
        { QRect(0, 0, 1366, 768), QRect(323, 6, 720, 200) },
        { QRect(0, 0, 1366, 728), QRect(0, 0, 340, 130) },
        { QRect(0, 0, 1366, 768), QRect(323, 560, 720, 200) },
        { QRect(0, 0, 1366, 768), QRect(513, 100, 340, 130) },
        { QRect(0, 8, 1280, 712), QRect(280, 6, 720, 200) }, // 1920 × 1080 at 1.5.
    };
    return screens;
}

TEST(WindowPlacementTest, keepsEveryWindowClearOfThePanelAndOnTheScreen)
{
    for (const auto& [available, panel] : smallScreens()) {
        for (const WindowPlacement::Sizes& sizes :
            { WindowPlacement::Sizes { library, smallestLibrary },
                WindowPlacement::Sizes { settings, smallestSettings } }) {
            const QRect content = WindowPlacement::clearOf(panel, sizes, available);

            const QRect frame = content.adjusted(0, -40, 0, 0);
            EXPECT_TRUE(available.contains(frame)) << frame.top() << ' ' << frame.bottom();
            EXPECT_FALSE(frame.intersects(panel)) << panel.left() << ' ' << panel.top();
            EXPECT_GE(content.width(), sizes.smallest.width());
            EXPECT_GE(content.height(), sizes.smallest.height());
            EXPECT_LE(content.height(), sizes.wanted.height());
        }
    }
}

TEST(WindowPlacementTest, staysInTheMiddleWhereThePanelIsNotInTheWay)
{
    const QRect content = WindowPlacement::clearOf(
        QRect(360, 6, 720, 200), { QSize(500, 300), QSize(500, 300) }, screen);

    EXPECT_EQ(content, WindowPlacement::centered(QSize(500, 300), screen));
}

TEST(WindowPlacementTest, findsNoPlaceBesideAPanelThatFillsTheScreen)
{
    for (const auto& [available, panel] : smallScreens()) {
        EXPECT_TRUE(WindowPlacement::clearOf(
            QRect(available.topLeft(), QSize(1600, 900)), { library, smallestLibrary }, available)
                        .isEmpty());
    }
    // Too low for the tour, which does not scroll.
    EXPECT_TRUE(WindowPlacement::clearOf(
        QRect(323, 6, 720, 200), { QSize(680, 580), QSize(680, 580) }, QRect(0, 0, 1366, 768))
                    .isEmpty());
}

/// A panel that a test can see go and come.
struct SpyingPanel {
    PanelSpace space()
    {
        return { .frame = [this] { return isVisible ? frame : QRectF(); },
            .stepAside = [this] { isVisible = false; },
            .comeBack = [this] { isVisible = true; } };
    }
    QRectF frame;
    bool isVisible = true;
};

TEST(WindowPlacementTest, letsThePanelStepAsideUntilTheWindowCloses)
{
    SpyingPanel panel { QRectF(-100, -100, 5000, 5000) };
    QWindow window; // Closes at its end, which the panel still hears of.

    WindowPlacement::bringToFront(window, { QSize(300, 200), QSize(300, 200) }, panel.space());
    EXPECT_FALSE(panel.isVisible);
    EXPECT_EQ(window.size(), QSize(300, 200));
    window.close();
    EXPECT_TRUE(panel.isVisible);

    panel.frame = QRectF(0, 0, 10, 10);
    WindowPlacement::bringToFront(window, { QSize(300, 200), QSize(300, 200) }, panel.space());
    EXPECT_TRUE(panel.isVisible);
}

TEST(WindowPlacementTest, opensAWindowAgainWhereItWasUnlessThePanelIsThereNow)
{
    QWindow window;
    SpyingPanel panel { QRectF(0, 0, 10, 10) };
    const WindowPlacement::Sizes sizes { QSize(300, 200), QSize(300, 200) };
    WindowPlacement::bringToFrontFixed(window, sizes, panel.space());
    window.setPosition(20, 60);
    QCoreApplication::processEvents();
    window.close();

    WindowPlacement::bringToFrontFixed(window, sizes, panel.space());
    EXPECT_EQ(window.geometry(), QRect(20, 60, 300, 200));
    window.close();

    panel.frame = QRectF(0, 40, 100, 100);
    WindowPlacement::bringToFrontFixed(window, sizes, panel.space());
    EXPECT_FALSE(window.geometry().adjusted(0, -40, 0, 0).intersects(QRect(0, 40, 100, 100)));
    EXPECT_EQ(window.size(), QSize(300, 200));
    EXPECT_TRUE(panel.isVisible);
}

} // namespace
} // namespace Orvello
