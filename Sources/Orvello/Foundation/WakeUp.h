#pragma once

#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <functional>
#include <memory>

namespace Orvello {

/// Lets a thread that may neither lock nor take memory make the main loop do something. Signals
/// that come faster than the main loop runs become one call. Made and destroyed on the main thread.
class WakeUp final {
public:
    explicit WakeUp(std::function<void()> action); ///< Runs on the main loop.
    ~WakeUp();
    WakeUp(const WakeUp&) = delete;
    WakeUp& operator=(const WakeUp&) = delete;

    /// Any thread, and signal handlers. The action runs once after this call; what was written to
    /// memory before is then visible to it.
    void signal() noexcept;

private:
    void receive();

    static_assert(std::atomic<bool>::is_always_lock_free);

    std::function<void()> m_action;
    std::atomic<bool> m_isPending = false;
    std::array<int, 2> m_pipe { -1, -1 }; ///< Read end, write end.
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace Orvello
