#include "Orvello/Shell/Commands/HotKeyCenter.h"

#include "Tests/Support/FakeHotKeys.h"

#include <gtest/gtest.h>

#include <limits>

namespace Orvello {
namespace {

class HotKeyCenterTest : public ::testing::Test {
protected:
    Testing::FakeHotKeys keyboard;
    HotKeyCenter center { keyboard };
    int presses = 0;
    HotKeyCenter::Action count = [this] { ++presses; };
};

TEST_F(HotKeyCenterTest, givesIdsThatCountUpFromOne)
{
    EXPECT_EQ(center.registerHotKey({ HotKey::keyP, 0x900 }, count), 1U);
    EXPECT_EQ(center.registerHotKey({ HotKey::keyUp, 0x900 }, count), 2U);
}

TEST_F(HotKeyCenterTest, neverUsesAnIdTwice)
{
    for (std::uint32_t key = 1; key <= 5; ++key)
        center.registerHotKey({ key, 0x900 }, count);

    const std::uint32_t first = center.registerHotKey({ HotKey::keyP, 0 }, count);
    center.unregister(first);
    const std::uint32_t second = center.registerHotKey({ HotKey::keyP, 0 }, count);

    EXPECT_EQ(first, 6U);
    EXPECT_EQ(second, 7U);
}

TEST_F(HotKeyCenterTest, handsTheSystemTheKeyAndTheSignedId)
{
    center.registerHotKey({ HotKey::keyP, 0x900 }, count);

    ASSERT_EQ(keyboard.registrations.size(), 1U);
    EXPECT_EQ(keyboard.registrations[0].id.signature, 0x4F56484BU);
    EXPECT_EQ(keyboard.registrations[0].id.id, 1U);
    EXPECT_EQ(keyboard.registrations[0].key, (HotKey { 35, 2304 }));
}

TEST_F(HotKeyCenterTest, installsTheHandlerOnceAndNotBeforeItIsNeeded)
{
    EXPECT_EQ(keyboard.installations, 0);

    center.registerHotKey({ HotKey::keyP, 0x900 }, count);
    center.registerHotKey({ HotKey::keyR, 0x900 }, count);

    EXPECT_EQ(keyboard.installations, 1);
}

TEST_F(HotKeyCenterTest, runsTheActionOfThePressedKeyOnly)
{
    int others = 0;
    center.registerHotKey({ HotKey::keyP, 0x900 }, count);
    center.registerHotKey({ HotKey::keyR, 0x900 }, [&] { ++others; });

    keyboard.press(HotKey::keyP, 0x900);
    keyboard.press(HotKey::keyP, 0x900);

    EXPECT_EQ(presses, 2);
    EXPECT_EQ(others, 0);
}

TEST_F(HotKeyCenterTest, doesNotCheckTheSignature)
{
    const std::uint32_t id = center.registerHotKey({ HotKey::keyP, 0x900 }, count);

    keyboard.deliver({ 0x12345678, id });

    EXPECT_EQ(presses, 1);
}

TEST_F(HotKeyCenterTest, ignoresAPressOfAnUnknownId)
{
    center.registerHotKey({ HotKey::keyP, 0x900 }, count);

    keyboard.deliver({ HotKeyCenter::signature, 99 });

    EXPECT_EQ(presses, 0);
}

TEST_F(HotKeyCenterTest, unregistersWithTheSystem)
{
    const std::uint32_t id = center.registerHotKey({ HotKey::keyP, 0 }, count);

    center.unregister(id);
    keyboard.deliver({ HotKeyCenter::signature, id });

    EXPECT_TRUE(keyboard.registered.empty());
    EXPECT_EQ(presses, 0);
}

TEST_F(HotKeyCenterTest, unregisteringTwiceHasNoEffectTheSecondTime)
{
    const std::uint32_t id = center.registerHotKey({ HotKey::keyP, 0 }, count);
    center.registerHotKey({ HotKey::keyR, 0 }, count);

    center.unregister(id);
    center.unregister(id);
    center.unregister(12345);

    EXPECT_EQ(keyboard.registered.size(), 1U);
}

TEST_F(HotKeyCenterTest, returnsAnIdForAKeyThatAnotherProgramOwns)
{
    keyboard.isOwnedByAnother = true;

    const std::uint32_t id = center.registerHotKey({ HotKey::keyP, 0x900 }, count);
    center.unregister(id);

    EXPECT_EQ(id, 1U);
}

TEST_F(HotKeyCenterTest, letsAnActionUnregisterItsOwnKey)
{
    std::uint32_t id = 0;
    id = center.registerHotKey({ HotKey::keyP, 0 }, [&] {
        center.unregister(id);
        ++presses;
    });

    keyboard.press(HotKey::keyP, 0);
    keyboard.press(HotKey::keyP, 0);

    EXPECT_EQ(presses, 1);
}

TEST(HotKeyCenterDeathTest, endsTheProcessWhenIdsRunOut)
{
    ::testing::FLAGS_gtest_death_test_style = "threadsafe";
    Testing::FakeHotKeys keyboard;
    constexpr std::uint32_t largest = std::numeric_limits<std::uint32_t>::max();
    HotKeyCenter center(keyboard, largest - 1);

    EXPECT_EQ(center.registerHotKey({ HotKey::keyP, 0 }, [] {}), largest - 1);

    EXPECT_DEATH(center.registerHotKey({ HotKey::keyP, 0 }, [] {}), "no hot-key id is left");
}

} // namespace
} // namespace Orvello
