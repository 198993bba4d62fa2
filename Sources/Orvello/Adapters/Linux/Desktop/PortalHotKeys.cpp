#include "Orvello/Adapters/Linux/Desktop/PortalHotKeys.h"

#include "Orvello/Adapters/Linux/Desktop/HotKeyNames.h"
#include "Orvello/Diagnostics/AppLog.h"

#include <QCoreApplication>
#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

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
const QString shortcutsInterface = u"org.freedesktop.portal.GlobalShortcuts"_s;
const QString requestInterface = u"org.freedesktop.portal.Request"_s;
const QString sessionInterface = u"org.freedesktop.portal.Session"_s;

/// The shortcuts that an answer to the binding says can be pressed. Portals differ in whether they
/// leave out those that the user gave no keys, or describe their keys with an empty text.
QStringList pressable(const QVariantMap& results)
{
    const auto list = results.value(u"shortcuts"_s).value<QDBusArgument>();
    if (list.currentSignature() != u"a(sa{sv})"_s)
        return {};
    QStringList ids;
    for (const PortalShortcut& shortcut : qdbus_cast<QList<PortalShortcut>>(list)) {
        const QVariant keys = shortcut.properties.value(u"trigger_description"_s);
        if (!keys.isValid() || !keys.toString().isEmpty())
            ids.append(shortcut.id);
    }
    return ids;
}

} // namespace

struct PortalHotKeys::Shortcut final : Reference {
    Shortcut(PortalHotKeys& portal, const HotKeyName& keyName, std::uint32_t keyModifiers,
        HotKeyID keyID)
        : keys(portal)
        , name(keyName)
        , modifiers(keyModifiers)
        , id(keyID)
    {
    }
    ~Shortcut() override { keys.forget(*this); }

    /// The same at every launch: by it the desktop remembers what the user assigned.
    QString text() const { return QString::fromStdString(hotKeyLabel(name, modifiers)); }

    PortalHotKeys& keys;
    const HotKeyName& name;
    const std::uint32_t modifiers;
    const HotKeyID id;
    std::unique_ptr<Reference> fallback; ///< What holds the key when the portal does not.
};

PortalHotKeys::PortalHotKeys(QDBusConnection bus, HotKeys& fallback)
    : m_bus(std::move(bus))
    , m_fallback(fallback)
{
    qDBusRegisterMetaType<PortalShortcut>();
    qDBusRegisterMetaType<QList<PortalShortcut>>();
    // Qt looks the type up by name when it connects the slot, before it has met one on the bus.
    qRegisterMetaType<QDBusObjectPath>();
    m_bus.connect(service, path, shortcutsInterface, u"Activated"_s, this,
        SLOT(activated(QDBusObjectPath, QString)));
}

PortalHotKeys::~PortalHotKeys() = default;

void PortalHotKeys::installHandler(Handler handler)
{
    m_handler = handler;
    m_fallback.installHandler(std::move(handler));
}

std::unique_ptr<HotKeys::Reference> PortalHotKeys::registerHotKey(
    std::uint32_t keyCode, std::uint32_t modifiers, HotKeyID id)
{
    const HotKeyName* const name = hotKeyName(keyCode);
    const bool isForPortal = name && modifiers != 0 && m_session.isEmpty() && !m_isGivenUp;
    if (!isForPortal)
        return m_fallback.registerHotKey(keyCode, modifiers, id);
    auto shortcut = std::make_unique<Shortcut>(*this, *name, modifiers, id);
    m_shortcuts.push_back(shortcut.get());
    if (!m_isAsked) {
        m_isAsked = true;
        // A session takes its shortcuts in one go: first let everything be registered.
        QMetaObject::invokeMethod(this, &PortalHotKeys::createSession, Qt::QueuedConnection);
    }
    return shortcut;
}

QString PortalHotKeys::label(std::uint32_t keyCode, std::uint32_t modifiers) const
{
    return m_fallback.label(keyCode, modifiers);
}

void PortalHotKeys::createSession()
{
    const QVariantMap options { { u"session_handle_token"_s, u"orvello"_s } };
    request(u"CreateSession"_s, { options }, [this](const QVariantMap& results) {
        m_session = results.value(u"session_handle"_s).toString();
        if (m_session.isEmpty())
            giveUp(u"no session"_s);
        else
            bindShortcuts();
    });
}

void PortalHotKeys::bindShortcuts()
{
    QList<PortalShortcut> shortcuts;
    for (const Shortcut* const shortcut : m_shortcuts)
        shortcuts.append({ shortcut->text(),
            { { u"description"_s, QString(u"Orvello "_s + shortcut->text()) },
                { u"preferred_trigger"_s,
                    QString::fromStdString(
                        hotKeyTrigger(shortcut->name, shortcut->modifiers)) } } });
    request(u"BindShortcuts"_s,
        { QVariant::fromValue(QDBusObjectPath(m_session)), QVariant::fromValue(shortcuts),
            QString(), QVariantMap() },
        [this](const QVariantMap& results) { bound(results); });
}

/// The session stays, also without a key: the user can give the keys to it later.
void PortalHotKeys::bound(const QVariantMap& results)
{
    const QStringList held = pressable(results);
    QStringList leftOut;
    for (Shortcut* const shortcut : m_shortcuts) {
        if (held.contains(shortcut->text()))
            continue;
        leftOut.append(shortcut->text());
        grab(*shortcut);
    }
    if (leftOut.isEmpty())
        AppLog::write("HOTKEY the desktop's portal holds the keys");
    else
        AppLog::write("HOTKEY the desktop's portal does not hold %@", leftOut.join(u", "_s));
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
    QDBusMessage call = QDBusMessage::createMethodCall(service, path, shortcutsInterface, method);
    call.setArguments(all);
    auto* const watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        watcher->deleteLater();
        if (const QDBusPendingReply<QDBusObjectPath> reply = *watcher; reply.isError())
            giveUp(reply.error().message());
    });
}

void PortalHotKeys::responded(
    uint response, const QVariantMap& results, const QDBusMessage& message)
{
    const auto open = m_openRequests.extract(message.path());
    if (!open || m_isGivenUp)
        return;
    if (response == 0)
        open.mapped()(results);
    else
        giveUp(u"declined"_s);
}

void PortalHotKeys::giveUp(const QString& reason)
{
    if (std::exchange(m_isGivenUp, true))
        return;
    AppLog::write("HOTKEY no portal holds the keys: %@", reason);
    for (Shortcut* const shortcut : m_shortcuts)
        grab(*shortcut);
}

void PortalHotKeys::grab(Shortcut& shortcut)
{
    shortcut.fallback
        = m_fallback.registerHotKey(shortcut.name.keyCode, shortcut.modifiers, shortcut.id);
}

void PortalHotKeys::activated(const QDBusObjectPath& session, const QString& shortcut)
{
    if (session.path() != m_session || m_isGivenUp || !m_handler)
        return;
    for (const Shortcut* const candidate : m_shortcuts) {
        if (candidate->text() == shortcut) {
            m_handler(candidate->id);
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
}

} // namespace Orvello
