#include "Orvello/Platform/Linux/X11Tray.h"

#include "Orvello/Platform/Linux/Xcb.h"

#include <QSocketNotifier>

#include <string>
#include <utility>
#include <xcb/xcb.h>

namespace Orvello {

namespace {

void hearStructureOf(xcb_connection_t* connection, xcb_window_t window)
{
    constexpr std::uint32_t mask = XCB_EVENT_MASK_STRUCTURE_NOTIFY;
    xcb_change_window_attributes(connection, window, XCB_CW_EVENT_MASK, &mask);
}

xcb_window_t rootOfScreen(xcb_connection_t* connection, int number)
{
    auto screen = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (; number > 0 && screen.rem > 1; --number)
        xcb_screen_next(&screen);
    return screen.data->root;
}

} // namespace

X11Tray::X11Tray()
{
    int screen = 0;
    m_connection = xcb_connect(nullptr, &screen);
    if (xcb_connection_has_error(m_connection))
        return;
    m_selection = Xcb::atomNamed(m_connection, "_NET_SYSTEM_TRAY_S" + std::to_string(screen));
    // A new tray announces itself with a message to the root window, which this mask lets through.
    hearStructureOf(m_connection, rootOfScreen(m_connection, screen));
    m_notifier = std::make_unique<QSocketNotifier>(
        xcb_get_file_descriptor(m_connection), QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &X11Tray::readEvents);
    findOwner();
}

X11Tray::~X11Tray()
{
    m_notifier.reset();
    xcb_disconnect(m_connection);
}

void X11Tray::readEvents()
{
    bool isTold = false;
    while (const auto event = Xcb::owned(xcb_poll_for_event(m_connection))) {
        const int type = event->response_type & 0x7F; // Without the mark of a sent event.
        isTold = isTold || type == XCB_CLIENT_MESSAGE || type == XCB_DESTROY_NOTIFY;
    }
    if (xcb_connection_has_error(m_connection))
        m_notifier->setEnabled(false);
    else if (isTold)
        findOwner();
}

void X11Tray::findOwner()
{
    const auto reply = Xcb::owned(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, m_selection), nullptr));
    const xcb_window_t owner = reply ? reply->owner : xcb_window_t { XCB_WINDOW_NONE };
    if (std::exchange(m_owner, owner) == owner)
        return;
    if (owner != XCB_WINDOW_NONE)
        hearStructureOf(m_connection, owner);
    xcb_flush(m_connection);
    Q_EMIT changed();
}

} // namespace Orvello
