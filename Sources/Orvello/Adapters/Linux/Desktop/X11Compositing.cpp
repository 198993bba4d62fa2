#include "Orvello/Adapters/Linux/Desktop/X11Compositing.h"

#include "Orvello/Adapters/Linux/Desktop/Xcb.h"

#include <QGuiApplication>

#include <cstdlib>
#include <string>
#include <string_view>
#include <xcb/xcb.h>

namespace Orvello {

namespace {

constexpr int typeMask = 0x7F; // Without the bit that marks a sent event.

/// Selection events are the first of the XFIXES extension. Qt's platform plugin asks the server for
/// those of this selection, because it wants to know the same.
int ownerEventOn(xcb_connection_t* connection)
{
    constexpr std::string_view name = "XFIXES";
    const auto reply = Xcb::owned(xcb_query_extension_reply(
        connection, xcb_query_extension(connection, name.size(), name.data()), nullptr));
    return reply && reply->present ? reply->first_event : -1;
}

/// The screen of $DISPLAY, which the program is on.
int screenNumber()
{
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    xcb_parse_display(nullptr, &host, &display, &screen);
    std::free(host);
    return screen;
}

} // namespace

X11Compositing::X11Compositing()
{
    const auto* const x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
    if (!x11)
        return;
    m_connection = x11->connection();
    m_selection = Xcb::atomNamed(m_connection, "_NET_WM_CM_S" + std::to_string(screenNumber()));
    m_ownerEvent = ownerEventOn(m_connection);
    qGuiApp->installNativeEventFilter(this);
    findOwner();
}

bool X11Compositing::nativeEventFilter(
    const QByteArray& /*type*/, void* message, qintptr* /*result*/)
{
    const auto* const event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & typeMask) == m_ownerEvent)
        findOwner();
    return false;
}

void X11Compositing::findOwner()
{
    const auto reply = Xcb::owned(xcb_get_selection_owner_reply(
        m_connection, xcb_get_selection_owner(m_connection, m_selection), nullptr));
    setOn(reply && reply->owner != XCB_WINDOW_NONE);
}

} // namespace Orvello
