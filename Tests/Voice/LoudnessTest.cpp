#include "Orvello/Voice/Loudness.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace Orvello {
namespace {

using Loudness::levelTarget;
using Loudness::rootMeanSquare;
using Loudness::speechThreshold;

constexpr float notANumber = std::numeric_limits<float>::quiet_NaN();
constexpr float infinity = std::numeric_limits<float>::infinity();

TEST(LoudnessTest, constantSignalIsAsLoudAsItsValueAtEveryBlockSize)
{
    for (const std::size_t size : { 1u, 2u, 3u, 15u, 16u, 17u, 31u, 128u, 480u, 2048u, 16384u }) {
        const std::vector<float> samples(size, -0.25f);

        EXPECT_FLOAT_EQ(rootMeanSquare(samples), 0.25f) << size;
    }
}

TEST(LoudnessTest, everySampleCountsOnce)
{
    for (std::size_t loud = 0; loud < 40; ++loud) {
        std::vector<float> samples(40, 0.0f);
        samples[loud] = 2.0f;

        EXPECT_FLOAT_EQ(rootMeanSquare(samples), std::sqrt(4.0f / 40.0f)) << loud;
    }
}

TEST(LoudnessTest, fullScaleSineIsThreeDecibelsDown)
{
    std::vector<float> samples(4800);
    for (std::size_t index = 0; index < samples.size(); ++index)
        samples[index] = std::sin(static_cast<float>(index) * 6.2831853f / 48.0f);

    EXPECT_NEAR(rootMeanSquare(samples), std::sqrt(0.5f), 1e-5f);
}

TEST(LoudnessTest, samplesThatAreNoNumbersCountAsSilence)
{
    std::vector<float> samples(100, 0.1f);
    samples[0] = notANumber;
    samples[99] = notANumber;

    EXPECT_NEAR(rootMeanSquare(samples), 0.1f * std::sqrt(0.98f), 1e-6f);
    EXPECT_EQ(rootMeanSquare(std::vector<float>(64, notANumber)), 0.0f);
}

TEST(LoudnessTest, infiniteSamplesMakeTheBlockInfinitelyLoud)
{
    EXPECT_EQ(rootMeanSquare(std::vector<float> { 0.0f, -infinity, infinity }), infinity);
    EXPECT_EQ(rootMeanSquare(std::vector<float> { notANumber, infinity }), infinity);
    EXPECT_EQ(levelTarget(infinity), 1.0f);
}

TEST(LoudnessTest, thresholdFollowsTheSensitivity)
{
    EXPECT_NEAR(speechThreshold(0.0), 0.05012f, 0.000005f);
    EXPECT_NEAR(speechThreshold(0.25), 0.02113f, 0.000005f);
    EXPECT_NEAR(speechThreshold(0.5), 0.00891f, 0.000005f);
    EXPECT_NEAR(speechThreshold(0.6), 0.00631f, 0.000005f);
    EXPECT_NEAR(speechThreshold(0.75), 0.00376f, 0.000005f);
    EXPECT_NEAR(speechThreshold(1.0), 0.00158f, 0.000006f);
}

TEST(LoudnessTest, thresholdFallsByThirtyDecibels)
{
    for (const double sensitivity : { 0.0, 0.1, 0.3, 0.6, 0.9, 1.0 }) {
        const double decibels = 20 * std::log10(static_cast<double>(speechThreshold(sensitivity)));

        EXPECT_NEAR(decibels, 30 * (1 - sensitivity) - 56, 0.001) << sensitivity;
    }
}

TEST(LoudnessTest, thresholdIsRoundedToSinglePrecisionAtEveryStep)
{
    for (int percent = 0; percent <= 100; ++percent) {
        const double sensitivity = percent / 100.0;
        // Volatile, so that no compiler joins multiplication and subtraction into one rounding.
        const volatile float steps = (1.0f - static_cast<float>(sensitivity)) * 1.5f;
        const volatile float exponent = steps - 2.8f;

        EXPECT_EQ(speechThreshold(sensitivity), std::pow(10.0f, exponent)) << percent;
    }
}

TEST(LoudnessTest, thresholdExistsForEverySensitivity)
{
    EXPECT_EQ(speechThreshold(1e300), 0.0f);
    EXPECT_EQ(speechThreshold(-1e300), infinity);
    EXPECT_GT(speechThreshold(-0.5), speechThreshold(0.0));
    EXPECT_LT(speechThreshold(1.5), speechThreshold(1.0));
}

TEST(LoudnessTest, levelTargetIsFullFromFourHundredthsOn)
{
    EXPECT_EQ(levelTarget(0.0f), 0.0f);
    EXPECT_FLOAT_EQ(levelTarget(0.02f), 0.5f);
    EXPECT_EQ(levelTarget(0.04f), 1.0f);
    EXPECT_EQ(levelTarget(0.9f), 1.0f);
}

} // namespace
} // namespace Orvello
