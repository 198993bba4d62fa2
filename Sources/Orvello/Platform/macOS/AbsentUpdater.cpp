#include "Orvello/Platform/macOS/AbsentUpdater.h"

#include "Orvello/Diagnostics/AppLog.h"

#include <utility>

namespace Orvello {

AbsentUpdater::AbsentUpdater(QString reason)
    : m_reason(std::move(reason))
{
}

void AbsentUpdater::startUpdater(UpdaterDelegate&) { logAbsence(); }

void AbsentUpdater::checkForUpdates() { logAbsence(); }

void AbsentUpdater::logAbsence() const { AppLog::write("UPDATES unavailable: %@", m_reason); }

} // namespace Orvello
