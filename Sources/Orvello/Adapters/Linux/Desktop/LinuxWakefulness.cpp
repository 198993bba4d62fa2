#include "Orvello/Adapters/Linux/Desktop/LinuxWakefulness.h"

#include "Orvello/Adapters/Linux/Desktop/Xcb.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>

#include <utility>
#include <xcb/screensaver.h>
#include <xcb/xcb.h>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

const QString portal = u"org.freedesktop.portal.Desktop"_s;
const QString screenSaver = u"org.freedesktop.ScreenSaver"_s;

/// The portal's flag for "the session must not become idle".
constexpr uint idleFlag = 8;

QString reason()
{
    //: Why the display is kept on, for a desktop that shows it: at most about 60 characters.
    return LinuxWakefulness::tr("The prompter is being read");
}

QDBusMessage screenSaverCall(const QString& method)
{
    return QDBusMessage::createMethodCall(
        screenSaver, u"/org/freedesktop/ScreenSaver"_s, screenSaver, method);
}

} // namespace

void LinuxWakefulness::XConnectionEnd::operator()(xcb_connection_t* connection) const
{
    xcb_disconnect(connection);
}

LinuxWakefulness::LinuxWakefulness(QDBusConnection bus)
    : m_bus(std::move(bus))
{
    // One that comes, or comes back, knows nothing of what was asked before.
    m_services.setConnection(m_bus);
    m_services.setWatchMode(QDBusServiceWatcher::WatchForRegistration);
    m_services.setWatchedServices({ portal, screenSaver });
    connect(&m_services, &QDBusServiceWatcher::serviceRegistered, this, [this] {
        if (!m_isWanted)
            return;
        release();
        request();
    });
}

LinuxWakefulness::~LinuxWakefulness() { release(); }

void LinuxWakefulness::hold(Need need)
{
    const bool isWanted = need == Need::Display;
    if (isWanted == std::exchange(m_isWanted, isWanted))
        return;
    if (isWanted)
        request();
    else
        release();
}

void LinuxWakefulness::request()
{
    ++m_request;
    if (m_bus.isConnected())
        askPortal();
    else
        askXServer();
}

void LinuxWakefulness::release()
{
    ++m_request;
    if (m_release)
        std::exchange(m_release, nullptr)();
}

void LinuxWakefulness::askPortal()
{
    QDBusMessage message = QDBusMessage::createMethodCall(portal,
        u"/org/freedesktop/portal/desktop"_s, u"org.freedesktop.portal.Inhibit"_s, u"Inhibit"_s);
    message.setArguments({ QString(), idleFlag, QVariantMap { { u"reason"_s, reason() } } });
    const auto releaseOf = [this](const QDBusMessage& reply) -> Release {
        const QString handle = reply.arguments().value(0).value<QDBusObjectPath>().path();
        if (handle.isEmpty())
            return nullptr;
        return [this, handle] {
            m_bus.send(QDBusMessage::createMethodCall(
                portal, handle, u"org.freedesktop.portal.Request"_s, u"Close"_s));
        };
    };
    ask(message, releaseOf, &LinuxWakefulness::askScreenSaver);
}

void LinuxWakefulness::askScreenSaver()
{
    QDBusMessage message = screenSaverCall(u"Inhibit"_s);
    message.setArguments({ u"Orvello"_s, reason() });
    const auto releaseOf = [this](const QDBusMessage& reply) -> Release {
        if (reply.type() != QDBusMessage::ReplyMessage || reply.signature() != u"u"_s)
            return nullptr;
        return [this, cookie = reply.arguments().constFirst()] {
            QDBusMessage end = screenSaverCall(u"UnInhibit"_s);
            end.setArguments({ cookie });
            m_bus.send(end);
        };
    };
    ask(message, releaseOf, &LinuxWakefulness::askXServer);
}

/// On a connection of its own, whose end takes the request back.
void LinuxWakefulness::askXServer()
{
    m_xConnection.reset(xcb_connect(nullptr, nullptr));
    xcb_connection_t* const connection = m_xConnection.get();
    const xcb_query_extension_reply_t* const extension
        = xcb_get_extension_data(connection, &xcb_screensaver_id);
    if (!extension || !extension->present) {
        m_xConnection.reset();
        return;
    }
    // The server ignores the requests of who has not said which version it speaks.
    static_cast<void>(Xcb::owned(xcb_screensaver_query_version_reply(
        connection, xcb_screensaver_query_version(connection, 1, 1), nullptr)));
    xcb_screensaver_suspend(connection, 1);
    xcb_flush(connection);
    granted([this] { m_xConnection.reset(); });
}

void LinuxWakefulness::ask(const QDBusMessage& message,
    const std::function<Release(const QDBusMessage&)>& releaseOf, void (LinuxWakefulness::*next)())
{
    auto* const call = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(call, &QDBusPendingCallWatcher::finished, this,
        [this, call, releaseOf, next, number = m_request] {
            call->deleteLater();
            if (const Release release = releaseOf(call->reply()))
                granted(release);
            else if (m_isWanted && number == m_request)
                (this->*next)();
        });
}

void LinuxWakefulness::granted(const Release& release)
{
    if (m_isWanted && !m_release)
        m_release = release;
    else
        release();
}

} // namespace Orvello
