#pragma once

#include "Orvello/Platform/Desktop/WindowServer.h"

namespace Orvello {

class X11Windows;

/// The client windows and the monitors of the X display, in root coordinates.
class X11WindowServer final : public WindowServer {
public:
    explicit X11WindowServer(const X11Windows& windows); ///< `windows` must outlive it.

    std::optional<QList<WindowOnScreen>> windowsOnScreen() const override;
    QList<QSizeF> screenSizes() const override;

private:
    const X11Windows& m_windows;
};

} // namespace Orvello
