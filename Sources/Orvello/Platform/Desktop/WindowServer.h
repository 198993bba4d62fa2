#pragma once

#include <QList>
#include <QRectF>
#include <QString>

#include <optional>

namespace Orvello {

/// One window as the window server sees it.
struct WindowOnScreen {
    QString ownerName; ///< The application's name; empty when unknown.
    std::optional<QRectF> bounds; ///< In the coordinates of Screens.
};

/// What is on the user's screens. Main thread. Reads the state afresh at every call.
class WindowServer {
public:
    virtual ~WindowServer() = default;

    /// The visible windows from front to back, without the desktop's own; nothing when the window
    /// server does not say.
    virtual std::optional<QList<WindowOnScreen>> windowsOnScreen() const = 0;

    /// The size of every screen in points, in the system's order.
    virtual QList<QSizeF> screenSizes() const = 0;
};

} // namespace Orvello
