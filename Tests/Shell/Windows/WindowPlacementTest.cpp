#include "Orvello/Shell/Windows/WindowPlacement.h"

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
        WindowPlacement::centered(settings, QRect(0, 0, 1024, 600)), QRect(262, 40, 500, 560));
}

TEST(WindowPlacementTest, centresOnTheFreePartOfAnyScreen)
{
    EXPECT_EQ(WindowPlacement::centered(settings, QRect(1440, 30, 1920, 1050)),
        QRect(2150, 165, 500, 780));
}

} // namespace
} // namespace Orvello
