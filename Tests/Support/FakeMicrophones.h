#pragma once

#include "Orvello/Platform/Sound/Microphones.h"

#include <functional>
#include <utility>

namespace Orvello::Testing {

/// Says what a test makes it say.
class FakeMicrophones final : public Microphones {
public:
    State state() override { return current; }
    void choose(const QString& identifier) override { chosen = identifier; }
    void setObserver(std::function<void()> changed) override { m_changed = std::move(changed); }

    void become(State state)
    {
        current = std::move(state);
        if (m_changed)
            m_changed();
    }

    State current;
    QString chosen;

private:
    std::function<void()> m_changed;
};

} // namespace Orvello::Testing
