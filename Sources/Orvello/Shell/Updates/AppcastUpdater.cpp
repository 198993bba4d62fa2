#include "Orvello/Shell/Updates/AppcastUpdater.h"

#include "Orvello/Foundation/DefaultsValue.h"
#include "Orvello/Platform/Desktop/DesktopServices.h"
#include "Orvello/Platform/Desktop/UpdateUserDriver.h"
#include "Orvello/Platform/Early/UserDefaults.h"

#include <algorithm>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

const QString automaticKey = u"SUEnableAutomaticChecks"_s;
const QString lastCheckKey = u"SULastCheckTime"_s;
const QString skippedKey = u"SUSkippedVersion"_s;

UpdateItem updateItem(const AppcastItem& item) { return { item.version, item.displayVersion }; }

} // namespace

AppcastUpdater::AppcastUpdater(const Services& services, QString version, QString feed)
    : m_services(services)
    , m_version(std::move(version))
    , m_builtInFeed(std::move(feed))
    , m_loader(services.time)
{
}

void AppcastUpdater::start(UpdateListener& listener)
{
    m_listener = &listener;
    announceChecks();
    // On the next turn of the main loop, once the code that starts the updater has logged it. A
    // user who asks for a check before that is not asked whether to check.
    m_nextCheck = m_services.time.callAfter(0, [this] {
        askPermissionOnce();
        scheduleNextCheck();
    });
}

QString AppcastUpdater::feed() const { return m_listener->feedAddress().value_or(m_builtInFeed); }

std::optional<QString> AppcastUpdater::builtInFeed() const
{
    return m_builtInFeed.isEmpty() ? std::nullopt : std::optional(m_builtInFeed);
}

void AppcastUpdater::askPermissionOnce()
{
    const bool isAnswered = m_services.defaults.value(automaticKey).isValid();
    if (!hasFeed() || isAnswered || !m_listener->mayAskPermission())
        return;
    m_services.user.askPermission([this](bool isAllowed) {
        // The settings window may have answered meanwhile.
        if (!m_services.defaults.value(automaticKey).isValid())
            setOn(isAllowed);
    });
}

bool AppcastUpdater::isOn() const
{
    return hasFeed()
        && DefaultsValue::asBoolean(m_services.defaults.value(automaticKey)).value_or(false);
}

void AppcastUpdater::setOn(bool on)
{
    if (!hasFeed())
        return;
    const bool isChange = isOn() != on;
    m_services.defaults.setValue(automaticKey, on);
    if (!isChange)
        return;
    for (const auto& changed : m_observers)
        changed();
    // By then the code that switched has logged it.
    m_nextCheck = m_services.time.callAfter(0, [this] { scheduleNextCheck(); });
}

void AppcastUpdater::observe(std::function<void()> changed)
{
    m_observers.push_back(std::move(changed));
}

bool AppcastUpdater::canCheck() const { return hasFeed() && m_phase != Phase::Loading; }

std::optional<Date> AppcastUpdater::lastCheck() const
{
    const std::optional<double> last
        = DefaultsValue::asNumber(m_services.defaults.value(lastCheckKey));
    return last ? std::optional(Date::fromUnixSeconds(*last)) : std::nullopt;
}

void AppcastUpdater::observeChecks(std::function<void()> changed)
{
    m_checkObservers.push_back(std::move(changed));
}

void AppcastUpdater::announceChecks() const
{
    for (const auto& changed : m_checkObservers)
        changed();
}

void AppcastUpdater::enter(Phase phase)
{
    m_phase = phase;
    announceChecks();
}

void AppcastUpdater::scheduleNextCheck()
{
    m_nextCheck.reset();
    if (!isOn())
        return;
    const double delay = secondsUntilNextCheck();
    if (delay > 0)
        m_listener->checkScheduled(delay);
    m_nextCheck = m_services.time.callAfter(delay, [this] { check(Origin::Schedule); });
}

double AppcastUpdater::secondsUntilNextCheck() const
{
    const double untilRetry = m_retryAt ? std::max(0.0, *m_retryAt - m_services.time.now()) : 0;
    const std::optional<Date> last = lastCheck();
    if (!last)
        return untilRetry;
    const double elapsed = m_services.time.date().unixSeconds() - last->unixSeconds();
    // A last check in the future means that the clock was set back since.
    return std::max(untilRetry, elapsed < 0 ? 0 : checkIntervalSeconds - elapsed);
}

void AppcastUpdater::check() { check(Origin::User); }

void AppcastUpdater::check(Origin origin)
{
    if (origin == Origin::User)
        m_origin = origin;
    if (m_phase == Phase::Asking && origin == Origin::User)
        m_services.user.bringToFront();
    if (m_phase != Phase::Idle)
        return; // The outcome of the check that is under way will answer this one too.

    m_nextCheck.reset(); // It is this one, or will be scheduled again when this one is over.
    m_origin = origin;
    m_retryAt = m_services.time.now() + retrySeconds; // Unless this one succeeds.
    enter(Phase::Loading);
    const QUrl url(feed(), QUrl::StrictMode);
    if (feed().isEmpty() || !url.isValid())
        return abort({ tr("There is no valid update feed."), UpdateError::invalidFeed });
    if (!FeedLoader::isSecure(url))
        return abort({ tr("The update feed is not secure."), UpdateError::insecureFeed });
    m_loader.load(url, u"Orvello/"_s + m_version,
        [this](const Result<QByteArray, QString>& document) { loaded(document); });
}

void AppcastUpdater::loaded(const Result<QByteArray, QString>& document)
{
    if (!document)
        return abort(
            //: %1: why, as a sentence.
            { tr("The update feed cannot be read: %1").arg(document.error()),
                UpdateError::download });
    auto parsed = Appcast::parse(*document, u"linux"_s);
    if (!parsed)
        return abort(
            //: %1: why, as a sentence.
            { tr("The update feed makes no sense: %1").arg(parsed.error()),
                UpdateError::appcastParse });
    QList<AppcastItem> items = std::move(parsed).value();
    noteSuccess();
    // The feed decides what is opened, so it must not be able to start just any program, nor to
    // reach what listens on this machine alone.
    items.removeIf(
        [this](const AppcastItem& item) { return !FeedLoader::mayLead(QUrl(feed()), item.page); });
    const AppcastItem* const item = Appcast::newest(items, m_version);
    const bool isSkipped = item && m_origin == Origin::Schedule
        && DefaultsValue::asString(m_services.defaults.value(skippedKey)) == item->version;
    if (item && !isSkipped)
        offer(*item);
    else
        upToDate();
}

void AppcastUpdater::offer(const AppcastItem& item)
{
    enter(Phase::Asking);
    m_listener->updateFound(updateItem(item));
    m_services.user.showUpdate(
        updateItem(item), [this, item](UpdateChoice choice) { chosen(choice, item); });
    if (m_origin == Origin::User)
        m_services.user.bringToFront();
}

void AppcastUpdater::chosen(UpdateChoice choice, const AppcastItem& item)
{
    const UpdateItem update = updateItem(item);
    m_listener->userChose(choice, update);
    if (choice == UpdateChoice::Skip)
        m_services.defaults.setValue(skippedKey, item.version);
    const QString problem
        = choice == UpdateChoice::Install ? openDownloadPage(item, update) : QString();
    if (!problem.isEmpty())
        m_services.user.showOutcome(problem);
    finish({});
}

/// Returns what went wrong, for the user.
QString AppcastUpdater::openDownloadPage(const AppcastItem& item, const UpdateItem& update)
{
    m_services.defaults.remove(skippedKey);
    m_listener->installing(update);
    if (m_services.desktop.open(item.page))
        return {};
    const QString problem = tr("The download page cannot be opened.");
    m_listener->downloadFailed(update, { problem, UpdateError::download });
    return problem;
}

/// Only a feed that was read and makes sense is a check.
void AppcastUpdater::noteSuccess()
{
    m_retryAt.reset();
    m_services.defaults.setValue(lastCheckKey, m_services.time.date().unixSeconds());
}

void AppcastUpdater::upToDate()
{
    const UpdateError error { tr("Orvello is up to date."), UpdateError::noUpdate };
    m_listener->noUpdateFound(error);
    abort(error);
}

void AppcastUpdater::abort(const UpdateError& error)
{
    m_listener->checkFailed(error);
    finish(error.description);
}

void AppcastUpdater::finish(const QString& outcome)
{
    enter(Phase::Idle);
    if (m_origin == Origin::User && !outcome.isEmpty())
        m_services.user.showOutcome(outcome);
    m_origin = Origin::Schedule;
    scheduleNextCheck();
}

} // namespace Orvello
