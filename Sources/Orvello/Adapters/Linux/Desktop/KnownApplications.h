#pragma once

#include "Orvello/Adapters/Linux/Desktop/X11Windows.h"
#include "Orvello/Platform/Desktop/Workspace.h"

#include <QByteArrayView>
#include <QStringList>

#include <optional>

/// The Linux applications that the product knows, by what the system tells about them.
namespace Orvello::KnownApplications {

/// The application that runs as a process of this name (/proc/…/comm, at most 15 bytes), under the
/// bundle identifier that the product knows it by on every platform.
[[nodiscard]] std::optional<RunningApplication> withProcessName(QByteArrayView name);

/// The files by any of which the application lists itself in the desktop's menus; none for one that
/// is not known by them.
[[nodiscard]] QStringList desktopEntries(const QString& bundleIdentifier);

/// Whose window it is; the window's class itself for an application that is not known.
[[nodiscard]] QString ownerName(const X11WindowClass& windowClass);

/// The application as the frontmost one when a window of this class is active. LibreOffice Impress
/// counts as itself only by its slideshow's windows: nobody presents from a document window.
[[nodiscard]] RunningApplication frontmost(const X11WindowClass& windowClass);

} // namespace Orvello::KnownApplications
