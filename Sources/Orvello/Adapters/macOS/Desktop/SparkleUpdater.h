#pragma once

#include "Orvello/Platform/Desktop/Updater.h"

#import <Sparkle/Sparkle.h>

@class SparkleDelegate;

namespace Orvello {

/// Sparkle's standard updater with its own windows. The framework must be present.
class SparkleUpdater final : public Updater, private UpdateSchedule {
public:
    /// The framework is linked weakly: a bundle that lost it still starts.
    static bool isPresent();

    SparkleUpdater();
    ~SparkleUpdater() override;
    SparkleUpdater(const SparkleUpdater&) = delete;
    SparkleUpdater& operator=(const SparkleUpdater&) = delete;

    bool isMade() const { return m_controller != nil; } ///< Otherwise it must not be used.

    void start(UpdateListener& listener) override;
    void check() override;
    UpdateSchedule& schedule() override { return *this; }
    bool canCheck() const override;
    std::optional<Date> lastCheck() const override;
    void observeChecks(std::function<void()> changed) override;
    std::optional<QString> builtInFeed() const override;

private:
    bool isOn() const override;
    void setOn(bool isOn) override;
    void observe(std::function<void()> changed) override;

    SparkleDelegate* m_delegate; ///< Sparkle itself holds it weakly.
    SPUStandardUpdaterController* m_controller;
};

} // namespace Orvello
