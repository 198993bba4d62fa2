#include "Tests/Support/PrivateXServer.h"

#include "Orvello/Adapters/Linux/Desktop/Xcb.h"

#include <array>
#include <xcb/xcb.h>

namespace Orvello::Testing {

using namespace Qt::StringLiterals;
using Xcb::atomNamed;

PrivateXServer::PrivateXServer()
{
    const QString screen = u"%1x%2x24"_s.arg(width).arg(height);
    m_server.setProcessChannelMode(QProcess::SeparateChannels);
    m_server.setStandardErrorFile(QProcess::nullDevice());
    // The server writes its display's number once it accepts clients.
    m_server.start(u"Xvfb"_s,
        { u"-displayfd"_s, u"1"_s, u"-screen"_s, u"0"_s, screen, u"-nolisten"_s, u"tcp"_s });
    constexpr int startMilliseconds = 30000;
    while (!m_server.canReadLine() && m_server.waitForReadyRead(startMilliseconds)) { }
    const QByteArray display = ':' + m_server.readLine().trimmed();
    if (display.size() < 2)
        return;
    qputenv("DISPLAY", display);
    m_connection = xcb_connect(nullptr, nullptr);
    m_root = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data->root;
}

PrivateXServer::~PrivateXServer()
{
    stop();
    if (m_connection)
        xcb_disconnect(m_connection);
    if (m_outerDisplay.isEmpty())
        qunsetenv("DISPLAY");
    else
        qputenv("DISPLAY", m_outerDisplay);
}

void PrivateXServer::stop()
{
    m_server.terminate();
    m_server.waitForFinished();
}

std::uint32_t PrivateXServer::addWindow(int x, int y, int windowWidth, int windowHeight,
    std::string_view windowClass, std::uint32_t parent)
{
    const xcb_window_t window = xcb_generate_id(m_connection);
    xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, parent ? parent : m_root,
        static_cast<std::int16_t>(x), static_cast<std::int16_t>(y),
        static_cast<std::uint16_t>(windowWidth), static_cast<std::uint16_t>(windowHeight), 0,
        XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, 0, nullptr);
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, XCB_ATOM_WM_CLASS,
        XCB_ATOM_STRING, 8, static_cast<std::uint32_t>(windowClass.size()), windowClass.data());
    xcb_map_window(m_connection, window);
    sync();
    return window;
}

void PrivateXServer::unmap(std::uint32_t window)
{
    xcb_unmap_window(m_connection, window);
    sync();
}

void PrivateXServer::markAsDesktop(std::uint32_t window)
{
    const std::uint32_t type = atomNamed(m_connection, "_NET_WM_WINDOW_TYPE_DESKTOP");
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window,
        atomNamed(m_connection, "_NET_WM_WINDOW_TYPE"), XCB_ATOM_ATOM, 32, 1, &type);
    sync();
}

void PrivateXServer::publishStacking(const std::vector<std::uint32_t>& windows)
{
    publish("_NET_CLIENT_LIST_STACKING", windows);
}

void PrivateXServer::publishActive(std::uint32_t window)
{
    publish("_NET_ACTIVE_WINDOW", { window });
}

void PrivateXServer::publish(std::string_view property, const std::vector<std::uint32_t>& windows)
{
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, m_root,
        atomNamed(m_connection, property), XCB_ATOM_WINDOW, 32,
        static_cast<std::uint32_t>(windows.size()), windows.data());
    sync();
}

/// Returns when the server has done what it was asked.
void PrivateXServer::sync()
{
    Xcb::owned(xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
}

} // namespace Orvello::Testing
