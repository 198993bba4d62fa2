#pragma once

#include "Orvello/Platform/Desktop/Wakefulness.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <functional>
#include <memory>
#include <optional>

class QDBusMessage;
struct xcb_connection_t;

namespace Orvello {

/// Keeps the display on by the first of these that takes the request: the desktop portal, the
/// session's screen saver, the X server. Each gives up the request with the program, however that
/// ends. Timers keep their time on Linux without being asked to.
class LinuxWakefulness final : public QObject, public Wakefulness {
    Q_OBJECT

public:
    explicit LinuxWakefulness(QDBusConnection bus);
    ~LinuxWakefulness() override;

    void hold(Need need) override;

private:
    struct XConnectionEnd {
        void operator()(xcb_connection_t* connection) const;
    };

    /// Takes a request back, in the language of the one that took it.
    using Release = std::function<void()>;

    void request();
    void release();
    void askPortal();
    void askScreenSaver();
    void askXServer();
    /// Asks over the bus. `releaseOf` makes of the reply how the request is taken back, or nothing
    /// of a refusal, after which `next` is asked.
    void ask(const QDBusMessage& message,
        const std::function<Release(const QDBusMessage& reply)>& releaseOf,
        void (LinuxWakefulness::*next)());
    /// Keeps what the request became, or takes it back when nobody wants it any longer.
    void granted(const Release& release);

    QDBusConnection m_bus;
    QDBusServiceWatcher m_services;
    bool m_isWanted = false;
    int m_request = 0; ///< The number of the last one; replies to earlier ones are late.
    Release m_release;
    std::unique_ptr<xcb_connection_t, XConnectionEnd> m_xConnection; ///< Holds as long as it lives.
};

} // namespace Orvello
