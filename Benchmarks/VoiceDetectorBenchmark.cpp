// What one block of samples costs the audio thread, by sample, against the plainest vectorised sum
// of squares over the same memory. The detector may cost 1.2 times as much.

#include "Benchmarks/AlternatingRuns.h"
#include "Benchmarks/PlainSumOfSquares.h"
#include "Orvello/Voice/VoiceActivityDetector.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstddef>
#include <cstdio>
#include <span>
#include <vector>

namespace {

using Orvello::VoiceActivityDetector;

/// A second of sound, more than the caches next to the core hold, so that blocks come from where an
/// audio thread finds them.
const std::vector<float>& sound()
{
    static const std::vector<float> samples = [] {
        std::vector<float> wave(49152);
        for (std::size_t index = 0; index < wave.size(); ++index)
            wave[index] = 0.1f * std::sin(static_cast<float>(index) * 0.05f);
        return wave;
    }();
    return samples;
}

/// Nanoseconds by sample of the plain sum and of the detector, as medians of many turns.
void compare(std::size_t frames)
{
    constexpr std::size_t passes = 40; // Two milliseconds at a time.
    const std::span<const float> samples(sound());
    const std::size_t blocks = samples.size() / frames;

    const auto overBlocks = [&](const auto& perBlock) {
        for (std::size_t pass = 0; pass < passes; ++pass)
            for (std::size_t block = 0; block < blocks; ++block)
                perBlock(samples.subspan(block * frames, frames));
    };
    const auto plainSum = [&] {
        overBlocks([](std::span<const float> block) {
            benchmark::DoNotOptimize(
                OrvelloBenchmarks::plainSumOfSquares(block.data(), block.size()));
        });
    };
    VoiceActivityDetector detector;
    double now = 0;
    const auto detection = [&] {
        overBlocks([&](std::span<const float> block) {
            now += 0.01;
            benchmark::DoNotOptimize(detector.process(block, 0.6, now));
        });
    };

    const std::vector<double> seconds = Orvello::medianSeconds(301, { plainSum, detection });
    const double perSample = 1e9 / static_cast<double>(passes * blocks * frames);
    std::printf("%5zu frames: detector %.3f ns a sample, plain sum of squares %.3f, ratio %.2f "
                "(limit 1.2)\n",
        frames, seconds[1] * perSample, seconds[0] * perSample, seconds[1] / seconds[0]);
}

} // namespace

int main()
{
    for (const std::size_t frames : { 128, 480, 2048 })
        compare(frames);
    return 0;
}
