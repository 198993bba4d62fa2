#include "Orvello/Adapters/Linux/Desktop/X11Tray.h"

#include "Orvello/Adapters/Linux/Desktop/Xcb.h"

#include <QSocketNotifier>

#include <string>
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
    QMetaObject::invokeMethod(this, &X11Tray::readEvents, Qt::QueuedConnection);
}

X11Tray::~X11Tray()
{
    m_notifier.reset();
    xcb_disconnect(m_connection);
}

void X11Tray::readEvents()
{
    // One by one: waiting for an answer may read further events, of which the socket then gives no
    // notice.
    while (const auto event = Xcb::owned(xcb_poll_for_event(m_connection))) {
        const int type = event->response_type & 0x7F; // Masks out the bit that marks a sent event.
        if (type == XCB_CLIENT_MESSAGE || type == XCB_DESTROY_NOTIFY)
            findOwner();
    }
    if (xcb_connection_has_error(m_connection))
        m_notifier->setEnabled(false);
}

xcb_window_t X11Tray::owner() const
{
    const auto reply = Xcb::owned(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, m_selection), nullptr));
    return reply ? reply->owner : xcb_window_t { XCB_WINDOW_NONE };
}

void X11Tray::findOwner()
{
    const xcb_window_t before = m_owner;
    // A tray that goes before we listen for its end would seem to stay for good.
    for (xcb_window_t now = owner(); now != m_owner; now = owner()) {
        m_owner = now;
        if (m_owner != XCB_WINDOW_NONE)
            hearStructureOf(m_connection, m_owner);
    }
    if (m_owner != before)
        Q_EMIT changed();
}

} // namespace Orvello
