#include "Orvello/Shell/WindowPlacement.h"

#include <QScreen>
#include <QVariant>
#include <QWindow>

namespace Orvello::WindowPlacement {

QRect centered(const QSize& wanted, const QRect& available)
{
    const QRect free = available.adjusted(0, titleBarHeight, 0, 0);
    QRect content(QPoint(), wanted.boundedTo(free.size()));
    content.moveCenter(available.center());
    content.moveTop(qMax(content.top(), free.top()));
    return content;
}

void bringToFront(QWindow& window)
{
    // QWindow::show() would also end a maximized or full-screen state.
    window.setWindowStates(window.windowStates() & ~Qt::WindowStates(Qt::WindowMinimized));
    window.setVisible(true);
    window.raise();
    window.requestActivate();
}

void bringToFront(QWindow& window, const QSize& wanted)
{
    const QRect place = centered(wanted, window.screen()->availableGeometry());
    if (!window.isVisible()) {
        window.setMinimumSize(place.size());
        window.setMaximumSize(place.size());
        window.resize(place.size());
    }
    const bool isFirstTime = !window.property("wasPlaced").toBool();
    if (isFirstTime) {
        window.setProperty("wasPlaced", true);
        window.setPosition(place.topLeft());
    }
    bringToFront(window);
}

} // namespace Orvello::WindowPlacement
