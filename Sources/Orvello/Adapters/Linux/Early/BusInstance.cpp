#include "Orvello/Adapters/Linux/Early/BusInstance.h"

#include "Orvello/Foundation/PrivateFolder.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QUuid>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

const QString interface = u"app.orvello.Orvello"_s;
const QString path = u"/app/orvello/Orvello"_s;

constexpr int patience = 10'000; ///< For a process that is just starting, in milliseconds.

/// The display without the number of one of its screens, and in one spelling: ":0.0" and "unix:0"
/// are ":0".
QByteArray displayProper(const QString& display)
{
    QByteArray name = display.toUtf8();
    const qsizetype screen = name.indexOf('.', name.lastIndexOf(':'));
    if (screen >= 0)
        name.truncate(screen);
    return name.startsWith("unix:") ? name.sliced(4) : name;
}

/// The display, spelled in characters that bus names and file names may contain.
QString displayLetters(const QString& display)
{
    QString letters = u"Display"_s;
    for (const char byte : displayProper(display)) {
        const QChar letter = QChar::fromLatin1(byte);
        if ((letter >= u'0' && letter <= u'9') || (letter >= u'a' && letter <= u'z')
            || (letter >= u'A' && letter <= u'Z'))
            letters += letter;
        else
            letters += u"_%1"_s.arg(static_cast<unsigned char>(byte), 2, 16, QChar(u'0'));
    }
    return letters;
}

// A connection of its own, because the shared one must not be made before the application object.
QDBusConnection connectionTo(const QString& address, const QString& name)
{
    if (address.isEmpty())
        return QDBusConnection::connectToBus(QDBusConnection::SessionBus, name);
    return QDBusConnection::connectToBus(address, name);
}

} // namespace

BusInstance::BusInstance(const Place& place)
    : m_connectionName(u"instance "_s + QUuid::createUuid().toString())
    , m_name(nameOn(place.display))
    , m_bus(connectionTo(place.busAddress, m_connectionName))
    , m_lockFolder(place.lockFolder)
    , m_lock(place.lockFolder + u"/running-"_s + displayLetters(place.display) + u".lock"_s)
{
    // Only the end of its process makes a lock stale, never its age.
    m_lock.setStaleLockTime(0);
}

BusInstance::~BusInstance() { QDBusConnection::disconnectFromBus(m_connectionName); }

QString BusInstance::nameOn(const QString& display)
{
    return interface + u'.' + displayLetters(display);
}

RunningInstance::Outcome BusInstance::claim(const ProgramStart& start)
{
    if (!m_bus.isConnected())
        return claimLock();
    // Before the name, because whoever sees the name may call at once.
    m_bus.registerObject(path, this, QDBusConnection::ExportAllSlots);
    // The other process may end between the two steps, and the name be free at the second try.
    for (int attempt = 0; attempt < 2; ++attempt) {
        if (claimName())
            return claimLock();
        if (const auto refusals = handOver(start))
            return { Claim::HandedOver, *refusals };
    }
    return { Claim::Unanswered, { tr("Orvello is running already, but does not answer.") } };
}

bool BusInstance::claimName()
{
    const auto reply = m_bus.interface()->registerService(m_name);
    return !reply.isValid() || reply.value() == QDBusConnectionInterface::ServiceRegistered;
}

std::optional<QStringList> BusInstance::handOver(const ProgramStart& start)
{
    QDBusMessage call = QDBusMessage::createMethodCall(m_name, path, interface, u"Start"_s);
    call.setArguments({ start.arguments, start.directory, start.environment });
    call.setAutoStartService(false);
    const QDBusReply<QStringList> reply = m_bus.call(call, QDBus::Block, patience);
    return reply.isValid() ? std::optional(reply.value()) : std::nullopt;
}

/// The one on the bus may not be the only one: another may have been started without the bus.
RunningInstance::Outcome BusInstance::claimLock()
{
    // Where no file can be made, nothing of the library can be written either.
    if (!makePrivateFolder(m_lockFolder) || m_lock.tryLock()
        || m_lock.error() != QLockFile::LockFailedError)
        return { Claim::Granted, {} };
    return { Claim::Unanswered,
        { tr("Orvello is running already, but cannot be asked for anything: the two do not share "
             "a session bus.") } };
}

void BusInstance::release() { m_lock.unlock(); }

void BusInstance::listen(Handlers handlers)
{
    m_handlers = std::move(handlers);
    for (const EarlyStart& early : std::exchange(m_earlyStarts, {}))
        m_handlers->startedAgain(early.start, early.answer);
}

QStringList BusInstance::Start(
    const QStringList& arguments, const QString& directory, const QVariantMap& environment)
{
    setDelayedReply(true);
    const Answer answer = [bus = connection(), call = message()](const QStringList& refusals) {
        bus.send(call.createReply(refusals));
    };
    const ProgramStart start { arguments, directory, environment };
    if (m_handlers)
        m_handlers->startedAgain(start, answer);
    else
        m_earlyStarts.push_back({ start, answer });
    return {}; // The answer is sent as the reply.
}

} // namespace Orvello
