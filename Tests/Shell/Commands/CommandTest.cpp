#include "Orvello/Shell/Commands/Command.h"

#include "Orvello/Shell/Launch/CommandLineTable.h"
#include "Tests/Support/FakeCommandTarget.h"
#include "Tests/Support/FakeHotKeys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

TEST(CommandTest, hasANameOfItsOwn)
{
    std::set<std::string_view> names;
    for (const Command& command : Commands::all()) {
        EXPECT_TRUE(names.insert(command.name).second) << command.name;
        EXPECT_EQ(&Commands::named(command.name), &command);
    }
}

TEST(CommandTest, doesWhatItIsCalled)
{
    Testing::FakeCommandTarget target;
    for (const Command& command : Commands::all())
        (target.*command.run)();

    EXPECT_THAT(target.calls,
        ElementsAre(u"toggleScroll"_s, u"speedUp"_s, u"slowDown"_s, u"backToTop"_s,
            u"togglePanel"_s, u"putUnderCamera"_s, u"toggleVoice"_s, u"toggleSlideTracking"_s,
            u"toggleStealth"_s, u"openLibrary"_s, u"openSettings"_s, u"openTour"_s,
            u"checkForUpdates"_s, u"contactSupport"_s, u"revealLogs"_s, u"terminate"_s));
}

TEST(CommandTest, saysWhatEachKeyDoes)
{
    const Testing::FakeHotKeys keys;
    QStringList lines;
    for (const Command& command : Commands::all()) {
        if (command.key)
            lines.append(
                Commands::keyLabel(command, keys) + u' ' + Commands::purpose(command).description);
    }

    EXPECT_THAT(lines,
        ElementsAre(u"⌥⌘P Start or pause scrolling"_s, u"⌥⌘↑ Scroll faster"_s,
            u"⌥⌘↓ Scroll more slowly"_s, u"⌥⌘R Go back to the top of the script"_s,
            u"⌥⌘H Show or hide the prompter"_s));
}

TEST(CommandTest, isCalledTheSameOnTheCommandLine)
{
    for (const std::string_view name : { "toggle", "scripts", "settings", "check-updates" }) {
        const bool isSwitch = std::ranges::any_of(CommandLineTable::entries(),
            [&](const auto& entry) { return entry.name == "--" + std::string(name); });
        EXPECT_TRUE(isSwitch) << name;
        EXPECT_EQ(Commands::named(name).name, name);
    }
}

} // namespace
} // namespace Orvello
