#include "Orvello/Presentations/Presenters/PresenterApp.h"

#include <algorithm>

namespace Orvello {

namespace {

const PresenterApp* firstWith(const std::deque<PresenterApp>& apps, QString PresenterApp::*field,
    const std::optional<QString>& value)
{
    const auto found = std::find_if(
        apps.begin(), apps.end(), [&](const PresenterApp& app) { return app.*field == value; });
    return found == apps.end() ? nullptr : &*found;
}

} // namespace

const PresenterApp* PresenterTable::named(const std::optional<QString>& displayName) const
{
    return firstWith(m_apps, &PresenterApp::displayName, displayName);
}

const PresenterApp* PresenterTable::identifiedBy(
    const std::optional<QString>& bundleIdentifier) const
{
    return firstWith(m_apps, &PresenterApp::bundleIdentifier, bundleIdentifier);
}

} // namespace Orvello
