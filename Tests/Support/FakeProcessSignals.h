#pragma once

#include "Orvello/Platform/Early/ProcessSignals.h"
#include "Tests/Support/Journal.h"

#include <map>
#include <set>
#include <utility>

namespace Orvello::Testing {

/// Signals that a test sends.
class FakeProcessSignals final : public ProcessSignals {
public:
    bool isIgnored(int signal) const override { return ignored.contains(signal); }
    std::unique_ptr<Subscription> handle(int signal, std::function<void()> handler) override
    {
        note(journal, "signal " + std::to_string(signal) + " handled");
        m_handlers[signal] = std::move(handler);
        return std::make_unique<Kept>();
    }

    void send(int signal) { m_handlers.at(signal)(); }
    bool isHandled(int signal) const { return m_handlers.contains(signal); }

    Journal* journal = nullptr;
    std::set<int> ignored; ///< What the program's parent has it ignore.

private:
    class Kept final : public Subscription { };

    std::map<int, std::function<void()>> m_handlers;
};

} // namespace Orvello::Testing
