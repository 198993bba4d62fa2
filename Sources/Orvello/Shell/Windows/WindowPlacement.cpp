#include "Orvello/Shell/Windows/WindowPlacement.h"

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
    constexpr const char* wasPlaced = "wasPlaced";
    if (!window.property(wasPlaced).toBool()) {
        window.setProperty(wasPlaced, true);
        window.setGeometry(centered(window.size(), window.screen()->availableGeometry()));
    }
    // QWindow::show() would also end a maximized or full-screen state.
    window.setWindowStates(window.windowStates() & ~Qt::WindowStates(Qt::WindowMinimized));
    window.setVisible(true);
    window.raise();
    window.requestActivate();
}

void bringToFront(QWindow& window, const QSize& wanted)
{
    if (!window.isVisible()) {
        const QSize size = centered(wanted, window.screen()->availableGeometry()).size();
        window.setMinimumSize(size);
        window.setMaximumSize(size);
        window.resize(size);
    }
    bringToFront(window);
}

} // namespace Orvello::WindowPlacement
