#pragma once

#include "Orvello/Platform/Early/ProcessSignals.h"
#include "Tests/Support/Journal.h"

#include <map>
#include <utility>

namespace Orvello::Testing {

/// Signals that a test sends.
class FakeProcessSignals final : public ProcessSignals {
public:
    std::unique_ptr<Subscription> handle(int signal, std::function<void()> handler) override
    {
        note(journal, "signal " + std::to_string(signal) + " handled");
        m_handlers[signal] = std::move(handler);
        return std::make_unique<Kept>();
    }

    void send(int signal) { m_handlers.at(signal)(); }

    Journal* journal = nullptr;

private:
    class Kept final : public Subscription { };

    std::map<int, std::function<void()>> m_handlers;
};

} // namespace Orvello::Testing
