#include "Orvello/Adapters/Portable/PosixProcessSignals.h"

#include <QCoreApplication>
#include <QEventLoop>

#include <gtest/gtest.h>

#include <csignal>

namespace Orvello {
namespace {

TEST(PosixProcessSignalsTest, runsTheHandlerOnTheMainLoopForEachArrival)
{
    PosixProcessSignals processSignals;
    int arrivals = 0;
    const auto subscription = processSignals.handle(SIGUSR2, [&] { ++arrivals; });

    std::raise(SIGUSR2);
    EXPECT_EQ(arrivals, 0);
    std::raise(SIGUSR2);
    while (arrivals < 2)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);

    EXPECT_EQ(arrivals, 2);
}

TEST(PosixProcessSignalsTest, ignoresTheSignalOnceTheSubscriptionIsDropped)
{
    PosixProcessSignals processSignals;
    int arrivals = 0;
    auto subscription = processSignals.handle(SIGUSR1, [&] { ++arrivals; });

    subscription.reset();
    std::raise(SIGUSR1);
    QCoreApplication::processEvents();

    EXPECT_EQ(arrivals, 0);
}

TEST(PosixProcessSignalsTest, knowsWhatTheParentHadItIgnore)
{
    const PosixProcessSignals processSignals;
    ASSERT_NE(std::signal(SIGHUP, SIG_DFL), SIG_ERR);
    EXPECT_FALSE(processSignals.isIgnored(SIGHUP));

    ASSERT_NE(std::signal(SIGHUP, SIG_IGN), SIG_ERR);
    EXPECT_TRUE(processSignals.isIgnored(SIGHUP));

    ASSERT_NE(std::signal(SIGHUP, SIG_DFL), SIG_ERR);
}

} // namespace
} // namespace Orvello
