#include "Orvello/Adapters/macOS/Desktop/CarbonHotKeys.h"
#include "Tests/MacOS/StandIns/CarbonEvents.h"

#include <gmock/gmock.h>

#include <vector>

namespace Orvello {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::uint32_t signature = 0x4F56484B; // 'OVHK'

class CarbonHotKeysTest : public testing::Test {
protected:
    Testing::CarbonEvents events;
    std::vector<std::uint32_t> pressedKeys;

    HotKeys::Handler recording()
    {
        return [this](HotKeyID key) { pressedKeys.push_back(key.id); };
    }
};

TEST_F(CarbonHotKeysTest, listensOnTheApplicationForPressedHotKeys)
{
    CarbonHotKeys hotKeys;

    hotKeys.installHandler(recording());

    EXPECT_THAT(events.calls, ElementsAre("install on application keyb 5"));
}

TEST_F(CarbonHotKeysTest, registersAKeyAsItIsToldWithoutOptions)
{
    CarbonHotKeys hotKeys;

    const auto reference = hotKeys.registerHotKey(
        { { HotKey::keyP, HotKey::optionKey | HotKey::commandKey }, { signature, 1 } });

    EXPECT_TRUE(reference);
    EXPECT_THAT(events.calls, ElementsAre("register 35 2304 OVHK 1 on application options 0"));
}

TEST_F(CarbonHotKeysTest, registersAPlainKeyWithoutModifiers)
{
    CarbonHotKeys hotKeys;

    const auto reference = hotKeys.registerHotKey({ { HotKey::keyP, 0 }, { signature, 6 } });

    EXPECT_THAT(events.calls, ElementsAre("register 35 0 OVHK 6 on application options 0"));
}

TEST_F(CarbonHotKeysTest, unregistersAKeyWithItsReference)
{
    CarbonHotKeys hotKeys;
    auto first = hotKeys.registerHotKey({ { HotKey::keyP, 0 }, { signature, 1 } });
    const auto second = hotKeys.registerHotKey({ { HotKey::keyR, 0 }, { signature, 2 } });
    events.calls.clear();

    first.reset();

    EXPECT_THAT(events.calls, ElementsAre("unregister 1"));
}

TEST_F(CarbonHotKeysTest, givesNoReferenceToAKeyThatTheSystemRefuses)
{
    CarbonHotKeys hotKeys;
    events.refusesKeys = true;

    EXPECT_FALSE(hotKeys.registerHotKey({ { HotKey::keyP, 0 }, { signature, 1 } }));
    EXPECT_EQ(events.calls.size(), 1); // And nothing is unregistered.
}

TEST_F(CarbonHotKeysTest, passesThePressedKeyOnAndConsumesTheEvent)
{
    CarbonHotKeys hotKeys;
    hotKeys.installHandler(recording());
    events.calls.clear();

    EXPECT_EQ(events.press(EventHotKeyID { signature, 3 }), noErr);

    EXPECT_THAT(pressedKeys, ElementsAre(3));
    EXPECT_THAT(events.calls, ElementsAre("parameter ---- hkid 8"));
}

TEST_F(CarbonHotKeysTest, leavesTheSignatureToTheHandler)
{
    CarbonHotKeys hotKeys;
    hotKeys.installHandler(recording());

    events.press(EventHotKeyID { 0, 4 });

    EXPECT_THAT(pressedKeys, ElementsAre(4));
}

TEST_F(CarbonHotKeysTest, consumesAnEventThatItCannotRead)
{
    CarbonHotKeys hotKeys;
    hotKeys.installHandler(recording());

    EXPECT_EQ(events.press(std::nullopt), noErr);
    EXPECT_THAT(pressedKeys, IsEmpty());
}

TEST_F(CarbonHotKeysTest, callsAKeyWhatItsMenusCallIt)
{
    const CarbonHotKeys hotKeys;
    constexpr std::uint32_t modifiers = HotKey::optionKey | HotKey::commandKey;

    EXPECT_EQ(hotKeys.label({ HotKey::keyP, modifiers }), QStringLiteral("⌥⌘P"));
    EXPECT_EQ(hotKeys.label({ HotKey::keyUp, modifiers }), QStringLiteral("⌥⌘↑"));
    EXPECT_EQ(hotKeys.label({ HotKey::keyDown, modifiers }), QStringLiteral("⌥⌘↓"));
    EXPECT_EQ(hotKeys.label({ HotKey::keyP, 0 }), QStringLiteral("P"));
    EXPECT_EQ(hotKeys.label({ 99, modifiers }), QString());
}

TEST_F(CarbonHotKeysTest, removesItsHandlerInTheEnd)
{
    {
        CarbonHotKeys hotKeys;
        hotKeys.installHandler(recording());
        events.calls.clear();
    }

    EXPECT_THAT(events.calls, ElementsAre("remove handler"));
}

TEST_F(CarbonHotKeysTest, removesNoHandlerThatItNeverInstalled)
{
    {
        const CarbonHotKeys hotKeys;
    }

    EXPECT_THAT(events.calls, IsEmpty());
}

} // namespace
} // namespace Orvello
