#include "Orvello/Adapters/Linux/Early/BusInstance.h"

#include "Tests/Support/PrivateBus.h"

#include <QDBusConnection>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>
#include <QTest>
#include <QThread>
#include <QTimer>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Claim = RunningInstance::Claim;
using Outcome = RunningInstance::Outcome;

/// Starts of the program. A later one runs on a thread of its own, because it waits for the answer
/// of the first.
class BusInstanceTest : public ::testing::Test {
protected:
    BusInstance::Place place(const QString& display = u":1"_s) const
    {
        return { display, folder.filePath(u"logs"_s), bus.address() };
    }

    void listen()
    {
        first->listen({ {}, [this](const ProgramStart& start, const auto& answer) {
                           starts.append(start);
                           answer(refusals);
                       } });
    }

    /// What comes of a second start.
    static Outcome startAgain(const BusInstance::Place& place, const ProgramStart& start = {})
    {
        std::optional<Outcome> outcome;
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            BusInstance second(place);
            outcome = second.claim(start);
        }));
        thread->start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return thread->isFinished(); }, 60'000));
        return outcome.value();
    }

    QTemporaryDir folder;
    Testing::PrivateBus bus;
    std::unique_ptr<BusInstance> first = std::make_unique<BusInstance>(place());
    QStringList refusals;
    QList<ProgramStart> starts;
};

TEST_F(BusInstanceTest, isTheOneWhenNobodyElseRuns)
{
    EXPECT_EQ(first->claim({}).claim, Claim::Granted);
}

TEST_F(BusInstanceTest, handsEverythingToTheOneThatRuns)
{
    ASSERT_EQ(first->claim({}).claim, Claim::Granted);
    listen();
    const ProgramStart start { { u"--voice"_s, u"orvello://a"_s, u"-key"_s, u"Grün"_s, u""_s },
        u"/home/ada"_s, { { u"ORVELLO_IMPORT_PPTX"_s, u"talk.pptx"_s } } };

    EXPECT_EQ(startAgain(place(), start).claim, Claim::HandedOver);
    EXPECT_EQ(startAgain(place()).claim, Claim::HandedOver);

    EXPECT_THAT(starts, ElementsAre(start, ProgramStart()));
}

TEST_F(BusInstanceTest, tellsTheSecondStartWhatCouldNotBeDone)
{
    ASSERT_EQ(first->claim({}).claim, Claim::Granted);
    refusals = { u"--no-stealth comes too late"_s };
    listen();

    const Outcome outcome = startAgain(place());

    EXPECT_EQ(outcome.claim, Claim::HandedOver);
    EXPECT_THAT(outcome.messages, ElementsAre(u"--no-stealth comes too late"_s));
}

TEST_F(BusInstanceTest, letsAStartWaitUntilSomebodyListens)
{
    ASSERT_EQ(first->claim({}).claim, Claim::Granted);
    QTimer::singleShot(500, first.get(), [this] { listen(); });

    EXPECT_EQ(startAgain(place(), { { u"orvello://early"_s }, {}, {} }).claim, Claim::HandedOver);

    EXPECT_THAT(starts, ElementsAre(ProgramStart { { u"orvello://early"_s }, {}, {} }));
}

TEST_F(BusInstanceTest, leavesTheNameAndNoFileWhenItEnds)
{
    ASSERT_EQ(first->claim({}).claim, Claim::Granted);
    first.reset();

    EXPECT_THAT(QDir(folder.filePath(u"logs"_s)).entryList(QDir::Files), IsEmpty());
    EXPECT_EQ(startAgain(place()).claim, Claim::Granted);
}

TEST_F(BusInstanceTest, tellsOneThatDoesNotAnswerFromOneThatHasTakenOver)
{
    const QString connection = u"the one that does not answer"_s;
    QDBusConnection mute = QDBusConnection::connectToBus(bus.address(), connection);
    ASSERT_TRUE(mute.registerService(BusInstance::nameOn(u":1"_s)));

    const Outcome outcome = startAgain(place());

    EXPECT_EQ(outcome.claim, Claim::Unanswered);
    EXPECT_THAT(outcome.messages, SizeIs(1));
    QDBusConnection::disconnectFromBus(connection);
}

TEST_F(BusInstanceTest, isOneOnEachDisplay)
{
    ASSERT_EQ(first->claim({}).claim, Claim::Granted);
    listen();

    EXPECT_EQ(startAgain(place(u":2"_s)).claim, Claim::Granted);
    EXPECT_EQ(startAgain(place(u"far.example.com:1"_s)).claim, Claim::Granted);
    EXPECT_EQ(startAgain(place(u":1.0"_s)).claim, Claim::HandedOver);
    EXPECT_EQ(startAgain(place(u"unix:1"_s)).claim, Claim::HandedOver);
}

TEST_F(BusInstanceTest, isOneWithoutABus)
{
    BusInstance::Place noBus = place();
    noBus.busAddress = u"unix:path=/nowhere/at/all"_s;
    BusInstance one(noBus);
    ASSERT_EQ(one.claim({}).claim, Claim::Granted);

    const Outcome another = startAgain(noBus);
    BusInstance::Place elsewhere = noBus;
    elsewhere.display = u":2"_s;

    EXPECT_EQ(another.claim, Claim::Unanswered);
    EXPECT_THAT(another.messages, SizeIs(1));
    EXPECT_EQ(startAgain(elsewhere).claim, Claim::Granted);
    EXPECT_EQ(startAgain(place()).claim, Claim::Unanswered) << "one that sees the bus";
    one.release();
    EXPECT_EQ(startAgain(noBus).claim, Claim::Granted);
}

TEST_F(BusInstanceTest, runsWhereNoFileCanBeMade)
{
    QFile obstacle(folder.filePath(u"logs"_s));
    ASSERT_TRUE(obstacle.open(QIODevice::WriteOnly));

    EXPECT_EQ(first->claim({}).claim, Claim::Granted);
}

} // namespace
} // namespace Orvello
