#include "Orvello/Voice/ReportQueue.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>
#include <vector>

namespace Orvello {
namespace {

/// What the main thread would publish.
struct Published {
    void apply(const BlockReport& report)
    {
        level = report.smoothed(level);
        if (report.isSpeaking != isSpeaking)
            changes.push_back(report.rootMeanSquare);
        isSpeaking = report.isSpeaking;
    }

    float level = 0;
    bool isSpeaking = false;
    std::vector<float> changes; ///< The loudness that each change was reported with.
};

TEST(ReportQueueTest, isEmptyAtFirst)
{
    ReportQueue queue;

    EXPECT_FALSE(queue.pop());
    EXPECT_TRUE(queue.takeAll().empty());
}

TEST(ReportQueueTest, deliversEachReportInOrderWhileTheMainThreadKeepsUp)
{
    ReportQueue queue;
    for (int index = 0; index < 5000; ++index) {
        queue.push(BlockReport::ofBlock(0, false, static_cast<float>(index), 0));
        const std::optional<BlockReport> report = queue.pop();

        ASSERT_TRUE(report);
        EXPECT_EQ(report->rootMeanSquare, static_cast<float>(index));
    }
    EXPECT_FALSE(queue.pop());
}

TEST(ReportQueueTest, aStallLosesNeitherALevelNorAChange)
{
    ReportQueue queue;
    Published expected;
    const auto push = [&](float target, bool isSpeaking, float loudness) {
        const BlockReport report = BlockReport::ofBlock(target, isSpeaking, loudness, 0.5f);
        expected.apply(report);
        queue.push(report);
    };
    // A quarter of an hour of blocks of 128 frames, with a change every two seconds.
    for (int second = 0; second < 900; ++second)
        for (int block = 0; block < 375; ++block)
            push(static_cast<float>(block % 7) / 7, second % 4 >= 2, static_cast<float>(second));

    Published published;
    for (const BlockReport& report : queue.takeAll())
        published.apply(report);

    EXPECT_EQ(published.changes, expected.changes);
    EXPECT_EQ(published.isSpeaking, expected.isSpeaking);
    EXPECT_NEAR(published.level, expected.level, 1e-5f);
}

TEST(ReportQueueTest, theNewestStateSurvivesEvenWhenChangesNoLongerFit)
{
    ReportQueue queue;
    Published expected;
    for (int index = 0; index < 5001; ++index) {
        const BlockReport report
            = BlockReport::ofBlock(0.5f, index % 2 == 0, static_cast<float>(index), 0);
        expected.apply(report);
        queue.push(report);
    }

    Published published;
    for (const BlockReport& report : queue.takeAll())
        published.apply(report);

    EXPECT_TRUE(published.isSpeaking);
    EXPECT_EQ(published.changes.back(), 5000.0f);
    EXPECT_NEAR(published.level, expected.level, 1e-5f);
}

TEST(ReportQueueTest, whatWasFoldedFollowsOnceThereIsRoom)
{
    ReportQueue queue;
    for (int index = 0; index < 3000; ++index)
        queue.push(BlockReport::ofBlock(1, false, 0, 0));
    while (queue.pop()) { }

    queue.push(BlockReport::ofBlock(0, true, 7, 0));

    Published published;
    while (const std::optional<BlockReport> report = queue.pop())
        published.apply(*report);
    EXPECT_TRUE(published.isSpeaking);
    EXPECT_EQ(published.changes, std::vector<float> { 7 });
}

TEST(SpscRingTest, refusesWhatDoesNotFit)
{
    SpscRing<int, 4> ring;
    for (int value = 0; value < 4; ++value)
        EXPECT_TRUE(ring.tryPush(value));
    EXPECT_FALSE(ring.tryPush(4));
    EXPECT_EQ(ring.size(), 4u);

    EXPECT_EQ(ring.tryPop(), 0);
    EXPECT_TRUE(ring.tryPush(5));
    for (const int expected : { 1, 2, 3, 5 })
        EXPECT_EQ(ring.tryPop(), expected);
    EXPECT_EQ(ring.tryPop(), std::nullopt);
}

TEST(SpscRingTest, keepsOrderBetweenTwoThreads)
{
    constexpr int count = 50000;
    struct Stamped {
        int first;
        int second;
    };
    SpscRing<Stamped, 1024> ring;
    std::thread producer([&ring] {
        for (int value = 0; value < count;)
            if (ring.tryPush({ value, -value }))
                ++value;
            else
                std::this_thread::yield();
    });

    int expected = 0;
    bool isTorn = false;
    while (expected < count) {
        if (const std::optional<Stamped> value = ring.tryPop()) {
            isTorn = isTorn || value->first != expected || value->second != -expected;
            ++expected;
        } else {
            std::this_thread::yield();
        }
    }
    producer.join();

    EXPECT_FALSE(isTorn);
}

} // namespace
} // namespace Orvello
