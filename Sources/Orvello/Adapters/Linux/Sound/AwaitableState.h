#pragma once

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <utility>

namespace Orvello {

/// A value that one thread sets and another may wait for, but never for long.
template <typename Value>
class AwaitableState {
public:
    explicit AwaitableState(Value value = {})
        : m_value(std::move(value))
    {
    }

    void set(Value value)
    {
        {
            const std::scoped_lock lock(m_mutex);
            m_value = std::move(value);
        }
        m_changed.notify_all();
    }

    Value get() const
    {
        const std::scoped_lock lock(m_mutex);
        return m_value;
    }

    /// The value once `isAwaited` accepts it, or whatever it is when the time is up.
    template <typename Predicate>
    Value await(std::chrono::milliseconds atMost, Predicate isAwaited) const
    {
        std::unique_lock lock(m_mutex);
        m_changed.wait_for(lock, atMost, [&] { return isAwaited(m_value); });
        return m_value;
    }

private:
    mutable std::mutex m_mutex;
    mutable std::condition_variable m_changed;
    Value m_value;
};

} // namespace Orvello
