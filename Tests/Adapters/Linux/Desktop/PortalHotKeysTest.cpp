#include "Orvello/Adapters/Linux/Desktop/PortalHotKeys.h"

#include "Tests/Support/FakeHotKeys.h"
#include "Tests/Support/LogCapture.h"
#include "Tests/Support/PrivateBus.h"

#include <QDBusArgument>
#include <QDBusMetaType>
#include <QDBusPendingCall>
#include <QDBusVirtualObject>
#include <QMap>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace Orvello {

/// A shortcut as it goes over the bus. Not the program's own type, so that each checks the other.
struct WiredShortcut {
    QString id;
    QVariantMap properties;
};

QDBusArgument& operator<<(QDBusArgument& argument, const WiredShortcut& shortcut)
{
    argument.beginStructure();
    argument << shortcut.id << shortcut.properties;
    argument.endStructure();
    return argument;
}

const QDBusArgument& operator>>(const QDBusArgument& argument, WiredShortcut& shortcut)
{
    argument.beginStructure();
    argument >> shortcut.id >> shortcut.properties;
    argument.endStructure();
    return argument;
}

} // namespace Orvello

Q_DECLARE_METATYPE(Orvello::WiredShortcut)

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;
using ::testing::UnorderedElementsAre;

const QString portalPath = u"/org/freedesktop/portal/desktop"_s;

constexpr std::uint32_t optionCommand = HotKey::optionKey | HotKey::commandKey;

/// A desktop's GlobalShortcuts portal, whose user a test plays. It refuses what the real one does.
class FakePortal final : public QDBusVirtualObject {
public:
    explicit FakePortal(QDBusConnection connection)
        : bus(std::move(connection))
    {
        qDBusRegisterMetaType<WiredShortcut>();
        qDBusRegisterMetaType<QList<WiredShortcut>>();
        bus.registerVirtualObject(portalPath, this, QDBusConnection::SubPath);
        bus.registerService(u"org.freedesktop.portal.Desktop"_s);
    }
    ~FakePortal() override
    {
        bus.unregisterService(u"org.freedesktop.portal.Desktop"_s);
        bus.unregisterObject(portalPath, QDBusConnection::UnregisterTree);
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override
    {
        const QString interface = message.interface();
        const QString method = message.member();
        calls.append(method);
        if (interface == u"org.freedesktop.DBus.Properties"_s)
            bus.send(message.createReply(QVariant::fromValue(QDBusVariant(version))));
        else if (interface == u"org.freedesktop.portal.Session"_s)
            sessions.remove(message.path());
        else if (interface == u"org.freedesktop.host.portal.Registry"_s && hasRegistry)
            registerApplication(message);
        else if (interface == u"org.freedesktop.portal.GlobalShortcuts"_s)
            callShortcuts(message);
        else
            bus.send(message.createErrorReply(QDBusError::UnknownMethod, u"No such method"_s));
        return true;
    }

    void activate(const QString& shortcut)
    {
        emitShortcuts(u"Activated"_s,
            { QVariant::fromValue(QDBusObjectPath(session)), shortcut, qulonglong(1),
                QVariantMap() });
    }

    /// The user assigns other keys in the desktop's own window.
    void reassign(const QList<WiredShortcut>& shortcuts)
    {
        emitShortcuts(u"ShortcutsChanged"_s,
            { QVariant::fromValue(QDBusObjectPath(session)), QVariant::fromValue(shortcuts) });
    }

    void closeSession()
    {
        sessions.remove(session);
        QDBusMessage signal
            = QDBusMessage::createSignal(session, u"org.freedesktop.portal.Session"_s, u"Closed"_s);
        signal << QVariantMap();
        bus.send(signal);
    }

    /// What the user does with a shortcut that is to be bound.
    enum class Choice { TakePreferred, GiveNoKeys, LeaveOut };

    QDBusConnection bus;
    bool hasRegistry = true; ///< Portals have had it since 1.19.4.
    bool isInstalled = true; ///< The program, with its desktop file.
    bool demandsApplicationID = true; ///< Portals have done so since 1.21.
    uint version = 1; ///< The version of the shortcuts' interface.
    uint answer = 0; ///< 1 is the user's refusal.
    bool makesSessions = true;
    bool tellsWhatIsBound = true;
    bool closesEachSession = false;
    QMap<QString, Choice> choices; ///< A shortcut without a choice gets the keys it asks for.
    QStringList calls;
    QStringList triggers; ///< What was bound.
    QStringList descriptions;
    QString session; ///< The last one.

private:
    void registerApplication(const QDBusMessage& message)
    {
        const QString sender = message.service();
        if (message.signature() != u"sa{sv}"_s)
            refuse(message, u"org.freedesktop.DBus.Error.InvalidArgs"_s, u"Type of message"_s);
        else if (applications.contains(sender))
            refuse(message, u"org.freedesktop.portal.Error.InvalidArgument"_s,
                u"Registered too late"_s);
        else if (!isInstalled)
            refuse(message, u"org.freedesktop.portal.Error.Failed"_s,
                u"Could not register app ID: App info not found for '%1'"_s.arg(
                    message.arguments().at(0).toString()));
        else {
            applications.insert(sender, message.arguments().at(0).toString());
            bus.send(message.createReply());
        }
    }

    void callShortcuts(const QDBusMessage& message)
    {
        static const QMap<QString, QString> signatures {
            { u"CreateSession"_s, u"a{sv}"_s },
            { u"BindShortcuts"_s, u"oa(sa{sv})sa{sv}"_s },
            { u"ListShortcuts"_s, u"oa{sv}"_s },
            { u"ConfigureShortcuts"_s, u"osa{sv}"_s },
        };
        const QString method = message.member();
        // The first call settles who the caller is.
        const QString application
            = *applications.insert(message.service(), applications.value(message.service()));
        const bool isTooNew = method == u"ConfigureShortcuts"_s && version < 2;
        if (!signatures.contains(method) || isTooNew)
            refuse(message, u"org.freedesktop.DBus.Error.UnknownMethod"_s, u"No such method"_s);
        else if (message.signature() != signatures.value(method))
            refuse(message, u"org.freedesktop.DBus.Error.InvalidArgs"_s, u"Type of message"_s);
        else if (demandsApplicationID && application != u"app.orvello.Orvello"_s)
            refuse(
                message, u"org.freedesktop.portal.Error.NotAllowed"_s, u"An app id is required"_s);
        else if (method == u"CreateSession"_s)
            createSession(message);
        else if (sessions.value(argument<QDBusObjectPath>(message, 0).path()) != message.service())
            refuse(message, u"org.freedesktop.DBus.Error.AccessDenied"_s, u"Invalid session"_s);
        else if (method == u"BindShortcuts"_s)
            bindShortcuts(message);
        else if (method == u"ListShortcuts"_s)
            respond(message, argument<QVariantMap>(message, 1),
                { { u"shortcuts"_s, QVariant::fromValue(bound) } });
        else
            bus.send(message.createReply());
    }

    void createSession(const QDBusMessage& message)
    {
        const QVariantMap options = argument<QVariantMap>(message, 0);
        session
            = portalPath + u"/session/x/"_s + options.value(u"session_handle_token"_s).toString();
        if (makesSessions)
            sessions.insert(session, message.service());
        respond(message, options,
            makesSessions ? QVariantMap { { u"session_handle"_s, session } } : QVariantMap());
    }

    void bindShortcuts(const QDBusMessage& message)
    {
        bound.clear();
        for (const auto& shortcut : argument<QList<WiredShortcut>>(message, 1)) {
            const QString trigger = shortcut.properties.value(u"preferred_trigger"_s).toString();
            triggers.append(shortcut.id + u'=' + trigger);
            descriptions.append(shortcut.properties.value(u"description"_s).toString());
            if (choices.value(shortcut.id) == Choice::LeaveOut)
                continue;
            const bool hasKeys = choices.value(shortcut.id) != Choice::GiveNoKeys;
            bound.append({ shortcut.id,
                { { u"trigger_description"_s,
                    hasKeys ? QString(u"Press "_s + trigger) : QString() } } });
        }
        respond(message, argument<QVariantMap>(message, 3),
            tellsWhatIsBound ? QVariantMap { { u"shortcuts"_s, QVariant::fromValue(bound) } }
                             : QVariantMap());
        if (closesEachSession)
            closeSession();
    }

    template <typename Value>
    static Value argument(const QDBusMessage& message, int index)
    {
        return qdbus_cast<Value>(message.arguments().at(index));
    }

    void emitShortcuts(const QString& name, const QVariantList& arguments)
    {
        QDBusMessage signal = QDBusMessage::createSignal(
            portalPath, u"org.freedesktop.portal.GlobalShortcuts"_s, name);
        signal.setArguments(arguments);
        bus.send(signal);
    }

    void refuse(const QDBusMessage& message, const QString& name, const QString& text)
    {
        bus.send(message.createErrorReply(name, text));
    }

    void respond(
        const QDBusMessage& message, const QVariantMap& options, const QVariantMap& results)
    {
        const QString request = portalPath + u"/request/"_s
            + message.service().mid(1).replace(u'.', u'_') + u'/'
            + options.value(u"handle_token"_s).toString();
        bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
        QDBusMessage signal = QDBusMessage::createTargetedSignal(
            message.service(), request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        signal << answer << results;
        bus.send(signal);
    }

    /// The application that each caller says it is; empty for one that did not say.
    QMap<QString, QString> applications;
    QMap<QString, QString> sessions; ///< Their callers, by their paths.
    QList<WiredShortcut> bound;
};

class PortalHotKeysTest : public ::testing::Test {
protected:
    void start()
    {
        keys.emplace(bus.connect(), u"app.orvello.Orvello"_s, grabs);
        keys->installHandler([this](HotKeyID id) { pressed.push_back(id.id); });
    }

    std::unique_ptr<HotKeys::Reference> toggle()
    {
        return keys->registerHotKey({ { HotKey::keyP, optionCommand }, { 0, 1 },
            HotKeyPurpose { u"toggle"_s, u"Start or pause"_s } });
    }
    std::unique_ptr<HotKeys::Reference> faster()
    {
        return keys->registerHotKey({ { HotKey::keyUp, optionCommand }, { 0, 2 },
            HotKeyPurpose { u"faster"_s, u"Scroll faster"_s } });
    }
    std::unique_ptr<HotKeys::Reference> slower()
    {
        return keys->registerHotKey({ { HotKey::keyDown, optionCommand }, { 0, 3 },
            HotKeyPurpose { u"slower"_s, u"Scroll more slowly"_s } });
    }

    template <typename Condition>
    static bool waitUntil(Condition condition)
    {
        constexpr int longestWait = 30'000; // Milliseconds; a busy machine takes its time.
        return QTest::qWaitFor(condition, longestWait);
    }

    /// The binding is over when the portal is asked for its version.
    static bool waitUntilBound(const FakePortal& portal)
    {
        return waitUntil([&] { return portal.calls.contains(u"Get"_s); });
    }

    QVariantMap shownTriggers() { return keys->assignedKeys().triggers(); }

    Testing::LogCapture log;
    Testing::PrivateBus bus;
    Testing::FakeHotKeys grabs;
    std::optional<PortalHotKeys> keys;
    std::vector<std::uint32_t> pressed;
};

TEST_F(PortalHotKeysTest, tellsThePortalWhoItIsAndBindsEveryKeyInOneSession)
{
    FakePortal portal(bus.connect());
    start();

    const auto p = toggle();
    const auto up = faster();

    EXPECT_TRUE(waitUntilBound(portal));
    EXPECT_THAT(portal.triggers, ElementsAre(u"toggle=ALT+LOGO+p"_s, u"faster=ALT+LOGO+Up"_s));
    EXPECT_THAT(portal.descriptions, ElementsAre(u"Start or pause"_s, u"Scroll faster"_s));
    EXPECT_THAT(
        portal.calls, ElementsAre(u"Register"_s, u"CreateSession"_s, u"BindShortcuts"_s, u"Get"_s));
    EXPECT_THAT(grabs.registrations, IsEmpty());
    EXPECT_THAT(log.lines(), ElementsAre("HOTKEY the desktop's portal holds the keys"));
}

TEST_F(PortalHotKeysTest, firesForTheActivatedShortcut)
{
    FakePortal portal(bus.connect());
    start();
    const auto p = toggle();
    const auto up = faster();
    ASSERT_TRUE(waitUntilBound(portal));

    portal.activate(u"faster"_s);

    EXPECT_TRUE(waitUntil([&] { return !pressed.empty(); }));
    EXPECT_THAT(pressed, ElementsAre(2));
}

TEST_F(PortalHotKeysTest, showsTheKeysInThePortalsWords)
{
    FakePortal portal(bus.connect());
    portal.choices = { { u"faster"_s, FakePortal::Choice::GiveNoKeys } };
    start();
    const auto p = toggle();
    const auto up = faster();
    ASSERT_TRUE(waitUntilBound(portal));
    EXPECT_EQ(shownTriggers(), (QVariantMap { { u"toggle"_s, u"Press ALT+LOGO+p"_s } }));

    portal.reassign({ { u"toggle"_s, { { u"trigger_description"_s, u"Press F5"_s } } },
        { u"faster"_s, { { u"trigger_description"_s, u"Press F6"_s } } } });

    const QVariantMap reassigned { { u"toggle"_s, u"Press F5"_s }, { u"faster"_s, u"Press F6"_s } };
    EXPECT_TRUE(waitUntil([&] { return shownTriggers() == reassigned; }));
    EXPECT_TRUE(grabs.registered.empty()) << "the portal has them all now";
}

TEST_F(PortalHotKeysTest, grabsAKeyThatTheUserTakesFromThePortal)
{
    FakePortal portal(bus.connect());
    start();
    const auto p = toggle();
    ASSERT_TRUE(waitUntilBound(portal));

    portal.reassign({ { u"toggle"_s, { { u"trigger_description"_s, QString() } } } });

    EXPECT_TRUE(waitUntil([&] { return grabs.registered.contains(1); }));
    EXPECT_TRUE(shownTriggers().isEmpty());
}

TEST_F(PortalHotKeysTest, opensTheDesktopsWindowForTheKeysWhereThereIsOne)
{
    FakePortal portal(bus.connect());
    portal.version = 2;
    start();
    const auto p = toggle();

    EXPECT_TRUE(waitUntil([&] { return keys->assignedKeys().canConfigure(); }));
    keys->assignedKeys().configure();

    EXPECT_TRUE(waitUntil([&] { return portal.calls.last() == u"ConfigureShortcuts"_s; }));
}

TEST_F(PortalHotKeysTest, offersNoWindowForTheKeysWhereThereIsNone)
{
    FakePortal portal(bus.connect());
    start();
    const auto p = toggle();
    ASSERT_TRUE(waitUntilBound(portal));
    QTest::qWait(50); // Until the version has arrived.

    EXPECT_FALSE(keys->assignedKeys().canConfigure());
}

TEST_F(PortalHotKeysTest, livesWithAPortalThatHasNoRegistry)
{
    FakePortal portal(bus.connect());
    portal.hasRegistry = false;
    portal.demandsApplicationID = false;
    start();

    const auto p = toggle();

    EXPECT_TRUE(waitUntilBound(portal));
    EXPECT_THAT(log.lines(), ElementsAre("HOTKEY the desktop's portal holds the keys"));
}

TEST_F(PortalHotKeysTest, grabsTheKeysWhenThePortalDoesNotKnowTheProgram)
{
    FakePortal portal(bus.connect());
    portal.isInstalled = false;
    start();

    const auto p = toggle();

    EXPECT_TRUE(waitUntil([&] { return grabs.registered.contains(1); }));
    EXPECT_THAT(log.lines(),
        ElementsAre("HOTKEY the desktop's portal does not know the program: Could not register app "
                    "ID: App info not found for 'app.orvello.Orvello'",
            "HOTKEY no portal holds the keys: An app id is required"));
}

TEST_F(PortalHotKeysTest, offersTheKeysToAPortalThatRestarts)
{
    std::optional<FakePortal> portal(bus.connect());
    start();
    const auto p = toggle();
    const auto up = faster();
    ASSERT_TRUE(waitUntilBound(*portal));

    portal.reset();
    EXPECT_TRUE(waitUntil([&] { return grabs.registered.size() == 2; }));
    EXPECT_TRUE(shownTriggers().isEmpty());
    EXPECT_THAT(log.lines(), Contains("HOTKEY no portal holds the keys: it has ended"));
    portal.emplace(bus.connect());

    EXPECT_TRUE(waitUntilBound(*portal));
    EXPECT_THAT(portal->calls,
        ElementsAre(u"Register"_s, u"CreateSession"_s, u"BindShortcuts"_s, u"Get"_s));
    EXPECT_TRUE(grabs.registered.empty());
    EXPECT_EQ(log.lines().back(), "HOTKEY the desktop's portal holds the keys");
    portal->activate(u"toggle"_s);
    EXPECT_TRUE(waitUntil([&] { return !pressed.empty(); }));
}

TEST_F(PortalHotKeysTest, offersTheKeysToAPortalThatComesLate)
{
    start();
    const auto p = toggle();
    ASSERT_TRUE(waitUntil([&] { return grabs.registered.contains(1); }));

    FakePortal portal(bus.connect());

    EXPECT_TRUE(waitUntilBound(portal));
    EXPECT_TRUE(grabs.registered.empty());
}

TEST_F(PortalHotKeysTest, bindsTheKeysAnewWhenThePortalClosesTheSession)
{
    FakePortal portal(bus.connect());
    start();
    const auto p = toggle();
    ASSERT_TRUE(waitUntilBound(portal));
    const QString first = portal.session;
    portal.calls.clear();

    portal.closeSession();

    EXPECT_TRUE(waitUntilBound(portal));
    EXPECT_NE(portal.session, first);
    EXPECT_THAT(portal.calls, ElementsAre(u"CreateSession"_s, u"BindShortcuts"_s, u"Get"_s));
    EXPECT_THAT(
        log.lines(), Contains("HOTKEY no portal holds the keys: it has closed the session"));
    EXPECT_TRUE(grabs.registered.empty());
    portal.activate(u"toggle"_s);
    EXPECT_TRUE(waitUntil([&] { return !pressed.empty(); }));
}

TEST_F(PortalHotKeysTest, leavesAPortalAloneThatClosesEachSession)
{
    FakePortal portal(bus.connect());
    portal.closesEachSession = true;
    start();

    const auto p = toggle();

    EXPECT_TRUE(waitUntil([&] { return portal.calls.count(u"CreateSession"_s) == 6; }));
    QTest::qWait(300);
    EXPECT_EQ(portal.calls.count(u"CreateSession"_s), 6);
    EXPECT_TRUE(grabs.registered.contains(1));
}

TEST_F(PortalHotKeysTest, leavesTheKeyWithoutAPurposeToTheGrabs)
{
    FakePortal portal(bus.connect());
    start();

    auto reference = keys->registerHotKey({ { HotKey::keyP, 0 }, { 0, 6 } });
    grabs.press(HotKey::keyP, 0);

    EXPECT_THAT(pressed, ElementsAre(6));
    reference.reset();
    EXPECT_TRUE(grabs.registered.empty());
    EXPECT_THAT(portal.calls, IsEmpty());
}

TEST_F(PortalHotKeysTest, grabsTheKeysWhereThereIsNoPortal)
{
    start();

    const auto reference = toggle();

    EXPECT_TRUE(waitUntil([&] { return !grabs.registered.empty(); }));
    EXPECT_THAT(log.lines(), ElementsAre(StartsWith("HOTKEY no portal holds the keys: ")));
    grabs.press(HotKey::keyP, optionCommand);
    EXPECT_THAT(pressed, ElementsAre(1));
}

TEST_F(PortalHotKeysTest, grabsTheKeysWhenTheUserDeclinesAndDoesNotAskAgain)
{
    std::optional<FakePortal> portal(bus.connect());
    portal->answer = 1;
    start();

    auto reference = toggle();

    EXPECT_TRUE(waitUntil([&] { return !grabs.registered.empty(); }));
    portal.reset();
    portal.emplace(bus.connect());
    QTest::qWait(300);
    EXPECT_THAT(portal->calls, IsEmpty());
    reference.reset();
    EXPECT_TRUE(grabs.registered.empty());
}

TEST_F(PortalHotKeysTest, grabsTheKeysThatTheUserLeavesOut)
{
    FakePortal portal(bus.connect());
    portal.choices = { { u"toggle"_s, FakePortal::Choice::LeaveOut },
        { u"faster"_s, FakePortal::Choice::GiveNoKeys } };
    start();
    auto p = toggle();
    const auto up = faster();
    const auto down = slower();

    ASSERT_TRUE(waitUntilBound(portal));

    EXPECT_THAT(log.lines(),
        ElementsAre("HOTKEY the desktop's portal does not hold Alt+Super+P, Alt+Super+Up"));
    EXPECT_EQ(grabs.registered.size(), 2);
    grabs.press(HotKey::keyP, optionCommand);
    grabs.press(HotKey::keyUp, optionCommand);
    EXPECT_THAT(pressed, ElementsAre(1, 2));
    portal.activate(u"slower"_s);
    EXPECT_TRUE(waitUntil([&] { return pressed.size() == 3; }));
    EXPECT_THAT(pressed, ElementsAre(1, 2, 3));

    p.reset();
    EXPECT_EQ(grabs.registered.size(), 1);
}

TEST_F(PortalHotKeysTest, asksForTheListWhenThePortalDoesNotTellWhatItBound)
{
    FakePortal portal(bus.connect());
    portal.tellsWhatIsBound = false;
    portal.choices = { { u"faster"_s, FakePortal::Choice::LeaveOut } };
    start();

    const auto p = toggle();
    const auto up = faster();

    EXPECT_TRUE(waitUntilBound(portal));
    EXPECT_THAT(portal.calls, Contains(u"ListShortcuts"_s));
    EXPECT_THAT(log.lines(), ElementsAre("HOTKEY the desktop's portal does not hold Alt+Super+Up"));
    EXPECT_THAT(shownTriggers().keys(), UnorderedElementsAre(u"toggle"_s));
}

TEST_F(PortalHotKeysTest, grabsTheKeysWhenThePortalMakesNoSession)
{
    FakePortal portal(bus.connect());
    portal.makesSessions = false;
    start();

    const auto p = toggle();

    EXPECT_TRUE(waitUntil([&] { return !grabs.registered.empty(); }));
    EXPECT_THAT(log.lines(), ElementsAre("HOTKEY no portal holds the keys: no session"));
    EXPECT_THAT(portal.calls, ElementsAre(u"Register"_s, u"CreateSession"_s));
}

TEST_F(PortalHotKeysTest, closesTheSessionWithItsLastKey)
{
    FakePortal portal(bus.connect());
    start();
    auto reference = toggle();
    ASSERT_TRUE(waitUntilBound(portal));

    reference.reset();

    EXPECT_TRUE(waitUntil([&] { return portal.calls.contains(u"Close"_s); }));
}

/// The tests above rest on this.
TEST_F(PortalHotKeysTest, meetsAPortalThatRefusesWhatTheRealOneRefuses)
{
    FakePortal portal(bus.connect());
    QDBusConnection caller = bus.connect();
    const auto refusal
        = [&](const QString& interface, const QString& method, const QVariantList& arguments) {
              QDBusMessage call = QDBusMessage::createMethodCall(
                  u"org.freedesktop.portal.Desktop"_s, portalPath, interface, method);
              call.setArguments(arguments);
              const QDBusPendingCall reply = caller.asyncCall(call);
              EXPECT_TRUE(waitUntil([&] { return reply.isFinished(); }));
              return reply.reply().errorMessage();
          };
    const QString registry = u"org.freedesktop.host.portal.Registry"_s;
    const QString shortcuts = u"org.freedesktop.portal.GlobalShortcuts"_s;
    const QVariant nowhere = QVariant::fromValue(QDBusObjectPath(portalPath + u"/session/x/y"_s));

    EXPECT_EQ(refusal(registry, u"Register"_s, { u"a"_s }), u"Type of message");
    EXPECT_EQ(refusal(shortcuts, u"CreateSession"_s, { QVariantMap() }), u"An app id is required");
    EXPECT_EQ(refusal(registry, u"Register"_s, { u"app.orvello.Orvello"_s, QVariantMap() }),
        u"Registered too late");
    portal.demandsApplicationID = false;
    EXPECT_EQ(refusal(shortcuts, u"CreateSession"_s, {}), u"Type of message");
    EXPECT_EQ(
        refusal(shortcuts, u"ListShortcuts"_s, { nowhere, QVariantMap() }), u"Invalid session");
    EXPECT_EQ(refusal(shortcuts, u"ConfigureShortcuts"_s, { nowhere, QString(), QVariantMap() }),
        u"No such method");
}

} // namespace
} // namespace Orvello
