#pragma once

#include "Orvello/Platform/Desktop/Updater.h"

#import <Sparkle/Sparkle.h>

@class SparkleDelegate;

namespace Orvello {

/// Sparkle's standard updater with its own windows. The framework must be present.
class SparkleUpdater final : public Updater {
public:
    /// The framework is linked weakly: a bundle that lost it still starts.
    static bool isPresent();

    SparkleUpdater();
    ~SparkleUpdater() override;
    SparkleUpdater(const SparkleUpdater&) = delete;
    SparkleUpdater& operator=(const SparkleUpdater&) = delete;

    void startUpdater(UpdaterDelegate& delegate) override;
    void checkForUpdates() override;
    bool automaticallyChecksForUpdates() const override;
    void setAutomaticallyChecksForUpdates(bool on) override;
    void observeAutomaticChecks(std::function<void()> changed) override;
    bool canCheckForUpdates() const override;
    std::optional<Date> lastUpdateCheckDate() const override;
    void observeChecks(std::function<void()> changed) override;
    std::optional<QString> builtInFeed() const override;

private:
    SparkleDelegate* m_delegate; ///< Sparkle itself holds it weakly.
    SPUStandardUpdaterController* m_controller;
};

} // namespace Orvello
