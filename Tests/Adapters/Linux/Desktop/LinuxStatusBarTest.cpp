#include "Orvello/Adapters/Linux/Desktop/LinuxStatusBar.h"

#include "Tests/Support/EventLoop.h"
#include "Tests/Support/PrivateBus.h"
#include "Tests/Support/PrivateXServer.h"

#include <QDBusMessage>
#include <QDBusVariant>
#include <QDBusVirtualObject>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <vector>
#include <xcb/xcb.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

/// A desktop's watcher of status notifier items, which may have a host.
class FakeWatcher final : public QDBusVirtualObject {
public:
    FakeWatcher(QDBusConnection connection, bool hasAHost)
        : bus(std::move(connection))
        , hasHost(hasAHost)
    {
        bus.registerVirtualObject(u"/StatusNotifierWatcher"_s, this);
        bus.registerService(u"org.kde.StatusNotifierWatcher"_s);
    }
    ~FakeWatcher() override { bus.unregisterService(u"org.kde.StatusNotifierWatcher"_s); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override
    {
        bus.send(message.createReply(QVariant::fromValue(QDBusVariant(hasHost))));
        return true;
    }

    void changeHost(bool isThere)
    {
        hasHost = isThere;
        bus.send(QDBusMessage::createSignal(u"/StatusNotifierWatcher"_s,
            u"org.kde.StatusNotifierWatcher"_s,
            isThere ? u"StatusNotifierHostRegistered"_s : u"StatusNotifierHostUnregistered"_s));
    }

    QDBusConnection bus;
    bool hasHost;
};

/// An X11 tray: its selection and its announcement, nothing else.
class FakeTray {
public:
    FakeTray()
        : m_connection(xcb_connect(nullptr, nullptr))
    {
        const xcb_screen_t* const screen
            = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        const xcb_window_t window = xcb_generate_id(m_connection);
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 10, 10, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, 0, nullptr);
        const xcb_atom_t selection = atom("_NET_SYSTEM_TRAY_S0");
        xcb_set_selection_owner(m_connection, window, selection, XCB_CURRENT_TIME);
        xcb_client_message_event_t announcement {};
        announcement.response_type = XCB_CLIENT_MESSAGE;
        announcement.format = 32;
        announcement.window = screen->root;
        announcement.type = atom("MANAGER");
        announcement.data.data32[1] = selection;
        announcement.data.data32[2] = window;
        xcb_send_event(m_connection, 0, screen->root, XCB_EVENT_MASK_STRUCTURE_NOTIFY,
            reinterpret_cast<const char*>(&announcement));
        xcb_flush(m_connection);
    }
    ~FakeTray() { xcb_disconnect(m_connection); }

private:
    xcb_atom_t atom(std::string_view name)
    {
        auto* const reply = xcb_intern_atom_reply(m_connection,
            xcb_intern_atom(m_connection, 0, static_cast<std::uint16_t>(name.size()), name.data()),
            nullptr);
        const xcb_atom_t result = reply->atom;
        std::free(reply);
        return result;
    }

    xcb_connection_t* m_connection;
};

class LinuxStatusBarTest : public ::testing::Test {
protected:
    void observe()
    {
        bar = std::make_unique<LinuxStatusBar>(bus.connect());
        bar->observe([this](bool isThere) { told.push_back(isThere); });
    }
    /// Waits until so much was told in all.
    bool wait(std::size_t count)
    {
        return QTest::qWaitFor([&] { return told.size() >= count; }, 20'000);
    }

    Testing::PrivateXServer server;
    Testing::PrivateBus bus;
    std::unique_ptr<LinuxStatusBar> bar;
    std::vector<bool> told;
};

TEST_F(LinuxStatusBarTest, tellsThatThereIsNone)
{
    observe();

    ASSERT_TRUE(wait(1));
    EXPECT_THAT(told, ElementsAre(false));
}

TEST_F(LinuxStatusBarTest, findsAHostOnTheBus)
{
    const FakeWatcher watcher(bus.connect(), true);

    observe();

    ASSERT_TRUE(wait(1));
    EXPECT_THAT(told, ElementsAre(true));
}

TEST_F(LinuxStatusBarTest, doesNotTakeAWatcherForAHost)
{
    FakeWatcher watcher(bus.connect(), false);
    observe();
    ASSERT_TRUE(wait(1));
    EXPECT_THAT(told, ElementsAre(false));

    watcher.changeHost(true);

    ASSERT_TRUE(wait(2));
    EXPECT_TRUE(told.back());
}

TEST_F(LinuxStatusBarTest, hearsOfAHostThatComesAndGoes)
{
    observe();
    ASSERT_TRUE(wait(1));

    auto watcher = std::make_unique<FakeWatcher>(bus.connect(), true);
    ASSERT_TRUE(wait(2));
    watcher.reset();
    ASSERT_TRUE(wait(3));

    EXPECT_THAT(told, ElementsAre(false, true, false));
}

TEST_F(LinuxStatusBarTest, findsATrayOnTheScreen)
{
    const FakeTray tray;

    observe();

    ASSERT_TRUE(wait(1));
    EXPECT_THAT(told, ElementsAre(true));
}

TEST_F(LinuxStatusBarTest, hearsOfATrayThatComesAndGoes)
{
    observe();
    ASSERT_TRUE(wait(1));

    auto tray = std::make_unique<FakeTray>();
    ASSERT_TRUE(wait(2));
    tray.reset();
    ASSERT_TRUE(wait(3));

    EXPECT_THAT(told, ElementsAre(false, true, false));
}

TEST_F(LinuxStatusBarTest, needsNoBus)
{
    LinuxStatusBar lonely(
        QDBusConnection::connectToBus(u"unix:path=/nowhere/at/all"_s, u"no bus"_s));
    lonely.observe([this](bool isThere) { told.push_back(isThere); });

    ASSERT_TRUE(wait(1));
    EXPECT_THAT(told, ElementsAre(false));
}

} // namespace
} // namespace Orvello
