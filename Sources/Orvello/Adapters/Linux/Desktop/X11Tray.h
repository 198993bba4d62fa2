#pragma once

#include <QObject>

#include <cstdint>
#include <memory>

class QSocketNotifier;
struct xcb_connection_t;

namespace Orvello {

/// Whether the X server has a system tray: somebody who owns the tray's selection, as
/// freedesktop.org's System Tray Protocol has it. Main thread.
class X11Tray final : public QObject {
    Q_OBJECT

public:
    X11Tray();
    ~X11Tray() override;

    bool isThere() const { return m_owner != 0; }

Q_SIGNALS:
    void changed();

private:
    void readEvents();
    std::uint32_t owner() const;
    void findOwner();

    xcb_connection_t* m_connection;
    std::unique_ptr<QSocketNotifier> m_notifier;
    std::uint32_t m_selection = 0;
    std::uint32_t m_owner = 0; ///< The tray's window.
};

} // namespace Orvello
