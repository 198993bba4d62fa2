#pragma once

#include <array>
#include <atomic>
#include <bit>
#include <cstddef>
#include <optional>
#include <type_traits>

namespace Orvello {

/// A bounded queue from one producer thread to one consumer thread. Wait-free, and all its memory
/// is inside the object. Invariants: `m_read <= m_written <= m_read + capacity`, both only grow; a
/// slot belongs to the producer until `m_written` passes it and to the consumer until `m_read`
/// does. Another thread may take over as producer once the first one has ended.
template <typename Value, std::size_t ringCapacity>
class SpscRing {
    static_assert(std::has_single_bit(ringCapacity));
    static_assert(std::is_trivially_copyable_v<Value>);
    static_assert(std::atomic<std::size_t>::is_always_lock_free);

public:
    static constexpr std::size_t capacity = ringCapacity;

    /// Producer thread. False, with nothing done, when the queue is full.
    [[nodiscard]] bool tryPush(const Value& value) noexcept
    {
        const std::size_t written = m_written.load(std::memory_order_relaxed);
        if (written - m_read.load(std::memory_order_acquire) == capacity)
            return false;
        m_slots[written % capacity] = value;
        m_written.store(written + 1, std::memory_order_release);
        return true;
    }

    /// Consumer thread.
    [[nodiscard]] std::optional<Value> tryPop() noexcept
    {
        const std::size_t read = m_read.load(std::memory_order_relaxed);
        if (read == m_written.load(std::memory_order_acquire))
            return std::nullopt;
        const Value value = m_slots[read % capacity];
        m_read.store(read + 1, std::memory_order_release);
        return value;
    }

    /// Producer thread. Never less than what the consumer still has to read.
    [[nodiscard]] std::size_t size() const noexcept
    {
        return m_written.load(std::memory_order_relaxed) - m_read.load(std::memory_order_acquire);
    }

private:
    static constexpr std::size_t cacheLine = 64;

    std::array<Value, capacity> m_slots {};
    alignas(cacheLine) std::atomic<std::size_t> m_written = 0;
    alignas(cacheLine) std::atomic<std::size_t> m_read = 0;
};

} // namespace Orvello
