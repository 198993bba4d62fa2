#pragma once

#include <QRect>
#include <QSize>

class QWindow;

/// Where the program's ordinary windows come up.
namespace Orvello::WindowPlacement {

/// The height of a title bar, which the system does not reveal before it has drawn one.
inline constexpr int titleBarHeight = 40;

/// A content of that size in the middle of the free part of a screen, no larger than fits there
/// together with its title bar.
[[nodiscard]] QRect centered(const QSize& wanted, const QRect& available);

/// Shows the window in front of all others and gives it the keyboard. The first time, it is centred
/// on its screen.
void bringToFront(QWindow& window);

/// The same for a window of fixed size, which is smaller on a screen where it does not fit.
void bringToFront(QWindow& window, const QSize& wanted);

} // namespace Orvello::WindowPlacement
