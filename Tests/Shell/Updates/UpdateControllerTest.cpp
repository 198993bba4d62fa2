#include "Orvello/Shell/Updates/UpdateController.h"

#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeUpdater.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/LogCapture.h"

#include <QDateTime>
#include <QLocale>
#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <thread>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class UpdateControllerTest : public ::testing::Test {
protected:
    Testing::LogCapture log;
    Testing::FakeUpdater updater;
    Testing::FakeUserDefaults defaults;
    int activations = 0;
    UpdateController controller { { updater, defaults, [this] { ++activations; } } };
    const UpdateItem item { u"57"_s, u"2.1"_s };
};

TEST_F(UpdateControllerTest, doesNotTouchTheUpdaterBeforeItIsStarted)
{
    EXPECT_EQ(updater.listener, nullptr);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(UpdateControllerTest, logsThatThereIsNoFeed)
{
    controller.start();

    EXPECT_NE(updater.listener, nullptr);
    EXPECT_THAT(log.lines(), ElementsAre("UPDATES started auto=0 feed=?"));
}

TEST_F(UpdateControllerTest, logsTheFeedThatIsBuiltIn)
{
    updater.feed = u"https://example.com/appcast.xml"_s;
    updater.isAutomatic = true;

    controller.start();

    EXPECT_THAT(
        log.lines(), ElementsAre("UPDATES started auto=1 feed=https://example.com/appcast.xml"));
    EXPECT_EQ(updater.listener->feedAddress(), std::nullopt);
}

TEST_F(UpdateControllerTest, letsTheDefaultsOverrideTheFeed)
{
    updater.feed = u"https://example.com/appcast.xml"_s;
    defaults.launchArguments = { { u"OrvelloAppcastURL"_s, u"https://example.org/other.xml"_s } };

    controller.start();

    EXPECT_THAT(
        log.lines(), ElementsAre("UPDATES started auto=0 feed=https://example.org/other.xml"));
    EXPECT_EQ(updater.listener->feedAddress(), u"https://example.org/other.xml"_s);
}

TEST_F(UpdateControllerTest, ignoresAnOverrideThatIsNoString)
{
    defaults.stored = { { u"OrvelloAppcastURL"_s, 7 } };

    controller.start();

    EXPECT_THAT(log.lines(), ElementsAre("UPDATES started auto=0 feed=?"));
}

TEST_F(UpdateControllerTest, activatesTheApplicationForACheckByHand)
{
    controller.start();

    controller.checkForUpdates();

    EXPECT_EQ(activations, 1);
    EXPECT_EQ(updater.checks, 1);
}

TEST_F(UpdateControllerTest, logsTheSwitchOfAutomaticChecksOnce)
{
    updater.isAutomatic = true;
    controller.start();
    log.clear();

    controller.setChecksAutomatically(false);

    EXPECT_FALSE(updater.isAutomatic);
    EXPECT_FALSE(controller.checksAutomatically());
    EXPECT_THAT(log.lines(), ElementsAre("UPDATES automatic checks -> 0"));
}

TEST_F(UpdateControllerTest, announcesAChangeThatTheUpdaterMade)
{
    controller.start();
    const QSignalSpy changed(&controller, &UpdateController::checksAutomaticallyChanged);

    std::thread([this] { updater.setOn(true); }).join();

    EXPECT_EQ(changed.count(), 0);
    Testing::drainEvents();
    EXPECT_EQ(changed.count(), 1);
    EXPECT_TRUE(controller.checksAutomatically());
}

TEST_F(UpdateControllerTest, announcesThatACheckBeginsAndEnds)
{
    controller.start();
    Testing::drainEvents();
    const QSignalSpy changed(&controller, &UpdateController::checksChanged);
    EXPECT_FALSE(controller.canCheckForUpdates());

    std::thread([this] { updater.setChecks(true, std::nullopt); }).join();
    Testing::drainEvents();

    EXPECT_TRUE(controller.canCheckForUpdates());
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(UpdateControllerTest, wordsTheLastCheckInTheUsersTime)
{
    controller.start();
    EXPECT_EQ(controller.lastCheckText(), QString());

    const QDateTime noon(QDate(2026, 3, 14), QTime(12, 0));
    updater.setChecks(
        true, Date::fromUnixSeconds(static_cast<double>(noon.toSecsSinceEpoch()) + 0.5));

    EXPECT_EQ(controller.lastCheckText(), QLocale::system().toString(noon, QLocale::ShortFormat));
}

TEST_F(UpdateControllerTest, announcesItsStateOnceItIsStarted)
{
    const QSignalSpy changed(&controller, &UpdateController::checksChanged);
    updater.setChecks(true, std::nullopt);

    controller.start();

    EXPECT_EQ(changed.count(), 1);
}

TEST_F(UpdateControllerTest, logsEveryStep)
{
    controller.start();
    log.clear();

    updater.listener->updateFound(item);
    updater.listener->noUpdateFound({ u"You are up to date."_s, 1001 });
    updater.listener->installing(item);
    updater.listener->downloadFailed(item, { u"No space."_s, 2001 });
    updater.listener->checkFailed({ u"Cannot reach it."_s, 2001 });

    EXPECT_THAT(log.lines(),
        ElementsAre("UPDATES found 2.1 (57)", "UPDATES up to date (You are up to date.)",
            "UPDATES installing 2.1 (57)", "UPDATES download failed for 2.1: No space.",
            "UPDATES aborted: Cannot reach it. (2001)"));
}

TEST_F(UpdateControllerTest, logsTheUsersChoices)
{
    controller.start();
    log.clear();

    for (const int choice : { 0, 1, 2, 3, -1 })
        updater.listener->userChose(static_cast<UpdateChoice>(choice), item);

    EXPECT_THAT(log.lines(),
        ElementsAre("UPDATES user chose skip for 2.1", "UPDATES user chose install for 2.1",
            "UPDATES user chose later for 2.1", "UPDATES user chose unknown for 2.1",
            "UPDATES user chose unknown for 2.1"));
}

TEST_F(UpdateControllerTest, doesNotLogAnAbortThatIsNoFailure)
{
    controller.start();
    log.clear();

    updater.listener->checkFailed({ u"You are up to date."_s, 1001 });
    updater.listener->checkFailed({ u"Cancelled."_s, 4007 });

    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(UpdateControllerTest, logsTheNextCheckInWholeHours)
{
    controller.start();
    log.clear();

    updater.listener->checkScheduled(86400);
    updater.listener->checkScheduled(5399);
    updater.listener->checkScheduled(5401);

    EXPECT_THAT(log.lines(),
        ElementsAre(
            "UPDATES next check in 24h", "UPDATES next check in 1h", "UPDATES next check in 2h"));
}

} // namespace
} // namespace Orvello
