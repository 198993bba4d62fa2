#pragma once

#include "Orvello/Platform/Desktop/Updater.h"
#include "Orvello/Platform/Early/TimeSource.h"
#include "Orvello/Shell/Updates/Appcast.h"
#include "Orvello/Shell/Updates/FeedLoader.h"

#include <QObject>

#include <memory>
#include <vector>

namespace Orvello {

class DesktopServices;
class UpdateUserDriver;
class UserDefaults;

/// An updater for systems whose programs are installed by others: it reads the same feed as the
/// macOS one, tells the user about a new release, and opens its download page. What it remembers
/// lies in the user defaults under the macOS updater's keys.
class AppcastUpdater final : public QObject, public Updater, private UpdateSchedule {
    Q_OBJECT

public:
    static constexpr double checkIntervalSeconds = 86400;
    static constexpr double retrySeconds = 3300; ///< After a check that could not read the feed.

    /// What the updater works with. Everything must outlive it.
    struct Services {
        TimeSource& time;
        UserDefaults& defaults;
        UpdateUserDriver& user;
        DesktopServices& desktop;
    };

    /// Looks in `feed` for updates of a program of that version; an empty feed is none.
    AppcastUpdater(const Services& services, QString version, QString feed);

    void start(UpdateListener& listener) override;
    void check() override;
    UpdateSchedule& schedule() override { return *this; }
    bool canCheck() const override;
    std::optional<Date> lastCheck() const override;
    void observeChecks(std::function<void()> changed) override;
    std::optional<QString> builtInFeed() const override;

private:
    enum class Phase { Idle, Loading, Asking };
    enum class Origin { Schedule, User };

    bool isOn() const override;
    void setOn(bool isOn) override;
    void observe(std::function<void()> changed) override;

    QString feed() const;
    void askPermissionOnce();
    void scheduleNextCheck();
    double secondsUntilNextCheck() const;
    void check(Origin origin);
    void enter(Phase phase);
    void announceChecks() const;
    void loaded(const Result<QByteArray, QString>& document);
    void offer(const AppcastItem& item);
    void chosen(UpdateChoice choice, const AppcastItem& item);
    QString openDownloadPage(const AppcastItem& item, const UpdateItem& update);
    bool hasFeed() const { return m_listener && !feed().isEmpty(); }
    void noteSuccess();
    void upToDate();
    void abort(const UpdateError& error);
    void finish(const QString& outcome);

    const Services m_services;
    const QString m_version;
    const QString m_builtInFeed;
    FeedLoader m_loader;
    UpdateListener* m_listener = nullptr; ///< Null until started.
    std::vector<std::function<void()>> m_observers;
    std::vector<std::function<void()>> m_checkObservers;
    std::unique_ptr<TimeSource::Ticket> m_nextCheck; ///< Or the moment to schedule it.
    Phase m_phase = Phase::Idle;
    Origin m_origin = Origin::Schedule;
    std::optional<double> m_retryAt; ///< No scheduled check comes before that.
};

} // namespace Orvello
