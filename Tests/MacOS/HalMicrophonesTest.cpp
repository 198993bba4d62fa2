#include "Orvello/Adapters/macOS/Sound/HalMicrophones.h"
#include "Tests/MacOS/StandIns/AudioHardware.h"
#include "Tests/Support/EventLoop.h"

#include <gmock/gmock.h>

#include <string>
#include <thread>
#include <vector>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using testing::ElementsAre;
using testing::IsEmpty;
using Microphone = Microphones::Microphone;
using Trouble = Microphones::Trouble;

class HalMicrophonesTest : public testing::Test {
protected:
    HalMicrophonesTest()
    {
        hardware.devices
            = { { 77, u"BuiltIn", u"MacBook Microphone" }, { 80, u"USB:1", u"Grüner Schall" } };
        microphones.emplace();
    }
    ~HalMicrophonesTest() override
    {
        microphones.reset();
        EXPECT_THAT(hardware.listeners, IsEmpty());
        EXPECT_EQ(hardware.stringsInUse, 0);
    }

    /// What the hardware layer does on a thread of its own, and what the main loop makes of it.
    template <typename Change>
    void happens(Change change)
    {
        std::thread(change).join();
        Testing::drainEvents();
    }

    Testing::AudioHardware hardware;
    std::optional<HalMicrophones> microphones;
};

TEST_F(HalMicrophonesTest, isReadyAtOnce)
{
    EXPECT_TRUE(microphones->state().isReady);
    EXPECT_EQ(microphones->state().trouble, Trouble::None);
}

TEST_F(HalMicrophonesTest, offersTheInputDevicesByTheirLastingIdentifiers)
{
    EXPECT_THAT(microphones->state().choices,
        ElementsAre(Microphone { u"BuiltIn"_s, u"MacBook Microphone"_s },
            Microphone { u"USB:1"_s, u"Grüner Schall"_s }));
    EXPECT_EQ(microphones->state().heard, u"MacBook Microphone");
}

TEST_F(HalMicrophonesTest, offersNothingThatIsNoMicrophone)
{
    using Device = Testing::AudioHardware::Device;
    Device loudspeaker { 81, u"Speaker", u"Loudspeaker" };
    loudspeaker.inputStreams = 0;
    Device echoReference { 82, u"BuiltInSpeaker", u"MacBook Speakers" };
    echoReference.deliversPlayedSound = true;
    Device loopback { 83, u"Loopback", u"Meeting Sound" };
    loopback.canBeDefault = 0;
    const Device voiceProcessing { 84, u"VPAUAggregateAudioDevice-0x6000", u"Aggregate" };
    const Device engine { 85, u"CADefaultDeviceAggregate-501-0", u"Aggregate" };

    for (const Device& device : { loudspeaker, echoReference, loopback, voiceProcessing, engine })
        happens([&] { hardware.connect(device); });

    EXPECT_EQ(microphones->state().choices.size(), 2);
}

TEST_F(HalMicrophonesTest, readsNoDeviceThatGoesMeanwhile)
{
    hardware.goneInBetween = 1;
    happens([&] { hardware.changeDefaultInput(77); });

    EXPECT_THAT(microphones->state().choices, IsEmpty()) << "of streams, too, one has gone";
}

TEST_F(HalMicrophonesTest, hearsTheChosenOneWhileItIsConnected)
{
    EXPECT_EQ(microphones->chosenDevice(), 0u);
    microphones->choose(u"USB:1"_s);
    EXPECT_EQ(microphones->chosenDevice(), 80u);
    EXPECT_EQ(microphones->state().heard, u"Grüner Schall");

    happens([&] { hardware.disconnect(80); });
    EXPECT_EQ(microphones->chosenDevice(), 0u);
    EXPECT_EQ(microphones->state().heard, u"MacBook Microphone") << "the system's choice";
    EXPECT_EQ(microphones->state().choices.size(), 1);

    happens([&] { hardware.connect({ 91, u"USB:1", u"Grüner Schall" }); });
    EXPECT_EQ(microphones->chosenDevice(), 91u) << "as another object";
    EXPECT_EQ(microphones->state().heard, u"Grüner Schall");

    microphones->choose({});
    EXPECT_EQ(microphones->chosenDevice(), 0u);
}

TEST_F(HalMicrophonesTest, missesADefaultDeviceThatIsNone)
{
    hardware.defaultInput = kAudioObjectUnknown;
    EXPECT_EQ(microphones->state().trouble, Trouble::NoMicrophone);
    EXPECT_EQ(microphones->state().heard, QString());

    microphones->choose(u"USB:1"_s);
    EXPECT_EQ(microphones->state().trouble, Trouble::None) << "that one is heard";
}

TEST_F(HalMicrophonesTest, doesNotTakeALayerThatFailsForAMissingMicrophone)
{
    hardware.defaultInputStatus = -1;

    EXPECT_EQ(microphones->state().trouble, Trouble::NoAnswer);
}

TEST_F(HalMicrophonesTest, tellsOfTheSwitchOfTheOneThatIsHeard)
{
    hardware.devices[0].isMuted = 0;
    EXPECT_EQ(microphones->state().trouble, Trouble::None);
    hardware.devices[0].isMuted = 1;
    EXPECT_EQ(microphones->state().trouble, Trouble::Muted);

    microphones->choose(u"USB:1"_s);
    EXPECT_EQ(microphones->state().trouble, Trouble::None);
}

TEST_F(HalMicrophonesTest, tellsOnTheMainLoopWhateverChanges)
{
    std::vector<std::string> told;
    microphones->setObserver([&] { told.emplace_back("state"); });
    microphones->setDeviceObserver([&] { told.emplace_back("device"); });

    std::thread([this] { hardware.changeDefaultInput(kAudioObjectUnknown); }).join();
    EXPECT_THAT(told, IsEmpty());
    Testing::drainEvents();
    EXPECT_THAT(told, ElementsAre("device", "state"));

    told.clear();
    microphones->choose(u"USB:1"_s);
    EXPECT_THAT(told, IsEmpty());
    Testing::drainEvents();
    EXPECT_THAT(told, ElementsAre("device", "state"));

    told.clear();
    happens([&] { hardware.disconnect(80); });
    EXPECT_THAT(told, ElementsAre("device", "state"));
}

TEST_F(HalMicrophonesTest, makesNothingOfDevicesThatAreNotHeard)
{
    std::vector<std::string> told;
    microphones->setObserver([&] { told.emplace_back("state"); });
    microphones->setDeviceObserver([&] { told.emplace_back("device"); });

    happens([&] { hardware.connect({ 85, u"CADefaultDeviceAggregate-501-0", u"Aggregate" }); });
    happens([&] { hardware.disconnect(80); });

    EXPECT_THAT(told, ElementsAre("state", "state"));
}

TEST_F(HalMicrophonesTest, listensForAsLongAsItLives)
{
    EXPECT_EQ(hardware.listeners.size(), 2u);
    {
        const HalMicrophones others;
        EXPECT_EQ(hardware.listeners.size(), 4u);
    }
    EXPECT_EQ(hardware.listeners.size(), 2u);
}

} // namespace
} // namespace Orvello
