#include "Orvello/Adapters/Linux/Desktop/X11Panel.h"

#include "Orvello/Adapters/Linux/Desktop/X11Compositing.h"
#include "Orvello/Adapters/Linux/Desktop/Xcb.h"
#include "Orvello/Prompting/Panel/PanelFrame.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/PrivateXServer.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QTest>
#include <QWheelEvent>
#include <QWindow>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>
#include <xcb/xcb.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

const QString savedKey = u"NSWindow Frame PrompterPanel"_s;

/// Stands in for the view: it wants the presses that it is told to want.
class View final : public QWindow {
public:
    void mousePressEvent(QMouseEvent* event) override
    {
        presses.push_back(event->button());
        if (wantsPresses)
            event->setExclusiveGrabber(event->point(0), this);
    }

    bool wantsPresses = false;
    std::vector<Qt::MouseButton> presses;
};

/// A compositor as far as other programs can tell: the owner of the selection.
class StandInCompositor {
public:
    StandInCompositor()
        : m_connection(xcb_connect(nullptr, nullptr))
    {
        const xcb_window_t window = xcb_generate_id(m_connection);
        xcb_screen_t* const screen = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, window, screen->root, 0, 0, 1, 1, 0,
            XCB_WINDOW_CLASS_INPUT_ONLY, XCB_COPY_FROM_PARENT, 0, nullptr);
        xcb_set_selection_owner(
            m_connection, window, Xcb::atomNamed(m_connection, "_NET_WM_CM_S0"), XCB_CURRENT_TIME);
        xcb_flush(m_connection);
    }
    ~StandInCompositor() { xcb_disconnect(m_connection); }
    StandInCompositor(const StandInCompositor&) = delete;
    StandInCompositor& operator=(const StandInCompositor&) = delete;

private:
    xcb_connection_t* m_connection;
};

/// The panel on a real X server. Pointer events are handed to its window one after the other, so
/// that what the server answers comes when the test lets it.
class X11PanelTest : public ::testing::Test {
protected:
    X11PanelTest()
    {
        QObject::connect(&panel, &NativePanel::resized,
            [this] { news.emplace_back(panel.isBeingResized() ? "resized live" : "resized"); });
        QObject::connect(&panel, &NativePanel::resizeEnded, [this] { news.emplace_back("ended"); });
        QObject::connect(
            &panel, &NativePanel::scrolled, [this](double delta) { scrolls.push_back(delta); });
        panel.setFrame(initial);
        show();
    }

    void show()
    {
        panel.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&view));
        settle();
        news.clear();
    }

    /// Lets everything come that the server has to say.
    static void settle() { QTest::qWait(150); }

    /// A pointer event at a place on the screen.
    void point(QEvent::Type type, QPoint place, Qt::MouseButton button = Qt::LeftButton)
    {
        const bool isDown = type != QEvent::MouseButtonRelease;
        QMouseEvent event(type, place - view.position(), place,
            type == QEvent::MouseMove ? Qt::NoButton : button,
            isDown ? Qt::MouseButtons(button) : Qt::MouseButtons(), Qt::NoModifier);
        QCoreApplication::sendEvent(&view, &event);
    }
    void press(QPoint place, Qt::MouseButton button = Qt::LeftButton)
    {
        point(QEvent::MouseButtonPress, place, button);
    }
    void move(QPoint place) { point(QEvent::MouseMove, place); }
    void release(QPoint place, Qt::MouseButton button = Qt::LeftButton)
    {
        point(QEvent::MouseButtonRelease, place, button);
    }

    void turnWheel(QPoint angle, QPoint pixels = {})
    {
        QWheelEvent event(QPointF(360, 100), view.mapToGlobal(QPointF(360, 100)), pixels, angle,
            Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(&view, &event);
    }

    std::optional<QRectF> saved() const
    {
        const auto home = PanelFrame::parsed(defaults.stored.value(savedKey).toString(), screens);
        return home ? std::optional(home->frame) : std::nullopt;
    }

    inline static const QList<QRectF> screens { { 0, 0, 1280, 800 } };
    static constexpr QRectF initial { 100, 300, 720, 200 };
    static constexpr QPoint middle { 460, 400 };
    static constexpr QPoint bottomRight { 818, 498 };
    static constexpr QPoint left { 101, 400 };

    Testing::FakeUserDefaults defaults;
    View view;
    X11Compositing compositing;
    X11Panel panel { view, defaults, compositing };
    std::vector<std::string> news;
    std::vector<double> scrolls;
};

TEST_F(X11PanelTest, isAWindowThatCapturesShow)
{
    EXPECT_GE(panel.captureHiding().windowNumber(), 1);
    EXPECT_EQ(panel.captureHiding().windowNumber(), static_cast<qint64>(view.winId()));
    EXPECT_EQ(panel.captureHiding().reach(), CaptureHiding::Reach::NoCapture);
    EXPECT_EQ(panel.frame(), initial);
    EXPECT_EQ(view.geometry(), QRect(100, 300, 720, 200));
}

// The wheel

TEST_F(X11PanelTest, scrollsTenPointsForANotchOfAWheelThatKnowsNoPixels)
{
    turnWheel({ 0, -120 });
    turnWheel({ 0, 120 });

    EXPECT_THAT(scrolls, ElementsAre(-10, 10));
}

TEST_F(X11PanelTest, scrollsByTheAngleOfATouchpadWhateverItsPixels)
{
    turnWheel({ 0, -15 }, { 0, -700 });
    turnWheel({ 30, 6 }, { 40, 0 });

    EXPECT_THAT(scrolls, ElementsAre(-1.25, 0.5));
}

// Dragging

TEST_F(X11PanelTest, isDraggedByItsBackground)
{
    press(middle);
    move(middle + QPoint(30, 40));
    EXPECT_FALSE(panel.isBeingResized());
    release(middle + QPoint(30, 40));
    settle();

    EXPECT_EQ(panel.frame(), initial.translated(30, 40));
    EXPECT_THAT(news, IsEmpty());
}

TEST_F(X11PanelTest, leavesAPressToTheViewThatWantsIt)
{
    view.wantsPresses = true;

    press(middle);
    move(middle + QPoint(30, 40));
    release(middle + QPoint(30, 40));
    settle();

    EXPECT_THAT(view.presses, ElementsAre(Qt::LeftButton));
    EXPECT_EQ(panel.frame(), initial);
}

TEST_F(X11PanelTest, isDraggedByTheLeftButtonAlone)
{
    press(middle, Qt::RightButton);
    move(middle + QPoint(30, 40));
    release(middle + QPoint(30, 40), Qt::RightButton);
    EXPECT_EQ(panel.frame(), initial);

    press(middle);
    press(middle, Qt::RightButton);
    release(middle, Qt::RightButton);
    move(middle + QPoint(30, 40));
    settle();
    EXPECT_EQ(panel.frame(), initial.translated(30, 40)) << "the drag goes on";
}

TEST_F(X11PanelTest, saysOfADragOfItsEdgeWhereItEnds)
{
    press(bottomRight);
    EXPECT_TRUE(panel.isBeingResized());
    move(bottomRight + QPoint(50, 20));
    settle();
    EXPECT_THAT(news, ElementsAre("resized live"));
    release(bottomRight + QPoint(50, 20));
    settle();

    EXPECT_EQ(panel.frame(), QRectF(100, 300, 770, 220));
    EXPECT_THAT(news, ElementsAre("resized live", "ended"));
    EXPECT_FALSE(panel.isBeingResized());
}

TEST_F(X11PanelTest, countsALastMoveThatComesWithTheRelease)
{
    panel.saveFrameAs(u"PrompterPanel"_s);

    press(bottomRight);
    for (const int step : { 10, 20, 30, 40 })
        move(bottomRight + QPoint(step, step));
    release(bottomRight + QPoint(40, 40));
    settle();

    EXPECT_EQ(panel.frame(), QRectF(100, 300, 760, 240));
    EXPECT_EQ(saved(), panel.frame());
    ASSERT_THAT(news, Contains("resized live"));
    EXPECT_EQ(news.back(), "ended");
    EXPECT_THAT(news, Contains("ended").Times(1));
    EXPECT_THAT(news, Not(Contains("resized"))) << "what the server confirms later is no news";
}

TEST_F(X11PanelTest, keepsTheOtherEdgeWhereItIsWithinItsLimits)
{
    press(left);
    move(left + QPoint(600, 0));
    settle();
    EXPECT_EQ(panel.frame(), QRectF(480, 300, 340, 200));

    move(left - QPoint(2000, 0));
    settle();
    EXPECT_EQ(panel.frame(), QRectF(-780, 300, 1600, 200));
}

TEST_F(X11PanelTest, endsItsResizeWhenItIsHidden)
{
    press(bottomRight);
    move(bottomRight + QPoint(50, 20));
    panel.hide();
    settle();
    EXPECT_FALSE(panel.isBeingResized());
    ASSERT_FALSE(news.empty());
    EXPECT_EQ(news.back(), "ended");
    EXPECT_THAT(news, Contains("ended").Times(1));

    show();
    move(bottomRight + QPoint(90, 90));
    release(bottomRight + QPoint(90, 90));
    settle();
    EXPECT_EQ(panel.frame(), QRectF(100, 300, 770, 220));
    EXPECT_THAT(news, IsEmpty());
}

TEST_F(X11PanelTest, endsItsDragWhenItIsHidden)
{
    press(middle);
    move(middle + QPoint(30, 40));
    panel.hide();
    settle();

    show();
    move(middle + QPoint(90, 90));
    settle();
    EXPECT_EQ(panel.frame(), initial.translated(30, 40));
    EXPECT_THAT(news, IsEmpty());
}

// The stack

/// Windows of other programs, on a connection of their own.
class X11PanelStackTest : public X11PanelTest {
protected:
    ~X11PanelStackTest() override { xcb_disconnect(connection); }

    enum class Kind { Managed, Unmanaged };

    xcb_window_t add(Kind kind, QRect area = { 100, 300, 720, 200 })
    {
        const xcb_window_t window = xcb_generate_id(connection);
        const std::uint32_t isUnmanaged = kind == Kind::Unmanaged;
        xcb_create_window(connection, XCB_COPY_FROM_PARENT, window, root(),
            static_cast<std::int16_t>(area.x()), static_cast<std::int16_t>(area.y()),
            static_cast<std::uint16_t>(area.width()), static_cast<std::uint16_t>(area.height()), 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, XCB_COPY_FROM_PARENT, XCB_CW_OVERRIDE_REDIRECT,
            &isUnmanaged);
        if (kind == Kind::Managed) {
            const std::uint32_t normal = 1;
            const xcb_atom_t state = Xcb::atomNamed(connection, "WM_STATE");
            xcb_change_property(
                connection, XCB_PROP_MODE_REPLACE, window, state, state, 32, 1, &normal);
        }
        xcb_map_window(connection, window);
        xcb_flush(connection);
        settle();
        return window;
    }

    void raise(xcb_window_t window)
    {
        const std::uint32_t mode = XCB_STACK_MODE_ABOVE;
        xcb_configure_window(connection, window, XCB_CONFIG_WINDOW_STACK_MODE, &mode);
        xcb_flush(connection);
        settle();
    }

    /// From bottom to top, those among these that there are.
    std::vector<xcb_window_t> stack(std::vector<xcb_window_t> windows) const
    {
        const auto tree = Xcb::owned(
            xcb_query_tree_reply(connection, xcb_query_tree(connection, root()), nullptr));
        const xcb_window_t* const first = xcb_query_tree_children(tree.get());
        const auto place = [&](xcb_window_t window) {
            return std::find(first, first + tree->children_len, window);
        };
        std::ranges::sort(windows, {}, place);
        return windows;
    }

    xcb_window_t root() const
    {
        return xcb_setup_roots_iterator(xcb_get_setup(connection)).data->root;
    }
    xcb_window_t own() const { return static_cast<xcb_window_t>(view.winId()); }

    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
};

TEST_F(X11PanelStackTest, takesItsShadowAlongBelowIt)
{
    const StandInCompositor compositor;
    settle();
    const QWindowList windows = QGuiApplication::topLevelWindows();
    const auto shadow = std::ranges::find(windows, u"Orvello shadow"_s, &QWindow::title);
    ASSERT_NE(shadow, windows.end());
    EXPECT_TRUE((*shadow)->isVisible());
    EXPECT_TRUE((*shadow)->geometry().contains(view.geometry()));
    const auto number = static_cast<xcb_window_t>((*shadow)->winId());
    EXPECT_THAT(stack({ own(), number }), ElementsAre(number, own()));

    const xcb_window_t document = add(Kind::Managed);
    EXPECT_THAT(stack({ own(), document, number }), ElementsAre(document, number, own()));

    panel.setFrame({ 200, 350, 400, 150 });
    EXPECT_TRUE((*shadow)->geometry().contains(QRect(200, 350, 400, 150)));
    panel.hide();
    EXPECT_FALSE((*shadow)->isVisible());
    show();
    EXPECT_THAT(stack({ own(), document, number }), ElementsAre(document, number, own()));
}

TEST_F(X11PanelStackTest, hasNoShadowWhereNobodyComposites)
{
    for (const QWindow* const window : QGuiApplication::topLevelWindows())
        EXPECT_EQ(window->isVisible(), window == &view);
}

TEST_F(X11PanelStackTest, comesJustAboveAManagedWindowThatCoversIt)
{
    const xcb_window_t document = add(Kind::Managed);

    EXPECT_THAT(stack({ document, own() }), ElementsAre(document, own()));
}

TEST_F(X11PanelStackTest, staysBelowAMenuWhenAManagedWindowComesBetween)
{
    const xcb_window_t document = add(Kind::Managed);
    const xcb_window_t menu = add(Kind::Unmanaged);
    const xcb_window_t dialog = add(Kind::Managed);
    raise(menu); // As lockers do when something covers them.

    raise(own());
    ASSERT_THAT(
        stack({ document, menu, dialog, own() }), ElementsAre(document, dialog, menu, own()));
    panel.hide();
    panel.show();
    settle();
    EXPECT_THAT(
        stack({ document, menu, dialog, own() }), ElementsAre(document, dialog, own(), menu));

    const std::array<std::uint32_t, 2> belowTheMenu { menu, XCB_STACK_MODE_BELOW };
    xcb_configure_window(connection, document,
        XCB_CONFIG_WINDOW_SIBLING | XCB_CONFIG_WINDOW_STACK_MODE, belowTheMenu.data());
    xcb_flush(connection);
    settle();
    EXPECT_THAT(
        stack({ document, menu, dialog, own() }), ElementsAre(dialog, document, own(), menu));
}

TEST_F(X11PanelStackTest, staysBelowALockerThatComesBackOverAManagedWindow)
{
    const xcb_window_t locker = add(Kind::Unmanaged, { 0, 0, 1280, 800 });
    const xcb_window_t notice = add(Kind::Managed, { 0, 0, 1280, 800 });
    raise(locker);

    EXPECT_THAT(stack({ locker, notice, own() }), ElementsAre(notice, own(), locker));
}

// The pointer

TEST_F(X11PanelTest, endsItsDragAtTheNextMotionWhenTheReleaseIsLost)
{
    press(middle);
    move(middle + QPoint(30, 40));

    QMouseEvent motion(QEvent::MouseMove, middle + QPoint(90, 90), middle + QPoint(90, 90),
        Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view, &motion);
    move(middle + QPoint(120, 120));
    settle();

    EXPECT_EQ(panel.frame(), initial.translated(30, 40));
    EXPECT_FALSE(panel.isBeingResized());
}

TEST_F(X11PanelTest, isDraggedByOnePointerAtATime)
{
    const QPointingDevice other(u"other"_s, 4711, QInputDevice::DeviceType::Mouse,
        QPointingDevice::PointerType::Generic, QInputDevice::Capability::Position, 1, 3);
    press(middle);
    move(middle + QPoint(30, 40));

    for (const auto type : { QEvent::MouseMove, QEvent::MouseButtonRelease }) {
        const QPoint place(600, 600);
        QMouseEvent event(type, place - view.position(), place,
            type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton, Qt::NoButton, Qt::NoModifier,
            &other);
        QCoreApplication::sendEvent(&view, &event);
    }
    move(middle + QPoint(50, 60));
    settle();

    EXPECT_EQ(panel.frame(), initial.translated(50, 60));
}

// The frame

TEST_F(X11PanelTest, cutsItsCornersOffOnlyWhileNobodyComposites)
{
    EXPECT_FALSE(compositing.isOn());
    EXPECT_FALSE(view.mask().contains(QPoint(1, 1)));
    EXPECT_TRUE(view.mask().contains(QPoint(360, 1)));
    {
        const StandInCompositor compositor;
        settle();
        EXPECT_TRUE(compositing.isOn());
        EXPECT_TRUE(view.mask().isEmpty());
    }
    settle();
    EXPECT_FALSE(compositing.isOn());
    EXPECT_FALSE(view.mask().contains(QPoint(1, 1)));
}

TEST_F(X11PanelTest, knowsACompositorThatIsThereBefore)
{
    const StandInCompositor compositor;
    settle();

    EXPECT_TRUE(X11Compositing().isOn());
}

TEST_F(X11PanelTest, tellsOfASizeThatItIsGiven)
{
    panel.setFrame({ 100, 300, 800, 300 });
    settle();
    EXPECT_THAT(news, ElementsAre("resized"));

    panel.setFrame({ 200, 300, 800, 300 });
    settle();
    EXPECT_THAT(news, ElementsAre("resized")) << "it is only moved";
}

TEST_F(X11PanelTest, savesWhereADragEndsAndNothingBefore)
{
    panel.saveFrameAs(u"PrompterPanel"_s);
    settle();
    ASSERT_EQ(saved(), std::nullopt) << "where it was put";

    press(middle);
    move(middle + QPoint(30, 40));
    settle();
    EXPECT_EQ(saved(), std::nullopt);
    release(middle + QPoint(30, 40));
    settle();

    EXPECT_EQ(saved(), initial.translated(30, 40));
    EXPECT_EQ(defaults.writes, 1);
}

TEST_F(X11PanelTest, savesTheFrameThatItIsGivenLater)
{
    panel.saveFrameAs(u"PrompterPanel"_s);

    panel.setFrame({ 280, 6, 720, 200 });
    settle();

    EXPECT_EQ(saved(), QRectF(280, 6, 720, 200));
    EXPECT_EQ(defaults.writes, 1);
}

TEST_F(X11PanelTest, takesTheSavedPlaceUnderTheTopOfAnotherScreen)
{
    defaults.stored.insert(savedKey, u"600 1234 720 200 0 0 1920 1440"_s);

    panel.saveFrameAs(u"PrompterPanel"_s);
    settle();

    EXPECT_EQ(panel.frame(), QRectF(280, 6, 720, 200));
    EXPECT_EQ(defaults.writes, 0);
}

TEST_F(X11PanelTest, takesTheSavedFrame)
{
    const QRectF frame(20, 30, 640, 250);
    defaults.stored.insert(savedKey, PanelFrame::text({ frame, screens.first() }, screens));

    panel.saveFrameAs(u"PrompterPanel"_s);
    settle();

    EXPECT_EQ(panel.frame(), frame);
    EXPECT_EQ(defaults.writes, 0);
}

TEST_F(X11PanelTest, bringsASavedFrameBackOntoTheScreen)
{
    defaults.stored.insert(savedKey, u"5000 -1570 9000 10 0 0 2560 1440"_s);

    panel.saveFrameAs(u"PrompterPanel"_s);
    settle();

    EXPECT_TRUE(QRectF(0, 0, 1280, 800).contains(panel.frame()));
    EXPECT_EQ(panel.frame().height(), NativePanel::minimumSize.height());
}

} // namespace
} // namespace Orvello

/// Unlike the tests that need no display, these have one: a server of their own.
int main(int argc, char** argv)
{
    ::testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests))
        return RUN_ALL_TESTS();
    const Orvello::Testing::PrivateXServer server;
    qputenv("QT_QPA_PLATFORM", "xcb");
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
