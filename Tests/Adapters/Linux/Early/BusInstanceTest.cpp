#include "Orvello/Adapters/Linux/Early/BusInstance.h"

#include "Tests/Support/PrivateBus.h"

#include <QDBusConnection>
#include <QTest>
#include <QThread>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using Claim = RunningInstance::Claim;

/// Two starts of the program on one bus. The second runs on a thread of its own, because it waits
/// for the answer of the first.
class BusInstanceTest : public ::testing::Test {
protected:
    void listen()
    {
        first->listen({ {}, [this](const QStringList& arguments) { starts.append(arguments); } });
    }

    /// What comes of a second start.
    Claim startAgain(const QStringList& arguments)
    {
        std::optional<Claim> claim;
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            BusInstance second(bus.address());
            claim = second.claim(arguments);
        }));
        thread->start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return thread->isFinished(); }, 20'000));
        return claim.value();
    }

    Testing::PrivateBus bus;
    std::unique_ptr<BusInstance> first = std::make_unique<BusInstance>(bus.address());
    QList<QStringList> starts;
};

TEST_F(BusInstanceTest, isTheOneWhenNobodyElseRuns) { EXPECT_EQ(first->claim({}), Claim::Granted); }

TEST_F(BusInstanceTest, handsItsArgumentsToTheOneThatRuns)
{
    ASSERT_EQ(first->claim({}), Claim::Granted);
    listen();
    const QStringList arguments { u"--voice"_s, u"orvello://a"_s, u"-key"_s, u"Grün"_s, u""_s };

    EXPECT_EQ(startAgain(arguments), Claim::HandedOver);
    EXPECT_EQ(startAgain({}), Claim::HandedOver);

    EXPECT_THAT(starts, ElementsAre(arguments, QStringList()));
}

TEST_F(BusInstanceTest, keepsWhatComesBeforeAnybodyListens)
{
    ASSERT_EQ(first->claim({}), Claim::Granted);
    EXPECT_EQ(startAgain({ u"orvello://early"_s }), Claim::HandedOver);
    EXPECT_THAT(starts, IsEmpty());

    listen();

    EXPECT_THAT(starts, ElementsAre(QStringList { u"orvello://early"_s }));
}

TEST_F(BusInstanceTest, leavesTheNameWhenItEnds)
{
    ASSERT_EQ(first->claim({}), Claim::Granted);
    first.reset();

    EXPECT_EQ(startAgain({}), Claim::Granted);
}

TEST_F(BusInstanceTest, tellsOneThatDoesNotAnswerFromOneThatHasTakenOver)
{
    const QString connection = u"the one that does not answer"_s;
    QDBusConnection mute = QDBusConnection::connectToBus(bus.address(), connection);
    ASSERT_TRUE(mute.registerService(u"app.orvello.Orvello"_s));

    EXPECT_EQ(startAgain({}), Claim::Unanswered);
    QDBusConnection::disconnectFromBus(connection);
}

TEST(BusInstanceWithoutBusTest, justRuns)
{
    BusInstance instance(u"unix:path=/nowhere/at/all"_s);

    EXPECT_EQ(instance.claim({ u"orvello://a"_s }), Claim::Granted);
}

} // namespace
} // namespace Orvello
