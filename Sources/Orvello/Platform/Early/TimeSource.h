#pragma once

#include "Orvello/Foundation/Date.h"

#include <functional>
#include <memory>

namespace Orvello {

/// The only clock and the only timer that services see. Main thread, but for now(). Tests advance a
/// ManualTimeSource instead of waiting.
class TimeSource {
public:
    /// A pending call. Dropping it cancels the call, also from inside the call itself.
    class Ticket {
    public:
        virtual ~Ticket() = default;
        Ticket(const Ticket&) = delete;
        Ticket& operator=(const Ticket&) = delete;

    protected:
        Ticket() = default;
    };

    using Action = std::function<void()>;

    virtual ~TimeSource() = default;

    /// Monotonic seconds since an arbitrary moment. May stand still, never goes back. Any thread,
    /// the audio thread among them.
    virtual double now() const = 0;

    /// The wall clock, which the user may set at any time.
    virtual Date date() const = 0;

    /// Runs `action` once on the main loop, no earlier than `seconds` from now.
    [[nodiscard]] virtual std::unique_ptr<Ticket> callAfter(double seconds, Action action) = 0;

    /// Runs `action` on the main loop every `seconds`, first `seconds` from now. The period is kept
    /// on average; calls that a busy main loop missed are dropped, never made up for.
    [[nodiscard]] virtual std::unique_ptr<Ticket> callEvery(double seconds, Action action) = 0;
};

} // namespace Orvello
