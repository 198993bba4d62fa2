#pragma once

#include <algorithm>
#include <cstddef>
#include <span>
#include <vector>

namespace Orvello {

/// Cuts a stream of samples into blocks of one size. Takes no memory after it is made.
class SampleBlocks {
public:
    explicit SampleBlocks(std::size_t blockSize)
        : m_block(blockSize)
    {
    }

    /// Calls `deliver` with each block that is complete, as a span that it may change and that
    /// holds until it returns.
    template <typename Deliver>
    void add(std::span<const float> samples, Deliver deliver)
    {
        while (!samples.empty()) {
            const std::size_t count = std::min(samples.size(), m_block.size() - m_filled);
            std::copy_n(
                samples.begin(), count, m_block.begin() + static_cast<std::ptrdiff_t>(m_filled));
            samples = samples.subspan(count);
            m_filled += count;
            if (m_filled == m_block.size()) {
                m_filled = 0;
                deliver(std::span<float>(m_block));
            }
        }
    }

private:
    std::vector<float> m_block;
    std::size_t m_filled = 0;
};

} // namespace Orvello
