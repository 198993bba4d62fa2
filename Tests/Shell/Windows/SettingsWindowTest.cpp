#include "Orvello/Shell/Windows/SettingsWindow.h"

#include "Orvello/Platform/Desktop/Compositing.h"
#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"
#include "Orvello/Prompting/Engine/ReadingPace.h"
#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Shell/Updates/UpdateController.h"
#include "Tests/Support/FactsOf.h"
#include "Tests/Support/FakeHelperProcess.h"
#include "Tests/Support/FakeHotKeys.h"
#include "Tests/Support/FakeUpdater.h"
#include "Tests/Support/SlideshowStage.h"
#include "Tests/Support/ViewItems.h"
#include "Tests/Voice/VoiceFixture.h"

#include <QGuiApplication>
#include <QPalette>
#include <QSignalSpy>
#include <QTest>

#include <algorithm>
#include <cmath>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using namespace Orvello::Testing;

/// What is seen of a translucent colour on an opaque one.
QColor over(const QColor& color, const QColor& below)
{
    const auto mix = [&color](float a, float b) { return b + (a - b) * color.alphaF(); };
    return QColor::fromRgbF(mix(color.redF(), below.redF()), mix(color.greenF(), below.greenF()),
        mix(color.blueF(), below.blueF()));
}

/// WCAG 2.1, "contrast ratio".
double contrast(const QColor& one, const QColor& other)
{
    const auto luminance = [](const QColor& color) {
        const auto linear = [](double channel) {
            return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
        };
        return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF())
            + 0.0722 * linear(color.blueF());
    };
    const auto [darker, lighter] = std::minmax({ luminance(one), luminance(other) });
    return (lighter + 0.05) / (darker + 0.05);
}

QColor colorOf(const QQuickItem& item) { return item.property("color").value<QColor>(); }

/// The window on a screen that nobody sees, worked with mouse and keys.
class SettingsWindowTest : public VoiceFixture {
protected:
    void SetUp() override
    {
        updater.feed = u"https://example.com/feed"_s;
        open();
    }

    void open(const Facts& facts = factsOfAMac())
    {
        window.reset();
        window = std::make_unique<SettingsWindow>(SettingsWindow::Services {
            settings, *engine, pace, updates, keys, compositing, facts, impress });
        view().resize(SettingsWindow::contentSize);
        view().show();
        view().requestActivate();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view()));
    }

    QQuickView& view() { return window->view(); }

    QQuickItem& control(const QString& name)
    {
        QQuickItem* const item = controlNamed(view(), name);
        EXPECT_NE(item, nullptr) << name.toStdString();
        reveal(*item);
        return *item;
    }

    QQuickItem& flickable()
    {
        return *view().rootObject()->findChild<QQuickItem*>(u"settingsFlickable"_s);
    }

    /// Scrolls as the user would have.
    void reveal(const QQuickItem& item)
    {
        const double y = flickable().property("contentY").toDouble() + placeInWindow(item).y();
        const double most = flickable().property("contentHeight").toDouble() - flickable().height();
        flickable().setProperty("contentY", std::clamp(y - 200, 0.0, std::max(0.0, most)));
    }

    void drag(const QQuickItem& slider, double toFraction)
    {
        const QRectF place = placeInWindow(slider);
        const int y = qRound(place.center().y());
        const auto x
            = [&](double fraction) { return qRound(place.x() + fraction * place.width()); };
        QTest::mousePress(&view(), Qt::LeftButton, {}, QPoint(x(0.5), y));
        for (int step = 1; step <= 10; ++step)
            QTest::mouseMove(&view(), QPoint(x(0.5 + (toFraction - 0.5) * step / 10), y));
        QTest::mouseRelease(&view(), Qt::LeftButton, {}, QPoint(x(toFraction), y));
        drainEvents();
    }

    void press(const QQuickItem& item, Qt::Key key)
    {
        const_cast<QQuickItem&>(item).forceActiveFocus(Qt::TabFocusReason);
        QTest::keyClick(&view(), key);
        drainEvents();
    }

    QVariant stored(const QString& key) const { return defaults.stored.value(key); }

    FakeUpdater updater;
    UpdateController updates { { updater, defaults, [] {} } };
    FakeHotKeys keys;
    Compositing compositing;
    ImpressPresenter* impress = nullptr;
    ScrollEngine scrolling { settings, time };
    ReadingPace pace { settings, scrolling, time };
    std::unique_ptr<SettingsWindow> window;
};

TEST_F(SettingsWindowTest, isAFixedWindowOfItsOwn)
{
    view().hide();
    window->bringToFront();

    EXPECT_EQ(view().title(), u"Orvello Settings"_s);
    EXPECT_EQ(view().minimumSize(), view().maximumSize());
    EXPECT_EQ(view().width(), 500);
    EXPECT_TRUE(view().flags().testFlag(Qt::WindowCloseButtonHint));
    EXPECT_FALSE(view().flags().testFlag(Qt::WindowMaximizeButtonHint));
}

TEST_F(SettingsWindowTest, allowsImpressToBeFollowedAndTakesThatBack)
{
    EXPECT_FALSE(showsText(view(), u"Orvello may not follow Impress"_s));

    FakeHelperProcess helper;
    SlideshowStage stage;
    ImpressPresenter presenter(helper, stage.monitor, defaults);
    impress = &presenter;
    open(factsOfALinuxDesktop());
    press(control(u"Allow"_s), Qt::Key_Space);
    EXPECT_TRUE(presenter.isAllowed());
    EXPECT_TRUE(showsText(view(), u"Orvello may follow Impress"_s));

    presenter.row().askOpenDeck([](const ScriptResult&) {});
    helper.questions.last().completion({ 1, {}, u"It is closed. (-1743)"_s });
    EXPECT_TRUE(showsText(view(), u"Orvello may follow Impress, but could not"_s));

    press(control(u"Take Back"_s), Qt::Key_Space);
    EXPECT_FALSE(presenter.isAllowed());
    EXPECT_TRUE(showsText(view(), u"Orvello may not follow Impress"_s));
    window.reset();
}

TEST_F(SettingsWindowTest, isHiddenByClosingAndComesBack)
{
    settings.setFontSize(44);
    view().close();
    EXPECT_FALSE(view().isVisible());

    window->bringToFront();

    EXPECT_TRUE(view().isVisible());
    EXPECT_NE(controlNamed(view(), u"Font size — 44"_s), nullptr);
}

TEST_F(SettingsWindowTest, closesByKey)
{
    QTest::keyClick(&view(), Qt::Key_W, Qt::ControlModifier);

    EXPECT_FALSE(view().isVisible());
}

TEST_F(SettingsWindowTest, hasItsSectionsInTheirOrder)
{
    QStringList headings;
    for (const QQuickItem* item : visibleItems(view())) {
        if (const QString title = item->property("title").toString(); !title.isEmpty())
            headings.append(title);
    }
    EXPECT_EQ(headings,
        QStringList({ u"Prompter"_s, u"Voice-follow"_s, u"Session"_s, u"Slides"_s, u"Privacy"_s,
            u"Keyboard shortcuts (global)"_s, u"Updates"_s, u"Reading"_s }));
}

TEST_F(SettingsWindowTest, dragsTheSpeedToExactlyItsBounds)
{
    drag(control(u"Scroll speed — 25 pt/s"_s), 1.1);
    EXPECT_EQ(settings.speed(), 240.0);
    EXPECT_EQ(stored(u"speed"_s), 240.0);

    drag(control(u"Scroll speed — 240 pt/s"_s), -0.1);
    EXPECT_EQ(settings.speed(), 15.0);
    EXPECT_NE(controlNamed(view(), u"Scroll speed — 15 pt/s"_s), nullptr);
}

TEST_F(SettingsWindowTest, dragsTheOtherSlidersToExactlyTheirBounds)
{
    drag(control(u"Font size — 30"_s), 1.1);
    EXPECT_EQ(settings.fontSize(), 64.0);
    drag(control(u"Font size — 64"_s), -0.1);
    EXPECT_EQ(settings.fontSize(), 16.0);
    drag(control(u"Background opacity — 72%"_s), 1.1);
    EXPECT_EQ(settings.backgroundOpacity(), 1.0);
    drag(control(u"Background opacity — 100%"_s), -0.1);
    EXPECT_EQ(settings.backgroundOpacity(), 0.15);
    drag(control(u"Sensitivity — 60%"_s), 1.1);
    EXPECT_EQ(settings.voiceSensitivity(), 1.0);
    drag(control(u"Sensitivity — 100%"_s), -0.1);
    EXPECT_EQ(settings.voiceSensitivity(), 0.1);
}

TEST_F(SettingsWindowTest, storesEveryValueOnTheWay)
{
    const QQuickItem& slider = control(u"Scroll speed — 25 pt/s"_s);
    const QPoint middle = placeInWindow(slider).center().toPoint();

    QTest::mousePress(&view(), Qt::LeftButton, {}, middle);
    QTest::mouseMove(&view(), middle + QPoint(7, 0));
    drainEvents();

    EXPECT_GT(settings.speed(), 15.0);
    EXPECT_LT(settings.speed(), 240.0);
    EXPECT_NE(settings.speed(), 25.0);
    EXPECT_EQ(stored(u"speed"_s), settings.speed());
}

TEST_F(SettingsWindowTest, showsWholeNumbersOnly)
{
    settings.setSpeed(25.7);

    EXPECT_TRUE(showsText(view(), u"Scroll speed — 25 pt/s"_s));
}

TEST_F(SettingsWindowTest, followsASettingThatChangesElsewhere)
{
    const QQuickItem& slider = control(u"Font size — 30"_s);
    drag(slider, 1.1); // The user's own change must not end the binding.

    settings.setFontSize(20);

    EXPECT_EQ(slider.property("value").toDouble(), 20.0);
    EXPECT_TRUE(showsText(view(), u"Font size — 20"_s));
}

TEST_F(SettingsWindowTest, leavesAValueBeyondTheBoundsAlone)
{
    settings.setSpeed(1000);
    open();

    EXPECT_EQ(settings.speed(), 1000);
    EXPECT_EQ(control(u"Scroll speed — 1000 pt/s"_s).property("value").toDouble(), 240);
}

TEST_F(SettingsWindowTest, movesASliderByKeys)
{
    const QQuickItem& slider = control(u"Scroll speed — 25 pt/s"_s);

    press(slider, Qt::Key_Right);
    EXPECT_EQ(settings.speed(), 30.0);
    press(slider, Qt::Key_Left);
    EXPECT_EQ(settings.speed(), 25.0);
    press(slider, Qt::Key_PageUp);
    EXPECT_EQ(settings.speed(), 50.0);
    press(slider, Qt::Key_End);
    EXPECT_EQ(settings.speed(), 240.0);
    press(slider, Qt::Key_Right);
    EXPECT_EQ(settings.speed(), 240.0);
    press(slider, Qt::Key_Home);
    EXPECT_EQ(settings.speed(), 15.0);
}

TEST_F(SettingsWindowTest, picksAColorByKeys)
{
    const QQuickItem& picker = control(u"Text color"_s);
    EXPECT_EQ(picker.property("displayText"), u"White"_s);
    EXPECT_EQ(picker.property("count"), 6);

    press(picker, Qt::Key_Down);

    EXPECT_EQ(stored(u"textColorName"_s), u"Yellow"_s);
    EXPECT_EQ(picker.property("displayText"), u"Yellow"_s);
}

TEST_F(SettingsWindowTest, selectsNoColorForANameThatIsNotInTheTable)
{
    settings.setTextColorName(u"Purple"_s);
    EXPECT_EQ(control(u"Text color"_s).property("displayText"), QString());

    open();
    EXPECT_EQ(control(u"Text color"_s).property("displayText"), QString());
    EXPECT_EQ(settings.textColorName(), u"Purple"_s);
}

TEST_F(SettingsWindowTest, selectsNoCountdownUntilTheUserPicksOne)
{
    settings.setCountdownSeconds(4);
    open();
    const QQuickItem& picker = control(u"Countdown before start"_s);
    EXPECT_EQ(picker.property("displayText"), QString());
    EXPECT_EQ(picker.property("currentIndex"), -1);

    press(picker, Qt::Key_Down);

    EXPECT_EQ(picker.property("displayText"), u"Off"_s);
    EXPECT_EQ(stored(u"countdownSeconds"_s), 0.0);
}

TEST_F(SettingsWindowTest, picksTheCountdownWithTheMouse)
{
    const QQuickItem& picker = control(u"Countdown before start"_s);
    click(view(), picker);
    const auto row = [this] {
        for (QQuickItem* item : visibleItems(view())) {
            if (item->property("text") == u"10 seconds"_s
                && item->property("highlighted").isValid())
                return item;
        }
        return static_cast<QQuickItem*>(nullptr);
    };
    ASSERT_TRUE(QTest::qWaitFor([&] { return row() != nullptr; }));

    ASSERT_TRUE(QTest::qWaitFor([&] {
        click(view(), *row());
        return settings.countdownSeconds() == 10;
    }));
    EXPECT_EQ(stored(u"countdownSeconds"_s), 10.0);
}

struct ToggleCase {
    const char16_t* label;
    const char16_t* key;
    bool (SettingsStore::*get)() const;
    void (SettingsStore::*set)(bool);
};

TEST_F(SettingsWindowTest, bindsEachToggleBothWays)
{
    const ToggleCase cases[] {
        { u"Scroll while I speak, pause when I pause", u"voiceFollow", &SettingsStore::voiceFollow,
            &SettingsStore::setVoiceFollow },
        { u"Press P to pause during a slideshow", u"slideshowPauseKey",
            &SettingsStore::slideshowPauseKey, &SettingsStore::setSlideshowPauseKey },
        { u"Slide Tracking — notes follow the live slideshow", u"slideSync",
            &SettingsStore::slideSync, &SettingsStore::setSlideSync },
        { u"Stealth Mode — hide from screen sharing, recordings & screenshots", u"stealthMode",
            &SettingsStore::stealthMode, &SettingsStore::setStealthMode },
    };
    for (const ToggleCase& toggle : cases) {
        const QString label = QString::fromUtf16(toggle.label);
        const QString key = QString::fromUtf16(toggle.key);
        const QQuickItem& item = control(label);
        const bool before = (settings.*toggle.get)();
        EXPECT_EQ(item.property("checked").toBool(), before) << label.toStdString();

        click(view(), item);
        EXPECT_EQ((settings.*toggle.get)(), !before) << label.toStdString();
        EXPECT_EQ(stored(key).toBool(), !before) << label.toStdString();

        press(item, Qt::Key_Space);
        EXPECT_EQ((settings.*toggle.get)(), before) << label.toStdString();

        (settings.*toggle.set)(!before);
        EXPECT_EQ(item.property("checked").toBool(), !before) << label.toStdString();
    }
}

TEST_F(SettingsWindowTest, showsASwitchThatIsOff)
{
    const QPalette before = QGuiApplication::palette();
    for (const QColor& desktop : { QColor(239, 239, 239), QColor(50, 50, 50) }) {
        QGuiApplication::setPalette({ desktop, desktop });
        open();
        const auto& track = *control(u"Scroll while I speak, pause when I pause"_s)
                                 .property("indicator")
                                 .value<QQuickItem*>();
        const QQuickItem* card = &track;
        while (card->property("radius") != 8.0)
            card = card->parentItem();

        const auto stands = [&] {
            constexpr double least = 3; // WCAG 2.1 AA, for controls.
            const QColor seen = over(colorOf(track), colorOf(*card));
            return contrast(seen, colorOf(*card)) >= least && contrast(seen, Qt::white) >= least;
        };
        // The colour takes its time. The knob is white.
        EXPECT_TRUE(QTest::qWaitFor(stands)) << colorOf(track).name(QColor::HexArgb).toStdString();
    }
    QGuiApplication::setPalette(before);
}

TEST_F(SettingsWindowTest, takesAClickOnTheLabelForOneOnTheSwitch)
{
    const QQuickItem& item = control(u"Press P to pause during a slideshow"_s);
    const QPoint onLabel(60, qRound(placeInWindow(item).center().y()));

    QTest::mouseClick(&view(), Qt::LeftButton, {}, onLabel);
    drainEvents();

    EXPECT_FALSE(settings.slideshowPauseKey());
}

TEST_F(SettingsWindowTest, showsTheMicrophonesLevelWhileItListens)
{
    const auto meter = [this] {
        for (QQuickItem* item : visibleItems(view())) {
            if (accessibleName(*item) == u"Mic level"_s && item->property("position").isValid())
                return item;
        }
        return static_cast<QQuickItem*>(nullptr);
    };
    ASSERT_NE(meter(), nullptr);
    EXPECT_EQ(meter()->width(), 180);
    EXPECT_EQ(meter()->property("from").toDouble(), 0.0);
    EXPECT_EQ(meter()->property("to").toDouble(), 1.0);
    EXPECT_EQ(meter()->property("value").toDouble(), 0.0);

    engine->requestPermissionAndStart();
    speak();

    EXPECT_GT(engine->level(), 0);
    EXPECT_EQ(meter()->property("value").toFloat(), engine->level());
}

constexpr auto denied = u"Microphone access is denied. Enable it in System Settings → Privacy & "
                        u"Security → Microphone, then toggle voice-follow again.";
constexpr auto cancelling
    = u"Echo cancellation: on — audio playing from this Mac won't move the prompter.";
constexpr auto held
    = u"Echo cancellation: paused (Zoom is open) so your voice keeps working in calls. On "
      u"speakers, loud far-end audio may nudge the prompter — headphones avoid this.";

TEST_F(SettingsWindowTest, saysNothingOfTheMicrophoneBeforeItIsUsed)
{
    for (const auto* line : { denied, cancelling, held })
        EXPECT_FALSE(showsText(view(), QString::fromUtf16(line)));
    EXPECT_TRUE(showsText(view(),
        u"Audio is analyzed on-device for loudness only. Nothing is recorded, recognized, or uploaded."_s));
}

TEST_F(SettingsWindowTest, saysThatTheMicrophoneIsDenied)
{
    permission.currentStatus = MicrophonePermission::Status::Denied;

    engine->requestPermissionAndStart();

    EXPECT_TRUE(showsText(view(), QString::fromUtf16(denied)));
    EXPECT_FALSE(showsText(view(), QString::fromUtf16(cancelling)));
}

TEST_F(SettingsWindowTest, saysThatEchoCancellationIsOnUntilItStops)
{
    engine->requestPermissionAndStart();
    EXPECT_TRUE(showsText(view(), QString::fromUtf16(cancelling)));
    EXPECT_FALSE(showsText(view(), QString::fromUtf16(denied)));

    engine->stop();
    EXPECT_FALSE(showsText(view(), QString::fromUtf16(cancelling)));
}

TEST_F(SettingsWindowTest, saysWhyEchoCancellationIsPaused)
{
    runZoom();

    engine->requestPermissionAndStart();

    EXPECT_TRUE(showsText(view(), QString::fromUtf16(held)));
    EXPECT_FALSE(showsText(view(), QString::fromUtf16(cancelling)));
}

TEST_F(SettingsWindowTest, explainsEachSetting)
{
    for (const auto* text :
        { u"While a Keynote or PowerPoint slideshow is on-screen (where the cursor is hidden, so "
          u"hover-to-pause can't work), a plain P pauses or resumes. It's active only during the "
          u"slideshow, so it won't interfere with typing elsewhere. ⌥⌘P always works too.",
            u"With a deck imported (Scripts → import button) and Slide Tracking on, the prompter "
            u"shows the current slide's speaker notes and flips automatically as you advance in "
            u"Keynote or PowerPoint. The first time, macOS asks to let Orvello control that app — "
            u"that's the sync. Turn Slide Tracking off to scroll the whole deck as one normal "
            u"script instead.",
            u"If sync shows \"No access\": System Settings → Privacy & Security → Automation → "
            u"Orvello → allow Keynote or Microsoft PowerPoint, then toggle Slide Tracking off and "
            u"on.",
            u"With Stealth Mode on before a share starts, the prompter is invisible to screen "
            u"sharing, recordings, and screenshots (Zoom, Meet, QuickTime, and more) — while "
            u"staying fully visible to you.",
            u"Leave Stealth Mode alone during a live share: toggling it mid-share can make the "
            u"meeting app draw a gray box in its place (close and open Orvello again to clear it). "
            u"For zero risk, share the presentation window instead of the whole screen.",
            u"Start / pause scrolling", u"⌥⌘P", u"Speed up / down", u"⌥⌘↑  /  ⌥⌘↓", u"Back to top",
            u"⌥⌘R", u"Show / hide prompter", u"⌥⌘H" })
        EXPECT_TRUE(showsText(view(), QString::fromUtf16(text)))
            << QString::fromUtf16(text).toStdString();
}

TEST_F(SettingsWindowTest, showsTheKeysAsTheDesktopNamesThem)
{
    keys.assignedKeys().setTriggers({ { u"toggle"_s, u"Press <Ctrl><Alt>space"_s },
        { u"faster"_s, u"Meta+Up"_s }, { u"slower"_s, u"Meta+Down"_s } });

    EXPECT_TRUE(showsText(view(), u"Press <Ctrl><Alt>space"_s));
    EXPECT_FALSE(showsText(view(), u"⌥⌘P"_s));
    EXPECT_TRUE(showsText(view(), u"Meta+Up  /  Meta+Down"_s));
    EXPECT_TRUE(showsText(view(), u"⌥⌘H"_s)) << "which the desktop leaves to the program";
}

TEST_F(SettingsWindowTest, opensTheDesktopsOwnWindowForTheKeysWhereThereIsOne)
{
    const QSignalSpy requests(&keys.assignedKeys(), &AssignedKeys::configurationRequested);
    EXPECT_EQ(controlNamed(view(), u"Change Shortcuts…"_s), nullptr);

    keys.assignedKeys().setCanConfigure(true);
    drainEvents();
    QTest::qWait(50); // The row finds its place.
    click(view(), control(u"Change Shortcuts…"_s));

    EXPECT_EQ(requests.count(), 1);
}

TEST_F(SettingsWindowTest, saysSoWhereStealthModeHidesNothing)
{
    const QString warning
        = u"This desktop cannot hide a window from screen sharing, recordings, or screenshots. There the prompter is visible, whether Stealth Mode is on or off."_s;
    EXPECT_FALSE(showsText(view(), warning));

    open(factsOfALinuxDesktop());

    EXPECT_TRUE(showsText(view(), warning));
}

TEST_F(SettingsWindowTest, promisesNoMoreThanIsKnownWhereCapturesMayShowWhatIsHidden)
{
    const auto mentions = [&](const QString& words) {
        return std::ranges::any_of(
            visibleTexts(view()), [&](const QString& text) { return text.contains(words); });
    };
    EXPECT_TRUE(mentions(u"the prompter is invisible to screen sharing"_s));

    Facts facts = factsOfAMac();
    facts.capturesMayShowHidden = true;
    open(facts);

    EXPECT_FALSE(mentions(u"invisible"_s));
    EXPECT_TRUE(mentions(u"Newer recorders may show it all the same: try yours"_s));
    EXPECT_TRUE(mentions(u"Leave Stealth Mode alone during a live share"_s));
}

TEST_F(SettingsWindowTest, namesTheSystemsSettingsWhereTheyGrantPermissions)
{
    Facts facts = factsOfALinuxDesktop();
    const auto mentions = [&](const QString& words) {
        open(facts);
        return std::ranges::any_of(
            visibleTexts(view()), [&](const QString& text) { return text.contains(words); });
    };
    facts.asksBeforeControl = true;
    facts.isMac = true;
    facts.canHideWindows = true;
    EXPECT_FALSE(mentions(u"Privacy & Security → Automation"_s));
    EXPECT_FALSE(mentions(u"QuickTime"_s));

    facts.hasPrivacySettings = true;
    facts.hasQuickTime = true;
    EXPECT_TRUE(mentions(u"Privacy & Security → Automation"_s));
    EXPECT_TRUE(mentions(u"QuickTime"_s));
}

TEST_F(SettingsWindowTest, saysNothingOfAMacOnALinuxDesktop)
{
    keys.modifiersLabel = u"Alt+Super+"_s;
    open(factsOfALinuxDesktop());

    for (const QString& text : visibleTexts(view())) {
        for (const QString& untrue : { u"⌥"_s, u"⌘"_s, u"Mac"_s, u"macOS"_s, u"Keynote"_s,
                 u"PowerPoint"_s, u"QuickTime"_s, u"System Settings"_s, u"are signed"_s })
            EXPECT_FALSE(text.contains(untrue)) << text.toStdString();
    }
    EXPECT_TRUE(showsText(view(), u"Alt+Super+↑  /  Alt+Super+↓"_s));
    EXPECT_TRUE(showsText(view(),
        u"While a LibreOffice Impress slideshow is on-screen (where the cursor is hidden, so hover-to-pause can't work), a plain P pauses or resumes. It's active only during the slideshow, so it won't interfere with typing elsewhere. Alt+Super+P always works too."_s));
}

TEST_F(SettingsWindowTest, greysTheCheckOutWhileTheUpdaterCannotCheck)
{
    updates.start();
    drainEvents();
    EXPECT_EQ(updater.checks, 0);
    QQuickItem& button = control(u"Check Now"_s);
    EXPECT_FALSE(button.isEnabled());
    click(view(), button);
    EXPECT_EQ(updater.checks, 0);

    updater.setChecks(true, std::nullopt);
    drainEvents();
    EXPECT_TRUE(button.isEnabled());
    click(view(), button);
    EXPECT_EQ(updater.checks, 1);
}

TEST_F(SettingsWindowTest, saysWhenItLastChecked)
{
    updates.start();
    EXPECT_TRUE(showsText(view(), u"Orvello 1.0.0 — not checked yet"_s));

    updater.setChecks(true, Date::fromUnixSeconds(1.79e9));
    drainEvents();

    EXPECT_TRUE(showsText(view(), u"Orvello 1.0.0 — last checked "_s + updates.lastCheckText()));
}

TEST_F(SettingsWindowTest, promisesNoChecksWithoutAFeed)
{
    updater.feed.reset();
    open();
    updates.start();
    updater.setChecks(false, Date::fromUnixSeconds(1.79e9));
    drainEvents();

    EXPECT_TRUE(showsText(view(), u"Orvello 1.0.0"_s));
    EXPECT_TRUE(showsText(view(),
        u"This Orvello was built without the address of an update feed, so it cannot look for updates. Whoever you got it from has newer versions."_s));
    EXPECT_FALSE(control(u"Check for updates automatically (once a day)"_s).isEnabled());
    EXPECT_FALSE(control(u"Check Now"_s).isEnabled());
}

TEST_F(SettingsWindowTest, movesItsSlidersOnAGridOfSteps)
{
    settings.setBackgroundOpacity(0.6);
    QQuickItem& opacity = control(u"Background opacity — 60%"_s);
    opacity.forceActiveFocus();
    QTest::keyClick(&view(), Qt::Key_Left);
    EXPECT_EQ(settings.backgroundOpacity(), 0.55);
    EXPECT_TRUE(showsText(view(), u"Background opacity — 55%"_s));

    settings.setBackgroundOpacity(0.72);
    QTest::keyClick(&view(), Qt::Key_Right);
    EXPECT_EQ(settings.backgroundOpacity(), 0.75);
    for (int i = 0; i < 20; ++i)
        QTest::keyClick(&view(), Qt::Key_Left);
    EXPECT_EQ(settings.backgroundOpacity(), 0.15);
}

TEST_F(SettingsWindowTest, saysThatTheOpacityHasNoEffectWhileThereIsNoCompositor)
{
    const QString note = u"The opacity has no effect at the moment: windows can be translucent "
                         "only while the desktop runs a compositor."_s;
    EXPECT_FALSE(showsText(view(), note));

    compositing.setOn(false);
    EXPECT_TRUE(showsText(view(), note));

    compositing.setOn(true);
    EXPECT_FALSE(showsText(view(), note));
}

TEST_F(SettingsWindowTest, bindsTheAutomaticChecksBothWays)
{
    updates.start();
    drainEvents();
    const QQuickItem& toggle = control(u"Check for updates automatically (once a day)"_s);

    click(view(), toggle);
    EXPECT_TRUE(updater.isAutomatic);
    updater.setOn(false);
    drainEvents();
    EXPECT_FALSE(toggle.property("checked").toBool());
}

TEST_F(SettingsWindowTest, namesEachControlAndReachesItByTheTabKey)
{
    QList<QQuickItem*> controls;
    for (QQuickItem* item : visibleItems(view())) {
        if (item->activeFocusOnTab() && item->isEnabled())
            controls.append(item);
    }
    EXPECT_GE(controls.size(), 11);
    for (const QQuickItem* item : controls)
        EXPECT_FALSE(accessibleName(*item).isEmpty()) << item->metaObject()->className();

    QSet<QQuickItem*> reached;
    for (qsizetype i = 0; i < controls.size(); ++i) {
        QTest::keyClick(&view(), Qt::Key_Tab);
        reached.insert(view().activeFocusItem());
    }
    EXPECT_EQ(reached, QSet<QQuickItem*>(controls.begin(), controls.end()));
}

TEST_F(SettingsWindowTest, scrollsOnALowScreenToWhatTheTabKeyReaches)
{
    updates.start();
    updater.setChecks(true, std::nullopt);
    drainEvents();
    view().setMinimumSize({});
    view().resize(500, 320);
    drainEvents();
    EXPECT_GT(flickable().property("contentHeight").toDouble(), 320);

    for (int presses = 0; presses < 20; ++presses) {
        QTest::keyClick(&view(), Qt::Key_Tab);
        drainEvents();
        const QRectF place = placeInWindow(*view().activeFocusItem());
        EXPECT_TRUE(QRectF(0, 0, 500, 320).contains(place))
            << accessibleName(*view().activeFocusItem()).toStdString() << " at " << place.y();
    }
}

TEST_F(SettingsWindowTest, saysWhatTheSpeedMeansInWords)
{
    scrolling.setViewportHeight(200);
    scrolling.setContentHeight(10060);
    pace.setText(u"word "_s.repeated(2000));
    drainEvents();
    EXPECT_THAT(visibleTexts(view()),
        ::testing::Contains(
            u"25 pt/s · about 300 words a minute in this script: faster than speech"_s));

    QQuickItem& words = control(u"Words a minute"_s);
    EXPECT_EQ(words.property("value").toInt(), 300);
    press(words, Qt::Key_Down);
    EXPECT_NEAR(pace.unitsPerMinute(), 294, 0.01) << "steps of two per cent";
    EXPECT_NEAR(settings.speed(), 24.5, 0.01);
    press(words, Qt::Key_Up);
    EXPECT_NEAR(pace.unitsPerMinute(), 300, 0.01);

    settings.setSpeed(10);
    drainEvents();
    EXPECT_EQ(words.property("value").toInt(), 120) << "follows the speed keys";
}

TEST_F(SettingsWindowTest, offersNoPaceWithoutAText)
{
    EXPECT_FALSE(control(u"Words a minute"_s).isEnabled());
    EXPECT_FALSE(control(u"Keep my pace with another text, size or width"_s).isEnabled());
}

TEST_F(SettingsWindowTest, keepsThePaceAndShowsTheTimeOnlyOnceTheUserWantsIt)
{
    scrolling.setContentHeight(10060);
    pace.setText(u"word "_s.repeated(2000));

    press(control(u"Keep my pace with another text, size or width"_s), Qt::Key_Space);
    EXPECT_GT(stored(u"keptPace"_s).toDouble(), 0);
    press(control(u"Keep my pace with another text, size or width"_s), Qt::Key_Space);
    EXPECT_EQ(stored(u"keptPace"_s).toDouble(), 0);

    QQuickItem& times = control(u"Time on the prompter"_s);
    EXPECT_EQ(times.property("currentIndex").toInt(), 0);
    press(times, Qt::Key_Down);
    EXPECT_EQ(stored(u"cardTime"_s), u"left"_s);
}

} // namespace
} // namespace Orvello
