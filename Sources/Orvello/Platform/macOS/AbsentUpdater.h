#pragma once

#include "Orvello/Platform/Updater.h"

namespace Orvello {

/// The updater of a program without an update framework. It says so in the log.
class AbsentUpdater final : public Updater {
public:
    void startUpdater(UpdaterDelegate& delegate) override;
    void checkForUpdates() override;
    bool automaticallyChecksForUpdates() const override { return false; }
    void setAutomaticallyChecksForUpdates(bool) override { }
    void observeAutomaticChecks(std::function<void()>) override { }
    bool canCheckForUpdates() const override { return false; }
    std::optional<Date> lastUpdateCheckDate() const override { return std::nullopt; }
    void observeChecks(std::function<void()>) override { }
    std::optional<QString> builtInFeed() const override { return std::nullopt; }
};

} // namespace Orvello
