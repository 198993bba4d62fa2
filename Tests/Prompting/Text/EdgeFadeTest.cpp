#include "Orvello/Prompting/Text/EdgeFade.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

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

TEST(EdgeFadeTest, hasABandForEachDevicePixelOfAnOrdinaryCardsFades)
{
    const std::vector<EdgeFade::Band> bands = EdgeFade::bands(200, 1);

    ASSERT_EQ(bands.size(), 20 + 1 + 36);
    EXPECT_EQ(bands[0].top, 0);
    EXPECT_EQ(bands[0].bottom, 1);
    EXPECT_DOUBLE_EQ(bands[0].visibility, 0.5 / 20);
    EXPECT_EQ(bands[20], (EdgeFade::Band { 20, 164, 1 }));
    EXPECT_NEAR(bands[56].visibility, 0.5 / 36, 1e-12);
    EXPECT_EQ(bands[56].bottom, 200);
}

TEST(EdgeFadeTest, leavesNoGapBetweenBandsAndNoStepThatTheEyeSees)
{
    for (const double scale : { 1.0, 1.25, 1.5, 2.0 }) {
        for (const double height : { 130.0, 201.0, 333.3, 900.0 }) {
            const std::vector<EdgeFade::Band> bands = EdgeFade::bands(height, scale);
            EXPECT_LE(bands.size(), 2 * 65 + 1);
            EXPECT_EQ(bands.front().top, 0);
            EXPECT_NEAR(bands.back().bottom, height, 1 / scale);
            for (std::size_t i = 1; i < bands.size(); ++i) {
                EXPECT_EQ(bands[i].top, bands[i - 1].bottom) << height << " " << i;
                EXPECT_EQ(bands[i].top * scale, std::round(bands[i].top * scale)) << height;
                const auto rows = [&](std::size_t band) {
                    return std::round((bands[band].bottom - bands[band].top) * scale);
                };
                const bool isPixelHigh = std::min(rows(i), rows(i - 1)) == 1;
                const double step = std::abs(bands[i].visibility - bands[i - 1].visibility);
                EXPECT_LE(step, isPixelHigh ? 0.08 : 1.0 / 32) << height << " " << i;
            }
        }
    }
}

} // namespace
} // namespace Orvello
