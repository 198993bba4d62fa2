#include "Orvello/Shell/Updates/AppcastUpdater.h"

#include "Orvello/Shell/Updates/UpdateController.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeDesktopServices.h"
#include "Tests/Support/FakeUpdateUserDriver.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/LogCapture.h"
#include "Tests/Support/LoopbackServer.h"
#include "Tests/Support/ManualTimeSource.h"

#include <QSignalSpy>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <optional>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::MatchesRegex;
using ::testing::Not;
using ::testing::StartsWith;

QByteArray feed(const QByteArray& version, const QByteArray& displayVersion,
    const QByteArray& link = "https://example.com/download")
{
    return R"(<rss xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle"><channel><item>)"
           "<sparkle:version>"
        + version + "</sparkle:version><sparkle:shortVersionString>" + displayVersion
        + "</sparkle:shortVersionString><link>" + link + "</link></item></channel></rss>";
}

/// The updater behind the controller that logs its steps, against a server on this machine.
class AppcastUpdaterTest : public ::testing::Test {
protected:
    /// Starts the updater without letting the main loop turn.
    void startWithoutATurn(std::optional<QString> address = std::nullopt)
    {
        updater.emplace(AppcastUpdater::Services { time, defaults, user, desktop }, u"57"_s,
            address.value_or(server.url(u"/feed"_s).toString()));
        controller.emplace(UpdateController::Services { *updater, defaults,
            [this] { desktop.activateApplication(); }, [this] { return mayAsk; } });
        controller->start();
    }
    void start(const std::optional<QString>& address = std::nullopt)
    {
        startWithoutATurn(address);
        time.advance(0);
        log.clear();
    }
    void allowAutomaticChecks() { defaults.stored.insert(u"SUEnableAutomaticChecks"_s, true); }
    void forbidAutomaticChecks() { defaults.stored.insert(u"SUEnableAutomaticChecks"_s, false); }

    /// Waits until the log holds a line that starts like this.
    bool waitForLine(const char* start) const
    {
        return QTest::qWaitFor([&] {
            const auto lines = log.lines();
            return std::ranges::any_of(
                lines, [&](const std::string& line) { return line.starts_with(start); });
        });
    }

    Testing::LogCapture log;
    Testing::LoopbackServer server;
    Testing::ManualTimeSource time;
    Testing::FakeUserDefaults defaults;
    Testing::FakeUpdateUserDriver user;
    Testing::FakeDesktopServices desktop;
    bool mayAsk = true;
    std::optional<AppcastUpdater> updater;
    std::optional<UpdateController> controller;
};

TEST_F(AppcastUpdaterTest, offersANewerRelease)
{
    forbidAutomaticChecks();
    server.serve(u"/feed"_s, feed("58", "2.1"));
    start();

    controller->checkForUpdates();

    ASSERT_TRUE(waitForLine("UPDATES found 2.1 (58)"));
    EXPECT_EQ(desktop.activations, 1);
    EXPECT_THAT(user.offered, ElementsAre(u"2.1"_s));
}

TEST_F(AppcastUpdaterTest, cannotCheckBeforeItIsStarted)
{
    updater.emplace(AppcastUpdater::Services { time, defaults, user, desktop }, u"57"_s,
        u"https://example.com/feed"_s);

    EXPECT_FALSE(updater->canCheck());
}

TEST_F(AppcastUpdaterTest, cannotCheckWhileItReadsTheFeed)
{
    forbidAutomaticChecks();
    server.serve(u"/feed"_s, feed("58", "2.1"));
    start();
    EXPECT_TRUE(updater->canCheck());
    EXPECT_EQ(updater->lastCheck(), std::nullopt);
    QList<bool> announced;
    updater->observeChecks([&] { announced.append(updater->canCheck()); });

    controller->checkForUpdates();
    EXPECT_FALSE(updater->canCheck());
    EXPECT_EQ(updater->lastCheck(), std::nullopt);
    ASSERT_TRUE(waitForLine("UPDATES found"));
    EXPECT_NEAR(updater->lastCheck()->unixSeconds(), time.date().unixSeconds(), 1e-3);

    // While the user is asked, a check brings the question to the front.
    EXPECT_THAT(announced, ElementsAre(false, true));
}

TEST_F(AppcastUpdaterTest, opensTheDownloadPageAtTheUsersWish)
{
    forbidAutomaticChecks();
    server.serve(u"/feed"_s, feed("58", "2.1"));
    start();
    controller->checkForUpdates();
    ASSERT_TRUE(waitForLine("UPDATES found"));

    user.choose(UpdateChoice::Install);

    EXPECT_THAT(desktop.opened, ElementsAre(QUrl(u"https://example.com/download"_s)));
    EXPECT_THAT(log.lines(),
        ElementsAre("UPDATES found 2.1 (58)", "UPDATES user chose install for 2.1",
            "UPDATES installing 2.1 (58)"));
}

TEST_F(AppcastUpdaterTest, logsAPageThatCannotBeOpened)
{
    forbidAutomaticChecks();
    server.serve(u"/feed"_s, feed("58", "2.1"));
    desktop.hasPrograms = false;
    start();
    controller->checkForUpdates();
    ASSERT_TRUE(waitForLine("UPDATES found"));

    user.choose(UpdateChoice::Install);

    EXPECT_THAT(log.lines(),
        Contains("UPDATES download failed for 2.1: The download page cannot be opened."));
    EXPECT_THAT(user.outcomes, ElementsAre(u"The download page cannot be opened."_s));
}

TEST_F(AppcastUpdaterTest, offersNothingWithoutASecurePage)
{
    forbidAutomaticChecks();
    start();
    for (const QByteArray& page :
        { QByteArray("file:///usr/bin/true"), QByteArray("http://example.com/download"),
            QByteArray("javascript:alert(1)"), QByteArray() }) {
        log.clear();
        server.serve(u"/feed"_s, feed("58", "2.1", page));

        controller->checkForUpdates();

        EXPECT_TRUE(waitForLine("UPDATES up to date")) << page.constData();
    }
    EXPECT_THAT(user.offered, IsEmpty());
}

TEST_F(AppcastUpdaterTest, doesNotTakeAFailedCheckForACheck)
{
    forbidAutomaticChecks();
    server.serveRaw(u"/feed"_s, "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n");
    start();

    controller->checkForUpdates();
    ASSERT_TRUE(waitForLine("UPDATES aborted"));
    EXPECT_EQ(updater->lastCheck(), std::nullopt);

    server.serve(u"/feed"_s, feed("57", "2.0"));
    controller->checkForUpdates();
    ASSERT_TRUE(waitForLine("UPDATES up to date"));
    EXPECT_EQ(updater->lastCheck(), time.date());
}

TEST_F(AppcastUpdaterTest, triesAFailedScheduledCheckAgainWithinAnHour)
{
    allowAutomaticChecks();
    server.serveRaw(u"/feed"_s, "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n");
    start();
    ASSERT_TRUE(waitForLine("UPDATES next check in 1h"));
    EXPECT_EQ(server.requests().size(), 1);

    server.serve(u"/feed"_s, feed("57", "2.0"));
    log.clear();
    time.advance(3301);

    EXPECT_TRUE(waitForLine("UPDATES next check in 24h"));
    EXPECT_EQ(server.requests().size(), 2);
}

TEST_F(AppcastUpdaterTest, cannotBeSwitchedOnWithoutAFeed)
{
    allowAutomaticChecks();
    defaults.stored.insert(u"SULastCheckTime"_s, 1'700'000'000.0);
    start(QString());

    EXPECT_FALSE(controller->hasFeed());
    EXPECT_FALSE(controller->checksAutomatically());
    EXPECT_FALSE(controller->canCheckForUpdates());
    defaults.stored.remove(u"SUEnableAutomaticChecks"_s);
    controller->setChecksAutomatically(true);
    EXPECT_FALSE(defaults.stored.contains(u"SUEnableAutomaticChecks"_s));
}

TEST_F(AppcastUpdaterTest, asksNothingWhileTheUserIsBusyWithSomethingElse)
{
    mayAsk = false;
    start();
    EXPECT_EQ(user.permissionQuestions, 0);

    mayAsk = true;
    start(); // The next launch.
    EXPECT_EQ(user.permissionQuestions, 1);
}

TEST_F(AppcastUpdaterTest, tellsTheUserThatThereIsNoNewerRelease)
{
    forbidAutomaticChecks();
    start();
    for (const QByteArray& version : { QByteArray("57"), QByteArray("56") }) {
        log.clear();
        user.outcomes.clear();
        server.serve(u"/feed"_s, feed(version, "2.1"));

        controller->checkForUpdates();

        ASSERT_TRUE(waitForLine("UPDATES up to date (Orvello is up to date.)"));
        EXPECT_THAT(log.lines(), Not(Contains(StartsWith("UPDATES aborted"))));
        EXPECT_THAT(user.outcomes, ElementsAre(u"Orvello is up to date."_s));
    }
}

TEST_F(AppcastUpdaterTest, logsAFeedThatMakesNoSense)
{
    forbidAutomaticChecks();
    start();
    for (const QByteArray& document :
        { QByteArray("<rss><channel>"), QByteArray("<!DOCTYPE html><html></html>"), QByteArray(),
            feed("58", "2.1").chopped(30) }) {
        log.clear();
        server.serve(u"/feed"_s, document);

        controller->checkForUpdates();

        ASSERT_TRUE(waitForLine("UPDATES aborted: "));
        EXPECT_THAT(log.lines(),
            ElementsAre(
                MatchesRegex("UPDATES aborted: The update feed makes no sense: .* \\(1000\\)")));
    }
    EXPECT_EQ(user.outcomes.size(), 4);
}

TEST_F(AppcastUpdaterTest, logsAFeedThatCannotBeRead)
{
    forbidAutomaticChecks();
    server.serveRaw(u"/feed"_s, "HTTP/1.1 404 Not Found\r\nContent-Length: 0\r\n\r\n");
    start();

    controller->checkForUpdates();

    ASSERT_TRUE(waitForLine("UPDATES aborted: "));
    EXPECT_THAT(log.lines(),
        ElementsAre(
            MatchesRegex("UPDATES aborted: The update feed cannot be read: .* \\(2001\\)")));
}

TEST_F(AppcastUpdaterTest, refusesAnInsecureFeed)
{
    forbidAutomaticChecks();
    start(u"http://example.com/feed"_s);

    controller->checkForUpdates();

    EXPECT_THAT(log.lines(), ElementsAre("UPDATES aborted: The update feed is not secure. (3)"));
}

TEST_F(AppcastUpdaterTest, saysThatThereIsNoFeed)
{
    start(QString());

    controller->checkForUpdates();

    EXPECT_THAT(log.lines(), ElementsAre("UPDATES aborted: There is no valid update feed. (4)"));
    EXPECT_EQ(user.permissionQuestions, 0);
}

TEST_F(AppcastUpdaterTest, readsTheFeedThatTheDefaultsName)
{
    forbidAutomaticChecks();
    server.serve(u"/other"_s, feed("58", "2.1"));
    defaults.launchArguments.insert(u"OrvelloAppcastURL"_s, server.url(u"/other"_s).toString());
    start();

    controller->checkForUpdates();

    EXPECT_TRUE(waitForLine("UPDATES found 2.1 (58)"));
}

TEST_F(AppcastUpdaterTest, doesNotOfferASkippedReleaseByItself)
{
    allowAutomaticChecks();
    server.serve(u"/feed"_s, feed("58", "2.1"));
    start();
    time.advance(0);
    ASSERT_TRUE(waitForLine("UPDATES found"));
    user.choose(UpdateChoice::Skip);
    log.clear();

    time.advance(86400);

    ASSERT_TRUE(waitForLine("UPDATES up to date"));
    EXPECT_EQ(user.offered.size(), 1);
    EXPECT_THAT(user.outcomes, IsEmpty());
}

TEST_F(AppcastUpdaterTest, offersASkippedReleaseToAUserWhoAsks)
{
    forbidAutomaticChecks();
    defaults.stored.insert(u"SUSkippedVersion"_s, u"58"_s);
    server.serve(u"/feed"_s, feed("58", "2.1"));
    start();

    controller->checkForUpdates();

    EXPECT_TRUE(waitForLine("UPDATES found"));
}

TEST_F(AppcastUpdaterTest, offersTheReleaseAfterASkippedOne)
{
    allowAutomaticChecks();
    defaults.stored.insert(u"SUSkippedVersion"_s, u"58"_s);
    server.serve(u"/feed"_s, feed("59", "2.2"));
    start();

    time.advance(0);

    EXPECT_TRUE(waitForLine("UPDATES found 2.2 (59)"));
}

TEST_F(AppcastUpdaterTest, offersAReleaseAgainTheDayAfterLater)
{
    allowAutomaticChecks();
    server.serve(u"/feed"_s, feed("58", "2.1"));
    start();
    time.advance(0);
    ASSERT_TRUE(waitForLine("UPDATES found"));
    user.choose(UpdateChoice::Later);
    EXPECT_THAT(log.lines(), Contains("UPDATES user chose later for 2.1"));
    EXPECT_THAT(log.lines(), Contains("UPDATES next check in 24h"));
    log.clear();

    time.advance(86400);

    EXPECT_TRUE(waitForLine("UPDATES found 2.1 (58)"));
}

TEST_F(AppcastUpdaterTest, checksOnceADay)
{
    allowAutomaticChecks();
    server.serve(u"/feed"_s, feed("57", "2.0"));
    const double now = time.date().unixSeconds();
    defaults.stored.insert(u"SULastCheckTime"_s, now - 3600.0);
    start();

    time.advance(23 * 3600.0 - 1);
    Testing::drainEvents();
    EXPECT_THAT(server.requests(), IsEmpty());
    time.advance(1);

    ASSERT_TRUE(waitForLine("UPDATES up to date"));
    EXPECT_EQ(server.requests().size(), 1);
    EXPECT_THAT(log.lines(), Contains("UPDATES next check in 24h"));
}

TEST_F(AppcastUpdaterTest, logsTheFirstScheduledCheckAfterTheStart)
{
    allowAutomaticChecks();
    defaults.stored.insert(u"SULastCheckTime"_s, time.date().unixSeconds() - 2 * 3600.0);

    startWithoutATurn();
    time.advance(0);

    EXPECT_THAT(log.lines(),
        ElementsAre(StartsWith("UPDATES started auto=1 feed=http"), "UPDATES next check in 22h"));
}

TEST_F(AppcastUpdaterTest, logsTheScheduleAfterTheSwitchThatMadeIt)
{
    forbidAutomaticChecks();
    defaults.stored.insert(u"SULastCheckTime"_s, time.date().unixSeconds());
    start();

    controller->setChecksAutomatically(true);
    time.advance(0);

    EXPECT_THAT(
        log.lines(), ElementsAre("UPDATES automatic checks -> 1", "UPDATES next check in 24h"));
}

TEST_F(AppcastUpdaterTest, checksAtOnceWhenTheClockWasSetBack)
{
    allowAutomaticChecks();
    server.serve(u"/feed"_s, feed("57", "2.0"));
    defaults.stored.insert(u"SULastCheckTime"_s, time.date().unixSeconds() + 1e6);
    start();

    time.advance(0);

    EXPECT_TRUE(waitForLine("UPDATES up to date"));
}

TEST_F(AppcastUpdaterTest, checksNothingUnlessAllowed)
{
    forbidAutomaticChecks();
    start();

    time.advance(10 * 86400.0);
    Testing::drainEvents();

    EXPECT_THAT(server.requests(), IsEmpty());
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(AppcastUpdaterTest, stopsCheckingWhenSwitchedOff)
{
    allowAutomaticChecks();
    defaults.stored.insert(u"SULastCheckTime"_s, time.date().unixSeconds());
    start();

    controller->setChecksAutomatically(false);
    time.advance(10 * 86400.0);
    Testing::drainEvents();

    EXPECT_THAT(server.requests(), IsEmpty());
    EXPECT_THAT(log.lines(), ElementsAre("UPDATES automatic checks -> 0"));
}

TEST_F(AppcastUpdaterTest, asksOnceWhetherItMayCheck)
{
    start();
    EXPECT_EQ(user.permissionQuestions, 1);
    const QSignalSpy changed(&*controller, &UpdateController::checksAutomaticallyChanged);

    user.answerPermission(true);

    Testing::drainEvents();
    EXPECT_EQ(changed.count(), 1);
    EXPECT_TRUE(controller->checksAutomatically());
    start();
    EXPECT_EQ(user.permissionQuestions, 1);
}

TEST_F(AppcastUpdaterTest, doesNotAskWhileTheUserChecks)
{
    server.serve(u"/feed"_s, feed("58", "2.1"));
    startWithoutATurn();

    controller->checkForUpdates();
    time.advance(0);
    ASSERT_TRUE(waitForLine("UPDATES found"));
    time.advance(0);

    EXPECT_EQ(user.permissionQuestions, 0);
}

TEST_F(AppcastUpdaterTest, doesNotAskWhatTheSettingsHaveAnswered)
{
    startWithoutATurn();
    controller->setChecksAutomatically(false);

    time.advance(0);

    EXPECT_EQ(user.permissionQuestions, 0);
}

TEST_F(AppcastUpdaterTest, doesNotAskAgainAfterANo)
{
    start();
    user.answerPermission(false);
    start();

    EXPECT_EQ(user.permissionQuestions, 1);
    EXPECT_FALSE(controller->checksAutomatically());
}

TEST_F(AppcastUpdaterTest, asksAgainWhenNobodyAnswered)
{
    start();
    start();

    EXPECT_EQ(user.permissionQuestions, 2);
}

TEST_F(AppcastUpdaterTest, keepsWhatTheSettingsSaidWhileTheQuestionWasOpen)
{
    start();
    controller->setChecksAutomatically(true);

    user.answerPermission(false);

    EXPECT_TRUE(controller->checksAutomatically());
}

TEST_F(AppcastUpdaterTest, bringsAnOpenOfferToTheFront)
{
    forbidAutomaticChecks();
    server.serve(u"/feed"_s, feed("58", "2.1"));
    start();
    controller->checkForUpdates();
    ASSERT_TRUE(waitForLine("UPDATES found"));
    EXPECT_EQ(user.broughtToFront, 1) << "the user asked";

    controller->checkForUpdates();

    EXPECT_EQ(user.broughtToFront, 2);
    EXPECT_EQ(server.requests().size(), 1);
}

TEST_F(AppcastUpdaterTest, leavesTheKeyboardAloneWhenNobodyAsked)
{
    allowAutomaticChecks();
    server.serve(u"/feed"_s, feed("58", "2.1"));
    start();
    time.advance(0);

    ASSERT_TRUE(waitForLine("UPDATES found"));
    EXPECT_EQ(user.broughtToFront, 0);
}

TEST_F(AppcastUpdaterTest, leavesTheKeyboardAloneWhenACheckFallsDueWhileAnOfferIsOpen)
{
    allowAutomaticChecks();
    defaults.stored.insert(u"SULastCheckTime"_s, time.date().unixSeconds() - 23 * 3600.0);
    server.serve(u"/feed"_s, feed("58", "2.1"));
    start();
    controller->checkForUpdates();
    ASSERT_TRUE(waitForLine("UPDATES found"));
    ASSERT_EQ(user.broughtToFront, 1) << "the user asked";

    time.advance(3600);
    EXPECT_EQ(user.broughtToFront, 1) << "the check of before";
    controller->setChecksAutomatically(false);
    controller->setChecksAutomatically(true);
    time.advance(86400);
    EXPECT_EQ(user.broughtToFront, 1) << "the check of after the switch";
    Testing::drainEvents();
    EXPECT_EQ(server.requests().size(), 1);

    log.clear();
    user.choose(UpdateChoice::Later);
    EXPECT_THAT(log.lines(), Contains(StartsWith("UPDATES user chose later")));
    time.advance(1);
    EXPECT_TRUE(waitForLine("UPDATES found")) << "the schedule goes on";
}

TEST_F(AppcastUpdaterTest, answersTheUserWithTheCheckThatIsUnderWay)
{
    allowAutomaticChecks();
    server.serve(u"/feed"_s, feed("57", "2.0"));
    start();
    time.advance(0);

    controller->checkForUpdates();

    ASSERT_TRUE(waitForLine("UPDATES up to date"));
    EXPECT_THAT(user.outcomes, ElementsAre(u"Orvello is up to date."_s));
    EXPECT_EQ(server.requests().size(), 1);
}

TEST_F(AppcastUpdaterTest, staysQuietAboutAFailedCheckThatNobodyAskedFor)
{
    allowAutomaticChecks();
    server.serve(u"/feed"_s, "nonsense");
    start();

    time.advance(0);

    ASSERT_TRUE(waitForLine("UPDATES aborted"));
    EXPECT_THAT(user.outcomes, IsEmpty());
    EXPECT_THAT(log.lines(), Contains("UPDATES next check in 1h"));
}

} // namespace
} // namespace Orvello
