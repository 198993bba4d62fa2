#pragma once

#include "Orvello/Shell/Commands/ShellWindows.h"

#include <QRect>
#include <QSize>

class QWindow;

/// Where the program's ordinary windows come up.
namespace Orvello::WindowPlacement {

/// The height of a title bar, which the system does not reveal before it has drawn one.
inline constexpr int titleBarHeight = 40;

/// The sizes of a window's content: what it is made for, and what it can do with.
struct Sizes {
    QSize wanted;
    QSize smallest;
};

/// A content of that size in the middle of the free part of a screen, no larger than fits there
/// together with its title bar.
[[nodiscard]] QRect centered(const QSize& wanted, const QRect& available);

/// The same clear of the panel: in the middle where that is free, else beside, below or above the
/// panel, where there is most room, and smaller if need be. Empty where there is no such place.
[[nodiscard]] QRect clearOf(const QRect& panel, const Sizes& sizes, const QRect& available);

/// Shows the window in front of all others and gives it the keyboard. If it was not open, it comes
/// up clear of the panel, where it was if that will do. Where there is no such place, the panel
/// steps aside until the window closes.
void bringToFront(QWindow& window, const Sizes& sizes, const PanelSpace& panel);

/// The same for a window whose size the user cannot change.
void bringToFrontFixed(QWindow& window, const Sizes& sizes, const PanelSpace& panel);

} // namespace Orvello::WindowPlacement
