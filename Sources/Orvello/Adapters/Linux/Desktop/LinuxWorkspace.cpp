#include "Orvello/Adapters/Linux/Desktop/LinuxWorkspace.h"

#include "Orvello/Adapters/Linux/Desktop/KnownApplications.h"
#include "Orvello/Adapters/Linux/Desktop/X11Windows.h"

#include <QFileInfo>
#include <QStandardPaths>

#include <algorithm>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

LinuxWorkspace::LinuxWorkspace(
    const X11Windows& windows, std::string processTable, QStringList applicationFolders)
    : m_windows(windows)
    , m_processes(std::move(processTable))
    , m_applicationFolders(std::move(applicationFolders))
{
}

QStringList LinuxWorkspace::desktopEntryFolders()
{
    QStringList folders = QStandardPaths::standardLocations(QStandardPaths::ApplicationsLocation);
    // In sessions that were not started by a login shell no variable names these two.
    folders.append({ QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation)
            + u"/flatpak/exports/share/applications"_s,
        u"/var/lib/flatpak/exports/share/applications"_s,
        u"/var/lib/snapd/desktop/applications"_s });
    return folders;
}

QList<RunningApplication> LinuxWorkspace::runningApplications() const
{
    return m_processes.knownApplications();
}

std::optional<RunningApplication> LinuxWorkspace::frontmostApplication() const
{
    const auto windowClass = m_windows.activeWindowClass();
    return windowClass ? std::optional(KnownApplications::frontmost(*windowClass)) : std::nullopt;
}

bool LinuxWorkspace::isInstalled(const QString& bundleIdentifier) const
{
    const auto hasEntry = [this](const QString& entry) {
        return std::ranges::any_of(m_applicationFolders,
            [&](const QString& folder) { return QFileInfo::exists(folder + u'/' + entry); });
    };
    return std::ranges::any_of(KnownApplications::desktopEntries(bundleIdentifier), hasEntry);
}

} // namespace Orvello
