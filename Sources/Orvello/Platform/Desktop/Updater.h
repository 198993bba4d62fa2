#pragma once

#include "Orvello/Foundation/Date.h"

#include <QString>

#include <functional>
#include <optional>

namespace Orvello {

/// A release that the update feed offers.
struct UpdateItem {
    QString version; ///< The version that decides which release is newer.
    QString displayVersion; ///< For people.
};

/// Why a check ended without an update.
struct UpdateError {
    /// The codes that callers tell apart, as the macOS updater numbers them.
    static constexpr int insecureFeed = 3;
    static constexpr int invalidFeed = 4;
    static constexpr int appcastParse = 1000;
    static constexpr int noUpdate = 1001;
    static constexpr int download = 2001;
    static constexpr int installationCanceled = 4007;

    QString description; ///< A sentence for people.
    int code = 0;
};

/// What the user answers to an offered update. The numbers are those of the macOS updater.
enum class UpdateChoice { Skip = 0, Install = 1, Later = 2 };

/// Hears of every step of the update cycle. Main thread.
class UpdateListener {
public:
    virtual ~UpdateListener() = default;

    /// The feed to read instead of the built-in one, if any.
    virtual std::optional<QString> feedAddress() const = 0;

    /// Whether the user may be asked now whether to check regularly. If not, the next launch asks.
    virtual bool mayAskPermission() const = 0;

    virtual void updateFound(const UpdateItem& item) = 0;
    virtual void noUpdateFound(const UpdateError& error) = 0;
    virtual void userChose(UpdateChoice choice, const UpdateItem& item) = 0;
    virtual void installing(const UpdateItem& item) = 0;
    virtual void downloadFailed(const UpdateItem& item, const UpdateError& error) = 0;
    virtual void checkFailed(const UpdateError& error) = 0;
    virtual void checkScheduled(double seconds) = 0;
};

/// Whether updates are looked for regularly. The updater stores it. Main thread.
class UpdateSchedule {
public:
    virtual ~UpdateSchedule() = default;

    virtual bool isOn() const = 0;
    virtual void setOn(bool isOn) = 0;

    /// `changed` runs after every change, whoever made it, on any thread.
    virtual void observe(std::function<void()> changed) = 0;
};

/// The system's updater: it reads the feed, keeps the schedule, talks to the user and installs.
/// Main thread.
class Updater {
public:
    virtual ~Updater() = default;

    /// Begins the schedule, after asking the user whether there may be one if that has never been
    /// asked. `listener` must outlive the updater. Called once.
    virtual void start(UpdateListener& listener) = 0;

    /// Checks now and shows the user whatever comes of it.
    virtual void check() = 0;

    virtual UpdateSchedule& schedule() = 0;

    /// Whether the user may ask for a check: the updater runs and is not reading the feed already.
    virtual bool canCheck() const = 0;

    /// When the feed was last asked for, if ever.
    virtual std::optional<Date> lastCheck() const = 0;

    /// `changed` runs after every change of one of these two, on any thread.
    virtual void observeChecks(std::function<void()> changed) = 0;

    /// The feed address that this program was built with, if any.
    virtual std::optional<QString> builtInFeed() const = 0;
};

} // namespace Orvello
