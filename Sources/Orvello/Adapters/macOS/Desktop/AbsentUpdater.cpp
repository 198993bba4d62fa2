#include "Orvello/Adapters/macOS/Desktop/AbsentUpdater.h"

#include "Orvello/Adapters/macOS/Desktop/MacUpdater.h"
#include "Orvello/Diagnostics/AppLog.h"

#include <utility>

namespace Orvello {

AbsentUpdater::AbsentUpdater(QString reason)
    : m_reason(std::move(reason))
{
}

void AbsentUpdater::start(UpdateListener&) { logAbsence(); }

void AbsentUpdater::check() { logAbsence(); }

void AbsentUpdater::setOn(bool)
{
    for (const auto& changed : m_observers)
        changed();
}

void AbsentUpdater::observe(std::function<void()> changed)
{
    m_observers.push_back(std::move(changed));
}

std::optional<QString> AbsentUpdater::builtInFeed() const { return feedOfBundle(); }

void AbsentUpdater::logAbsence() const { AppLog::write("UPDATES unavailable: %@", m_reason); }

} // namespace Orvello
