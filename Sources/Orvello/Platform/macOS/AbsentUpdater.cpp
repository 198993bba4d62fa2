#include "Orvello/Platform/macOS/AbsentUpdater.h"

#include "Orvello/Diagnostics/AppLog.h"

namespace Orvello {

namespace {

void logAbsence() { AppLog::write("UPDATES unavailable: Sparkle.framework is not in this build"); }

} // namespace

void AbsentUpdater::startUpdater(UpdaterDelegate&) { logAbsence(); }

void AbsentUpdater::checkForUpdates() { logAbsence(); }

} // namespace Orvello
