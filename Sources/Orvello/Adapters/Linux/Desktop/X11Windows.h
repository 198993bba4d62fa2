#pragma once

#include <QList>
#include <QRectF>
#include <QString>

#include <cstdint>
#include <memory>
#include <optional>
#include <vector>

struct xcb_connection_t;

namespace Orvello {

/// The two texts of WM_CLASS, by which a window names its application. Empty when it does not.
struct X11WindowClass {
    QString instance;
    QString name;
};

/// What the window manager publishes about the client windows (the EWMH properties of the root
/// window), read over a connection of its own. Main thread. Once the connection is lost, every
/// function finds nothing.
class X11Windows {
public:
    struct Window {
        X11WindowClass windowClass;
        QRectF bounds; ///< Without the manager's frame, in root coordinates.
    };

    X11Windows();
    ~X11Windows();
    X11Windows(const X11Windows&) = delete;
    X11Windows& operator=(const X11Windows&) = delete;

    /// The class of the window that has the user's attention.
    std::optional<X11WindowClass> activeWindowClass() const;

    /// The mapped client windows without the desktop's own, from top to bottom; nothing without a
    /// window manager that publishes them.
    std::optional<std::vector<Window>> fromTop() const;

    /// The size of every active monitor, in the server's order.
    QList<QSizeF> monitorSizes() const;

private:
    struct ConnectionCloser {
        void operator()(xcb_connection_t* connection) const;
    };

    std::optional<std::vector<std::uint32_t>> rootWindows(
        std::uint32_t property, std::uint32_t type) const;

    std::unique_ptr<xcb_connection_t, ConnectionCloser> m_connection;
    std::uint32_t m_root = 0;
    std::uint32_t m_activeWindowAtom = 0;
    std::uint32_t m_stackingAtom = 0;
    std::uint32_t m_windowTypeAtom = 0;
    std::uint32_t m_desktopTypeAtom = 0;
};

} // namespace Orvello
