#pragma once

#include "Orvello/Platform/Desktop/Updater.h"

#include <QObject>

#include <functional>

namespace Orvello {

class UserDefaults;

/// Starts the system's updater, forwards the user's wishes to it, and logs every step of the update
/// cycle. Main thread.
class UpdateController final : public QObject, private UpdateListener {
    Q_OBJECT
    Q_PROPERTY(bool checksAutomatically READ checksAutomatically WRITE setChecksAutomatically NOTIFY
            checksAutomaticallyChanged FINAL)
    Q_PROPERTY(bool canCheckForUpdates READ canCheckForUpdates NOTIFY checksChanged FINAL)
    Q_PROPERTY(bool hasFeed READ hasFeed NOTIFY checksChanged FINAL)
    Q_PROPERTY(QString lastCheckText READ lastCheckText NOTIFY checksChanged FINAL)

public:
    /// What the controller works with. Everything must outlive it.
    struct Services {
        Updater& updater;
        const UserDefaults& defaults;
        std::function<void()> activateApplication; ///< Activates it whatever else is active.
        /// Whether nothing else is explaining something to the user; always so without one.
        std::function<bool()> mayAsk = {};
    };

    explicit UpdateController(Services services, QObject* parent = nullptr);

    void start(); ///< Once, at launch.

    /// Checks because the user asks, in front of everything else.
    Q_INVOKABLE void checkForUpdates();

    bool checksAutomatically() const;
    void setChecksAutomatically(bool on);

    bool canCheckForUpdates() const; ///< False while a check is going on.
    bool hasFeed() const; ///< Without a feed there is nothing to look for updates in.
    QString lastCheckText() const; ///< When there was a check, for people; empty before the first.

Q_SIGNALS:
    void checksAutomaticallyChanged();
    void checksChanged();

private:
    std::function<void()> onMainThread(void (UpdateController::*signal)());

    std::optional<QString> feedAddress() const override;
    bool mayAskPermission() const override;
    void updateFound(const UpdateItem& item) override;
    void noUpdateFound(const UpdateError& error) override;
    void userChose(UpdateChoice choice, const UpdateItem& item) override;
    void installing(const UpdateItem& item) override;
    void downloadFailed(const UpdateItem& item, const UpdateError& error) override;
    void checkFailed(const UpdateError& error) override;
    void checkScheduled(double seconds) override;

    const Services m_services;
};

} // namespace Orvello
