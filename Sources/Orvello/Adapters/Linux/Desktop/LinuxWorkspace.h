#pragma once

#include "Orvello/Adapters/Linux/Desktop/ProcessTable.h"
#include "Orvello/Platform/Desktop/Workspace.h"

#include <QStringList>

#include <string>

namespace Orvello {

class X11Windows;

/// The running applications by the process table, as far as the product knows them; the frontmost
/// one by the active X window; the installed ones by their desktop entries.
class LinuxWorkspace final : public Workspace {
public:
    /// `windows` must outlive the workspace. `processTable` is where the proc(5) file system is.
    explicit LinuxWorkspace(const X11Windows& windows, std::string processTable = "/proc",
        QStringList applicationFolders = desktopEntryFolders());

    /// Where desktop entries of the system, of the user, of Flatpak and of snaps lie.
    static QStringList desktopEntryFolders();

    QList<RunningApplication> runningApplications() const override;
    std::optional<RunningApplication> frontmostApplication() const override;
    bool isInstalled(const QString& bundleIdentifier) const override;

private:
    const X11Windows& m_windows;
    mutable ProcessTable m_processes; ///< Mutable because what it remembers only saves work.
    const QStringList m_applicationFolders;
};

} // namespace Orvello
