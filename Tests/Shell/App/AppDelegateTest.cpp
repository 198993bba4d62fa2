#include "Tests/Shell/App/AppDelegateFixture.h"
#include "Tests/Support/DeckBuilder.h"
#include "Tests/Support/WindowServerStandIn.h"

#include <QElapsedTimer>
#include <QGuiApplication>
#include <QIcon>

#include <gmock/gmock.h>

#include <csignal>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::IsEmpty;

/// Sets an environment variable for the life of the object.
class EnvironmentVariable {
public:
    EnvironmentVariable(const char* name, const QString& value)
        : m_name(name)
    {
        qputenv(name, value.toUtf8());
    }
    ~EnvironmentVariable() { qunsetenv(m_name); }

private:
    const char* m_name;
};

using Lines = std::vector<std::string>;

/// What a launch does after the first window, and before anything is delivered, without switches.
const Lines statusItemAndKeys {
    "status item made",
    "hot key 35 with 2304 as 1",
    "hot key 126 with 2304 as 2",
    "hot key 125 with 2304 as 3",
    "hot key 15 with 2304 as 4",
    "hot key 4 with 2304 as 5",
    "updater started",
    "log UPDATES started auto=0 feed=?",
};
const Lines signalHandlers = [] {
    Lines lines;
    for (const int number : { SIGUSR1, SIGUSR2 })
        lines.push_back("signal " + std::to_string(number) + " handled");
    return lines;
}();

Lines joined(std::initializer_list<Lines> parts)
{
    Lines all;
    for (const Lines& part : parts)
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

class AppDelegateTest : public AppDelegateFixture {
protected:
    /// What a launch does.
    Lines recordOfLaunch(const QStringList& arguments = {})
    {
        QGuiApplication::setWindowIcon({});
        construct(arguments);
        platform.panelMade = [this] {
            if (!QGuiApplication::windowIcon().isNull())
                platform.journal.emplace_back("with the icon set");
            QObject::connect(&engine(), &ScrollEngine::isRunningChanged, delegate.get(),
                [this] { platform.journal.emplace_back("scrolling started"); });
        };
        platform.journal.clear();
        delegate->applicationOpen({ QUrl(u"orvello:early"_s) });
        EXPECT_THAT(platform.journal, IsEmpty()) << "the address waits";
        delegate->applicationDidFinishLaunching();
        return platform.journal;
    }

    const Lines panelMade { "panel made", "with the icon set", "panel hidden from captures",
        "log STEALTH ON wid=42 fresh=1 mode=both sckExcludeApplied=0",
        "log PANEL_UP frame={{360, 694}, {720, 200}} sharing=0 sckExclude=0",
        "windows made ready" };
    const Lines panelShown { "panel shown",
        "log STEALTH ON wid=42 fresh=0 mode=both sckExcludeApplied=0" };
    const Lines capturablePanelMade { "panel made", "with the icon set",
        "panel hidden from captures", "panel capturable",
        "log STEALTH OFF wid=42 fresh=1 mode=both sckExcludeApplied=0",
        "log PANEL_UP frame={{360, 694}, {720, 200}} sharing=1 sckExclude=0",
        "windows made ready" };
    const Lines capturablePanelShown { "panel shown",
        "log STEALTH OFF wid=42 fresh=0 mode=both sckExcludeApplied=0" };
    const Lines tourShown { "onboarding window made", "application activated",
        "onboarding window in front" };
    const Lines monitorStarted { "frontmost application asked for" };
    const Lines addressHandled { "log URL ignored: orvello:early" };
};

TEST_F(AppDelegateTest, launchesStepByStep)
{
    EXPECT_THAT(recordOfLaunch(),
        ElementsAreArray(joined({ panelMade, panelShown, statusItemAndKeys, monitorStarted,
            addressHandled, signalHandlers })));
}

TEST_F(AppDelegateTest, checksForUpdatesRightAfterTheirStart)
{
    EXPECT_THAT(recordOfLaunch({ u"--check-updates"_s }),
        ElementsAreArray(joined({ panelMade, panelShown, statusItemAndKeys,
            { "application activated", "updater asked to check" }, monitorStarted, addressHandled,
            signalHandlers })));
}

TEST_F(AppDelegateTest, turnsVoiceFollowOnBeforeItSubscribes)
{
    EXPECT_THAT(recordOfLaunch({ u"--voice"_s }),
        ElementsAreArray(joined({ panelMade, panelShown, statusItemAndKeys,
            { "default voiceFollow stored" }, monitorStarted, addressHandled, signalHandlers })));

    Testing::drainEvents();

    EXPECT_TRUE(engine().voiceFollowActive());
    EXPECT_EQ(logged("VAD listening (VPIO, AEC on)"), 1);
}

TEST_F(AppDelegateTest, startsScrollingLateAndBeforeTheAddresses)
{
    platform.userDefaultsFake.stored.insert(u"countdownSeconds"_s, 0.0);

    EXPECT_THAT(recordOfLaunch({ u"--autostart"_s }),
        ElementsAreArray(joined({ panelMade, panelShown, statusItemAndKeys, monitorStarted,
            { "scrolling started" }, addressHandled, signalHandlers })));
}

TEST_F(AppDelegateTest, showsTheTourInPlaceOfThePanelAtTheFirstLaunch)
{
    platform.userDefaultsFake.stored.remove(u"onboardingSeenVersion"_s);

    EXPECT_THAT(recordOfLaunch(),
        ElementsAreArray(joined({ panelMade, tourShown, statusItemAndKeys, monitorStarted,
            addressHandled, signalHandlers })));
    EXPECT_FALSE(platform.panel->isVisible());
}

TEST_F(AppDelegateTest, showsTheTourInPlaceOfThePanelWhenAsked)
{
    EXPECT_THAT(recordOfLaunch({ u"--onboarding"_s }),
        ElementsAreArray(joined({ panelMade, tourShown, statusItemAndKeys, monitorStarted,
            addressHandled, signalHandlers })));
    EXPECT_FALSE(platform.panel->isVisible());
}

TEST_F(AppDelegateTest, makesACapturablePanelWithNoStealth)
{
    EXPECT_THAT(recordOfLaunch({ u"--no-stealth"_s }),
        ElementsAreArray(joined({ capturablePanelMade, capturablePanelShown, statusItemAndKeys,
            monitorStarted, addressHandled, signalHandlers })));
}

TEST_F(AppDelegateTest, doesAllOfItInOrder)
{
    platform.userDefaultsFake.stored.insert(u"countdownSeconds"_s, 0.0);
    const EnvironmentVariable variable("ORVELLO_IMPORT_PPTX", u"/nowhere/at/all.pptx"_s);

    EXPECT_THAT(recordOfLaunch({ u"--autostart"_s, u"--voice"_s, u"--check-updates"_s,
                    u"--onboarding"_s, u"--no-stealth"_s }),
        ElementsAreArray(joined({ capturablePanelMade, tourShown, statusItemAndKeys,
            { "application activated", "updater asked to check", "default voiceFollow stored" },
            monitorStarted,
            { "log IMPORT_PPTX failed: The file could not be opened as a PowerPoint package.",
                "scrolling started" },
            addressHandled, signalHandlers })));
}

TEST_F(AppDelegateTest, showsThePanelWhenTheTourIsFinished)
{
    launchAndSettle({ u"--onboarding"_s });
    platform.journal.clear();

    windows.finishOnboarding();

    EXPECT_TRUE(platform.panel->isVisible());
    EXPECT_THAT(platform.journal, Contains("panel shown"));
    EXPECT_EQ(windows.openOnboardings, 1) << "the window is still closing";
    Testing::drainEvents();
    EXPECT_EQ(windows.openOnboardings, 0);
}

TEST_F(AppDelegateTest, makesANewTourAfterTheOldOneIsFinished)
{
    launchAndSettle({ u"--onboarding"_s });
    delegate->showOnboarding();
    EXPECT_EQ(windows.openOnboardings, 1);
    windows.finishOnboarding();
    Testing::drainEvents();

    delegate->showOnboarding();

    EXPECT_EQ(windows.openOnboardings, 1);
    EXPECT_THAT(platform.journal, Contains("onboarding window made").Times(2));
}

TEST_F(AppDelegateTest, asksForTheFirstOnboardingVersionAtLeast)
{
    platform.userDefaultsFake.stored.insert(u"onboardingSeenVersion"_s, 0);

    launch();

    EXPECT_EQ(windows.openOnboardings, 1);
}

TEST_F(AppDelegateTest, neverHidesThePanelFromCapturesWithNoStealth)
{
    launchAndSettle({ u"--no-stealth"_s });
    for (const bool wanted : { false, true }) {
        settings().setStealthMode(wanted);
        Testing::drainEvents();

        EXPECT_FALSE(platform.panel->hidden);
    }
}

TEST_F(AppDelegateTest, knowsItsSwitchesOnlyAsWholeArguments)
{
    launchAndSettle({ u"--voice=yes"_s, u"--autostart "_s, u"-onboarding"_s, u"x--no-stealth"_s });

    EXPECT_FALSE(settings().voiceFollow());
    EXPECT_FALSE(engine().isRunning());
    EXPECT_TRUE(platform.panel->isVisible());
    EXPECT_TRUE(platform.panel->hidden);
}

// The subscriptions

TEST_F(AppDelegateTest, followsTheStealthSetting)
{
    launchAndSettle();
    ASSERT_TRUE(platform.panel->hidden);

    settings().setStealthMode(false);
    Testing::drainEvents();

    EXPECT_FALSE(platform.panel->hidden);
}

TEST_F(AppDelegateTest, startsAndStopsListeningWithTheVoiceSetting)
{
    launchAndSettle();
    EXPECT_FALSE(platform.voiceProcessingFake.hasUnit());

    settings().setVoiceFollow(true);
    Testing::drainEvents();
    EXPECT_TRUE(engine().voiceFollowActive());
    EXPECT_TRUE(platform.voiceProcessingFake.hasUnit());

    settings().setVoiceFollow(false);
    Testing::drainEvents();
    EXPECT_FALSE(engine().voiceFollowActive());
    EXPECT_FALSE(platform.voiceProcessingFake.hasUnit());
}

TEST_F(AppDelegateTest, listensAtOnceWhenTheSettingWasOnBefore)
{
    platform.userDefaultsFake.stored.insert(u"voiceFollow"_s, true);

    launchAndSettle();

    EXPECT_TRUE(platform.voiceProcessingFake.hasUnit());
}

// Slide tracking

class AppDelegateSlidesTest : public AppDelegateFixture {
protected:
    void addDeck()
    {
        library().addDeck(u"Talk"_s, { { 1, u"Intro"_s, u"Hello all"_s } }, u"talk.pptx"_s);
        Testing::drainEvents();
    }
};

TEST_F(AppDelegateSlidesTest, tracksNothingWithoutADeck)
{
    launchAndSettle();

    EXPECT_EQ(logged("SYNC active=1"), 0);
}

TEST_F(AppDelegateSlidesTest, tracksADeck)
{
    launchAndSettle();

    addDeck();

    EXPECT_EQ(logged("SYNC active=1"), 1);
}

TEST_F(AppDelegateSlidesTest, stopsForAScriptWithoutSlidesAlthoughTheSettingStaysOn)
{
    launchAndSettle();
    addDeck();

    library().setActiveScriptID(library().scripts().last().id);
    Testing::drainEvents();

    EXPECT_EQ(logged("SYNC active=0"), 1);
    EXPECT_TRUE(settings().slideSync());
}

TEST_F(AppDelegateSlidesTest, takesTheFirstScriptWhenTheActiveOneIsUnknown)
{
    launchAndSettle();
    addDeck();
    library().setActiveScriptID(library().scripts().last().id);
    Testing::drainEvents();
    log.clear();

    library().setActiveScriptID(QUuid::createUuid());
    Testing::drainEvents();

    EXPECT_EQ(logged("SYNC active=1"), 1);
}

TEST_F(AppDelegateSlidesTest, followsTheSettingToo)
{
    launchAndSettle();
    addDeck();

    settings().setSlideSync(false);
    Testing::drainEvents();
    EXPECT_EQ(logged("SYNC active=0"), 1);

    settings().setSlideSync(true);
    Testing::drainEvents();
    EXPECT_EQ(logged("SYNC active=1"), 2);
}

TEST_F(AppDelegateSlidesTest, isToldEachAnswerOnce)
{
    launchAndSettle();
    addDeck();

    library().updateActive(u"Another title"_s, {});
    Testing::drainEvents();

    EXPECT_EQ(logged("SYNC active=1"), 1);
}

// Import at launch

TEST_F(AppDelegateTest, importsTheDeckOfTheEnvironment)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"talk.pptx"_s);
    QFile deck(path);
    ASSERT_TRUE(deck.open(QIODevice::WriteOnly));
    deck.write(Testing::DeckBuilder().slide("Intro", "Hello all").build());
    deck.close();
    const EnvironmentVariable variable("ORVELLO_IMPORT_PPTX", path);

    launchAndSettle();

    EXPECT_EQ(library().scripts().first().title, u"talk");
    EXPECT_EQ(logged("IMPORT_PPTX ok slides=1 file=talk.pptx"), 1);
}

TEST_F(AppDelegateTest, importsTheDecksOfTheCommandLine)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"talk.pptx"_s);
    QFile deck(path);
    ASSERT_TRUE(deck.open(QIODevice::WriteOnly));
    deck.write(Testing::DeckBuilder().slide("Intro", "Hello all").build());
    deck.close();

    launchAndSettle({ path });

    EXPECT_EQ(library().activeScript()->title, u"talk");
}

TEST_F(AppDelegateTest, doesNotReadADeckAgainThatHasBeenRead)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"talk.pptx"_s);
    ASSERT_TRUE(QFile(path).open(QIODevice::WriteOnly)); // Empty by now.
    construct({ path },
        { { path,
            PptxImporter::Deck {
                .slides = { { 1, u"Intro"_s, u"Hello all"_s } }, .unread = {}, .stamp = {} } } });

    delegate->applicationDidFinishLaunching();

    EXPECT_EQ(library().activeScript()->title, u"talk");
    EXPECT_EQ(logged("IMPORT_PPTX ok slides=1 file=talk.pptx"), 1);
}

TEST_F(AppDelegateTest, opensTheWindowsOfTheCommandLine)
{
    platform.userDefaultsFake.stored.insert(u"countdownSeconds"_s, 0.0);

    launchAndSettle({ u"--scripts"_s, u"--settings"_s, u"--toggle"_s });

    EXPECT_THAT(platform.journal, Contains("library window in front"));
    EXPECT_THAT(platform.journal, Contains("settings window in front"));
    EXPECT_TRUE(engine().isRunning());
}

// Addresses

TEST_F(AppDelegateTest, logsAnAddressOfBeforeTheLaunchOnce)
{
    construct();
    delegate->applicationOpen({ QUrl(u"orvello://one"_s), QUrl(u"orvello:two?a=%20b"_s) });
    EXPECT_EQ(logged("URL ignored: orvello://one"), 0);

    delegate->applicationDidFinishLaunching();
    Testing::drainEvents();

    EXPECT_EQ(logged("URL ignored: orvello://one"), 1);
    EXPECT_EQ(logged("URL ignored: orvello:two?a=%20b"), 1);
}

TEST_F(AppDelegateTest, logsAnAddressOfAfterTheLaunchAtOnce)
{
    launchAndSettle();
    log.clear();

    delegate->applicationOpen({ QUrl(u"orvello://hello"_s) });

    EXPECT_THAT(log.lines(), ElementsAre("URL ignored: orvello://hello"));
}

class StartedAgainTest : public AppDelegateFixture {
protected:
    void startAgain(const QStringList& arguments = {}, const QVariantMap& environment = {})
    {
        delegate->applicationStartedAgain(
            LaunchOptions::of({ arguments, folder.path(), environment }),
            [this](const QStringList& refusals) { answers.append(refusals); });
        Testing::drainEvents();
    }
    /// Decks are read by another thread.
    void waitForAnswers(qsizetype count)
    {
        QElapsedTimer timer;
        for (timer.start(); answers.size() < count;) {
            ASSERT_LT(timer.elapsed(), 60'000);
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
        Testing::drainEvents();
    }

    QString makeDeck(const QString& name) const
    {
        QFile deck(folder.filePath(name));
        EXPECT_TRUE(deck.open(QIODevice::WriteOnly));
        deck.write(Testing::DeckBuilder().slide("Intro", "Hello all").build());
        return deck.fileName();
    }

    const QTemporaryDir folder; ///< Where the later starts happen.
    QList<QStringList> answers;
};

TEST_F(StartedAgainTest, opensTheMenu)
{
    launchAndSettle();

    startAgain();

    EXPECT_EQ(windows.openedMenus, 1);
}

TEST_F(StartedAgainTest, opensTheMenuForASwitchThatComesTooLate)
{
    launchAndSettle();

    startAgain({ u"--no-stealth"_s });

    EXPECT_EQ(windows.openedMenus, 1);
    EXPECT_TRUE(platform.panel->hidden);
}

TEST_F(StartedAgainTest, leavesItToTheLaunchToShowWhatThereIsToSee)
{
    construct();
    startAgain();
    startAgain({ u"--no-stealth"_s });

    delegate->applicationDidFinishLaunching();

    EXPECT_EQ(windows.openedMenus, 0);
    EXPECT_TRUE(platform.panel->isVisible());
}

TEST_F(StartedAgainTest, keepsTheSwitchesUntilTheLaunchEnds)
{
    platform.userDefaultsFake.stored.insert(u"countdownSeconds"_s, 0.0);
    construct();
    startAgain({ u"--voice"_s, u"--onboarding"_s });
    startAgain({ u"--check-updates"_s, u"--autostart"_s });
    EXPECT_EQ(windows.openOnboardings, 0);
    EXPECT_EQ(platform.updaterFake.checks, 0);
    EXPECT_FALSE(platform.userDefaultsFake.stored.contains(u"voiceFollow"_s));

    delegate->applicationDidFinishLaunching();

    EXPECT_EQ(windows.openOnboardings, 1);
    EXPECT_EQ(platform.updaterFake.checks, 1);
    EXPECT_TRUE(settings().voiceFollow());
    EXPECT_TRUE(engine().isRunning());
    EXPECT_EQ(windows.openedMenus, 0);
}

TEST_F(StartedAgainTest, keepsTheSwitchesOfAStartInTheMidstOfTheLaunch)
{
    construct();
    platform.panelMade = [this] {
        delegate->applicationStartedAgain(
            LaunchOptions::of({ { u"--onboarding"_s }, {}, {} }), [](const QStringList&) {});
    };

    delegate->applicationDidFinishLaunching();

    EXPECT_EQ(windows.openOnboardings, 1);
}

TEST_F(StartedAgainTest, opensAddressesInPlaceOfTheMenu)
{
    construct();
    startAgain({ u"orvello:early"_s });
    delegate->applicationDidFinishLaunching();

    startAgain({ u"orvello:late"_s });

    EXPECT_EQ(logged("URL ignored: orvello:early"), 1);
    EXPECT_EQ(logged("URL ignored: orvello:late"), 1);
    EXPECT_EQ(windows.openedMenus, 0);
}

TEST_F(StartedAgainTest, doesWhatTheSwitchesAskFor)
{
    platform.userDefaultsFake.stored.insert(u"countdownSeconds"_s, 0.0);
    launchAndSettle();

    startAgain({ u"--onboarding"_s, u"--check-updates"_s, u"--voice"_s, u"--autostart"_s });

    EXPECT_EQ(windows.openOnboardings, 1);
    EXPECT_EQ(platform.updaterFake.checks, 1);
    EXPECT_TRUE(settings().voiceFollow());
    EXPECT_TRUE(engine().isRunning());
    EXPECT_EQ(windows.openedMenus, 0);
}

TEST_F(StartedAgainTest, opensTheWindowsAndTogglesTheScrolling)
{
    platform.userDefaultsFake.stored.insert(u"countdownSeconds"_s, 0.0);
    launchAndSettle();
    platform.journal.clear();

    startAgain({ u"--toggle"_s, u"--scripts"_s, u"--settings"_s });
    EXPECT_TRUE(engine().isRunning());
    startAgain({ u"--toggle"_s });
    EXPECT_FALSE(engine().isRunning());

    EXPECT_THAT(platform.journal, Contains("library window in front"));
    EXPECT_THAT(platform.journal, Contains("settings window in front"));
    EXPECT_EQ(windows.openedMenus, 0);
    EXPECT_THAT(answers, ElementsAre(IsEmpty(), IsEmpty()));
}

TEST_F(StartedAgainTest, importsTheDecks)
{
    makeDeck(u"first.pptx"_s);
    makeDeck(u"second.pptx"_s);
    launchAndSettle();

    startAgain({ u"second.pptx"_s }, { { u"ORVELLO_IMPORT_PPTX"_s, u"first.pptx"_s } });
    EXPECT_THAT(answers, IsEmpty()); // The reader's text goes on meanwhile.
    waitForAnswers(1);

    EXPECT_EQ(library().scripts()[0].title, u"second");
    EXPECT_EQ(library().scripts()[1].title, u"first");
    EXPECT_EQ(library().activeScript()->title, u"second");
    EXPECT_EQ(windows.openedMenus, 0);
    EXPECT_THAT(answers, ElementsAre(IsEmpty()));
}

TEST_F(StartedAgainTest, updatesADeckThatIsOpenedOnceMore)
{
    makeDeck(u"talk.pptx"_s);
    launchAndSettle();
    startAgain({ u"talk.pptx"_s });
    waitForAnswers(1);
    const QUuid script = library().activeScript()->id;
    const qsizetype count = library().scripts().size();
    library().addScript();

    QFile deck(folder.filePath(u"talk.pptx"_s));
    ASSERT_TRUE(deck.open(QIODevice::WriteOnly));
    deck.write(Testing::DeckBuilder().slide("Intro", "Hello everybody").build());
    deck.close();
    startAgain({ u"talk.pptx"_s });
    waitForAnswers(2);

    EXPECT_EQ(library().scripts().size(), count + 1);
    EXPECT_EQ(library().activeScript()->id, script);
    EXPECT_EQ(library().activeScript()->slides->first().notes, u"Hello everybody"_s);
    EXPECT_EQ(logged("IMPORT_PPTX updated slides=1 file=talk.pptx"), 1);
}

TEST_F(StartedAgainTest, answersForADeckThatCannotBeReadAndDoesNotScroll)
{
    platform.userDefaultsFake.stored.insert(u"countdownSeconds"_s, 0.0);
    QFile(folder.filePath(u"broken.pptx"_s)).open(QIODevice::WriteOnly);
    launchAndSettle();

    startAgain({ u"--autostart"_s }, { { u"ORVELLO_IMPORT_PPTX"_s, u"broken.pptx"_s } });
    waitForAnswers(1);

    EXPECT_FALSE(engine().isRunning());
    EXPECT_EQ(
        logged("IMPORT_PPTX failed: The file could not be opened as a PowerPoint package."), 1);
    EXPECT_THAT(answers,
        ElementsAre(ElementsAre(folder.filePath(u"broken.pptx"_s)
            + u": The file could not be opened as a PowerPoint package."_s)));
}

TEST_F(StartedAgainTest, answersForWhatCountsOnlyAtTheLaunch)
{
    launchAndSettle();

    startAgain({ u"--no-stealth"_s, u"-textColorName"_s, u"Yellow"_s, u"--voice"_s },
        { { u"ORVELLO_STEALTH"_s, u"shape"_s } });

    const QString reason = u" counts only at the launch: quit the Orvello that runs first"_s;
    EXPECT_THAT(answers,
        ElementsAre(ElementsAre(u"--no-stealth"_s + reason, u"-textColorName Yellow"_s + reason,
            u"ORVELLO_STEALTH"_s + reason)));
    EXPECT_TRUE(settings().voiceFollow());
}

TEST_F(StartedAgainTest, refusesNothingThatIsSoAlready)
{
    platform.userDefaultsFake.stored.insert(u"textColorName"_s, u"Yellow"_s);
    launchAndSettle({ u"--no-stealth"_s });

    startAgain({ u"--no-stealth"_s, u"-textColorName"_s, u"Yellow"_s });

    EXPECT_THAT(answers, ElementsAre(IsEmpty()));
}

TEST_F(StartedAgainTest, answersTheEarlyStartsWhenTheLaunchEnds)
{
    construct();
    startAgain({ u"--no-stealth"_s });
    EXPECT_THAT(answers, IsEmpty());

    delegate->applicationDidFinishLaunching();

    EXPECT_THAT(answers, ElementsAre(::testing::SizeIs(1)));
}

// Signals

TEST_F(AppDelegateTest, handlesTheSignalsThatEndItBeforeTheLaunch)
{
    platform.processSignalsFake.ignored = { SIGHUP };

    construct();

    EXPECT_TRUE(platform.processSignalsFake.isHandled(SIGTERM));
    EXPECT_TRUE(platform.processSignalsFake.isHandled(SIGINT));
    EXPECT_FALSE(platform.processSignalsFake.isHandled(SIGHUP)) << "what nohup started";
}

TEST_F(AppDelegateTest, endsAtAHangUp)
{
    construct();

    EXPECT_TRUE(platform.processSignalsFake.isHandled(SIGHUP));
}

TEST_F(AppDelegateTest, togglesStealthAtTheFirstUserSignal)
{
    launchAndSettle();
    log.clear();

    platform.processSignalsFake.send(SIGUSR1);
    EXPECT_FALSE(settings().stealthMode());
    platform.processSignalsFake.send(SIGUSR1);
    EXPECT_TRUE(settings().stealthMode());

    EXPECT_THAT(
        log.lines(), ElementsAre("DEBUG stealth toggled -> 0", "DEBUG stealth toggled -> 1"));
}

TEST_F(AppDelegateTest, togglesThePanelAtTheSecondUserSignal)
{
    launchAndSettle();

    platform.processSignalsFake.send(SIGUSR2);
    EXPECT_FALSE(platform.panel->isVisible());
    platform.processSignalsFake.send(SIGUSR2);
    EXPECT_TRUE(platform.panel->isVisible());
}

TEST_F(AppDelegateTest, assertsStealthAgainWheneverItShowsThePanel)
{
    launchAndSettle();
    delegate->togglePanel();
    log.clear();

    delegate->togglePanel();

    EXPECT_EQ(logged("STEALTH ON wid=42 fresh=0 mode=both sckExcludeApplied=0"), 1);
}

TEST_F(AppDelegateTest, keepsTheDisplayOnWhileTheTextScrolls)
{
    launchAndSettle();
    engine().toggle();
    Testing::drainEvents();

    EXPECT_THAT(platform.wakefulnessFake.held,
        ElementsAre(Wakefulness::Need::None, Wakefulness::Need::Display));
}

TEST_F(AppDelegateTest, excludesThePanelByTheCallsThatItIsGiven)
{
    Testing::WindowServerStandIn::state() = {};
    findCall = Testing::WindowServerStandIn::lookUp();

    launchAndSettle();

    EXPECT_EQ(Testing::WindowServerStandIn::state().shapeCalls.front().window, 42U);
    EXPECT_EQ(logged("STEALTH ON wid=42 fresh=1 mode=both sckExcludeApplied=1"), 1);
}

// Hot keys

TEST_F(AppDelegateTest, runsEachHotKey)
{
    platform.userDefaultsFake.stored.insert(u"countdownSeconds"_s, 0.0);
    launchAndSettle();
    const auto press = [this](std::uint32_t key) { platform.hotKeysFake.press(key, 2304); };

    press(HotKey::keyP);
    EXPECT_TRUE(engine().isRunning());
    press(HotKey::keyP);
    EXPECT_FALSE(engine().isRunning());

    engine().setOffset(120);
    press(HotKey::keyR);
    EXPECT_EQ(engine().offset(), 0);

    press(HotKey::keyH);
    EXPECT_FALSE(platform.panel->isVisible());
    press(HotKey::keyH);
    EXPECT_TRUE(platform.panel->isVisible());
}

TEST_F(AppDelegateTest, tellsTheDesktopWhatEachKeyDoes)
{
    launchAndSettle();
    QStringList told;
    for (const HotKeyPurpose& purpose : platform.hotKeysFake.purposes)
        told.append(purpose.name + u": "_s + purpose.description);

    EXPECT_THAT(told,
        ElementsAre(u"toggle: Start or pause scrolling"_s, u"faster: Scroll faster"_s,
            u"slower: Scroll more slowly"_s, u"restart: Go back to the top of the script"_s,
            u"hide: Show or hide the prompter"_s));
}

TEST_F(AppDelegateTest, keepsTheSpeedKeysInsideTheirBounds)
{
    launchAndSettle();
    const auto after = [this](double speed, std::uint32_t key) {
        settings().setSpeed(speed);
        platform.hotKeysFake.press(key, 2304);
        return settings().speed();
    };

    EXPECT_EQ(after(25, HotKey::keyUp), 35);
    EXPECT_EQ(after(235, HotKey::keyUp), 240);
    EXPECT_EQ(after(240, HotKey::keyUp), 240);
    EXPECT_EQ(after(35.5, HotKey::keyDown), 25.5);
    EXPECT_EQ(after(20, HotKey::keyDown), 15);
    EXPECT_EQ(after(15, HotKey::keyDown), 15);
}

TEST_F(AppDelegateTest, survivesKeysThatOthersOwn)
{
    platform.hotKeysFake.isOwnedByAnother = true;

    launchAndSettle();

    EXPECT_TRUE(platform.panel->isVisible());
}

// The plain P key

TEST_F(AppDelegateTest, armsThePlainKeyWhileASlideshowRuns)
{
    platform.userDefaultsFake.stored.insert(u"countdownSeconds"_s, 0.0);
    launchAndSettle();
    EXPECT_FALSE(isPlainPArmed());

    presentKeynote();
    ASSERT_TRUE(isPlainPArmed());
    EXPECT_EQ(logged("plain-P armed (slideshow)"), 1);
    platform.hotKeysFake.press(HotKey::keyP, 0);
    EXPECT_TRUE(engine().isRunning());

    endSlideshow();
    EXPECT_FALSE(isPlainPArmed());
    EXPECT_EQ(logged("plain-P disarmed"), 1);
}

TEST_F(AppDelegateTest, armsUnderANewIdEachTime)
{
    launchAndSettle();
    presentKeynote();
    endSlideshow();
    presentKeynote();

    ASSERT_EQ(platform.hotKeysFake.registrations.size(), 7u);
    EXPECT_EQ(platform.hotKeysFake.registrations[5].id.id, 6u);
    EXPECT_EQ(platform.hotKeysFake.registrations[6].id.id, 7u);
    EXPECT_EQ(platform.hotKeysFake.registrations[6].key, (HotKey { 35, 0 }));
}

TEST_F(AppDelegateTest, armsAtOnceForASlideshowThatRunsAtTheLaunch)
{
    platform.workspaceFake.frontmost
        = Testing::FakeWorkspace::application(u"com.apple.iWork.Keynote"_s);
    platform.windowServerFake.windows = { { u"Keynote"_s, QRectF(0, 0, 1920, 1080) } };

    launchAndSettle();

    EXPECT_TRUE(isPlainPArmed());
    EXPECT_EQ(platform.hotKeysFake.registrations.size(), 6u) << "and only once";
}

TEST_F(AppDelegateTest, followsThePlainKeysSettingDuringASlideshow)
{
    launchAndSettle();
    presentKeynote();

    settings().setSlideshowPauseKey(false);
    Testing::drainEvents();
    EXPECT_FALSE(isPlainPArmed());

    settings().setSlideshowPauseKey(true);
    Testing::drainEvents();
    EXPECT_TRUE(isPlainPArmed());
}

TEST_F(AppDelegateTest, leavesThePlainKeyAloneWhileItsSettingIsOff)
{
    platform.userDefaultsFake.stored.insert(u"slideshowPauseKey"_s, false);
    launchAndSettle();

    presentKeynote();
    endSlideshow();

    EXPECT_EQ(platform.hotKeysFake.registrations.size(), 5u);
    EXPECT_EQ(logged("plain-P disarmed"), 0);
}

// The status menu

TEST_F(AppDelegateTest, tellsInItsMenuWhatAHotKeyChanged)
{
    platform.userDefaultsFake.stored.insert(u"countdownSeconds"_s, 0.0);
    launchAndSettle({ u"--autostart"_s });
    EXPECT_EQ(titleOfLine(1), u"Pause Scrolling  (⌥⌘P)");

    platform.hotKeysFake.press(HotKey::keyP, 2304);

    EXPECT_EQ(titleOfLine(1), u"Start Scrolling  (⌥⌘P)");
}

TEST_F(AppDelegateTest, opensEachWindowOnceAndThenBringsItToTheFront)
{
    launchAndSettle();
    platform.journal.clear();
    constexpr std::size_t scripts = 9;
    constexpr std::size_t settingsLine = 10;

    choose(scripts);
    choose(scripts);
    choose(settingsLine);
    choose(settingsLine);

    EXPECT_THAT(platform.journal,
        ElementsAre("library window made", "application activated", "library window in front",
            "application activated", "library window in front", "settings window made",
            "application activated", "settings window in front", "application activated",
            "settings window in front"));
}

TEST_F(AppDelegateTest, runsTheOtherLinesOfTheMenu)
{
    platform.userDefaultsFake.stored.insert(u"countdownSeconds"_s, 0.0);
    launchAndSettle();

    choose(1);
    EXPECT_TRUE(engine().isRunning());
    engine().setOffset(50);
    choose(2);
    EXPECT_EQ(engine().offset(), 0);
    choose(4);
    EXPECT_TRUE(settings().voiceFollow());
    choose(5);
    EXPECT_FALSE(settings().slideSync());
    choose(6);
    EXPECT_FALSE(settings().stealthMode());
    choose(7);
    EXPECT_FALSE(platform.panel->isVisible());
    choose(11);
    EXPECT_EQ(windows.openOnboardings, 1);
    choose(12);
    EXPECT_EQ(platform.updaterFake.checks, 1);
}

TEST_F(AppDelegateTest, helpsWithALetterAndTheLog)
{
    launchAndSettle();
    const auto& help = *windows.statusMenu->items().at(12)->submenu;

    help.items().at(0)->action();
    help.items().at(1)->action();

    ASSERT_EQ(platform.desktop.opened.size(), 1);
    EXPECT_EQ(platform.desktop.opened.first().scheme(), u"mailto");
    EXPECT_THAT(platform.desktop.opened.first().query(QUrl::FullyDecoded).toStdString(),
        ::testing::HasSubstr(", macOS Version 14.5\nIf something"));
    EXPECT_EQ(platform.desktop.revealed, QStringList { QString::fromStdString(AppLog::fileURL()) });
}

TEST_F(AppDelegateTest, opensItsMenuAtARightClickOnThePrompter)
{
    launchAndSettle();
    const auto click = [this](Qt::MouseButton button) {
        for (const auto type : { QEvent::MouseButtonPress, QEvent::MouseButtonRelease }) {
            const bool isDown = type == QEvent::MouseButtonPress;
            QMouseEvent event(type, QPointF(90, 90), QPointF(90, 90), button,
                isDown ? button : Qt::NoButton, Qt::NoModifier);
            QCoreApplication::sendEvent(platform.panelView, &event);
        }
    };

    click(Qt::LeftButton);
    EXPECT_EQ(windows.poppedUp, nullptr);
    click(Qt::RightButton);
    ASSERT_NE(windows.poppedUp, nullptr);
    const auto& lines = windows.poppedUp->items();
    EXPECT_EQ(lines.size(), windows.statusMenu->items().size() + 2);
    EXPECT_EQ(lines.at(lines.size() - 3)->title, u"Put Under the Camera");
}

TEST_F(AppDelegateTest, endsTheSessionOnce)
{
    launchAndSettle();
    log.clear();

    delegate->applicationWillTerminate();

    EXPECT_THAT(log.lines(), ElementsAre("QUIT clean"));
}

} // namespace
} // namespace Orvello
