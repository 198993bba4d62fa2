#include "Orvello/Voice/ProcessMicActivity.h"

#include "Tests/Support/FakeAudioProcesses.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

class ProcessMicActivityTest : public ::testing::Test {
protected:
    Testing::FakeAudioProcesses processes;
    ProcessMicActivity activity { processes, 4711 };
};

TEST_F(ProcessMicActivityTest, nobodyCaptures)
{
    EXPECT_FALSE(activity.otherProcessCapturingInput());
}

TEST_F(ProcessMicActivityTest, ownCaptureNeverCounts)
{
    processes.capturing = { 4711, 4711 };

    EXPECT_FALSE(activity.otherProcessCapturingInput());
}

TEST_F(ProcessMicActivityTest, anotherProcessCountsWhereverItIsListed)
{
    processes.capturing = { 4711, 815 };
    EXPECT_TRUE(activity.otherProcessCapturingInput());

    processes.capturing = { 815, 4711 };
    EXPECT_TRUE(activity.otherProcessCapturingInput());
}

TEST_F(ProcessMicActivityTest, asksAnewEachTime)
{
    processes.capturing = { 815 };
    ASSERT_TRUE(activity.otherProcessCapturingInput());

    processes.capturing.clear();

    EXPECT_FALSE(activity.otherProcessCapturingInput());
}

} // namespace
} // namespace Orvello
