#include "Orvello/Shell/Commands/StatusMenu.h"

#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Tests/Support/FakeNativePanel.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/ManualTimeSource.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

class FakeCommands final : public StatusMenuCommands {
public:
    void toggleScroll() override { calls.append(u"toggleScroll"_s); }
    void backToTop() override { calls.append(u"backToTop"_s); }
    void toggleVoice() override { calls.append(u"toggleVoice"_s); }
    void toggleSlideTracking() override { calls.append(u"toggleSlideTracking"_s); }
    void toggleStealth() override { calls.append(u"toggleStealth"_s); }
    void togglePanel() override { calls.append(u"togglePanel"_s); }
    void openLibrary() override { calls.append(u"openLibrary"_s); }
    void openSettings() override { calls.append(u"openSettings"_s); }
    void openTour() override { calls.append(u"openTour"_s); }
    void checkForUpdates() override { calls.append(u"checkForUpdates"_s); }
    void contactSupport() override { calls.append(u"contactSupport"_s); }
    void revealLogs() override { calls.append(u"revealLogs"_s); }
    void terminate() override { calls.append(u"terminate"_s); }

    QStringList calls;
};

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

    Testing::ManualTimeSource time;
    Testing::FakeUserDefaults defaults;
    SettingsStore settings { defaults };
    ScrollEngine engine { settings, time };
    Testing::FakeNativePanel panel;
    FakeCommands commands;
    StatusMenu menu { { engine, settings, panel }, commands, u"2.1 (57)"_s };
};

TEST_F(StatusMenuTest, hasEveryLineInItsPlace)
{
    EXPECT_THAT(titles(menu),
        ElementsAre(u"Start Scrolling  (⌥⌘P)"_s, u"Back to Top"_s, u"-"_s,
            u"Voice-Follow Scrolling"_s, u"Slide Tracking"_s, u"Stealth Mode"_s,
            u"Show Prompter  (⌥⌘H)"_s, u"-"_s, u"Scripts…"_s, u"Settings…"_s, u"Welcome Tour…"_s,
            u"Check for Updates…"_s, u"Help"_s, u"-"_s, u"Quit Orvello"_s));
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

    EXPECT_THAT(commands.calls,
        ElementsAre(u"toggleScroll"_s, u"backToTop"_s, u"toggleVoice"_s, u"toggleSlideTracking"_s,
            u"toggleStealth"_s, u"togglePanel"_s, u"openLibrary"_s, u"openSettings"_s,
            u"openTour"_s, u"checkForUpdates"_s, u"terminate"_s, u"contactSupport"_s,
            u"revealLogs"_s));
}

TEST_F(StatusMenuTest, offersToPauseWhileTheTextScrolls)
{
    settings.setCountdownSeconds(0);
    engine.setContentHeight(5000);
    engine.setViewportHeight(500);
    engine.start();
    ASSERT_TRUE(engine.isRunning());

    menu.needsUpdate();
    EXPECT_EQ(item(1).title, u"Pause Scrolling  (⌥⌘P)");

    engine.toggle();
    menu.needsUpdate();
    EXPECT_EQ(item(1).title, u"Start Scrolling  (⌥⌘P)");
}

TEST_F(StatusMenuTest, offersToHideAVisiblePrompter)
{
    panel.show();

    menu.needsUpdate();

    EXPECT_EQ(item(7).title, u"Hide Prompter  (⌥⌘H)");
}

TEST_F(StatusMenuTest, checksTheModesThatAreOn)
{
    settings.setVoiceFollow(true);
    settings.setSlideSync(false);
    settings.setStealthMode(true);

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
    settings.setVoiceFollow(true);
    panel.show();

    EXPECT_FALSE(item(4).isChecked);
    EXPECT_EQ(item(7).title, u"Show Prompter  (⌥⌘H)");
}

} // namespace
} // namespace Orvello
