// What one block of samples costs the audio thread, by sample, against the plainest vectorised sum
// of squares over the same memory. The detector may cost 1.2 times as much.

#include "Benchmarks/PlainSumOfSquares.h"
#include "Orvello/Voice/VoiceActivityDetector.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstddef>
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

template <typename PerBlock>
void overBlocks(benchmark::State& state, PerBlock perBlock)
{
    const auto frames = static_cast<std::size_t>(state.range(0));
    const std::span<const float> samples(sound());
    std::size_t position = 0;
    for ([[maybe_unused]] auto _ : state) {
        perBlock(samples.subspan(position, frames));
        position = position + 2 * frames > samples.size() ? 0 : position + frames;
    }
    state.counters["ns/sample"] = benchmark::Counter(
        static_cast<double>(state.iterations()) * static_cast<double>(frames) * 1e-9,
        benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
}

void plainSumOfSquares(benchmark::State& state)
{
    overBlocks(state, [](std::span<const float> block) {
        benchmark::DoNotOptimize(OrvelloBenchmarks::plainSumOfSquares(block.data(), block.size()));
    });
}
BENCHMARK(plainSumOfSquares)->Arg(128)->Arg(480)->Arg(2048);

void voiceActivityDetector(benchmark::State& state)
{
    VoiceActivityDetector detector;
    double now = 0;
    overBlocks(state, [&](std::span<const float> block) {
        now += 0.01;
        benchmark::DoNotOptimize(detector.process(block, 0.6, now));
    });
}
BENCHMARK(voiceActivityDetector)->Arg(128)->Arg(480)->Arg(2048);

} // namespace

BENCHMARK_MAIN();
