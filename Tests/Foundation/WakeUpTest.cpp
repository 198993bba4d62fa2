#include "Orvello/Foundation/WakeUp.h"

#include "Tests/Support/EventLoop.h"

#include <gtest/gtest.h>

#include <thread>

namespace Orvello {
namespace {

TEST(WakeUpTest, actsOnTheMainLoopOnly)
{
    int calls = 0;
    WakeUp wakeUp([&calls] { ++calls; });

    wakeUp.signal();
    EXPECT_EQ(calls, 0);
    Testing::drainEvents();
    EXPECT_EQ(calls, 1);
    Testing::drainEvents();
    EXPECT_EQ(calls, 1);
}

TEST(WakeUpTest, manySignalsAreOneCall)
{
    int calls = 0;
    WakeUp wakeUp([&calls] { ++calls; });

    // More than a pipe holds.
    for (int count = 0; count < 200000; ++count)
        wakeUp.signal();
    Testing::drainEvents();

    EXPECT_EQ(calls, 1);
}

TEST(WakeUpTest, aSignalDuringTheActionIsNotLost)
{
    int calls = 0;
    WakeUp* self = nullptr;
    WakeUp wakeUp([&] {
        if (++calls == 1)
            self->signal();
    });
    self = &wakeUp;

    wakeUp.signal();
    Testing::drainEvents();
    Testing::drainEvents();

    EXPECT_EQ(calls, 2);
}

TEST(WakeUpTest, whatAThreadWroteBeforeIsThereForTheAction)
{
    int written = 0;
    int seen = 0;
    WakeUp wakeUp([&] { seen = written; });

    for (int round = 1; round <= 100; ++round) {
        std::thread([&] {
            written = round;
            wakeUp.signal();
        }).join();
        Testing::drainEvents();
        ASSERT_EQ(seen, round);
    }
}

TEST(WakeUpTest, isQuietAfterItsEnd)
{
    int calls = 0;
    {
        WakeUp wakeUp([&calls] { ++calls; });
        wakeUp.signal();
    }

    Testing::drainEvents();

    EXPECT_EQ(calls, 0);
}

} // namespace
} // namespace Orvello
