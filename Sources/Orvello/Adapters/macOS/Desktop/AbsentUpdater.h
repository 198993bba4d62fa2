#pragma once

#include "Orvello/Platform/Desktop/Updater.h"

#include <vector>

namespace Orvello {

/// The updater of a program that cannot update itself. It says why in the log.
class AbsentUpdater final : public Updater, private UpdateSchedule {
public:
    explicit AbsentUpdater(QString reason);

    void start(UpdateListener& listener) override;
    void check() override;
    UpdateSchedule& schedule() override { return *this; }
    bool canCheck() const override { return false; }
    std::optional<Date> lastCheck() const override { return std::nullopt; }
    void observeChecks(std::function<void()>) override { }
    std::optional<QString> builtInFeed() const override;

private:
    bool isOn() const override { return false; }
    /// Changes nothing, and tells observers so, in case a view already shows the click.
    void setOn(bool isOn) override;
    void observe(std::function<void()> changed) override;

    void logAbsence() const;

    QString m_reason;
    std::vector<std::function<void()>> m_observers;
};

} // namespace Orvello
