#include "Orvello/Adapters/Linux/Early/BusInstance.h"

#include "Tests/Adapters/RunningInstanceContract.h"
#include "Tests/Support/PrivateBus.h"

#include <QDBusConnection>
#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;
using Claim = RunningInstance::Claim;
using Outcome = RunningInstance::Outcome;

class BusInstanceTest : public Testing::InstanceFixture<BusInstance, BusInstance::Place> {
protected:
    BusInstance::Place place() const override { return placeOn(u":1"_s); }
    BusInstance::Place placeOn(const QString& display) const
    {
        return { display, logs(), bus.address() };
    }

    Testing::PrivateBus bus;
};

INSTANTIATE_TYPED_TEST_SUITE_P(BusInstance, RunningInstanceContract, BusInstanceTest);

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

    EXPECT_EQ(startAgain(placeOn(u":2"_s)).claim, Claim::Granted);
    EXPECT_EQ(startAgain(placeOn(u"far.example.com:1"_s)).claim, Claim::Granted);
    EXPECT_EQ(startAgain(placeOn(u":1.0"_s)).claim, Claim::HandedOver);
    EXPECT_EQ(startAgain(placeOn(u"unix:1"_s)).claim, Claim::HandedOver);
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
