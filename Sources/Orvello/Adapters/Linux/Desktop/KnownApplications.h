#pragma once

#include "Orvello/Adapters/Linux/Desktop/X11Windows.h"
#include "Orvello/Platform/Desktop/Workspace.h"

#include <QByteArrayView>
#include <QStringList>

#include <optional>

/// The Linux applications that the product knows, by what the system says about them.
namespace Orvello::KnownApplications {

/// The application that runs as a process of this name (/proc/…/comm, at most 15 bytes), under the
/// bundle identifier that the product knows it by on every platform.
[[nodiscard]] std::optional<RunningApplication> withProcessName(QByteArrayView name);

/// The files by any of which the application lists itself in the desktop's menus; none if it has no
/// known ones.
[[nodiscard]] QStringList desktopEntries(const QString& bundleIdentifier);

/// The application that owns the window; the window's class for an unknown application. Only
/// the windows of a slideshow are LibreOffice Impress's: one in which a deck is edited may fill the
/// screen, too.
[[nodiscard]] QString ownerName(const X11WindowClass& windowClass);

/// The application as the frontmost one when a window of this class is active: for LibreOffice
/// Impress that is any of its windows.
[[nodiscard]] RunningApplication frontmost(const X11WindowClass& windowClass);

} // namespace Orvello::KnownApplications
