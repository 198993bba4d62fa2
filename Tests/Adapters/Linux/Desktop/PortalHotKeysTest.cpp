#include "Orvello/Adapters/Linux/Desktop/PortalHotKeys.h"

#include "Tests/Support/FakeHotKeys.h"
#include "Tests/Support/LogCapture.h"
#include "Tests/Support/PrivateBus.h"

#include <QDBusArgument>
#include <QDBusMetaType>
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

constexpr std::uint32_t optionCommand = HotKey::optionKey | HotKey::commandKey;

/// A desktop's GlobalShortcuts portal, whose user a test plays.
class FakePortal final : public QDBusVirtualObject {
public:
    explicit FakePortal(QDBusConnection connection)
        : bus(std::move(connection))
    {
        qDBusRegisterMetaType<WiredShortcut>();
        qDBusRegisterMetaType<QList<WiredShortcut>>();
        bus.registerVirtualObject(
            u"/org/freedesktop/portal/desktop"_s, this, QDBusConnection::SubPath);
        bus.registerService(u"org.freedesktop.portal.Desktop"_s);
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override
    {
        calls.append(message.member());
        if (message.member() == u"CreateSession")
            createSession(message);
        else if (message.member() == u"BindShortcuts")
            bindShortcuts(message);
        return true;
    }

    void activate(const QString& shortcut)
    {
        QDBusMessage signal = QDBusMessage::createSignal(u"/org/freedesktop/portal/desktop"_s,
            u"org.freedesktop.portal.GlobalShortcuts"_s, u"Activated"_s);
        signal << QVariant::fromValue(QDBusObjectPath(session)) << shortcut << qulonglong(1)
               << QVariantMap();
        bus.send(signal);
    }

    QDBusConnection bus;
    /// What the user does with a shortcut that is to be bound.
    enum class Choice { TakePreferred, GiveNoKeys, LeaveOut };

    uint answer = 0; ///< 1 is the user's refusal.
    bool makesSessions = true;
    bool tellsWhatIsBound = true;
    QMap<QString, Choice> choices; ///< By the shortcut; without one it gets its keys.
    QStringList calls;
    QStringList triggers; ///< What was bound.
    QString session;

private:
    void createSession(const QDBusMessage& message)
    {
        const QVariantMap options = argument<QVariantMap>(message, 0);
        session = u"/org/freedesktop/portal/desktop/session/x/"_s
            + options.value(u"session_handle_token"_s).toString();
        respond(message, options,
            makesSessions ? QVariantMap { { u"session_handle"_s, session } } : QVariantMap());
    }

    void bindShortcuts(const QDBusMessage& message)
    {
        QList<WiredShortcut> bound;
        for (const auto& shortcut : argument<QList<WiredShortcut>>(message, 1)) {
            const QString trigger = shortcut.properties.value(u"preferred_trigger"_s).toString();
            triggers.append(shortcut.id + u'=' + trigger);
            if (choices.value(shortcut.id) == Choice::LeaveOut)
                continue;
            const bool hasKeys = choices.value(shortcut.id) != Choice::GiveNoKeys;
            bound.append(
                { shortcut.id, { { u"trigger_description"_s, hasKeys ? trigger : QString() } } });
        }
        respond(message, argument<QVariantMap>(message, 3),
            tellsWhatIsBound ? QVariantMap { { u"shortcuts"_s, QVariant::fromValue(bound) } }
                             : QVariantMap());
    }

    template <typename Value>
    static Value argument(const QDBusMessage& message, int index)
    {
        return qdbus_cast<Value>(message.arguments().at(index));
    }

    void respond(
        const QDBusMessage& message, const QVariantMap& options, const QVariantMap& results)
    {
        const QString request = u"/org/freedesktop/portal/desktop/request/"_s
            + message.service().mid(1).replace(u'.', u'_') + u'/'
            + options.value(u"handle_token"_s).toString();
        bus.send(message.createReply(QVariant::fromValue(QDBusObjectPath(request))));
        QDBusMessage signal = QDBusMessage::createTargetedSignal(
            message.service(), request, u"org.freedesktop.portal.Request"_s, u"Response"_s);
        signal << answer << results;
        bus.send(signal);
    }
};

class PortalHotKeysTest : public ::testing::Test {
protected:
    void start()
    {
        keys.emplace(bus.connect(), grabs);
        keys->installHandler([this](HotKeyID id) { pressed.push_back(id.id); });
    }

    template <typename Condition>
    static bool waitUntil(Condition condition)
    {
        constexpr int longestWait = 30'000; // Milliseconds; a busy machine takes its time.
        return QTest::qWaitFor(condition, longestWait);
    }

    Testing::LogCapture log;
    Testing::PrivateBus bus;
    Testing::FakeHotKeys grabs;
    std::optional<PortalHotKeys> keys;
    std::vector<std::uint32_t> pressed;
};

TEST_F(PortalHotKeysTest, bindsEveryKeyInOneSession)
{
    FakePortal portal(bus.connect());
    start();

    const auto p = keys->registerHotKey(HotKey::keyP, optionCommand, { 0, 1 });
    const auto up = keys->registerHotKey(HotKey::keyUp, optionCommand, { 0, 2 });

    EXPECT_TRUE(waitUntil([&] { return portal.triggers.size() == 2; }));
    EXPECT_THAT(
        portal.triggers, ElementsAre(u"Alt+Super+P=ALT+LOGO+p"_s, u"Alt+Super+Up=ALT+LOGO+Up"_s));
    EXPECT_THAT(portal.calls, ElementsAre(u"CreateSession"_s, u"BindShortcuts"_s));
    EXPECT_THAT(grabs.registrations, IsEmpty());
}

TEST_F(PortalHotKeysTest, firesForTheActivatedShortcut)
{
    FakePortal portal(bus.connect());
    start();
    const auto p = keys->registerHotKey(HotKey::keyP, optionCommand, { 0, 1 });
    const auto up = keys->registerHotKey(HotKey::keyUp, optionCommand, { 0, 2 });
    ASSERT_TRUE(waitUntil([&] { return !log.lines().empty(); }));

    portal.activate(u"Alt+Super+Up"_s);

    EXPECT_TRUE(waitUntil([&] { return !pressed.empty(); }));
    EXPECT_THAT(pressed, ElementsAre(2));
}

TEST_F(PortalHotKeysTest, leavesThePlainKeyToTheGrabs)
{
    FakePortal portal(bus.connect());
    start();

    auto reference = keys->registerHotKey(HotKey::keyP, 0, { 0, 6 });
    grabs.press(HotKey::keyP, 0);

    EXPECT_THAT(pressed, ElementsAre(6));
    reference.reset();
    EXPECT_TRUE(grabs.registered.empty());
}

TEST_F(PortalHotKeysTest, grabsTheKeysWhereThereIsNoPortal)
{
    start();

    const auto reference = keys->registerHotKey(HotKey::keyP, optionCommand, { 0, 1 });

    EXPECT_TRUE(waitUntil([&] { return !grabs.registered.empty(); }));
    EXPECT_THAT(log.lines(), ElementsAre(StartsWith("HOTKEY no portal holds the keys: ")));
    grabs.press(HotKey::keyP, optionCommand);
    EXPECT_THAT(pressed, ElementsAre(1));
}

TEST_F(PortalHotKeysTest, grabsTheKeysWhenTheUserDeclines)
{
    FakePortal portal(bus.connect());
    portal.answer = 1;
    start();

    auto reference = keys->registerHotKey(HotKey::keyP, optionCommand, { 0, 1 });

    EXPECT_TRUE(waitUntil([&] { return !grabs.registered.empty(); }));
    reference.reset();
    EXPECT_TRUE(grabs.registered.empty());
}

TEST_F(PortalHotKeysTest, grabsTheKeysThatTheUserLeavesOut)
{
    FakePortal portal(bus.connect());
    portal.choices = { { u"Alt+Super+P"_s, FakePortal::Choice::LeaveOut },
        { u"Alt+Super+Up"_s, FakePortal::Choice::GiveNoKeys } };
    start();
    auto p = keys->registerHotKey(HotKey::keyP, optionCommand, { 0, 1 });
    const auto up = keys->registerHotKey(HotKey::keyUp, optionCommand, { 0, 2 });
    const auto down = keys->registerHotKey(HotKey::keyDown, optionCommand, { 0, 3 });

    ASSERT_TRUE(waitUntil([&] { return !log.lines().empty(); }));

    EXPECT_THAT(log.lines(),
        ElementsAre("HOTKEY the desktop's portal does not hold Alt+Super+P, Alt+Super+Up"));
    EXPECT_EQ(grabs.registered.size(), 2);
    grabs.press(HotKey::keyP, optionCommand);
    grabs.press(HotKey::keyUp, optionCommand);
    EXPECT_THAT(pressed, ElementsAre(1, 2));
    portal.activate(u"Alt+Super+Down"_s);
    EXPECT_TRUE(waitUntil([&] { return pressed.size() == 3; }));
    EXPECT_THAT(pressed, ElementsAre(1, 2, 3));

    p.reset();
    EXPECT_EQ(grabs.registered.size(), 1);
}

TEST_F(PortalHotKeysTest, takesAKeyThatTheUserAssignsLater)
{
    FakePortal portal(bus.connect());
    portal.choices = { { u"Alt+Super+P"_s, FakePortal::Choice::LeaveOut } };
    start();
    const auto p = keys->registerHotKey(HotKey::keyP, optionCommand, { 0, 1 });
    ASSERT_TRUE(waitUntil([&] { return !log.lines().empty(); }));

    portal.activate(u"Alt+Super+P"_s);

    EXPECT_TRUE(waitUntil([&] { return !pressed.empty(); }));
}

TEST_F(PortalHotKeysTest, grabsTheKeysWhenThePortalDoesNotTellWhatItBound)
{
    FakePortal portal(bus.connect());
    portal.tellsWhatIsBound = false;
    start();

    const auto p = keys->registerHotKey(HotKey::keyP, optionCommand, { 0, 1 });

    EXPECT_TRUE(waitUntil([&] { return !grabs.registered.empty(); }));
    EXPECT_THAT(log.lines(), Contains("HOTKEY the desktop's portal does not hold Alt+Super+P"));
}

TEST_F(PortalHotKeysTest, grabsTheKeysWhenThePortalMakesNoSession)
{
    FakePortal portal(bus.connect());
    portal.makesSessions = false;
    start();

    const auto p = keys->registerHotKey(HotKey::keyP, optionCommand, { 0, 1 });

    EXPECT_TRUE(waitUntil([&] { return !grabs.registered.empty(); }));
    EXPECT_THAT(log.lines(), ElementsAre("HOTKEY no portal holds the keys: no session"));
    EXPECT_THAT(portal.calls, ElementsAre(u"CreateSession"_s));
}

TEST_F(PortalHotKeysTest, closesTheSessionWithItsLastKey)
{
    FakePortal portal(bus.connect());
    start();
    auto reference = keys->registerHotKey(HotKey::keyP, optionCommand, { 0, 1 });
    ASSERT_TRUE(waitUntil([&] { return !log.lines().empty(); }));

    reference.reset();

    EXPECT_TRUE(waitUntil([&] { return portal.calls.contains(u"Close"_s); }));
}

} // namespace
} // namespace Orvello
