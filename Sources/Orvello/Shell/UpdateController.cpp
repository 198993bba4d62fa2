#include "Orvello/Shell/UpdateController.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Platform/UserDefaults.h"

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
    m_services.updater.startUpdater(*this);
    m_services.updater.observeAutomaticChecks([this] {
        // The change may come on any thread, and views listen on the main one.
        QMetaObject::invokeMethod(
            this, &UpdateController::checksAutomaticallyChanged, Qt::QueuedConnection);
    });
    const QString feed
        = feedURLString().value_or(m_services.updater.builtInFeed().value_or(u"?"_s));
    AppLog::write("UPDATES started auto=%d feed=%@", static_cast<int>(checksAutomatically()), feed);
}

void UpdateController::checkForUpdates()
{
    m_services.activateApplication();
    m_services.updater.checkForUpdates();
}

bool UpdateController::checksAutomatically() const
{
    return m_services.updater.automaticallyChecksForUpdates();
}

void UpdateController::setChecksAutomatically(bool on)
{
    m_services.updater.setAutomaticallyChecksForUpdates(on);
    AppLog::write("UPDATES automatic checks -> %d", static_cast<int>(on));
}

std::optional<QString> UpdateController::feedURLString() const
{
    return DefaultsValue::asString(m_services.defaults.value(u"OrvelloAppcastURL"_s));
}

void UpdateController::didFindValidUpdate(const UpdateItem& item)
{
    AppLog::write("UPDATES found %@ (%@)", item.displayVersion, item.version);
}

void UpdateController::didNotFindUpdate(const UpdateError& error)
{
    AppLog::write("UPDATES up to date (%@)", error.description);
}

void UpdateController::userDidMakeChoice(UpdateChoice choice, const UpdateItem& item)
{
    AppLog::write("UPDATES user chose %@ for %@", word(choice), item.displayVersion);
}

void UpdateController::willInstallUpdate(const UpdateItem& item)
{
    AppLog::write("UPDATES installing %@ (%@)", item.displayVersion, item.version);
}

void UpdateController::failedToDownloadUpdate(const UpdateItem& item, const UpdateError& error)
{
    AppLog::write("UPDATES download failed for %@: %@", item.displayVersion, error.description);
}

void UpdateController::didAbortWithError(const UpdateError& error)
{
    // These two are no failures: the one is logged as "up to date", the other is the user's wish.
    if (error.code == UpdateError::noUpdate || error.code == UpdateError::installationCanceled)
        return;
    AppLog::write("UPDATES aborted: %@ (%d)", error.description, error.code);
}

void UpdateController::willScheduleUpdateCheckAfterDelay(double seconds)
{
    constexpr double secondsPerHour = 3600;
    AppLog::write("UPDATES next check in %.0fh", seconds / secondsPerHour);
}

} // namespace Orvello
