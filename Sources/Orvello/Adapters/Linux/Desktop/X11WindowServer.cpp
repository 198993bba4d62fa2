#include "Orvello/Adapters/Linux/Desktop/X11WindowServer.h"

#include "Orvello/Adapters/Linux/Desktop/KnownApplications.h"
#include "Orvello/Adapters/Linux/Desktop/X11Windows.h"

namespace Orvello {

X11WindowServer::X11WindowServer(const X11Windows& windows)
    : m_windows(windows)
{
}

std::optional<QList<WindowOnScreen>> X11WindowServer::windowsOnScreen() const
{
    const auto windows = m_windows.fromTop();
    if (!windows)
        return std::nullopt;
    QList<WindowOnScreen> list;
    for (const X11Windows::Window& window : *windows)
        list.append({ KnownApplications::ownerName(window.windowClass), window.bounds });
    return list;
}

QList<QSizeF> X11WindowServer::screenSizes() const { return m_windows.monitorSizes(); }

} // namespace Orvello
