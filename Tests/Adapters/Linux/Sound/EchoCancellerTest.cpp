#include "Orvello/Adapters/Linux/Sound/EchoCanceller.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <random>
#include <vector>

namespace Orvello {
namespace {

using Samples = std::vector<float>;

constexpr std::size_t frame = EchoCanceller::frameSamples;
constexpr std::size_t second = EchoCanceller::sampleRate;

/// Noise in syllables of a quarter of a second, a tenth of full scale.
Samples babble(std::size_t seconds, unsigned seed)
{
    std::mt19937 generator(seed);
    std::normal_distribution<float> noise(0.0f, 0.1f);
    Samples samples(seconds * second);
    float previous = 0;
    for (std::size_t index = 0; index < samples.size(); ++index) {
        previous = 0.7f * previous + 0.7f * noise(generator);
        samples[index] = index / (second / 8) % 2 == 0 ? previous : 0.0f;
    }
    return samples;
}

/// 12 dB lower and 40 ms later.
Samples echoOf(const Samples& farEnd)
{
    constexpr std::size_t delay = second / 25;
    Samples echo(farEnd.size(), 0.0f);
    for (std::size_t index = delay; index < echo.size(); ++index)
        echo[index] = 0.25f * farEnd[index - delay];
    return echo;
}

double energy(std::span<const float> samples)
{
    double sum = 0;
    for (const float sample : samples)
        sum += static_cast<double>(sample) * static_cast<double>(sample);
    return sum;
}

class EchoCancellerTest : public ::testing::Test {
protected:
    EchoCancellerTest() { EXPECT_EQ(canceller.initialize(), 0); }

    /// What is left of the microphone while the far end plays.
    Samples cleaned(const Samples& farEnd, Samples microphone)
    {
        for (std::size_t begin = 0; begin + frame <= microphone.size(); begin += frame) {
            canceller.hearFarEnd(std::span(farEnd).subspan(begin, frame));
            canceller.process(std::span(microphone).subspan(begin, frame));
        }
        return microphone;
    }

    EchoCanceller canceller;
};

TEST_F(EchoCancellerTest, removesTheEchoOnceItHasConverged)
{
    const Samples farEnd = babble(8, 1);
    const Samples echo = echoOf(farEnd);

    const Samples left = cleaned(farEnd, echo);

    EXPECT_LT(energy(std::span(left).subspan(5 * second)),
        energy(std::span(echo).subspan(5 * second)) / 20);
}

TEST_F(EchoCancellerTest, leavesSpeechOverTheEcho)
{
    const Samples farEnd = babble(8, 1);
    const Samples speech = babble(8, 2);
    Samples microphone = echoOf(farEnd);
    for (std::size_t index = 5 * second; index < microphone.size(); ++index)
        microphone[index] += speech[index];

    const Samples left = cleaned(farEnd, microphone);

    EXPECT_GT(energy(std::span(left).subspan(5 * second)),
        energy(std::span(speech).subspan(5 * second)) / 100);
}

TEST_F(EchoCancellerTest, changesNothingWhileNothingIsPlayed)
{
    const Samples speech = babble(2, 3);

    EXPECT_EQ(cleaned(Samples(speech.size(), 0.0f), speech), speech);
}

TEST_F(EchoCancellerTest, brokenSamplesDoNotStayInTheFilter)
{
    const float notANumber = std::numeric_limits<float>::quiet_NaN();
    const float infinity = std::numeric_limits<float>::infinity();
    Samples farEnd = babble(10, 4);
    Samples microphone = echoOf(farEnd);
    for (std::size_t index = second; index < 2 * second; index += 3) {
        farEnd[index] = index % 2 == 0 ? notANumber : -infinity;
        microphone[index] = index % 2 == 0 ? infinity : notANumber;
    }

    const Samples left = cleaned(farEnd, microphone);

    for (const float sample : left)
        ASSERT_TRUE(std::isfinite(sample));
    EXPECT_LT(energy(std::span(left).subspan(8 * second)),
        energy(std::span(microphone).subspan(8 * second)) / 20);
}

} // namespace
} // namespace Orvello
