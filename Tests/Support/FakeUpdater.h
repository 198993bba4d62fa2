#pragma once

#include "Orvello/Platform/Desktop/Updater.h"
#include "Tests/Support/Journal.h"

#include <utility>

namespace Orvello::Testing {

/// An updater whose callbacks a test makes.
class FakeUpdater final : public Updater, public UpdateSchedule {
public:
    void start(UpdateListener& updateListener) override
    {
        note(journal, "updater started");
        listener = &updateListener;
    }
    void check() override
    {
        note(journal, "updater asked to check");
        ++checks;
    }
    UpdateSchedule& schedule() override { return *this; }
    bool isOn() const override { return isAutomatic; }
    void setOn(bool on) override
    {
        if (std::exchange(isAutomatic, on) != on && m_changed)
            m_changed();
    }
    void observe(std::function<void()> changed) override { m_changed = std::move(changed); }
    bool canCheck() const override { return m_canCheck; }
    std::optional<Date> lastCheck() const override { return m_lastCheck; }
    void observeChecks(std::function<void()> changed) override
    {
        m_checksChanged = std::move(changed);
    }
    std::optional<QString> builtInFeed() const override { return feed; }

    /// What a check changes, announced as an updater would.
    void setChecks(bool canCheck, std::optional<Date> lastCheck)
    {
        m_canCheck = canCheck;
        m_lastCheck = lastCheck;
        if (m_checksChanged)
            m_checksChanged();
    }

    Journal* journal = nullptr;
    UpdateListener* listener = nullptr; ///< Null until started.
    int checks = 0;
    bool isAutomatic = false;
    std::optional<QString> feed;

private:
    std::function<void()> m_changed;
    bool m_canCheck = false;
    std::optional<Date> m_lastCheck;
    std::function<void()> m_checksChanged;
};

} // namespace Orvello::Testing
