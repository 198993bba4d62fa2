#pragma once

#include <QByteArray>
#include <QProcess>

#include <cstdint>
#include <string_view>
#include <vector>

struct xcb_connection_t;

namespace Orvello::Testing {

/// An X server of its own, without a window manager: what a manager would publish, a test writes.
/// DISPLAY names it until it is destroyed.
class PrivateXServer {
public:
    static constexpr std::uint16_t width = 1280;
    static constexpr std::uint16_t height = 800;

    PrivateXServer();
    ~PrivateXServer();
    PrivateXServer(const PrivateXServer&) = delete;
    PrivateXServer& operator=(const PrivateXServer&) = delete;

    bool isRunning() const { return m_connection != nullptr; }

    /// A mapped window with this WM_CLASS ("instance" NUL "class" NUL).
    std::uint32_t addWindow(int x, int y, int windowWidth, int windowHeight,
        std::string_view windowClass, std::uint32_t parent = 0);
    void unmap(std::uint32_t window);
    void markAsDesktop(std::uint32_t window);

    /// The window manager's lists: from bottom to top, and the active window.
    void publishStacking(const std::vector<std::uint32_t>& windows);
    void publishActive(std::uint32_t window);

    void stop();

private:
    void publish(std::string_view property, const std::vector<std::uint32_t>& windows);
    void sync();

    QProcess m_server;
    QByteArray m_outerDisplay = qgetenv("DISPLAY");
    xcb_connection_t* m_connection = nullptr;
    std::uint32_t m_root = 0;
};

} // namespace Orvello::Testing
