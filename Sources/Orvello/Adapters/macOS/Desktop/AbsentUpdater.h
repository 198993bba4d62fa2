#pragma once

#include "Orvello/Platform/Desktop/Updater.h"

#include <vector>

namespace Orvello {

/// The updater of a program that cannot update itself. It says why in the log.
class AbsentUpdater final : public Updater {
public:
    explicit AbsentUpdater(QString reason);

    void startUpdater(UpdaterDelegate& delegate) override;
    void checkForUpdates() override;
    bool automaticallyChecksForUpdates() const override { return false; }
    /// Changes nothing, and says so to whoever shows the wish already.
    void setAutomaticallyChecksForUpdates(bool on) override;
    void observeAutomaticChecks(std::function<void()> changed) override;
    bool canCheckForUpdates() const override { return false; }
    std::optional<Date> lastUpdateCheckDate() const override { return std::nullopt; }
    void observeChecks(std::function<void()>) override { }
    std::optional<QString> builtInFeed() const override;

private:
    void logAbsence() const;

    QString m_reason;
    std::vector<std::function<void()>> m_observers;
};

} // namespace Orvello
