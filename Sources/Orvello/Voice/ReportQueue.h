#pragma once

#include "Orvello/Voice/BlockReport.h"
#include "Orvello/Voice/SpscRing.h"

#include <cstddef>
#include <optional>
#include <vector>

namespace Orvello {

/// Carries block reports, in order, from the audio thread to the main thread. While the main thread
/// stalls, reports that say the same are folded into one, which follows with the next block after
/// the stall: memory does not grow, the level loses nothing, and every start and end of speaking
/// arrives as long as there are fewer than `capacity / 2` of them, a quarter of an hour of the
/// shortest sentences.
class ReportQueue {
public:
    static constexpr std::size_t capacity = 1024;

    /// Audio thread.
    void push(const BlockReport& report) noexcept;

    /// Main thread. The oldest report, if there is one.
    [[nodiscard]] std::optional<BlockReport> pop() noexcept { return m_ring.tryPop(); }

    /// Main thread, while no push() runs: everything, with what is still being folded.
    [[nodiscard]] std::vector<BlockReport> takeAll();

private:
    /// From here on the remaining places are kept for changes of speaking.
    static constexpr std::size_t backlog = capacity / 2;

    SpscRing<BlockReport, capacity> m_ring;
    std::optional<BlockReport> m_folded; ///< The audio thread's own; newer than all in the ring.
};

} // namespace Orvello
