#include "Orvello/Shell/Windows/OnboardingWindowController.h"

#include "Orvello/Settings/Store/SettingsStore.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FactsOf.h"
#include "Tests/Support/FakeHotKeys.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/FakeWindowChrome.h"
#include "Tests/Support/FakeWorkspace.h"
#include "Tests/Support/ViewItems.h"
#include "Tests/Support/VoiceServices.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using namespace Orvello::Testing;

/// The tour on a screen that nobody sees, left by mouse and keys.
class OnboardingWindowTest : public ::testing::Test {
protected:
    void SetUp() override { open(); }
    void TearDown() override { qunsetenv("ORVELLO_ONBOARDING_PAGE"); }

    void open()
    {
        controller = std::make_unique<OnboardingWindowController>(
            OnboardingWindowController::Services {
                settings, workspace, chrome, keys, voice.voice, facts },
            [this] { ++finishes; });
        controller->bringToFront();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view()));
    }

    void openOn(const char* page)
    {
        qputenv("ORVELLO_ONBOARDING_PAGE", page);
        open();
    }

    QQuickView& view() { return controller->view(); }
    int page() { return controller->tour().page(); }

    void pressButton(const QString& name)
    {
        QQuickItem* const button = controlNamed(view(), name);
        ASSERT_NE(button, nullptr) << name.toStdString();
        click(view(), *button);
    }

    void expectFinishedOnce()
    {
        drainEvents();
        EXPECT_EQ(finishes, 1);
        EXPECT_EQ(settings.onboardingSeenVersion(), 1);
        EXPECT_EQ(defaults.stored.value(u"onboardingSeenVersion"_s), 1);
        EXPECT_FALSE(view().isVisible());
    }

    FakeUserDefaults defaults;
    SettingsStore settings { defaults };
    FakeWorkspace workspace;
    FakeWindowChrome chrome;
    FakeHotKeys keys;
    VoiceServices voice { settings };
    Facts facts = factsOfAMac();
    int finishes = 0;
    std::unique_ptr<OnboardingWindowController> controller;
};

TEST_F(OnboardingWindowTest, isADarkWindowOfItsOwnSize)
{
    EXPECT_EQ(view().title(), u"Welcome to Orvello"_s);
    EXPECT_EQ(view().size(), QSize(680, 580));
    EXPECT_EQ(view().minimumSize(), view().maximumSize());
    EXPECT_EQ(view().color(), QColor(18, 18, 23));
    EXPECT_EQ(view().color().alpha(), 255);
}

TEST_F(OnboardingWindowTest, beginsOnTheFirstPageEachTime)
{
    EXPECT_EQ(page(), 0);
    controller->tour().next();

    open();
    EXPECT_EQ(page(), 0);
}

TEST_F(OnboardingWindowTest, opensOnThePageThatTheEnvironmentNames)
{
    openOn("2");
    EXPECT_EQ(page(), 2);
    EXPECT_TRUE(showsText(view(), u"You're set. Here's where things are."_s));
    EXPECT_FALSE(showsText(view(), u"Welcome to Orvello"_s));

    openOn("-7");
    EXPECT_EQ(page(), 0);
    openOn("7");
    EXPECT_EQ(page(), 2);
    openOn("last");
    EXPECT_EQ(page(), 0);
}

TEST_F(OnboardingWindowTest, saysEverythingOnTheFirstPage)
{
    for (const auto* text : { u"Welcome to Orvello",
             u"Your private teleprompter. Your audience sees your slides — never your notes.",
             u"Invisible on screen shares",
             u"Stealth Mode hides the prompter from Zoom, Meet, Teams, recordings and screenshots "
             u"— while you see it perfectly.",
             u"Follows your voice",
             u"Scrolls while you speak, waits when you pause. Audio is analyzed on this Mac only — "
             u"nothing is recorded or uploaded.",
             u"Follows your slides",
             u"Import a .pptx or an open Keynote or PowerPoint deck and the speaker notes flip "
             u"with your slideshow.",
             u"Skip tour", u"Continue" })
        EXPECT_TRUE(showsText(view(), QString::fromUtf16(text)))
            << QString::fromUtf16(text).toStdString();
    EXPECT_FALSE(showsText(view(), u"Back"_s));
}

TEST_F(OnboardingWindowTest, saysEverythingOnTheSecondPage)
{
    openOn("1");
    for (const auto* text :
        { u"One rule, one safety net, and one Zoom setting keep your notes off the recording.",
            u"Stealth Mode is on by default",
            u"Turn it on before you share and leave it alone. Toggling it mid-share can make your "
            u"meeting app draw a gray box where the prompter sits — close and reopen Orvello to "
            u"clear it.",
            u"Want zero risk? Share just the window",
            u"Full-screen sharing works with Stealth Mode on. Sharing only the Keynote or "
            u"PowerPoint window takes the risk to zero — a window share can never include the "
            u"prompter.",
            u"Back", u"Continue" })
        EXPECT_TRUE(showsText(view(), QString::fromUtf16(text)))
            << QString::fromUtf16(text).toStdString();
}

TEST_F(OnboardingWindowTest, saysEverythingOnTheLastPage)
{
    openOn("2");
    for (const auto* text : { u"You're set. Here's where things are.",
             u"Drag the prompter right under your camera for natural eye contact. Resize it from "
             u"any edge.",
             u"Shortcuts", u"⌥⌘P", u"Start / pause", u"⌥⌘↑ ↓", u"Speed", u"⌥⌘R", u"Back to top",
             u"⌥⌘H", u"Show / hide", u"P", u"Pause during a slideshow", u"Hover",
             u"Pause instantly", u"Menu bar", u"Start / pause scrolling", u"Voice-Follow Scrolling",
             u"Slide Tracking", u"Stealth Mode", u"Back", u"Open my prompter" })
        EXPECT_TRUE(showsText(view(), QString::fromUtf16(text)))
            << QString::fromUtf16(text).toStdString();
    EXPECT_FALSE(showsText(view(), u"Continue"_s));
}

TEST_F(OnboardingWindowTest, showsTheKeysAsTheDesktopNamesThem)
{
    keys.assignedKeys().setTriggers({ { u"hide"_s, u"Press <Super><Alt>h"_s } });

    openOn("2");

    EXPECT_TRUE(showsText(view(), u"Press <Super><Alt>h"_s));
    EXPECT_FALSE(showsText(view(), u"⌥⌘H"_s));
    EXPECT_TRUE(showsText(view(), u"⌥⌘P"_s)) << "which the desktop leaves to the program";
}

TEST_F(OnboardingWindowTest, speaksOfZoomOnlyToThoseWhoHaveIt)
{
    openOn("1");
    EXPECT_FALSE(showsText(view(), u"Using Zoom? Set this once"_s));

    workspace.installed.append(u"us.zoom.xos"_s);
    open();
    EXPECT_TRUE(showsText(view(), u"Using Zoom? Set this once"_s));
    EXPECT_TRUE(showsText(view(),
        u"Zoom's default, Auto, usually works — but it picks a capture method per session, and one of them can show your notes."_s));
    EXPECT_TRUE(showsText(view(),
        u"Zoom → Settings → Share Screen → Advanced → Screen capture mode → <b>Advanced capture with window filtering</b> (or Previous operating systems)."_s));
}

TEST_F(OnboardingWindowTest, saysNothingOfAMacOnALinuxDesktop)
{
    facts = factsOfALinuxDesktop();
    keys.modifiersLabel = u"Alt+Super+"_s;
    workspace.installed.append(u"us.zoom.xos"_s);
    for (const char* const number : { "0", "1", "2" }) {
        openOn(number);
        for (const QString& text : visibleTexts(view())) {
            for (const QString& untrue : { u"⌥"_s, u"⌘"_s, u"Mac"_s, u"Keynote"_s, u"PowerPoint"_s,
                     u"Menu bar"_s, u"Invisible"_s, u"works with Stealth"_s })
                EXPECT_FALSE(text.contains(untrue)) << text.toStdString();
        }
    }
    for (const auto* text : { u"Alt+Super+P", u"Alt+Super+↑ ↓", u"Tray menu" })
        EXPECT_TRUE(showsText(view(), QString::fromUtf16(text)))
            << QString::fromUtf16(text).toStdString();
    openOn("0");
    EXPECT_TRUE(showsText(view(),
        u"Import a .pptx or an open LibreOffice Impress deck and the speaker notes flip with your slideshow."_s));
}

TEST_F(OnboardingWindowTest, asksForNoSettingOfZoomWhereTheDesktopHidesThePrompter)
{
    facts = factsOfALinuxDesktop();
    facts.canHideWindows = true;
    workspace.installed.append(u"us.zoom.xos"_s);

    openOn("1");

    EXPECT_TRUE(
        showsText(view(), u"One rule and one safety net keep your notes off the recording."_s));
    EXPECT_FALSE(showsText(view(), u"Using Zoom? Share a window"_s));
}

TEST_F(OnboardingWindowTest, promisesNoMoreThanIsKnownWhereCapturesMayShowWhatIsHidden)
{
    facts.capturesMayShowHidden = true;

    for (const char* const page : { "0", "1" }) {
        openOn(page);
        for (const QString& text : visibleTexts(view())) {
            for (const QString& unknown : { u"Invisible"_s, u"hides the prompter"_s,
                     u"works with Stealth"_s, u"safety net"_s })
                EXPECT_FALSE(text.contains(unknown)) << text.toStdString();
        }
    }
    EXPECT_TRUE(showsText(view(),
        u"A share of the full screen leaves the prompter out as far as this system allows. Sharing only the Keynote or PowerPoint window takes the risk to zero — a window share can never include the prompter."_s));
    openOn("0");
    EXPECT_TRUE(showsText(view(), u"Hidden where the system allows"_s));
}

TEST_F(OnboardingWindowTest, copiesThePathToZoomsSetting)
{
    workspace.installed.append(u"us.zoom.xos"_s);
    openOn("1");
    QGuiApplication::clipboard()->clear();

    pressButton(u"Copy the path"_s);

    EXPECT_TRUE(QGuiApplication::clipboard()->text().endsWith(
        u"\"Advanced capture with window filtering\" (or \"Previous operating systems\")"_s));
    EXPECT_NE(controlNamed(view(), u"Copied"_s), nullptr);
}

TEST_F(OnboardingWindowTest, turnsThePagesByItsButtons)
{
    pressButton(u"Continue"_s);
    EXPECT_EQ(page(), 1);
    pressButton(u"Continue"_s);
    EXPECT_EQ(page(), 2);
    pressButton(u"Back"_s);
    EXPECT_EQ(page(), 1);
    EXPECT_EQ(finishes, 0);
    EXPECT_EQ(settings.onboardingSeenVersion(), 0);
}

TEST_F(OnboardingWindowTest, showsOnePageAtATimeOnceItHasTurned)
{
    pressButton(u"Continue"_s);

    EXPECT_TRUE(QTest::qWaitFor([this] {
        return showsText(view(), u"Stealth Mode is on by default"_s)
            && !showsText(view(), u"Follows your voice"_s);
    }));
}

TEST_F(OnboardingWindowTest, drawsTheDotOfThePageOut)
{
    const auto widths = [this] {
        QList<double> result;
        for (const QQuickItem* item : visibleItems(view())) {
            if (item->property("isCurrent").isValid() && item->height() == 6)
                result.append(item->width());
        }
        return result;
    };
    EXPECT_EQ(widths(), QList<double>({ 18, 6, 6 }));

    pressButton(u"Continue"_s);
    EXPECT_TRUE(QTest::qWaitFor([&] { return widths()[1] > 6 && widths()[1] < 18; }));
    EXPECT_TRUE(QTest::qWaitFor([&] { return widths() == QList<double>({ 6, 18, 6 }); }));
}

TEST_F(OnboardingWindowTest, isFinishedByTheLastButtonOnce)
{
    openOn("2");

    pressButton(u"Open my prompter"_s);

    expectFinishedOnce();
}

TEST_F(OnboardingWindowTest, isFinishedBySkippingOnEveryPageThatOffersIt)
{
    pressButton(u"Skip tour"_s);

    expectFinishedOnce();
}

TEST_F(OnboardingWindowTest, isFinishedByEscape)
{
    QTest::keyClick(&view(), Qt::Key_Escape);

    expectFinishedOnce();
}

TEST_F(OnboardingWindowTest, isFinishedByTheWindowManager)
{
    view().close();

    expectFinishedOnce();
}

TEST_F(OnboardingWindowTest, isFinishedByItsOwnCloseButton)
{
    pressButton(u"Close"_s);

    expectFinishedOnce();
}

TEST_F(OnboardingWindowTest, hasNoCloseButtonBesideTheSystems)
{
    chrome.keepsCloseButton = true;
    open();

    EXPECT_EQ(controlNamed(view(), u"Close"_s), nullptr);
}

TEST_F(OnboardingWindowTest, goesThroughByTheReturnKeyAlone)
{
    for (const int expected : { 1, 2 }) {
        QTest::keyClick(&view(), Qt::Key_Return);
        EXPECT_EQ(page(), expected);
    }
    QTest::keyClick(&view(), Qt::Key_Enter);

    expectFinishedOnce();
}

TEST_F(OnboardingWindowTest, isFinishedOnceHoweverOftenTheUserAsks)
{
    openOn("2");
    controller->tour().next();
    controller->tour().skip();
    view().close();

    expectFinishedOnce();
}

TEST_F(OnboardingWindowTest, recordsThatItWasSeenBeforeItTellsAnyone)
{
    qint64 seen = -1;
    controller = std::make_unique<OnboardingWindowController>(
        OnboardingWindowController::Services {
            settings, workspace, chrome, keys, voice.voice, facts },
        [&] { seen = settings.onboardingSeenVersion(); });
    controller->bringToFront();

    controller->tour().skip();
    drainEvents();

    EXPECT_EQ(seen, 1);
}

TEST_F(OnboardingWindowTest, mayBeDestroyedByWhoeverHearsThatItIsFinished)
{
    controller = std::make_unique<OnboardingWindowController>(
        OnboardingWindowController::Services {
            settings, workspace, chrome, keys, voice.voice, facts },
        [this] {
            ++finishes;
            controller.reset();
        });
    controller->bringToFront();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&view()));

    pressButton(u"Skip tour"_s);
    drainEvents();

    EXPECT_EQ(finishes, 1);
    EXPECT_EQ(controller, nullptr);
}

TEST_F(OnboardingWindowTest, namesEachControlAndReachesItByTheTabKey)
{
    workspace.installed.append(u"us.zoom.xos"_s);
    openOn("1");
    QSet<QString> reached;
    for (int presses = 0; presses < 8; ++presses) {
        QTest::keyClick(&view(), Qt::Key_Tab);
        reached.insert(accessibleName(*view().activeFocusItem()));
    }

    EXPECT_EQ(reached,
        QSet<QString>(
            { u"Copy the path"_s, u"Skip tour"_s, u"Back"_s, u"Continue"_s, u"Close"_s }));
}

TEST_F(OnboardingWindowTest, pressesTheFocusedButtonByTheSpaceBar)
{
    openOn("1");
    controlNamed(view(), u"Back"_s)->forceActiveFocus(Qt::TabFocusReason);

    QTest::keyClick(&view(), Qt::Key_Space);

    EXPECT_EQ(page(), 0);
}

TEST_F(OnboardingWindowTest, findsTheSensitivityForTheUsersVoice)
{
    openOn("2");
    pressButton(u"Test"_s);
    EXPECT_TRUE(voice.voice.isListening());
    for (int block = 0; block < 100; ++block) {
        voice.voiceProcessing.hear(std::vector<float>(480, block % 3 == 0 ? 0.0005F : 0.03F));
        drainEvents();
    }
    voice.time.advance(SensitivityTest::seconds);
    drainEvents();
    EXPECT_FALSE(voice.voice.isListening());

    pressButton(u"Use It"_s);

    EXPECT_EQ(settings.voiceSensitivity(), 0.55);
}

} // namespace
} // namespace Orvello
