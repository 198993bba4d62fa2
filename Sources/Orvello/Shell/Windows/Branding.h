#pragma once

#include <QColor>
#include <QIcon>

/// What the program looks like outside its windows.
namespace Orvello::Branding {

/// The application's icon.
[[nodiscard]] QIcon appIcon();

/// The colour of what is chosen or switched on.
[[nodiscard]] QColor accentColor();

/// For a menu bar that colours its items itself: 18 × 18 points, opaque where it is visible.
[[nodiscard]] QIcon menuBarGlyph();

/// For trays, which show an item as it is, on whatever colour they have.
[[nodiscard]] QIcon trayIcon();

} // namespace Orvello::Branding
