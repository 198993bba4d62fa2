#pragma once

#include "Orvello/Platform/Early/TimeSource.h"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <map>
#include <utility>

namespace Orvello::Testing {

/// Time that moves only when a test advances it. Calls run at exactly the moment they are due, in
/// the order of their due times, and calls due at the same moment in the order they were asked for.
class ManualTimeSource final : public TimeSource {
public:
    double now() const override { return m_now; }
    Date date() const override
    {
        return { m_startDate.secondsSinceReferenceDate + m_now - m_start };
    }
    std::unique_ptr<Ticket> callAfter(double seconds, Action action) override
    {
        return schedule(seconds, 0, std::move(action));
    }
    std::unique_ptr<Ticket> callEvery(double seconds, Action action) override
    {
        return schedule(seconds, seconds, std::move(action));
    }

    /// Moves the clock on by `seconds` and runs every call that falls due meanwhile.
    void advance(double seconds)
    {
        const double end = m_now + seconds;
        // A sum of floating-point periods may miss the end by a rounding error; such a call still
        // belongs to the step.
        constexpr double roundingSlack = 1e-9;
        while (!m_calls->empty() && m_calls->begin()->first.first <= end + roundingSlack)
            runNext();
        m_now = end;
    }

    /// Moves the clock on as if the main loop had been busy: what was due meanwhile runs once,
    /// late.
    void stall(double seconds)
    {
        const double end = m_now + seconds;
        m_now = end;
        std::map<Key, Call> due;
        for (auto call = m_calls->begin(); call != m_calls->end() && call->first.first <= end;)
            due.insert(m_calls->extract(call++));
        for (auto& [key, call] : due)
            run(call);
    }

    void setDate(Date date)
    {
        m_startDate = date;
        m_start = m_now;
    }

    /// How many calls are waiting.
    std::size_t pendingCalls() const { return m_calls->size(); }

private:
    using Key = std::pair<double, std::uint64_t>;
    struct Call {
        double period = 0; ///< 0 for a call that runs once.
        std::weak_ptr<Action> action; ///< Owned by the ticket.
    };
    using Calls = std::map<Key, Call>;

    class ManualTicket final : public Ticket {
    public:
        explicit ManualTicket(std::shared_ptr<Action> action, std::weak_ptr<Calls> calls)
            : m_action(std::move(action))
            , m_calls(std::move(calls))
        {
        }
        ~ManualTicket() override
        {
            if (const auto calls = m_calls.lock())
                std::erase_if(*calls,
                    [this](const auto& entry) { return entry.second.action.lock() == m_action; });
        }

    private:
        std::shared_ptr<Action> m_action;
        std::weak_ptr<Calls> m_calls;
    };

    std::unique_ptr<Ticket> schedule(double delay, double period, Action action)
    {
        auto shared = std::make_shared<Action>(std::move(action));
        m_calls->emplace(Key { m_now + delay, m_nextOrder++ }, Call { period, shared });
        return std::make_unique<ManualTicket>(shared, m_calls);
    }

    void runNext()
    {
        auto node = m_calls->extract(m_calls->begin());
        m_now = std::max(m_now.load(), node.key().first);
        run(node.mapped());
    }

    void run(Call& call)
    {
        const std::shared_ptr<Action> action = call.action.lock();
        if (!action)
            return; // Its ticket was dropped by a call that ran just before.
        if (call.period > 0)
            m_calls->emplace(
                Key { m_now + call.period, m_nextOrder++ }, Call { call.period, action });
        (*action)();
    }

    std::atomic<double> m_now = 1000.0;
    double m_start = 1000.0;
    Date m_startDate { 800000000.0 };
    std::uint64_t m_nextOrder = 0;
    std::shared_ptr<Calls> m_calls = std::make_shared<Calls>();
};

} // namespace Orvello::Testing
