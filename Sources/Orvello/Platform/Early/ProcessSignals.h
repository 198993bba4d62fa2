#pragma once

#include <functional>
#include <memory>

namespace Orvello {

/// Signals that other processes send to this one, turned into ordinary calls on the main loop.
class ProcessSignals {
public:
    /// Handling of one signal. Dropping it ends the calls; the signal then stays ignored.
    class Subscription {
    public:
        virtual ~Subscription() = default;
        Subscription(const Subscription&) = delete;
        Subscription& operator=(const Subscription&) = delete;

    protected:
        Subscription() = default;
    };

    virtual ~ProcessSignals() = default;

    /// Whether the process ignores the signal, as its parent may have left it: nohup does with
    /// SIGHUP.
    virtual bool isIgnored(int signal) const = 0;

    /// From now on the signal's default action never happens; `handler` runs on the main loop each
    /// time it arrives. One subscription for each signal number.
    [[nodiscard]] virtual std::unique_ptr<Subscription> handle(
        int signal, std::function<void()> handler)
        = 0;
};

} // namespace Orvello
