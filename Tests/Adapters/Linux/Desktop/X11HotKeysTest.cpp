#include "Orvello/Adapters/Linux/Desktop/X11HotKeys.h"

#include "Orvello/Adapters/Linux/Desktop/XcbXkb.h"
#include "Tests/Support/LogCapture.h"
#include "Tests/Support/PrivateXServer.h"

#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <vector>
#include <xcb/xcb.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::uint32_t optionCommand = HotKey::optionKey | HotKey::commandKey;

/// Places on an American keyboard as the server numbers them, pressed with xdotool by number so
/// that the layout has no say.
namespace Place {
constexpr int p = 33;
constexpr int q = 24;
constexpr int up = 111;
constexpr int down = 116;
constexpr int r = 27;
constexpr int h = 43;
constexpr int alt = 64;
constexpr int super = 133;
constexpr int shift = 50;
constexpr int capsLock = 66;
constexpr int numLock = 77;
constexpr int scrollLock = 78;
} // namespace Place

/// Runs a program on the display.
void run(const QString& program, const QStringList& arguments)
{
    QProcess process;
    process.setProcessChannelMode(QProcess::ForwardedChannels);
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished(20'000)) << qPrintable(program);
    EXPECT_EQ(process.exitCode(), 0) << qPrintable(program);
}

/// Whether an indicator of the keyboard is on, by its name.
bool isLit(const QString& indicator)
{
    QProcess process;
    process.start(u"xset"_s, { u"q"_s });
    EXPECT_TRUE(process.waitForFinished(20'000));
    const QRegularExpression line(indicator + u":\\s+(on|off)"_s);
    const auto match = line.match(QString::fromUtf8(process.readAllStandardOutput()));
    EXPECT_TRUE(match.hasMatch()) << qPrintable(indicator);
    return match.captured(1) == u"on";
}

/// Another program's window that has the keyboard, and counts what is typed into it.
class OtherProgram {
public:
    OtherProgram()
        : m_connection(xcb_connect(nullptr, nullptr))
    {
        const xcb_screen_t* const screen
            = xcb_setup_roots_iterator(xcb_get_setup(m_connection)).data;
        m_root = screen->root;
        m_window = xcb_generate_id(m_connection);
        const std::uint32_t events = XCB_EVENT_MASK_KEY_PRESS;
        xcb_create_window(m_connection, XCB_COPY_FROM_PARENT, m_window, m_root, 0, 0, 100, 100, 0,
            XCB_WINDOW_CLASS_INPUT_OUTPUT, screen->root_visual, XCB_CW_EVENT_MASK, &events);
        xcb_map_window(m_connection, m_window);
        sync();
        xcb_set_input_focus(m_connection, XCB_INPUT_FOCUS_POINTER_ROOT, m_window, XCB_CURRENT_TIME);
        sync();
    }
    ~OtherProgram() { xcb_disconnect(m_connection); }

    void grabKey(int keyCode)
    {
        xcb_grab_key(m_connection, 0, m_root, XCB_MOD_MASK_ANY, static_cast<xcb_keycode_t>(keyCode),
            XCB_GRAB_MODE_ASYNC, XCB_GRAB_MODE_ASYNC);
        sync();
    }

    /// Switches the keyboard to one of its layouts, counted from 0.
    void lockLayout(std::uint8_t number)
    {
        std::free(xcb_xkb_use_extension_reply(
            m_connection, xcb_xkb_use_extension(m_connection, 1, 0), nullptr));
        xcb_xkb_latch_lock_state(m_connection, XCB_XKB_ID_USE_CORE_KBD, 0, 0, 1, number, 0, 0, 0);
        sync();
    }

    /// How often the key was typed since the last question.
    int typed(int keyCode)
    {
        sync();
        int count = 0;
        while (xcb_generic_event_t* const event = xcb_poll_for_event(m_connection)) {
            const auto* const key = reinterpret_cast<const xcb_key_press_event_t*>(event);
            if (event->response_type == XCB_KEY_PRESS && key->detail == keyCode)
                ++count;
            std::free(event);
        }
        return count;
    }

private:
    void sync()
    {
        std::free(
            xcb_get_input_focus_reply(m_connection, xcb_get_input_focus(m_connection), nullptr));
    }

    xcb_connection_t* m_connection;
    xcb_window_t m_root = 0;
    xcb_window_t m_window = 0;
};

class X11HotKeysTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        keys.emplace();
        keys->installHandler([this](HotKeyID id) { pressed.push_back(id.id); });
    }

    void hold(const QString& action, std::initializer_list<int> places) const
    {
        QStringList arguments { action };
        for (const int place : places)
            arguments.append(QString::number(place));
        run(u"xdotool"_s, arguments);
    }

    /// Presses the keys in order and releases them in the opposite order.
    void type(std::vector<int> places) const
    {
        QStringList arguments;
        for (const int place : places)
            arguments += { u"keydown"_s, QString::number(place) };
        for (auto place = places.rbegin(); place != places.rend(); ++place)
            arguments += { u"keyup"_s, QString::number(*place) };
        run(u"xdotool"_s, arguments);
    }

    bool waitForPresses(std::size_t count) const
    {
        return QTest::qWaitFor([&] { return pressed.size() >= count; });
    }

    /// Whatever the server was asked to do before has been done and heard of.
    void settle() { QTest::qWait(100); }

    Testing::LogCapture log;
    const Testing::PrivateXServer display;
    std::optional<X11HotKeys> keys;
    std::vector<std::uint32_t> pressed;
};

TEST_F(X11HotKeysTest, firesForEachKeyWhileAnotherProgramHasTheKeyboard)
{
    OtherProgram other;
    std::vector<std::unique_ptr<HotKeys::Reference>> references;
    std::uint32_t id = 0;
    for (const std::uint32_t key :
        { HotKey::keyP, HotKey::keyUp, HotKey::keyDown, HotKey::keyR, HotKey::keyH })
        references.push_back(keys->registerHotKey({ { key, optionCommand }, { 0, ++id } }));

    for (const int place : { Place::p, Place::up, Place::down, Place::r, Place::h })
        type({ Place::alt, Place::super, place });

    EXPECT_TRUE(waitForPresses(5));
    EXPECT_THAT(pressed, ElementsAre(1, 2, 3, 4, 5));
    EXPECT_EQ(other.typed(Place::p), 0);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(X11HotKeysTest, firesWithAnyCombinationOfLocks)
{
    const auto reference = keys->registerHotKey({ { HotKey::keyP, optionCommand }, { 0, 1 } });

    for (const int lock : { Place::numLock, Place::capsLock, Place::numLock, Place::capsLock }) {
        type({ lock });
        type({ Place::alt, Place::super, Place::p });
    }

    EXPECT_TRUE(waitForPresses(4));
}

TEST_F(X11HotKeysTest, needsExactlyItsModifiers)
{
    OtherProgram other;
    const auto reference = keys->registerHotKey({ { HotKey::keyP, optionCommand }, { 0, 1 } });

    type({ Place::p });
    type({ Place::alt, Place::p });
    type({ Place::super, Place::p });
    type({ Place::shift, Place::alt, Place::super, Place::p });
    type({ Place::alt, Place::super, Place::q });
    settle();

    EXPECT_THAT(pressed, IsEmpty());
    EXPECT_EQ(other.typed(Place::p), 4);
}

TEST_F(X11HotKeysTest, takesThePlainKeyOnlyWhileItIsRegistered)
{
    OtherProgram other;

    type({ Place::p });
    EXPECT_EQ(other.typed(Place::p), 1);

    auto reference = keys->registerHotKey({ { HotKey::keyP, 0 }, { 0, 6 } });
    type({ Place::p });
    EXPECT_TRUE(waitForPresses(1));
    EXPECT_EQ(other.typed(Place::p), 0);

    reference.reset();
    type({ Place::p });
    EXPECT_EQ(other.typed(Place::p), 1);
    settle();
    EXPECT_THAT(pressed, ElementsAre(6));
}

TEST_F(X11HotKeysTest, firesOnceHoweverLongTheKeyIsHeld)
{
    const auto reference = keys->registerHotKey({ { HotKey::keyP, 0 }, { 0, 1 } });

    hold(u"keydown"_s, { Place::p });
    QTest::qWait(1200); // Auto-repeat starts after 660 ms.
    hold(u"keyup"_s, { Place::p });
    settle();
    EXPECT_THAT(pressed, ElementsAre(1));

    type({ Place::p });
    EXPECT_TRUE(waitForPresses(2));
}

TEST_F(X11HotKeysTest, goesWithItsLetterOnOtherLayouts)
{
    const auto reference = keys->registerHotKey({ { HotKey::keyP, optionCommand }, { 0, 1 } });

    std::size_t count = 0;
    for (const auto& [layout, place] : { std::pair(u"fr"_s, Place::p), // AZERTY has it there, too,
             std::pair(u"ru"_s, Place::p), // a layout without the letter counts as American,
             std::pair(u"ru,us(dvorak)"_s, Place::r), // unless a second layout has it,
             std::pair(u"us,ru"_s, Place::p), std::pair(u"us(dvorak)"_s, Place::r),
             std::pair(u"us(colemak)"_s, Place::r), std::pair(u"us"_s, Place::p) }) {
        run(u"setxkbmap"_s, { layout });
        settle();
        type({ Place::alt, Place::super, place });
        EXPECT_TRUE(waitForPresses(++count)) << qPrintable(layout);
    }
}

TEST_F(X11HotKeysTest, tellsWhichKeysDoNotWork)
{
    using Trouble = AssignedKeys::Trouble;
    using Troubles = QHash<QString, Trouble>;
    {
        OtherProgram other;
        other.grabKey(Place::p);
        const auto lost = keys->registerHotKey(
            { { HotKey::keyP, optionCommand }, { 0, 1 }, HotKeyPurpose { u"toggle"_s, {} } });
        EXPECT_EQ(keys->assignedKeys().troubles(), (Troubles { { u"toggle"_s, Trouble::Taken } }));
    }
    const auto own = keys->registerHotKey(
        { { HotKey::keyP, optionCommand }, { 0, 1 }, HotKeyPurpose { u"toggle"_s, {} } });
    EXPECT_EQ(keys->assignedKeys().troubles(), Troubles());

    run(u"xmodmap"_s, { u"-e"_s, u"clear mod4"_s });
    settle();
    EXPECT_EQ(keys->assignedKeys().troubles(), (Troubles { { u"toggle"_s, Trouble::Absent } }));
}

TEST_F(X11HotKeysTest, followsAModifierThatMovesToAnotherBit)
{
    const auto reference = keys->registerHotKey({ { HotKey::keyP, optionCommand }, { 0, 1 } });

    run(u"xmodmap"_s,
        { u"-e"_s, u"clear mod4"_s, u"-e"_s, u"clear mod3"_s, u"-e"_s, u"add mod3 = Super_L"_s });
    settle();
    type({ Place::alt, Place::super, Place::p });

    EXPECT_TRUE(waitForPresses(1));
}

TEST_F(X11HotKeysTest, callsTheKeysWhatIsOnThem)
{
    EXPECT_EQ(keys->label({ HotKey::keyP, optionCommand }), QStringLiteral("Alt+Super+P"));
    EXPECT_EQ(keys->label({ HotKey::keyUp, optionCommand }), QStringLiteral("Alt+Super+↑"));
    EXPECT_EQ(keys->label({ HotKey::keyDown, HotKey::commandKey }), QStringLiteral("Super+↓"));
    EXPECT_EQ(keys->label({ HotKey::keyP, 0 }), QStringLiteral("P"));
    EXPECT_EQ(keys->label({ 99, optionCommand }), QString());
}

TEST_F(X11HotKeysTest, waitsForAModifierThatTheKeyboardLacks)
{
    run(u"xmodmap"_s, { u"-e"_s, u"clear mod4"_s });
    settle();

    const auto reference = keys->registerHotKey({ { HotKey::keyP, optionCommand }, { 0, 1 } });
    const auto plain = keys->registerHotKey({ { HotKey::keyR, 0 }, { 0, 2 } });

    EXPECT_NE(reference, nullptr);
    EXPECT_THAT(log.lines(), ElementsAre("HOTKEY Alt+Super+P is not available on this keyboard"));
    type({ Place::alt, Place::p });
    type({ Place::p });
    type({ Place::r });
    ASSERT_TRUE(waitForPresses(1));
    EXPECT_THAT(pressed, ElementsAre(2)) << "nothing was grabbed in its place";

    run(u"xmodmap"_s, { u"-e"_s, u"add mod4 = Super_L"_s });
    settle();
    type({ Place::alt, Place::super, Place::p });

    EXPECT_TRUE(waitForPresses(2));
    EXPECT_THAT(pressed, ElementsAre(2, 1));
    EXPECT_EQ(log.lines().size(), 1u) << "told once, however often the keyboard changed";
}

TEST_F(X11HotKeysTest, tellsAgainWhenTheKeyboardLosesAModifier)
{
    const auto reference = keys->registerHotKey({ { HotKey::keyP, optionCommand }, { 0, 1 } });

    run(u"xmodmap"_s, { u"-e"_s, u"clear mod4"_s });
    settle();

    EXPECT_THAT(log.lines(), ElementsAre("HOTKEY Alt+Super+P is not available on this keyboard"));
}

TEST_F(X11HotKeysTest, tellsThatAnotherProgramTookTheKeyAfterALayoutChange)
{
    run(u"xmodmap"_s, { u"-e"_s, u"clear mod4"_s });
    settle();
    const auto reference = keys->registerHotKey({ { HotKey::keyP, optionCommand }, { 0, 1 } });
    OtherProgram other;
    other.grabKey(Place::p);
    log.clear();

    run(u"xmodmap"_s, { u"-e"_s, u"add mod4 = Super_L"_s });
    settle();

    EXPECT_THAT(log.lines(), ElementsAre("HOTKEY Alt+Super+P belongs to another program"));
}

TEST_F(X11HotKeysTest, firesWhileScrollLockIsOnAModifier)
{
    run(u"xmodmap"_s, { u"-e"_s, u"add mod3 = Scroll_Lock"_s });
    settle();
    const auto reference = keys->registerHotKey({ { HotKey::keyP, optionCommand }, { 0, 1 } });

    for (std::size_t count = 1; count <= 2; ++count) {
        type({ Place::scrollLock });
        EXPECT_EQ(isLit(u"Scroll Lock"_s), count == 1);
        type({ Place::alt, Place::super, Place::p });
        EXPECT_TRUE(waitForPresses(count));
    }
}

TEST_F(X11HotKeysTest, firesInTheSecondLayoutOfTheKeyboard)
{
    run(u"setxkbmap"_s, { u"us,ru"_s });
    settle();
    OtherProgram other;
    const auto reference = keys->registerHotKey({ { HotKey::keyP, optionCommand }, { 0, 1 } });

    std::size_t count = 0;
    for (const auto layout : std::vector<std::uint8_t> { 0, 1, 0 }) {
        other.lockLayout(layout);
        EXPECT_EQ(isLit(u"Group 2"_s), layout == 1);

        type({ Place::alt, Place::super, Place::p });

        EXPECT_TRUE(waitForPresses(++count)) << "in layout " << int { layout };
    }
    EXPECT_EQ(other.typed(Place::p), 0);
}

TEST_F(X11HotKeysTest, survivesAKeyThatAnotherProgramOwns)
{
    OtherProgram other;
    other.grabKey(Place::p);

    const auto lost = keys->registerHotKey({ { HotKey::keyP, optionCommand }, { 0, 1 } });
    const auto own = keys->registerHotKey({ { HotKey::keyR, optionCommand }, { 0, 2 } });
    type({ Place::alt, Place::super, Place::p });
    type({ Place::alt, Place::super, Place::r });

    EXPECT_EQ(lost, nullptr);
    EXPECT_TRUE(waitForPresses(1));
    EXPECT_THAT(pressed, ElementsAre(2));
    EXPECT_EQ(other.typed(Place::p), 1);
    EXPECT_THAT(log.lines(), ElementsAre("HOTKEY Alt+Super+P belongs to another program"));
}

TEST_F(X11HotKeysTest, leavesNoGrabBehind)
{
    OtherProgram other;
    auto reference = keys->registerHotKey({ { HotKey::keyP, optionCommand }, { 0, 1 } });
    reference.reset();

    for (const int lock : { Place::numLock, Place::capsLock, Place::numLock, Place::capsLock }) {
        type({ lock });
        type({ Place::alt, Place::super, Place::p });
    }

    EXPECT_EQ(other.typed(Place::p), 4);
}

TEST_F(X11HotKeysTest, refusesAKeyThatItDoesNotKnow)
{
    EXPECT_EQ(keys->registerHotKey({ { 999, optionCommand }, { 0, 1 } }), nullptr);
}

TEST(X11HotKeysWithoutDisplayTest, refusesEveryKey)
{
    X11HotKeys keys(":65432");

    EXPECT_EQ(keys.registerHotKey({ { HotKey::keyP, 0 }, { 0, 1 } }), nullptr);
}

} // namespace
} // namespace Orvello
