#include "Orvello/Adapters/Portable/QtTimeSource.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

/// Real time: these tests wait for what they ask for, never for a fixed while, and only bound it
/// from below.
class QtTimeSourceTest : public ::testing::Test {
protected:
    template <typename Condition>
    static void waitFor(Condition isMet)
    {
        while (!isMet())
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }

    QtTimeSource time;
};

TEST_F(QtTimeSourceTest, runsACallNoEarlierThanAskedFor)
{
    const double start = time.now();
    double called = 0;

    const auto ticket = time.callAfter(0.0205, [&] { called = time.now(); });
    waitFor([&] { return called > 0; });

    EXPECT_GE(called - start, 0.0205);
}

TEST_F(QtTimeSourceTest, neverRunsASeriesFasterThanItsPeriod)
{
    constexpr double period = 1.0 / 60.0;
    constexpr int count = 30;
    constexpr double rounding = 0.001; // Qt's timers count whole milliseconds.
    const double start = time.now();
    double end = 0;
    int calls = 0;

    const auto ticket = time.callEvery(period, [&] {
        if (++calls == count)
            end = time.now();
    });
    waitFor([&] { return end > 0; });

    EXPECT_GE(end - start, count * period - rounding);
}

TEST_F(QtTimeSourceTest, letsACallDropItsOwnTicket)
{
    std::unique_ptr<TimeSource::Ticket> ticket;
    bool isCalled = false;
    ticket = time.callEvery(0.001, [&] {
        isCalled = true;
        ticket.reset();
    });

    waitFor([&] { return isCalled; });

    EXPECT_FALSE(ticket);
}

TEST_F(QtTimeSourceTest, countsTheDateFromTheReferenceDate)
{
    EXPECT_EQ(Date::fromUnixSeconds(978307200.0), Date { 0.0 });
    EXPECT_GT(time.date().secondsSinceReferenceDate, 800000000.0);
}

} // namespace
} // namespace Orvello
