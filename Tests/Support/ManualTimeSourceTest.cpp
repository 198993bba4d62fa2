#include "Tests/Support/ManualTimeSource.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace Orvello {
namespace {

using ::testing::ElementsAre;

class ManualTimeSourceTest : public ::testing::Test {
protected:
    TimeSource::Action note(const std::string& name)
    {
        return [this, name] { calls.push_back(name); };
    }

    Testing::ManualTimeSource time;
    std::vector<std::string> calls;
};

TEST_F(ManualTimeSourceTest, runsCallsAtTheirDueTimesInOrder)
{
    const auto late = time.callAfter(2.0, note("late"));
    const auto early = time.callAfter(1.0, note("early"));
    const auto series = time.callEvery(0.75, note("series"));

    time.advance(2.0);

    EXPECT_THAT(calls, ElementsAre("series", "early", "series", "late"));
}

TEST_F(ManualTimeSourceTest, standsAtTheDueTimeDuringACall)
{
    double seen = 0;
    const double start = time.now();
    const auto ticket = time.callAfter(0.5, [&] { seen = time.now(); });

    time.advance(3.0);

    EXPECT_EQ(seen, start + 0.5);
    EXPECT_EQ(time.now(), start + 3.0);
}

TEST_F(ManualTimeSourceTest, cancelsACallWhoseTicketIsDropped)
{
    auto ticket = time.callAfter(1.0, note("dropped"));
    ticket.reset();

    time.advance(2.0);

    EXPECT_TRUE(calls.empty());
    EXPECT_EQ(time.pendingCalls(), 0U);
}

TEST_F(ManualTimeSourceTest, letsASeriesEndItselfFromInside)
{
    std::unique_ptr<TimeSource::Ticket> ticket;
    ticket = time.callEvery(1.0, [&] {
        calls.emplace_back("once");
        ticket.reset();
    });

    time.advance(5.0);

    EXPECT_THAT(calls, ElementsAre("once"));
}

TEST_F(ManualTimeSourceTest, runsEachDueCallOnceAfterAStall)
{
    const auto series = time.callEvery(0.1, note("tick"));

    time.stall(10.0);
    time.advance(0.1);

    EXPECT_THAT(calls, ElementsAre("tick", "tick"));
}

TEST_F(ManualTimeSourceTest, movesTheDateWithTheClock)
{
    time.setDate({ 5.0 });

    time.advance(2.5);

    EXPECT_EQ(time.date(), Date { 7.5 });
}

} // namespace
} // namespace Orvello
