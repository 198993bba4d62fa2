#include "Orvello/Prompting/Text/EdgeFade.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

TEST(EdgeFadeTest, isClearAtTheEdgesAndOpaqueBetweenItsStops)
{
    EXPECT_DOUBLE_EQ(EdgeFade::visibilityAt(0.0), 0);
    EXPECT_DOUBLE_EQ(EdgeFade::visibilityAt(0.1), 1);
    EXPECT_DOUBLE_EQ(EdgeFade::visibilityAt(0.5), 1);
    EXPECT_DOUBLE_EQ(EdgeFade::visibilityAt(0.82), 1);
    EXPECT_DOUBLE_EQ(EdgeFade::visibilityAt(1.0), 0);
}

TEST(EdgeFadeTest, changesEvenlyBetweenItsStops)
{
    EXPECT_DOUBLE_EQ(EdgeFade::visibilityAt(0.05), 0.5);
    EXPECT_DOUBLE_EQ(EdgeFade::visibilityAt(0.025), 0.25);
    EXPECT_NEAR(EdgeFade::visibilityAt(0.91), 0.5, 1e-12);
    EXPECT_NEAR(EdgeFade::visibilityAt(0.865), 0.75, 1e-12);
}

TEST(EdgeFadeTest, isClearOutsideOfTheCard)
{
    EXPECT_DOUBLE_EQ(EdgeFade::visibilityAt(-0.5), 0);
    EXPECT_DOUBLE_EQ(EdgeFade::visibilityAt(1.5), 0);
}

} // namespace
} // namespace Orvello
