#include "Orvello/Adapters/Linux/Desktop/LinuxStatusBar.h"

#include "Orvello/Foundation/Assign.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusVariant>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

// The names that desktops use, whatever freedesktop.org's draft says.
const QString service = u"org.kde.StatusNotifierWatcher"_s;
const QString path = u"/StatusNotifierWatcher"_s;

constexpr int patience = 2000; ///< How long to wait for a watcher that hangs, in milliseconds.

} // namespace

LinuxStatusBar::LinuxStatusBar(QDBusConnection bus)
    : m_bus(std::move(bus))
    , m_watcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange)
{
}

LinuxStatusBar::~LinuxStatusBar() = default;

void LinuxStatusBar::observe(std::function<void(bool isThere)> changed)
{
    m_changed = std::move(changed);
    connect(&m_tray, &X11Tray::changed, this, &LinuxStatusBar::update);
    connect(
        &m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this, &LinuxStatusBar::askForHost);
    for (const QString& signal :
        { u"StatusNotifierHostRegistered"_s, u"StatusNotifierHostUnregistered"_s })
        m_bus.connect(service, path, service, signal, this, SLOT(askForHost()));
    askForHost();
}

void LinuxStatusBar::askForHost()
{
    if (!m_bus.isConnected()) { // A call would never be answered.
        m_hasHost = false;
        return update();
    }
    QDBusMessage question = QDBusMessage::createMethodCall(
        service, path, u"org.freedesktop.DBus.Properties"_s, u"Get"_s);
    question.setArguments({ service, u"IsStatusNotifierHostRegistered"_s });
    question.setAutoStartService(false);
    auto* const call = new QDBusPendingCallWatcher(m_bus.asyncCall(question, patience), this);
    connect(call, &QDBusPendingCallWatcher::finished, this, [this, call] {
        call->deleteLater();
        const QDBusPendingReply<QDBusVariant> reply = *call;
        m_hasHost = reply.isValid() && reply.value().variant().toBool();
        update();
    });
}

void LinuxStatusBar::update()
{
    if (!m_hasHost)
        return;
    const bool isThere = *m_hasHost || m_tray.isThere();
    if (assign(m_isThere, isThere))
        m_changed(isThere);
}

} // namespace Orvello
