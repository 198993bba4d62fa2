#include "Orvello/Shell/Windows/WindowPlacement.h"

#include <QScreen>
#include <QVariant>
#include <QWindow>

#include <array>

namespace Orvello::WindowPlacement {

namespace {

/// Between a window's frame and what it keeps clear of.
constexpr int gap = 8;

constexpr int largest = 16'777'215; ///< What Qt takes for no limit.

} // namespace

QRect centered(const QSize& wanted, const QRect& available)
{
    // Below its content a frame has an edge, which no window may leave outside.
    const QRect free = available.adjusted(0, titleBarHeight, 0, -gap);
    QRect content(QPoint(), wanted.boundedTo(free.size()));
    content.moveCenter(available.center());
    content.moveTop(qMax(content.top(), free.top()));
    return content;
}

QRect clearOf(const QRect& panel, const Sizes& sizes, const QRect& available)
{
    const auto withFrame
        = [](const QRect& content) { return content.adjusted(-gap, -titleBarHeight, gap, gap); };
    const QRect middle = centered(sizes.wanted, available);
    if (!withFrame(middle).intersects(panel))
        return middle;

    const std::array regions {
        available.adjusted(0, panel.bottom() + 1 - available.top(), 0, 0), // Below.
        available.adjusted(0, 0, panel.left() - available.right() - 1, 0),
        available.adjusted(panel.right() + 1 - available.left(), 0, 0, 0),
        available.adjusted(0, 0, 0, panel.top() - available.bottom() - 1), // Above.
    };
    QRect best;
    for (const QRect& region : regions) {
        const QRect free
            = region.intersected(available).adjusted(gap, titleBarHeight + gap, -gap, -gap);
        QRect content(QPoint(), sizes.wanted.boundedTo(free.size()));
        if (content.width() < sizes.smallest.width() || content.height() < sizes.smallest.height())
            continue;
        content.moveCenter(middle.center());
        content.moveLeft(qBound(free.left(), content.left(), free.right() + 1 - content.width()));
        content.moveTop(qBound(free.top(), content.top(), free.bottom() + 1 - content.height()));
        if (content.width() * content.height() > best.width() * best.height())
            best = content;
    }
    return best;
}

namespace {

/// Whether a window that was closed may open again where it was.
bool mayStay(const QRect& content, const QSize& wanted, const QRect& panel, const QRect& available)
{
    const QRect frame = content.adjusted(0, -titleBarHeight, 0, 0);
    return content.size() == wanted && available.contains(frame) && !frame.intersects(panel);
}

void stepAsideFor(QWindow& window, const PanelSpace& panel)
{
    panel.stepAside();
    auto* const closing = new QObject(&window);
    QObject::connect(&window, &QWindow::visibleChanged, closing, [closing, panel](bool isVisible) {
        if (isVisible)
            return;
        closing->deleteLater();
        panel.comeBack();
    });
}

/// Puts a window that is not open where it comes up.
void place(QWindow& window, const Sizes& sizes, const PanelSpace& panel)
{
    constexpr const char* wasPlaced = "wasPlaced";
    const QRect available = window.screen()->availableGeometry();
    const QRect panelFrame = panel.frame().toAlignedRect();
    const bool isFirst = !window.property(wasPlaced).toBool();
    window.setProperty(wasPlaced, true);
    if (!isFirst && mayStay(window.geometry(), sizes.wanted, panelFrame, available))
        return;
    const QRect content = clearOf(panelFrame, sizes, available);
    if (content.isEmpty() && !panelFrame.isEmpty())
        stepAsideFor(window, panel);
    window.setGeometry(content.isEmpty() ? centered(sizes.wanted, available) : content);
}

bool isOpen(const QWindow& window)
{
    return window.isVisible() || (window.windowStates() & Qt::WindowMaximized) != 0;
}

void showInFront(QWindow& window)
{
    // QWindow::show() would also end a maximized or full-screen state.
    window.setWindowStates(window.windowStates() & ~Qt::WindowStates(Qt::WindowMinimized));
    window.setVisible(true);
    window.raise();
    window.requestActivate();
}

} // namespace

void bringToFront(QWindow& window, const Sizes& sizes, const PanelSpace& panel)
{
    if (!isOpen(window))
        place(window, sizes, panel);
    showInFront(window);
}

void bringToFrontFixed(QWindow& window, const Sizes& sizes, const PanelSpace& panel)
{
    if (!isOpen(window)) {
        window.setMinimumSize({});
        window.setMaximumSize({ largest, largest });
        place(window, sizes, panel);
        window.setMinimumSize(window.size());
        window.setMaximumSize(window.size());
    }
    showInFront(window);
}

} // namespace Orvello::WindowPlacement
