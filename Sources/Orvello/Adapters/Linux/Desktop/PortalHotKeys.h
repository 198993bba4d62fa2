#pragma once

#include "Orvello/Platform/Desktop/HotKeys.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QObject>
#include <QString>
#include <QVariantMap>

#include <functional>
#include <map>
#include <memory>
#include <vector>

namespace Orvello {

struct HotKeyName;

/// Hot keys on a Wayland session, where grabbing keys is the desktop's alone: through the
/// GlobalShortcuts portal, which asks the user once. Keys that it or the user does not take, all of
/// them where there is no such portal, go to another service.
///
/// A key without modifiers is never offered to the portal: it comes and goes with each slideshow,
/// and the portal would ask the user each time, in front of the audience.
class PortalHotKeys final : public QObject, public HotKeys {
    Q_OBJECT

public:
    PortalHotKeys(QDBusConnection bus, HotKeys& fallback); ///< `fallback` must outlive it.
    ~PortalHotKeys() override;

    void installHandler(Handler handler) override;

    /// Never null for a key that the portal may take: its answer comes later.
    std::unique_ptr<Reference> registerHotKey(
        std::uint32_t keyCode, std::uint32_t modifiers, HotKeyID id) override;
    QString label(std::uint32_t keyCode, std::uint32_t modifiers) const override;

private Q_SLOTS:
    void responded(uint response, const QVariantMap& results, const QDBusMessage& message);
    void activated(const QDBusObjectPath& session, const QString& shortcut);

private:
    struct Shortcut;
    using Answer = std::function<void(const QVariantMap&)>;

    void createSession();
    void bindShortcuts();
    void bound(const QVariantMap& results);
    void request(const QString& method, const QVariantList& arguments, const Answer& answer);
    void giveUp(const QString& reason);
    void grab(Shortcut& shortcut);
    void forget(const Shortcut& shortcut);

    QDBusConnection m_bus;
    HotKeys& m_fallback;
    Handler m_handler;
    std::vector<Shortcut*> m_shortcuts;
    std::map<QString, Answer> m_openRequests; ///< By the path of the request's object.
    QString m_session; ///< Empty until the portal has made it.
    bool m_isAsked = false;
    bool m_isGivenUp = false;
    int m_nextToken = 1;
};

} // namespace Orvello
