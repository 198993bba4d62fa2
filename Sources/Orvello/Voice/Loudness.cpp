#include "Orvello/Voice/Loudness.h"

#include <cmath>
#include <cstddef>
#include <cstring>

namespace Orvello::Loudness {

namespace {

// Four samples side by side, which the compilers we build with keep in one register.
using Lanes = float __attribute__((vector_size(16)));
constexpr std::size_t laneCount = sizeof(Lanes) / sizeof(float);

Lanes lanesAt(const float* samples)
{
    Lanes lanes;
    std::memcpy(&lanes, samples, sizeof lanes);
    return lanes;
}

// Four independent sums: a single sum would wait for its previous addition at every step.
float sumOfSquares(std::span<const float> samples)
{
    constexpr std::size_t stride = 4 * laneCount;
    Lanes a {};
    Lanes b {};
    Lanes c {};
    Lanes d {};
    std::size_t index = 0;
    for (; index + stride <= samples.size(); index += stride) {
        const float* const block = samples.data() + index;
        const Lanes w = lanesAt(block);
        const Lanes x = lanesAt(block + laneCount);
        const Lanes y = lanesAt(block + 2 * laneCount);
        const Lanes z = lanesAt(block + 3 * laneCount);
        a += w * w;
        b += x * x;
        c += y * y;
        d += z * z;
    }
    const Lanes lanes = (a + b) + (c + d);
    float sum = (lanes[0] + lanes[1]) + (lanes[2] + lanes[3]);
    for (; index < samples.size(); ++index)
        sum += samples[index] * samples[index];
    return sum;
}

float sumOfSquaresOfNumbers(std::span<const float> samples)
{
    float sum = 0;
    for (const float sample : samples)
        if (!std::isnan(sample))
            sum += sample * sample;
    return sum;
}

} // namespace

float rootMeanSquare(std::span<const float> samples) noexcept
{
    float sum = sumOfSquares(samples);
    if (std::isnan(sum))
        sum = sumOfSquaresOfNumbers(samples);
    return std::sqrt(sum / static_cast<float>(samples.size()));
}

float speechThreshold(double sensitivity) noexcept
{
    return std::pow(10.0f, (1.0f - static_cast<float>(sensitivity)) * 1.5f - 2.8f);
}

double sensitivityOf(float threshold) noexcept
{
    return 1.0 - (std::log10(static_cast<double>(threshold)) + 2.8) / 1.5;
}

} // namespace Orvello::Loudness
