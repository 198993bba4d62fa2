#include "Orvello/Adapters/Linux/Sound/SampleBlocks.h"

#include <gtest/gtest.h>

#include <numeric>
#include <vector>

namespace Orvello {
namespace {

TEST(SampleBlocksTest, keepsEverySampleInOrderHoweverTheyCome)
{
    std::vector<float> samples(1000);
    std::iota(samples.begin(), samples.end(), 0.0f);
    for (const std::size_t portion : { 1u, 7u, 64u, 100u, 250u, 1000u }) {
        SampleBlocks blocks(64);
        std::vector<float> received;
        for (std::size_t begin = 0; begin < samples.size(); begin += portion)
            blocks.add(std::span(samples).subspan(begin, std::min(portion, samples.size() - begin)),
                [&](std::span<const float> block) {
                    EXPECT_EQ(block.size(), 64u);
                    received.insert(received.end(), block.begin(), block.end());
                });

        EXPECT_EQ(received, std::vector<float>(samples.begin(), samples.begin() + 15 * 64))
            << portion;
    }
}

TEST(SampleBlocksTest, deliversNothingForNothing)
{
    SampleBlocks blocks(1);

    blocks.add({}, [](std::span<const float>) { FAIL(); });
}

} // namespace
} // namespace Orvello
