#include "Orvello/Platform/Linux/BusInstance.h"

#include "Tests/Support/PrivateBus.h"

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

/// Two starts of the program on one bus. The second runs on a thread of its own, because it waits
/// for the answer of the first.
class BusInstanceTest : public ::testing::Test {
protected:
    void listen()
    {
        first->listen({ {}, [this](const QStringList& arguments) { starts.append(arguments); } });
    }

    /// Whether a second start is the one that runs.
    bool startAgain(const QStringList& arguments)
    {
        std::optional<bool> isTheOne;
        const std::unique_ptr<QThread> thread(QThread::create([&] {
            BusInstance second(bus.address());
            isTheOne = second.claim(arguments);
        }));
        thread->start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return thread->isFinished(); }, 20'000));
        return isTheOne.value();
    }

    Testing::PrivateBus bus;
    std::unique_ptr<BusInstance> first = std::make_unique<BusInstance>(bus.address());
    QList<QStringList> starts;
};

TEST_F(BusInstanceTest, isTheOneWhenNobodyElseRuns) { EXPECT_TRUE(first->claim({})); }

TEST_F(BusInstanceTest, handsItsArgumentsToTheOneThatRuns)
{
    ASSERT_TRUE(first->claim({}));
    listen();
    const QStringList arguments { u"--voice"_s, u"orvello://a"_s, u"-key"_s, u"Grün"_s, u""_s };

    EXPECT_FALSE(startAgain(arguments));
    EXPECT_FALSE(startAgain({}));

    EXPECT_THAT(starts, ElementsAre(arguments, QStringList()));
}

TEST_F(BusInstanceTest, keepsWhatComesBeforeAnybodyListens)
{
    ASSERT_TRUE(first->claim({}));
    EXPECT_FALSE(startAgain({ u"orvello://early"_s }));
    EXPECT_THAT(starts, IsEmpty());

    listen();

    EXPECT_THAT(starts, ElementsAre(QStringList { u"orvello://early"_s }));
}

TEST_F(BusInstanceTest, leavesTheNameWhenItEnds)
{
    ASSERT_TRUE(first->claim({}));
    first.reset();

    EXPECT_TRUE(startAgain({}));
}

TEST(BusInstanceWithoutBusTest, justRuns)
{
    BusInstance instance(u"unix:path=/nowhere/at/all"_s);

    EXPECT_TRUE(instance.claim({ u"orvello://a"_s }));
}

} // namespace
} // namespace Orvello
