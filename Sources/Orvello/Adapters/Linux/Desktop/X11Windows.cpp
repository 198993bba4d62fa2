#include "Orvello/Adapters/Linux/Desktop/X11Windows.h"

#include "Orvello/Adapters/Linux/Desktop/Xcb.h"

#include <QByteArrayView>

#include <algorithm>
#include <span>
#include <xcb/randr.h>
#include <xcb/xcb.h>

namespace Orvello {

using Xcb::atomNamed;
using Xcb::owned;

namespace {

constexpr std::uint32_t longestList = 65536; ///< The longest property read, in units of four bytes.
constexpr std::uint32_t longestClass = 256;

using PropertyReply = Xcb::Owned<xcb_get_property_reply_t>;

xcb_get_property_cookie_t requestProperty(xcb_connection_t* connection, xcb_window_t window,
    xcb_atom_t property, xcb_atom_t type, std::uint32_t length)
{
    return xcb_get_property(connection, 0, window, property, type, 0, length);
}

PropertyReply received(xcb_connection_t* connection, xcb_get_property_cookie_t request)
{
    return owned(xcb_get_property_reply(connection, request, nullptr));
}

/// The elements of a property in 32-bit format; none for any other.
std::span<const std::uint32_t> elements(const PropertyReply& reply)
{
    if (!reply || reply->format != 32)
        return {};
    return { static_cast<const std::uint32_t*>(xcb_get_property_value(reply.get())),
        reply->value_len };
}

X11WindowClass windowClass(const PropertyReply& reply)
{
    if (!reply || reply->format != 8)
        return {};
    const QByteArrayView value(static_cast<const char*>(xcb_get_property_value(reply.get())),
        static_cast<qsizetype>(reply->value_len));
    const auto terminator = std::find(value.begin(), value.end(), '\0');
    const auto next = terminator == value.end() ? terminator : terminator + 1;
    const auto end = std::find(next, value.end(), '\0');
    return { QString::fromLatin1(QByteArrayView(value.begin(), terminator)),
        QString::fromLatin1(QByteArrayView(next, end)) };
}

/// Everything that is asked about one window, sent before the first answer is waited for.
struct WindowRequests {
    xcb_get_window_attributes_cookie_t attributes;
    xcb_get_geometry_cookie_t geometry;
    xcb_translate_coordinates_cookie_t origin;
    xcb_get_property_cookie_t windowClass;
    xcb_get_property_cookie_t type;
};

} // namespace

void X11Windows::ConnectionCloser::operator()(xcb_connection_t* connection) const
{
    xcb_disconnect(connection);
}

X11Windows::X11Windows()
{
    int screenNumber = 0;
    m_connection.reset(xcb_connect(nullptr, &screenNumber));
    if (xcb_connection_has_error(m_connection.get()))
        return;
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection.get()));
    for (; screenNumber > 0 && screen.rem > 1; --screenNumber)
        xcb_screen_next(&screen);
    m_root = screen.data->root;
    m_activeWindowAtom = atomNamed(m_connection.get(), "_NET_ACTIVE_WINDOW");
    m_stackingAtom = atomNamed(m_connection.get(), "_NET_CLIENT_LIST_STACKING");
    m_windowTypeAtom = atomNamed(m_connection.get(), "_NET_WM_WINDOW_TYPE");
    m_desktopTypeAtom = atomNamed(m_connection.get(), "_NET_WM_WINDOW_TYPE_DESKTOP");
}

X11Windows::~X11Windows() = default;

std::optional<std::vector<std::uint32_t>> X11Windows::rootWindows(
    std::uint32_t property, std::uint32_t type) const
{
    xcb_connection_t* connection = m_connection.get();
    const auto reply
        = received(connection, requestProperty(connection, m_root, property, type, longestList));
    if (!reply || reply->type != type)
        return std::nullopt;
    const auto windows = elements(reply);
    return std::vector(windows.begin(), windows.end());
}

std::optional<X11WindowClass> X11Windows::activeWindowClass() const
{
    xcb_connection_t* connection = m_connection.get();
    const auto active = rootWindows(m_activeWindowAtom, XCB_ATOM_WINDOW);
    if (!active || active->empty() || active->front() == XCB_WINDOW_NONE)
        return std::nullopt;
    const auto reply = received(connection,
        requestProperty(
            connection, active->front(), XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, longestClass));
    return reply ? std::optional(windowClass(reply)) : std::nullopt;
}

std::optional<std::vector<X11Windows::Window>> X11Windows::fromTop() const
{
    xcb_connection_t* connection = m_connection.get();
    auto stacking = rootWindows(m_stackingAtom, XCB_ATOM_WINDOW);
    if (!stacking)
        return std::nullopt;
    std::ranges::reverse(*stacking);

    std::vector<WindowRequests> requests;
    requests.reserve(stacking->size());
    for (const xcb_window_t window : *stacking) {
        requests.push_back({
            xcb_get_window_attributes(connection, window),
            xcb_get_geometry(connection, window),
            xcb_translate_coordinates(connection, window, m_root, 0, 0),
            requestProperty(connection, window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, longestClass),
            requestProperty(connection, window, m_windowTypeAtom, XCB_ATOM_ATOM, longestClass),
        });
    }

    std::vector<Window> windows;
    for (const WindowRequests& request : requests) {
        const auto attributes
            = owned(xcb_get_window_attributes_reply(connection, request.attributes, nullptr));
        const auto geometry = owned(xcb_get_geometry_reply(connection, request.geometry, nullptr));
        const auto origin
            = owned(xcb_translate_coordinates_reply(connection, request.origin, nullptr));
        const auto classReply = received(connection, request.windowClass);
        const auto typeReply = received(connection, request.type);
        if (!attributes || attributes->map_state != XCB_MAP_STATE_VIEWABLE || !geometry || !origin)
            continue; // Iconified, on another workspace, or gone since the list was read.
        if (std::ranges::find(elements(typeReply), m_desktopTypeAtom) != elements(typeReply).end())
            continue;
        windows.push_back({ windowClass(classReply),
            QRectF(origin->dst_x, origin->dst_y, geometry->width, geometry->height) });
    }
    return windows;
}

QList<QSizeF> X11Windows::monitorSizes() const
{
    xcb_connection_t* connection = m_connection.get();
    const auto reply = owned(xcb_randr_get_monitors_reply(
        connection, xcb_randr_get_monitors(connection, m_root, 1), nullptr));
    QList<QSizeF> sizes;
    if (!reply)
        return sizes;
    for (auto monitor = xcb_randr_get_monitors_monitors_iterator(reply.get()); monitor.rem > 0;
         xcb_randr_monitor_info_next(&monitor))
        sizes.append(QSizeF(monitor.data->width, monitor.data->height));
    return sizes;
}

} // namespace Orvello
