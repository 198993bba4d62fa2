#include "Orvello/Shell/Commands/StatusMenu.h"

#include "Tests/Support/FakeCommandTarget.h"
#include "Tests/Support/FakeHotKeys.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

class StatusMenuTest : public ::testing::Test {
protected:
    static QStringList titles(const Menu& menu)
    {
        QStringList all;
        for (const auto& item : menu.items())
            all.append(item->isSeparator() ? u"-"_s : item->title);
        return all;
    }

    const MenuItem& item(std::size_t number) const { return *menu.items().at(number - 1); }

    Testing::FakeCommandTarget target;
    Testing::FakeHotKeys keys;
    StatusMenu menu { target, keys, u"2.1 (57)"_s };
};

TEST_F(StatusMenuTest, hasEveryLineInItsPlace)
{
    EXPECT_THAT(titles(menu),
        ElementsAre(u"Start Scrolling  (⌥⌘P)"_s, u"Back to Top"_s, u"-"_s,
            u"Voice-Follow Scrolling"_s, u"Slide Tracking"_s, u"Stealth Mode"_s,
            u"Show Prompter  (⌥⌘H)"_s, u"-"_s, u"Scripts…"_s, u"Settings…"_s, u"Welcome Tour…"_s,
            u"Check for Updates…"_s, u"Help"_s, u"-"_s, u"Quit Orvello"_s));
}

TEST_F(StatusMenuTest, putsThePrompterUnderTheCameraOnlyWhereItIsThePrompters)
{
    StatusMenu prompters { target, keys, u"2.1 (57)"_s, StatusMenu::Owner::Prompter };

    auto expected = titles(menu);
    expected.insert(expected.size() - 2, u"-"_s);
    expected.insert(expected.size() - 2, u"Put Under the Camera"_s);
    EXPECT_EQ(titles(prompters), expected);
    prompters.items().at(prompters.items().size() - 3)->action();
    EXPECT_THAT(target.calls, ElementsAre(u"putUnderCamera"_s));
}

TEST_F(StatusMenuTest, hasAHelpSubmenuWhoseVersionCannotBeChosen)
{
    const Menu& help = *item(13).submenu;

    EXPECT_EQ(help.title(), u"Help");
    EXPECT_THAT(titles(help),
        ElementsAre(u"Contact Support…"_s, u"Reveal Log Files"_s, u"-"_s, u"Orvello 2.1 (57)"_s));
    EXPECT_TRUE(help.items()[0]->isEnabled());
    EXPECT_FALSE(help.items()[3]->isEnabled());
    EXPECT_FALSE(help.items()[3]->isSeparator());
}

TEST_F(StatusMenuTest, givesAKeyToQuitAlone)
{
    for (const auto& each : menu.items())
        EXPECT_EQ(each->keyEquivalent, each->title == u"Quit Orvello" ? u"q"_s : QString());
}

TEST_F(StatusMenuTest, runsTheCommandOfEachLine)
{
    for (const auto& each : menu.items()) {
        if (each->action)
            each->action();
    }
    item(13).submenu->items()[0]->action();
    item(13).submenu->items()[1]->action();

    EXPECT_THAT(target.calls,
        ElementsAre(u"toggleScroll"_s, u"backToTop"_s, u"toggleVoice"_s, u"toggleSlideTracking"_s,
            u"toggleStealth"_s, u"togglePanel"_s, u"openLibrary"_s, u"openSettings"_s,
            u"openTour"_s, u"checkForUpdates"_s, u"terminate"_s, u"contactSupport"_s,
            u"revealLogs"_s));
}

TEST_F(StatusMenuTest, offersToPauseWhileTheTextScrolls)
{
    target.scrolls = true;

    menu.needsUpdate();
    EXPECT_EQ(item(1).title, u"Pause Scrolling  (⌥⌘P)");

    target.scrolls = false;
    menu.needsUpdate();
    EXPECT_EQ(item(1).title, u"Start Scrolling  (⌥⌘P)");
}

TEST_F(StatusMenuTest, offersToHideAVisiblePrompter)
{
    target.showsPanel = true;

    menu.needsUpdate();

    EXPECT_EQ(item(7).title, u"Hide Prompter  (⌥⌘H)");
}

TEST_F(StatusMenuTest, callsTheKeysWhatTheKeyboardCallsThem)
{
    keys.modifiersLabel = u"Alt+Super+"_s;

    menu.needsUpdate();

    EXPECT_EQ(item(1).title, u"Start Scrolling  (Alt+Super+P)");
    EXPECT_EQ(item(7).title, u"Show Prompter  (Alt+Super+H)");
}

TEST_F(StatusMenuTest, checksTheModesThatAreOn)
{
    target.followsVoice = true;
    target.isHidden = true;

    menu.needsUpdate();

    EXPECT_TRUE(item(4).isChecked);
    EXPECT_FALSE(item(5).isChecked);
    EXPECT_TRUE(item(6).isChecked);
    for (const auto& each : menu.items())
        EXPECT_EQ(each->isCheckable,
            each == menu.items()[3] || each == menu.items()[4] || each == menu.items()[5]);
}

TEST_F(StatusMenuTest, keepsWhatItSaysUntilItOpensAgain)
{
    target.followsVoice = true;
    target.showsPanel = true;

    EXPECT_FALSE(item(4).isChecked);
    EXPECT_EQ(item(7).title, u"Show Prompter  (⌥⌘H)");
}

TEST_F(StatusMenuTest, offersNoLetterToNobody)
{
    target.isSupported = false;

    menu.needsUpdate();

    EXPECT_FALSE(item(13).submenu->items()[0]->isEnabled());
}

} // namespace
} // namespace Orvello
