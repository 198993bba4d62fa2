#include "Orvello/Adapters/Linux/Early/BusInstance.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QUuid>

#include <cstdio>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

const QString name = u"app.orvello.Orvello"_s;
const QString path = u"/app/orvello/Orvello"_s;

constexpr int patience = 5000; ///< For a process that is just starting, in milliseconds.

QString newConnectionName() { return u"instance "_s + QUuid::createUuid().toString(); }

} // namespace

// A connection of its own, because the shared one must not be made before the application object.
BusInstance::BusInstance()
    : m_connectionName(newConnectionName())
    , m_bus(QDBusConnection::connectToBus(QDBusConnection::SessionBus, m_connectionName))
{
}

BusInstance::BusInstance(const QString& busAddress)
    : m_connectionName(newConnectionName())
    , m_bus(QDBusConnection::connectToBus(busAddress, m_connectionName))
{
}

BusInstance::~BusInstance() { QDBusConnection::disconnectFromBus(m_connectionName); }

RunningInstance::Claim BusInstance::claim(const QStringList& arguments)
{
    if (!m_bus.isConnected())
        return Claim::Granted;
    // The other process may end between the two steps, and the name be free at the second try.
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (claimName())
            return Claim::Granted;
        if (handOver(arguments))
            return Claim::HandedOver;
    }
    static_cast<void>(std::fputs("Orvello is running already, but does not answer.\n", stderr));
    return Claim::Unanswered;
}

bool BusInstance::claimName()
{
    const auto reply = m_bus.interface()->registerService(name);
    if (reply.isValid() && reply.value() != QDBusConnectionInterface::ServiceRegistered)
        return false;
    m_bus.registerObject(path, this, QDBusConnection::ExportAllSlots);
    return true;
}

bool BusInstance::handOver(const QStringList& arguments)
{
    QDBusMessage call = QDBusMessage::createMethodCall(name, path, name, u"Start"_s);
    call.setArguments({ arguments });
    call.setAutoStartService(false);
    return m_bus.call(call, QDBus::Block, patience).type() == QDBusMessage::ReplyMessage;
}

void BusInstance::listen(Handlers handlers)
{
    m_handlers = std::move(handlers);
    for (const QStringList& arguments : std::exchange(m_earlyStarts, {}))
        Start(arguments);
}

void BusInstance::Start(const QStringList& arguments)
{
    if (!m_handlers) {
        m_earlyStarts.push_back(arguments);
        return;
    }
    m_handlers->startedAgain(arguments);
}

} // namespace Orvello
