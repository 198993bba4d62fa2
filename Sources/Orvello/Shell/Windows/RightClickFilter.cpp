#include "Orvello/Shell/Windows/RightClickFilter.h"

#include <QMouseEvent>

#include <utility>

namespace Orvello {

RightClickFilter::RightClickFilter(QObject& window, std::function<void()> action)
    : m_action(std::move(action))
{
    window.installEventFilter(this);
}

bool RightClickFilter::eventFilter(QObject*, QEvent* event)
{
    // At the release: a menu that opens at the press would take the release for a choice.
    const auto type = event->type();
    if (type != QEvent::MouseButtonPress && type != QEvent::MouseButtonRelease)
        return false;
    if (static_cast<const QMouseEvent&>(*event).button() != Qt::RightButton)
        return false;
    if (type == QEvent::MouseButtonRelease)
        m_action();
    return true;
}

} // namespace Orvello
