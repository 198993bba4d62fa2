#include "Orvello/Adapters/macOS/Sound/HalMicrophones.h"
#include "Tests/MacOS/StandIns/AudioHardware.h"
#include "Tests/Support/EventLoop.h"

#include <gmock/gmock.h>

#include <string>
#include <thread>
#include <vector>

namespace Orvello {
namespace {

using testing::ElementsAre;
using Trouble = Microphones::Trouble;

class HalMicrophonesTest : public testing::Test {
protected:
    Testing::AudioHardware hardware;
    HalMicrophones microphones;
};

TEST_F(HalMicrophonesTest, isReadyAtOnce)
{
    EXPECT_TRUE(microphones.state().isReady);
    EXPECT_EQ(microphones.state().trouble, Trouble::None);
}

TEST_F(HalMicrophonesTest, missesADefaultDeviceThatIsNone)
{
    hardware.defaultInput = kAudioObjectUnknown;

    EXPECT_EQ(microphones.state().trouble, Trouble::NoMicrophone);
}

TEST_F(HalMicrophonesTest, tellsOnTheMainLoopThatTheDefaultDeviceChanged)
{
    std::vector<std::string> told;
    microphones.setObserver([&] { told.emplace_back("state"); });
    microphones.setDeviceObserver([&] { told.emplace_back("device"); });

    std::thread([this] { hardware.changeDefaultInput(kAudioObjectUnknown); }).join();
    EXPECT_THAT(told, ElementsAre());
    Testing::drainEvents();

    EXPECT_THAT(told, ElementsAre("device", "state"));
}

TEST_F(HalMicrophonesTest, listensForAsLongAsItLives)
{
    EXPECT_EQ(hardware.listenerCount(), 1u);
    {
        const HalMicrophones others;
        EXPECT_EQ(hardware.listenerCount(), 2u);
    }
    EXPECT_EQ(hardware.listenerCount(), 1u);
}

} // namespace
} // namespace Orvello
