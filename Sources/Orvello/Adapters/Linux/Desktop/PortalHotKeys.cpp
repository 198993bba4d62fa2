#include "Orvello/Adapters/Linux/Desktop/PortalHotKeys.h"

#include "Orvello/Adapters/Linux/Desktop/HotKeyNames.h"
#include "Orvello/Diagnostics/AppLog.h"

#include <QDBusArgument>
#include <QDBusError>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusReply>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

/// One element of the portal's list of shortcuts, of the D-Bus type (sa{sv}).
struct PortalShortcut {
    QString id;
    QVariantMap properties;
};

QDBusArgument& operator<<(QDBusArgument& argument, const PortalShortcut& shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, PortalShortcut& shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

} // namespace Orvello

Q_DECLARE_METATYPE(Orvello::PortalShortcut)

namespace Orvello {

namespace {

const QString service = u"org.freedesktop.portal.Desktop"_s;
const QString path = u"/org/freedesktop/portal/desktop"_s;
const QString registryInterface = u"org.freedesktop.host.portal.Registry"_s;
const QString shortcutsInterface = u"org.freedesktop.portal.GlobalShortcuts"_s;
const QString requestInterface = u"org.freedesktop.portal.Request"_s;
const QString sessionInterface = u"org.freedesktop.portal.Session"_s;
const QString propertiesInterface = u"org.freedesktop.DBus.Properties"_s;

constexpr uint declinedByUser = 1; // In the answer to a request; 0 is success, others are failures.
constexpr uint configurableVersion = 2; // The first interface version that can configure.

/// Enough for every restart of a long session; a portal that fails each time is left alone.
constexpr int revivalLimit = 5;

/// The shortcuts of a list as the portal sends it; none if it is no such list.
QList<PortalShortcut> shortcutsIn(const QVariant& value)
{
    const auto list = value.value<QDBusArgument>();
    if (list.currentSignature() != u"a(sa{sv})"_s)
        return {};
    return qdbus_cast<QList<PortalShortcut>>(list);
}

/// Whether a call failed because the portal is older than what was called.
bool isUnknown(const QDBusError& error)
{
    return error.type() == QDBusError::UnknownMethod || error.type() == QDBusError::UnknownInterface
        || error.type() == QDBusError::UnknownObject;
}

} // namespace

struct PortalHotKeys::Shortcut final : Reference {
    Shortcut(PortalHotKeys& portal, const HotKeyName& keyName, HotKeyRequest keyRequest)
        : keys(portal)
        , name(keyName)
        , request(std::move(keyRequest))
        , purpose(*request.purpose)
    {
    }
    ~Shortcut() override { keys.forget(*this); }

    QString label() const
    {
        return QString::fromStdString(hotKeyLabel(name, request.key.modifiers));
    }
    PortalShortcut offer() const
    {
        const QString trigger = QString::fromStdString(hotKeyTrigger(name, request.key.modifiers));
        return { purpose.name,
            { { u"description"_s, purpose.description }, { u"preferred_trigger"_s, trigger } } };
    }

    PortalHotKeys& keys;
    const HotKeyName& name;
    const HotKeyRequest request;
    const HotKeyPurpose& purpose;
    bool isHeld = false; ///< Whether the portal holds the key.
    std::unique_ptr<Reference> fallback; ///< What holds the key otherwise, if it can.
};

PortalHotKeys::PortalHotKeys(QDBusConnection bus, QString applicationID, HotKeys& fallback)
    : m_bus(std::move(bus))
    , m_applicationID(std::move(applicationID))
    , m_fallback(fallback)
    , m_portalWatcher(service, m_bus, QDBusServiceWatcher::WatchForOwnerChange)
    , m_revivalsLeft(revivalLimit)
{
    const AssignedKeys& ofFallback = m_fallback.assignedKeys();
    connect(&ofFallback, &AssignedKeys::troublesChanged, this,
        [this, &ofFallback] { assignedKeys().setTroubles(ofFallback.troubles()); });
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    // Qt looks the type up by name when it connects the slot, before it has met one on the bus.
    qRegisterMetaType<QDBusObjectPath>();
    m_bus.connect(service, path, shortcutsInterface, u"Activated"_s, this,
        SLOT(activated(QDBusObjectPath, QString)));
    m_bus.connect(service, path, shortcutsInterface, u"ShortcutsChanged"_s, this,
        SLOT(shortcutsChanged(QDBusMessage)));
    connect(&m_portalWatcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString&, const QString& former, const QString& owner) {
            ownerChanged(former, owner);
        });
    connect(
        &assignedKeys(), &AssignedKeys::configurationRequested, this, &PortalHotKeys::configure);
}

PortalHotKeys::~PortalHotKeys() = default;

void PortalHotKeys::installHandler(Handler handler)
{
    m_handler = handler;
    m_fallback.installHandler(std::move(handler));
}

std::unique_ptr<HotKeys::Reference> PortalHotKeys::registerHotKey(const HotKeyRequest& request)
{
    const HotKeyName* const name = hotKeyName(request.key.keyCode);
    // A session takes its shortcuts in one go.
    if (!request.purpose || !name || !m_session.isEmpty())
        return m_fallback.registerHotKey(request);
    auto shortcut = std::make_unique<Shortcut>(*this, *name, request);
    m_shortcuts.push_back(shortcut.get());
    if (m_state == State::Idle)
        askSoon(); // First let everything be registered.
    else if (m_state != State::Asking)
        grab(*shortcut);
    return shortcut;
}

QString PortalHotKeys::label(const HotKey& key) const { return m_fallback.label(key); }

void PortalHotKeys::askSoon()
{
    m_state = State::Asking;
    QMetaObject::invokeMethod(this, &PortalHotKeys::ask, Qt::QueuedConnection);
}

void PortalHotKeys::ask()
{
    m_state = State::Asking;
    ++m_attempt;
    if (m_isRegistered)
        createSession();
    else
        registerApplication();
}

/// Portals serve only programs that they know. A program of the host system introduces itself with
/// the first call; a portal that is too old for that finds out otherwise, or does not ask.
void PortalHotKeys::registerApplication()
{
    QDBusMessage message = methodCall(registryInterface, u"Register"_s);
    message.setArguments({ m_applicationID, QVariantMap() });
    call(message, [this](const QDBusMessage& reply) {
        const QDBusError error(reply);
        if (error.type() == QDBusError::ServiceUnknown) {
            giveUp(State::Lost, error.message());
            return;
        }
        m_isRegistered = true;
        if (error.isValid() && !isUnknown(error))
            AppLog::write(
                "HOTKEY the desktop's portal does not know the program: %@", error.message());
        createSession();
    });
}

void PortalHotKeys::createSession()
{
    const QString token = u"orvello%1"_s.arg(m_nextToken++);
    request(u"CreateSession"_s, { QVariantMap { { u"session_handle_token"_s, token } } },
        [this](const QVariantMap& results) {
            sessionCreated(results.value(u"session_handle"_s).toString());
        });
}

void PortalHotKeys::sessionCreated(const QString& session)
{
    if (session.isEmpty()) {
        giveUp(State::Lost, u"no session"_s);
        return;
    }
    m_session = session;
    m_bus.connect(
        service, session, sessionInterface, u"Closed"_s, this, SLOT(sessionClosed(QDBusMessage)));
    bindShortcuts();
}

void PortalHotKeys::bindShortcuts()
{
    QList<PortalShortcut> shortcuts;
    for (const Shortcut* const shortcut : m_shortcuts)
        shortcuts.append(shortcut->offer());
    request(u"BindShortcuts"_s,
        { QVariant::fromValue(QDBusObjectPath(m_session)), QVariant::fromValue(shortcuts),
            QString(), QVariantMap() },
        [this](const QVariantMap& results) { bound(results); });
}

/// Not every portal says right away what it has bound.
void PortalHotKeys::bound(const QVariantMap& results)
{
    if (results.contains(u"shortcuts"_s))
        listed(results);
    else
        request(u"ListShortcuts"_s,
            { QVariant::fromValue(QDBusObjectPath(m_session)), QVariantMap() },
            [this](const QVariantMap& list) { listed(list); });
}

/// The session stays even without a key: the user can assign keys to it later.
void PortalHotKeys::listed(const QVariantMap& results)
{
    m_state = State::Bound;
    assign(shortcutsIn(results.value(u"shortcuts"_s)));
    QStringList leftOut;
    for (const Shortcut* const shortcut : m_shortcuts) {
        if (!shortcut->isHeld)
            leftOut.append(shortcut->label());
    }
    if (leftOut.isEmpty())
        AppLog::write("HOTKEY the desktop's portal holds the keys");
    else
        AppLog::write("HOTKEY the desktop's portal does not hold %@", leftOut.join(u", "_s));
    readVersion();
}

/// For shortcuts without keys, some portals leave them out and others describe their keys with an
/// empty text.
void PortalHotKeys::assign(const QList<PortalShortcut>& shortcuts)
{
    QStringList held;
    QVariantMap triggers;
    for (const PortalShortcut& shortcut : shortcuts) {
        const QVariant trigger = shortcut.properties.value(u"trigger_description"_s);
        if (!trigger.isValid() || !trigger.toString().isEmpty())
            held.append(shortcut.id);
        if (!trigger.toString().isEmpty())
            triggers.insert(shortcut.id, trigger.toString());
    }
    for (Shortcut* const shortcut : m_shortcuts) {
        shortcut->isHeld = held.contains(shortcut->purpose.name);
        if (shortcut->isHeld)
            shortcut->fallback.reset();
        else
            grab(*shortcut);
    }
    assignedKeys().setTriggers(triggers);
}

void PortalHotKeys::readVersion()
{
    QDBusMessage message = methodCall(propertiesInterface, u"Get"_s);
    message.setArguments({ shortcutsInterface, u"version"_s });
    call(message, [this](const QDBusMessage& reply) {
        const QDBusReply<QDBusVariant> version(reply);
        assignedKeys().setCanConfigure(
            version.isValid() && version.value().variant().toUInt() >= configurableVersion);
    });
}

void PortalHotKeys::configure()
{
    if (m_state != State::Bound)
        return;
    QDBusMessage message = methodCall(shortcutsInterface, u"ConfigureShortcuts"_s);
    message.setArguments(
        { QVariant::fromValue(QDBusObjectPath(m_session)), QString(), QVariantMap() });
    call(message, [](const QDBusMessage& reply) {
        if (reply.type() == QDBusMessage::ErrorMessage)
            AppLog::write(
                "HOTKEY the desktop opens no window for the keys: %@", reply.errorMessage());
    });
}

QDBusMessage PortalHotKeys::methodCall(const QString& interface, const QString& method) const
{
    return QDBusMessage::createMethodCall(service, path, interface, method);
}

void PortalHotKeys::call(const QDBusMessage& message, const Reply& reply)
{
    auto* const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this,
        [this, watcher, reply, attempt = m_attempt] {
            watcher->deleteLater();
            if (attempt == m_attempt)
                reply(watcher->reply());
        });
}

void PortalHotKeys::request(
    const QString& method, const QVariantList& arguments, const Answer& answer)
{
    // The answer may come before the call's reply, so the path of the request's object is worked
    // out beforehand, as the portal's documentation describes it.
    const QString token = u"orvello%1"_s.arg(m_nextToken++);
    const QString sender = m_bus.baseService().mid(1).replace(u'.', u'_');
    const QString requestPath = path + u"/request/"_s + sender + u'/' + token;
    m_bus.connect(service, requestPath, requestInterface, u"Response"_s, this,
        SLOT(responded(uint, QVariantMap, QDBusMessage)));
    m_openRequests.emplace(requestPath, answer);

    QVariantList all = arguments;
    QVariantMap options = all.takeLast().toMap(); // Options come last in every method.
    options.insert(u"handle_token"_s, token);
    all.append(options);
    QDBusMessage message = methodCall(shortcutsInterface, method);
    message.setArguments(all);
    call(message, [this](const QDBusMessage& reply) {
        if (reply.type() == QDBusMessage::ErrorMessage)
            giveUp(State::Lost, reply.errorMessage());
    });
}

void PortalHotKeys::responded(
    uint response, const QVariantMap& results, const QDBusMessage& message)
{
    m_bus.disconnect(service, message.path(), requestInterface, u"Response"_s, this,
        SLOT(responded(uint, QVariantMap, QDBusMessage)));
    const auto open = m_openRequests.extract(message.path());
    if (!open)
        return;
    if (response == 0)
        open.mapped()(results);
    else if (response == declinedByUser)
        giveUp(State::Declined, u"declined"_s);
    else
        giveUp(State::Lost, u"the desktop failed"_s);
}

void PortalHotKeys::giveUp(State state, const QString& reason)
{
    AppLog::write("HOTKEY no portal holds the keys: %@", reason);
    ++m_attempt;
    m_openRequests.clear();
    m_session.clear();
    m_state = state;
    assignedKeys().setTriggers({});
    assignedKeys().setCanConfigure(false);
    for (Shortcut* const shortcut : m_shortcuts)
        grab(*shortcut);
}

/// The keys are grabbed until the portal has them again, which it may never have.
void PortalHotKeys::lose(const QString& reason)
{
    giveUp(State::Lost, reason);
    if (m_revivalsLeft-- > 0)
        askSoon();
}

void PortalHotKeys::ownerChanged(const QString& formerOwner, const QString& owner)
{
    if (!formerOwner.isEmpty()) {
        m_isRegistered = false;
        if (m_state == State::Bound)
            lose(u"it has ended"_s);
        else if (m_state == State::Asking)
            giveUp(State::Lost, u"it has ended"_s);
    }
    // While a question is under way, it was the question that started the portal.
    if (!owner.isEmpty() && m_state == State::Lost && !m_shortcuts.empty())
        askSoon();
}

void PortalHotKeys::sessionClosed(const QDBusMessage& message)
{
    if (message.path() == m_session)
        lose(u"it has closed the session"_s);
}

void PortalHotKeys::shortcutsChanged(const QDBusMessage& message)
{
    const QVariantList arguments = message.arguments();
    if (m_state == State::Bound && arguments.size() == 2
        && arguments[0].value<QDBusObjectPath>().path() == m_session)
        assign(shortcutsIn(arguments[1]));
}

void PortalHotKeys::grab(Shortcut& shortcut)
{
    shortcut.isHeld = false;
    if (!shortcut.fallback)
        shortcut.fallback = m_fallback.registerHotKey(shortcut.request);
}

void PortalHotKeys::activated(const QDBusObjectPath& session, const QString& shortcut)
{
    if (m_session.isEmpty() || session.path() != m_session || !m_handler)
        return;
    for (const Shortcut* const candidate : m_shortcuts) {
        if (candidate->purpose.name == shortcut) {
            m_handler(candidate->request.id);
            return;
        }
    }
}

void PortalHotKeys::forget(const Shortcut& shortcut)
{
    std::erase(m_shortcuts, &shortcut);
    if (!m_shortcuts.empty() || m_session.isEmpty())
        return;
    m_bus.send(QDBusMessage::createMethodCall(service, m_session, sessionInterface, u"Close"_s));
    m_session.clear();
    m_state = State::Idle;
}

} // namespace Orvello
