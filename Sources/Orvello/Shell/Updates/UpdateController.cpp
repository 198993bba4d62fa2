#include "Orvello/Shell/Updates/UpdateController.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Foundation/DefaultsValue.h"
#include "Orvello/Platform/Early/UserDefaults.h"

#include <QDateTime>
#include <QLocale>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

const char* word(UpdateChoice choice)
{
    switch (choice) {
    case UpdateChoice::Skip:
        return "skip";
    case UpdateChoice::Install:
        return "install";
    case UpdateChoice::Later:
        return "later";
    }
    return "unknown";
}

} // namespace

UpdateController::UpdateController(Services services, QObject* parent)
    : QObject(parent)
    , m_services(std::move(services))
{
}

void UpdateController::start()
{
    m_services.updater.start(*this);
    m_services.updater.schedule().observe(
        onMainThread(&UpdateController::checksAutomaticallyChanged));
    m_services.updater.observeChecks(onMainThread(&UpdateController::checksChanged));
    Q_EMIT checksChanged(); // The updater has begun to answer.
    const QString feed = feedAddress().value_or(m_services.updater.builtInFeed().value_or(u"?"_s));
    AppLog::write("UPDATES started auto=%d feed=%@", static_cast<int>(checksAutomatically()), feed);
}

/// The updater's changes may come on any thread, and views listen on the main one.
std::function<void()> UpdateController::onMainThread(void (UpdateController::*signal)())
{
    return [this, signal] { QMetaObject::invokeMethod(this, signal, Qt::QueuedConnection); };
}

void UpdateController::checkForUpdates()
{
    m_services.activateApplication();
    m_services.updater.check();
}

bool UpdateController::checksAutomatically() const { return m_services.updater.schedule().isOn(); }

void UpdateController::setChecksAutomatically(bool on)
{
    m_services.updater.schedule().setOn(on);
    AppLog::write("UPDATES automatic checks -> %d", static_cast<int>(on));
}

bool UpdateController::canCheckForUpdates() const { return m_services.updater.canCheck(); }

bool UpdateController::hasFeed() const
{
    return !feedAddress().value_or(m_services.updater.builtInFeed().value_or(QString())).isEmpty();
}

bool UpdateController::mayAskPermission() const
{
    return !m_services.mayAsk || m_services.mayAsk();
}

QString UpdateController::lastCheckText() const
{
    const std::optional<Date> last = m_services.updater.lastCheck();
    if (!last)
        return {};
    constexpr double millisecondsPerSecond = 1000;
    const auto moment = QDateTime::fromMSecsSinceEpoch(
        static_cast<qint64>(last->unixSeconds() * millisecondsPerSecond));
    return QLocale::system().toString(moment, QLocale::ShortFormat);
}

std::optional<QString> UpdateController::feedAddress() const
{
    return DefaultsValue::asString(m_services.defaults.value(u"OrvelloAppcastURL"_s));
}

void UpdateController::updateFound(const UpdateItem& item)
{
    AppLog::write("UPDATES found %@ (%@)", item.displayVersion, item.version);
}

void UpdateController::noUpdateFound(const UpdateError& error)
{
    AppLog::write("UPDATES up to date (%@)", error.description);
}

void UpdateController::userChose(UpdateChoice choice, const UpdateItem& item)
{
    AppLog::write("UPDATES user chose %@ for %@", word(choice), item.displayVersion);
}

void UpdateController::installing(const UpdateItem& item)
{
    AppLog::write("UPDATES installing %@ (%@)", item.displayVersion, item.version);
}

void UpdateController::downloadFailed(const UpdateItem& item, const UpdateError& error)
{
    AppLog::write("UPDATES download failed for %@: %@", item.displayVersion, error.description);
}

void UpdateController::checkFailed(const UpdateError& error)
{
    // These two are no failures: the one is logged as "up to date", the other is the user's wish.
    if (error.code == UpdateError::noUpdate || error.code == UpdateError::installationCanceled)
        return;
    AppLog::write("UPDATES aborted: %@ (%d)", error.description, error.code);
}

void UpdateController::checkScheduled(double seconds)
{
    constexpr double secondsPerHour = 3600;
    AppLog::write("UPDATES next check in %.0fh", seconds / secondsPerHour);
}

} // namespace Orvello
