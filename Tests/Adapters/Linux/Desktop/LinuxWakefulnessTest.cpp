#include "Orvello/Adapters/Linux/Desktop/LinuxWakefulness.h"

#include "Tests/Support/EventLoop.h"
#include "Tests/Support/PrivateBus.h"
#include "Tests/Support/PrivateXServer.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusVirtualObject>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <optional>
#include <utility>
#include <xcb/screensaver.h>
#include <xcb/xcb.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Need = Wakefulness::Need;

const QString portalName = u"org.freedesktop.portal.Desktop"_s;
const QString screenSaverName = u"org.freedesktop.ScreenSaver"_s;

/// A service of the desktop that can keep the display on, under the name of one.
class FakeService final : public QDBusVirtualObject {
public:
    FakeService(QDBusConnection connection, const QString& serviceName)
        : bus(std::move(connection))
        , name(serviceName)
    {
        bus.registerVirtualObject(u"/org/freedesktop"_s, this, QDBusConnection::SubPath);
        bus.registerService(name);
    }
    ~FakeService() override
    {
        bus.unregisterService(name);
        bus.unregisterObject(u"/org/freedesktop"_s, QDBusConnection::UnregisterTree);
    }

    QString introspect(const QString&) const override { return {}; }

    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override
    {
        calls.append(message.interface() + u'.' + message.member());
        arguments = message.arguments();
        if (delaysReplies)
            pending = message;
        else
            answer(message);
        return true;
    }

    void answer(const QDBusMessage& message)
    {
        const QString call = message.interface() + u'.' + message.member();
        if (!isWilling)
            bus.send(message.createErrorReply(QDBusError::UnknownMethod, u"No such method"_s));
        else if (call == u"org.freedesktop.portal.Inhibit.Inhibit"_s
            && message.signature() == u"sua{sv}"_s)
            bus.send(message.createReply(QVariant::fromValue(handle)));
        else if (call == u"org.freedesktop.ScreenSaver.Inhibit"_s && message.signature() == u"ss"_s)
            bus.send(message.createReply(cookie));
        else if (call == u"org.freedesktop.portal.Request.Close"_s
            && message.path() == handle.path())
            isClosed = true;
        else if (call == u"org.freedesktop.ScreenSaver.UnInhibit"_s
            && message.arguments() == QVariantList { cookie })
            isClosed = true;
        else
            ADD_FAILURE() << call.toStdString() << message.signature().toStdString();
    }

    QDBusConnection bus;
    QString name;
    QDBusObjectPath handle { u"/org/freedesktop/portal/desktop/request/1_1/t"_s };
    uint cookie = 4711;
    bool isWilling = true;
    bool delaysReplies = false;
    std::optional<QDBusMessage> pending;
    bool isClosed = false; ///< The request was taken back.
    QStringList calls;
    QVariantList arguments; ///< Of the last call.
};

class LinuxWakefulnessTest : public ::testing::Test {
protected:
    void wait(const std::function<bool()>& condition)
    {
        EXPECT_TRUE(QTest::qWaitFor(condition, 5000));
    }

    /// Milliseconds without a key, after which the X server counts its display as unused; none
    /// while somebody keeps it on.
    static bool isSuspendedInX()
    {
        xcb_connection_t* const connection = xcb_connect(nullptr, nullptr);
        xcb_window_t root = xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
        // A saver after one second, which starts at once when it is forced; a suspended one
        // does not start.
        xcb_set_screen_saver(connection, 1, 0, XCB_BLANKING_PREFERRED, XCB_EXPOSURES_ALLOWED);
        xcb_flush(connection);
        QTest::qWait(2500);
        auto* const info = xcb_screensaver_query_info_reply(
            connection, xcb_screensaver_query_info(connection, root), nullptr);
        const bool isOn = info && info->state == XCB_SCREENSAVER_STATE_ON;
        std::free(info);
        xcb_disconnect(connection);
        return !isOn;
    }

    Testing::PrivateBus bus;
};

TEST_F(LinuxWakefulnessTest, asksThePortalAndTakesItBack)
{
    FakeService portal(bus.connect(), portalName);
    LinuxWakefulness wakefulness(bus.connect());

    wakefulness.hold(Need::Display);
    wait([&] { return !portal.calls.isEmpty(); });
    EXPECT_EQ(portal.arguments.value(1).toUInt(), 8U) << "not idle, but log-out and sleep as ever";

    wakefulness.hold(Need::Display);
    wakefulness.hold(Need::Timers);
    wait([&] { return portal.isClosed; });
    EXPECT_THAT(portal.calls,
        ElementsAre(u"org.freedesktop.portal.Inhibit.Inhibit"_s,
            u"org.freedesktop.portal.Request.Close"_s));
}

TEST_F(LinuxWakefulnessTest, asksTheScreenSaverWhereThePortalRefuses)
{
    FakeService portal(bus.connect(), portalName);
    portal.isWilling = false;
    FakeService screenSaver(bus.connect(), screenSaverName);
    LinuxWakefulness wakefulness(bus.connect());

    wakefulness.hold(Need::Display);
    wait([&] { return !screenSaver.calls.isEmpty(); });
    EXPECT_EQ(screenSaver.arguments.value(0), u"Orvello"_s);

    wakefulness.hold(Need::None);
    wait([&] { return screenSaver.isClosed; });
}

TEST_F(LinuxWakefulnessTest, takesBackWhatIsGrantedTooLate)
{
    FakeService portal(bus.connect(), portalName);
    portal.delaysReplies = true;
    LinuxWakefulness wakefulness(bus.connect());
    wakefulness.hold(Need::Display);
    wait([&] { return portal.pending.has_value(); });

    wakefulness.hold(Need::None);
    portal.delaysReplies = false;
    portal.answer(*portal.pending);

    wait([&] { return portal.isClosed; });
}

TEST_F(LinuxWakefulnessTest, asksAgainWhenTheServiceCameBack)
{
    FakeService screenSaver(bus.connect(), screenSaverName);
    LinuxWakefulness wakefulness(bus.connect());
    wakefulness.hold(Need::Display);
    wait([&] { return screenSaver.calls.size() == 1; });
    QTest::qWait(50);

    screenSaver.bus.unregisterService(screenSaverName);
    screenSaver.calls.clear();
    screenSaver.bus.registerService(screenSaverName);

    wait([&] { return screenSaver.calls.contains(u"org.freedesktop.ScreenSaver.Inhibit"_s); });
}

TEST_F(LinuxWakefulnessTest, asksNobodyForTimersAlone)
{
    FakeService portal(bus.connect(), portalName);
    LinuxWakefulness wakefulness(bus.connect());

    wakefulness.hold(Need::Timers);
    QTest::qWait(100);

    EXPECT_THAT(portal.calls, IsEmpty());
}

TEST_F(LinuxWakefulnessTest, asksTheXServerWhereNobodyElseIs)
{
    Testing::PrivateXServer server;
    LinuxWakefulness wakefulness(bus.connect());
    wakefulness.hold(Need::Display);
    QTest::qWait(200);
    EXPECT_TRUE(isSuspendedInX());

    wakefulness.hold(Need::None);
    EXPECT_FALSE(isSuspendedInX());
}

} // namespace
} // namespace Orvello
