#include "Orvello/Adapters/Linux/Desktop/X11StackingGuard.h"

#include "Orvello/Adapters/Linux/Desktop/Xcb.h"

#include <QRect>
#include <QSocketNotifier>

#include <algorithm>
#include <array>
#include <span>
#include <xcb/xcb.h>

namespace Orvello {

using Xcb::atomNamed;
using Xcb::owned;

namespace {

constexpr std::uint8_t sentEventBit = 0x80; // Set in the type of events that a client sent.

/// Managers nest a client in a frame, or in a frame and a wrapper.
constexpr int deepestClient = 2;

} // namespace

X11StackingGuard::X11StackingGuard(std::uint32_t window, std::uint32_t shadow)
    : m_window(window)
    , m_shadow(shadow)
    , m_connection(xcb_connect(nullptr, nullptr))
{
    if (xcb_connection_has_error(m_connection))
        return;
    m_managedStateAtom = atomNamed(m_connection, "WM_STATE");
    const std::uint32_t events = XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    for (auto screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)); screen.rem > 0;
         xcb_screen_next(&screen))
        xcb_change_window_attributes(m_connection, screen.data->root, XCB_CW_EVENT_MASK, &events);
    xcb_flush(m_connection);

    m_notifier = std::make_unique<QSocketNotifier>(
        xcb_get_file_descriptor(m_connection), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &X11StackingGuard::readEvents);
}

X11StackingGuard::~X11StackingGuard()
{
    m_notifier.reset();
    xcb_disconnect(m_connection);
}

void X11StackingGuard::settle()
{
    const std::vector<xcb_window_t> windows = rootWindows();
    const auto topmost
        = std::find_if(windows.rbegin(), windows.rend(), [this](xcb_window_t window) {
              return window != m_window && window != m_shadow && isShownAndManaged(window);
          });
    if (topmost != windows.rend())
        placeAbove(*topmost);
    placeShadow();
    xcb_flush(m_connection);
}

/// From bottom to top.
std::vector<std::uint32_t> X11StackingGuard::rootWindows() const
{
    const auto treeOf = [this](xcb_window_t window) {
        return owned(
            xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
    };
    const auto own = treeOf(m_window);
    const auto tree = treeOf(own ? own->root : xcb_window_t(XCB_WINDOW_NONE));
    if (!tree)
        return {};
    const xcb_window_t* const first = xcb_query_tree_children(tree.get());
    return { first, first + xcb_query_tree_children_length(tree.get()) };
}

bool X11StackingGuard::isShownAndManaged(std::uint32_t window) const
{
    const auto attributes = owned(xcb_get_window_attributes_reply(
        m_connection, xcb_get_window_attributes(m_connection, window), nullptr));
    return attributes && attributes->map_state == XCB_MAP_STATE_VIEWABLE
        && holdsManagedWindow(window, deepestClient);
}

/// Whether it hides some of the panel.
bool X11StackingGuard::covers(std::uint32_t window) const
{
    const auto area = [this](xcb_window_t drawable) {
        const auto geometry = owned(xcb_get_geometry_reply(
            m_connection, xcb_get_geometry(m_connection, drawable), nullptr));
        return geometry ? QRect(geometry->x, geometry->y, geometry->width, geometry->height)
                        : QRect();
    };
    const std::vector<xcb_window_t> windows = rootWindows();
    const auto panel = std::ranges::find(windows, m_window);
    return std::find(panel, windows.end(), window) != windows.end()
        && area(window).intersects(area(m_window));
}

void X11StackingGuard::placeAbove(std::uint32_t window)
{
    const std::array<std::uint32_t, 2> values { window, XCB_STACK_MODE_ABOVE };
    xcb_configure_window(m_connection, m_window,
        XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, values.data());
    placeShadow();
}

void X11StackingGuard::placeShadow()
{
    const std::array<std::uint32_t, 2> values { m_window, XCB_STACK_MODE_BELOW };
    xcb_configure_window(m_connection, m_shadow,
        XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, values.data());
}

void X11StackingGuard::readEvents()
{
    while (const auto event = owned(xcb_poll_for_event(m_connection))) {
        const auto type = static_cast<std::uint8_t>(event->response_type & ~sentEventBit);
        if (type == XCB_CONFIGURE_NOTIFY) {
            const auto& change = reinterpret_cast<const xcb_configure_notify_event_t&>(*event);
            restacked(change.window, change.override_redirect != 0);
        } else if (type == XCB_MAP_NOTIFY) {
            const auto& change = reinterpret_cast<const xcb_map_notify_event_t&>(*event);
            restacked(change.window, change.override_redirect != 0);
        }
    }
    xcb_flush(m_connection);
    if (xcb_connection_has_error(m_connection))
        m_notifier->setEnabled(false); // The display is gone, and with it the window.
}

void X11StackingGuard::restacked(std::uint32_t window, bool isOverrideRedirect)
{
    if (window == m_window || window == m_shadow)
        return;
    // Some managers make the frames of managed windows override-redirect, so the flag alone proves
    // nothing.
    if (isOverrideRedirect && !holdsManagedWindow(window, deepestClient))
        return;
    // Not to the top: what nobody manages may lie above that window, and belongs there.
    if (covers(window))
        placeAbove(window);
}

bool X11StackingGuard::holdsManagedWindow(std::uint32_t window, int depth) const
{
    if (isManaged(window))
        return true;
    if (depth == 0)
        return false;
    const auto tree
        = owned(xcb_query_tree_reply(m_connection, xcb_query_tree(m_connection, window), nullptr));
    if (!tree)
        return false;
    const std::span children(xcb_query_tree_children(tree.get()),
        static_cast<std::size_t>(xcb_query_tree_children_length(tree.get())));
    return std::ranges::any_of(
        children, [&](xcb_window_t child) { return holdsManagedWindow(child, depth - 1); });
}

bool X11StackingGuard::isManaged(std::uint32_t window) const
{
    const auto request = xcb_get_property(
        m_connection, 0, window, m_managedStateAtom, XCB_GET_PROPERTY_TYPE_ANY, 0, 0);
    const auto property = owned(xcb_get_property_reply(m_connection, request, nullptr));
    return property && property->type != XCB_ATOM_NONE;
}

} // namespace Orvello
