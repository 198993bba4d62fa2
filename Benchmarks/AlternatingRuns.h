#pragma once

#include <algorithm>
#include <chrono>
#include <functional>
#include <vector>

namespace Orvello {

/// The median time of each operation in seconds. They take turns, a different one first each round,
/// so that whatever else keeps the machine busy falls on all of them alike.
inline std::vector<double> medianSeconds(
    std::size_t rounds, const std::vector<std::function<void()>>& operations)
{
    using Clock = std::chrono::steady_clock;
    std::vector<std::vector<double>> times(operations.size());
    for (std::size_t round = 0; round < rounds; ++round) {
        for (std::size_t turn = 0; turn < operations.size(); ++turn) {
            const std::size_t which = (round + turn) % operations.size();
            const Clock::time_point start = Clock::now();
            operations[which]();
            times[which].push_back(std::chrono::duration<double>(Clock::now() - start).count());
        }
    }

    std::vector<double> medians;
    for (std::vector<double>& sample : times) {
        const auto middle = sample.begin() + static_cast<std::ptrdiff_t>(sample.size() / 2);
        std::ranges::nth_element(sample, middle);
        medians.push_back(*middle);
    }
    return medians;
}

} // namespace Orvello
