#include "Orvello/Adapters/macOS/Sound/HalAudioProcesses.h"
#include "Tests/MacOS/StandIns/AudioHardware.h"

#include <gmock/gmock.h>

namespace Orvello {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class HalAudioProcessesTest : public testing::Test {
protected:
    Testing::AudioHardware hardware;
    HalAudioProcesses processes;
};

TEST_F(HalAudioProcessesTest, asksTheSystemObjectForItsProcessesAndEachForItsStateInOrder)
{
    hardware.processes = { { 41, 501, 0 }, { 42, 502, 1 } };

    EXPECT_THAT(processes.capturingInput(), ElementsAre(502));

    EXPECT_THAT(hardware.calls,
        ElementsAre("size 1 prs# glob 0", "read 1 prs# glob 0 8", "read 41 ppid glob 0 4",
            "read 41 piri glob 0 4", "read 42 ppid glob 0 4", "read 42 piri glob 0 4"));
}

TEST_F(HalAudioProcessesTest, findsNobodyWhereTheListDoesNotExist)
{
    hardware.processes = { { 42, 502, 1 } };
    hardware.sizeStatus = 1;

    EXPECT_THAT(processes.capturingInput(), IsEmpty());
    EXPECT_THAT(hardware.calls, ElementsAre("size 1 prs# glob 0"));
}

TEST_F(HalAudioProcessesTest, doesNotReadAnEmptyList)
{
    EXPECT_THAT(processes.capturingInput(), IsEmpty());
    EXPECT_THAT(hardware.calls, ElementsAre("size 1 prs# glob 0"));
}

TEST_F(HalAudioProcessesTest, findsNobodyWhenTheListCannotBeRead)
{
    hardware.processes = { { 42, 502, 1 } };
    hardware.listStatus = 1;

    EXPECT_THAT(processes.capturingInput(), IsEmpty());
    EXPECT_THAT(hardware.calls, ElementsAre("size 1 prs# glob 0", "read 1 prs# glob 0 4"));
}

TEST_F(HalAudioProcessesTest, passesOverAProcessThatDoesNotTell)
{
    hardware.processes = { { 41, std::nullopt, 1 }, { 42, 502, std::nullopt }, { 43, 503, 1 } };

    EXPECT_THAT(processes.capturingInput(), ElementsAre(503));
}

TEST_F(HalAudioProcessesTest, takesAnyNumberButZeroForCapturing)
{
    hardware.processes = { { 41, 501, 7 } };

    EXPECT_THAT(processes.capturingInput(), ElementsAre(501));
}

TEST_F(HalAudioProcessesTest, asksNoProcessThatEndedWhileTheListWasRead)
{
    hardware.processes = { { 41, 501, 1 }, { 42, 502, 1 } };
    hardware.goneInBetween = 1;

    EXPECT_THAT(processes.capturingInput(), ElementsAre(501));
    EXPECT_EQ(hardware.calls.size(), 4);
}

} // namespace
} // namespace Orvello
