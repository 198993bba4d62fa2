#pragma once

#include "Orvello/Platform/Desktop/HotKeys.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusServiceWatcher>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace Orvello {

struct HotKeyName;
struct PortalShortcut;

/// Hot keys on a Wayland session, where only the desktop may grab keys: through the GlobalShortcuts
/// portal, which asks the user once. Keys that it or the user does not take, all of them where
/// there is no such portal, go to another service. When the portal restarts, or closes the session,
/// the keys are offered to it again.
///
/// A key without a purpose is never offered to the portal: it comes and goes with each slideshow,
/// and the portal would ask the user each time, in front of the audience.
class PortalHotKeys final : public QObject, public HotKeys {
    Q_OBJECT

public:
    /// `applicationID` is the name of the program's desktop file. Nobody may have called a portal
    /// on `bus`, because a portal takes the ID with the first call alone. `fallback` must outlive
    /// it.
    PortalHotKeys(QDBusConnection bus, QString applicationID, HotKeys& fallback);
    ~PortalHotKeys() override;

    void installHandler(Handler handler) override;

    /// Never null for a key that the portal may take: its answer comes later.
    std::unique_ptr<Reference> registerHotKey(const HotKeyRequest& request) override;
    QString label(const HotKey& key) const override;

private Q_SLOTS:
    void responded(uint response, const QVariantMap& results, const QDBusMessage& message);
    void activated(const QDBusObjectPath& session, const QString& shortcut);
    void shortcutsChanged(const QDBusMessage& message);
    void sessionClosed(const QDBusMessage& message);

private:
    enum class State {
        Idle, ///< No key is for the portal.
        Asking,
        Bound,
        Lost, ///< No portal, or one that failed. The next one that appears is asked.
        Declined, ///< The user said no and is not asked again.
    };
    struct Shortcut;
    using Answer = std::function<void(const QVariantMap& results)>;
    using Reply = std::function<void(const QDBusMessage& reply)>;

    void ask();
    void askSoon();
    void registerApplication();
    void createSession();
    void sessionCreated(const QString& session);
    void bindShortcuts();
    void bound(const QVariantMap& results);
    void listed(const QVariantMap& results);
    void readVersion();
    void assign(const QList<PortalShortcut>& shortcuts);
    void configure();

    void ownerChanged(const QString& formerOwner, const QString& owner);
    void lose(const QString& reason);
    void giveUp(State state, const QString& reason);

    QDBusMessage methodCall(const QString& interface, const QString& method) const;
    void call(const QDBusMessage& message, const Reply& reply);
    void request(const QString& method, const QVariantList& arguments, const Answer& answer);

    void grab(Shortcut& shortcut);
    void forget(const Shortcut& shortcut);

    QDBusConnection m_bus;
    const QString m_applicationID;
    HotKeys& m_fallback;
    QDBusServiceWatcher m_portalWatcher;
    Handler m_handler;
    std::vector<Shortcut*> m_shortcuts;
    std::map<QString, Answer> m_openRequests; ///< By the path of the request's object.
    QString m_session; ///< Empty until the portal has made it.
    State m_state = State::Idle;
    bool m_isRegistered = false; ///< The portal that runs has been told the ID.
    int m_attempt = 0; ///< Replies to an earlier one come too late.
    /// How often a lost session may still be asked for again without a new portal.
    int m_revivalsLeft;
    int m_nextToken = 1;
};

} // namespace Orvello
