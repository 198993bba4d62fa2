#include "Orvello/Platform/Linux/PortalHotKeys.h"

#include "Tests/Support/FakeHotKeys.h"
#include "Tests/Support/LogCapture.h"
#include "Tests/Support/PrivateBus.h"

#include <QDBusArgument>
#include <QDBusVirtualObject>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <vector>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
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
    uint answer = 0; ///< 1 is the user's refusal.
    QStringList calls;
    QStringList triggers; ///< What was bound.
    QString session;

private:
    void createSession(const QDBusMessage& message)
    {
        const QVariantMap options = argument<QVariantMap>(message, 0);
        session = u"/org/freedesktop/portal/desktop/session/x/"_s
            + options.value(u"session_handle_token"_s).toString();
        respond(message, options, { { u"session_handle"_s, session } });
    }

    void bindShortcuts(const QDBusMessage& message)
    {
        const auto list = message.arguments().at(1).value<QDBusArgument>();
        list.beginArray();
        while (!list.atEnd()) {
            QString id;
            QVariantMap properties;
            list.beginStructure();
            list >> id >> properties;
            list.endStructure();
            triggers.append(id + u'=' + properties.value(u"preferred_trigger"_s).toString());
        }
        list.endArray();
        respond(message, argument<QVariantMap>(message, 3), {});
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
