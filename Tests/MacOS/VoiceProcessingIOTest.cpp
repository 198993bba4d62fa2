#include "Orvello/Adapters/macOS/Sound/VoiceProcessingIO.h"
#include "Orvello/Adapters/macOS/Sound/HalMicrophones.h"
#include "Orvello/Platform/Sound/SampleListener.h"
#include "Orvello/Voice/VoiceProcessingCapture.h"
#include "Tests/MacOS/StandIns/AudioHardware.h"
#include "Tests/MacOS/StandIns/VoiceUnit.h"
#include "Tests/Support/EventLoop.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>

namespace Orvello {
namespace {

using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;

const std::string format = "48000 lpcm 9 4 1 4 1 32 0";

const std::vector<std::string> configuration {
    "set 2003 input 1 4: 1",
    "set 2003 output 0 4: 1",
    "set 8 output 1 40: " + format,
    "set 8 input 0 40: " + format,
    "set 2005 global 1 16: with unit",
    "set 23 input 0 16: without unit",
    "set 2108 global 0 8: advanced 0 level 10",
};

const std::vector<std::string> disposal { "stop", "uninitialize", "dispose" };

class HeardSamples final : public SampleListener {
public:
    void onSamples(std::span<const float> samples) noexcept override
    {
        heard.emplace_back(samples.begin(), samples.end());
    }
    std::vector<std::vector<float>> heard;
};

/// The adapter under the capture that uses it, over the stand-in.
class VoiceProcessingIOTest : public testing::Test {
protected:
    Testing::VoiceUnit unit;
    Testing::AudioHardware hardware;
    HalMicrophones microphones;
    VoiceProcessingIO voiceProcessing { microphones };
    HeardSamples listener;
    VoiceProcessingCapture capture { voiceProcessing, listener };

    /// The calls after the component was found and instantiated.
    Testing::CallRecord callsOnTheUnit() const
    {
        const auto created = std::find(unit.calls.begin(), unit.calls.end(), "new");
        return { created == unit.calls.end() ? created : created + 1, unit.calls.end() };
    }
};

TEST_F(VoiceProcessingIOTest, findsTheSystemsVoiceProcessingUnit)
{
    EXPECT_TRUE(voiceProcessing.isAvailable());

    EXPECT_THAT(unit.calls, ElementsAre("find auou vpio appl 0 0"));
}

TEST_F(VoiceProcessingIOTest, saysThatThereIsNoUnit)
{
    unit.isPresent = false;

    EXPECT_FALSE(voiceProcessing.isAvailable());
    EXPECT_FALSE(capture.start());

    EXPECT_THAT(unit.calls, Each(std::string("find auou vpio appl 0 0")));
}

TEST_F(VoiceProcessingIOTest, configuresInitializesAndStartsInOrder)
{
    EXPECT_TRUE(capture.start());

    Testing::CallRecord expected = configuration;
    expected.insert(expected.end(), { "initialize", "start" });
    EXPECT_EQ(callsOnTheUnit(), expected);
}

TEST_F(VoiceProcessingIOTest, stopsUninitializesAndDisposesInOrder)
{
    ASSERT_TRUE(capture.start());
    unit.calls.clear();

    capture.dispose();

    EXPECT_EQ(unit.calls, disposal);
}

TEST_F(VoiceProcessingIOTest, passesTheStatusOfAFailedInstantiationOn)
{
    unit.failures["new"] = -3000;

    class : public VoiceProcessingUnit::Listener {
        void onInput(VoiceProcessingUnit&, std::uint32_t) noexcept override { }
    } deaf;
    const auto result = voiceProcessing.instantiate(deaf);

    EXPECT_EQ(result.status, -3000);
    EXPECT_FALSE(result.unit);
}

TEST_F(VoiceProcessingIOTest, disposesOfNothingThatWasNotMade)
{
    unit.givesNoInstance = true;

    EXPECT_FALSE(capture.start());
    capture.dispose();

    EXPECT_THAT(callsOnTheUnit(), IsEmpty());
}

/// With a microphone beside the built-in one, which is the system's choice.
class ChosenMicrophoneTest : public VoiceProcessingIOTest {
protected:
    ChosenMicrophoneTest()
    {
        hardware.connect({ 77, u"BuiltIn", u"MacBook Microphone" });
        hardware.connect({ 80, u"USB:1", u"USB Microphone" });
        microphones.setDeviceObserver([this] { voiceProcessing.onDeviceChanged(); });
        Testing::drainEvents();
    }

    void start(const QString& microphone)
    {
        microphones.choose(microphone);
        ASSERT_TRUE(capture.start());
        Testing::drainEvents();
        unit.calls.clear();
    }

    static Testing::CallRecord restartOn(const std::string& device)
    {
        return { "stop", "uninitialize", "set 2000 global 1 4: " + device, "initialize", "start" };
    }
};

TEST_F(ChosenMicrophoneTest, isGivenToTheUnitOnceBothSidesAreOn)
{
    microphones.choose(QStringLiteral("USB:1"));
    EXPECT_TRUE(capture.start());

    Testing::CallRecord expected = configuration;
    expected.insert(expected.begin() + 2, "set 2000 global 1 4: 80");
    expected.insert(expected.end(), { "initialize", "start" });
    EXPECT_EQ(callsOnTheUnit(), expected);
    Testing::drainEvents();
    EXPECT_EQ(callsOnTheUnit(), expected) << "it has the right one already";
}

TEST_F(ChosenMicrophoneTest, neverStopsTheCaptureWhenTheUnitDoesNotTakeIt)
{
    unit.failures["set 2000"] = -10851;
    microphones.choose(QStringLiteral("USB:1"));

    EXPECT_TRUE(capture.start());
}

TEST_F(ChosenMicrophoneTest, takesThePlaceOfTheOneThatIsHeard)
{
    start({});

    microphones.choose(QStringLiteral("USB:1"));
    Testing::drainEvents();
    EXPECT_EQ(unit.calls, restartOn("80"));

    unit.calls.clear();
    microphones.choose({});
    Testing::drainEvents();
    EXPECT_EQ(unit.calls, restartOn("77"));

    unit.calls.clear();
    hardware.connect({ 83, u"USB:2", u"Headset" });
    hardware.changeDefaultInput(83);
    Testing::drainEvents();
    EXPECT_EQ(unit.calls, restartOn("83")) << "it no longer follows the system by itself";
}

TEST_F(ChosenMicrophoneTest, leavesItsPlaceWhileItIsNotConnected)
{
    start(QStringLiteral("USB:1"));

    hardware.disconnect(80);
    Testing::drainEvents();
    EXPECT_EQ(unit.calls, restartOn("77"));

    unit.calls.clear();
    hardware.connect({ 91, u"USB:1", u"USB Microphone" });
    Testing::drainEvents();
    EXPECT_EQ(unit.calls, restartOn("91"));
}

TEST_F(ChosenMicrophoneTest, isTriedAgainAtTheNextChange)
{
    start({});
    unit.failures["initialize"] = -10875;
    microphones.choose(QStringLiteral("USB:1"));
    Testing::drainEvents();
    EXPECT_EQ(unit.calls.back(), "initialize");

    unit.failures.clear();
    unit.calls.clear();
    hardware.changeDefaultInput(kAudioObjectUnknown);
    Testing::drainEvents();
    EXPECT_EQ(unit.calls, restartOn("80"));
}

TEST_F(ChosenMicrophoneTest, leavesAUnitAloneThatFollowsTheSystemByItself)
{
    start({});

    hardware.connect({ 83, u"USB:2", u"Headset" });
    hardware.changeDefaultInput(83);
    Testing::drainEvents();

    EXPECT_THAT(unit.calls, IsEmpty());
}

TEST_F(ChosenMicrophoneTest, startsNothingThatWasStopped)
{
    start({});
    capture.dispose();
    unit.calls.clear();

    microphones.choose(QStringLiteral("USB:1"));
    Testing::drainEvents();

    EXPECT_THAT(unit.calls, IsEmpty());
}

/// Each step that can fail, by the beginning of its call.
class VoiceProcessingIOFailureTest : public VoiceProcessingIOTest,
                                     public testing::WithParamInterface<std::string> { };

TEST_P(VoiceProcessingIOFailureTest, stopsThereAndLeavesNothingBehind)
{
    unit.failures[GetParam()] = -10851;

    EXPECT_FALSE(capture.start());
    EXPECT_EQ(unit.calls.back().rfind(GetParam(), 0), 0);
    unit.calls.clear();
    capture.dispose();

    EXPECT_EQ(unit.calls, disposal);
}

INSTANTIATE_TEST_SUITE_P(AtEachStep, VoiceProcessingIOFailureTest,
    testing::Values("set 2003 input", "set 2003 output", "set 8 output", "set 8 input", "set 2005",
        "set 23 ", "initialize", "start"));

TEST_F(VoiceProcessingIOTest, goesOnWithoutTheDuckingOfOlderSystems)
{
    unit.failures["set 2108"] = -10879;

    EXPECT_TRUE(capture.start());

    EXPECT_EQ(unit.calls.back(), "start");
}

TEST_F(VoiceProcessingIOTest, rendersAnAnnouncedBlockFromTheMicrophonesSide)
{
    ASSERT_TRUE(capture.start());
    unit.microphone = { 0.25f, -0.5f, 1.0f };
    unit.calls.clear();

    EXPECT_EQ(unit.announce(3), noErr);

    EXPECT_THAT(unit.calls, ElementsAre("render bus 1 frames 3 buffers 1 channels 1 bytes 12"));
    EXPECT_THAT(listener.heard, ElementsAre(ElementsAre(0.25f, -0.5f, 1.0f)));
}

TEST_F(VoiceProcessingIOTest, skipsABlockThatCannotBeRenderedWithoutFailingTheUnit)
{
    ASSERT_TRUE(capture.start());
    unit.failures["render"] = -10863;

    EXPECT_EQ(unit.announce(3), noErr);

    EXPECT_THAT(listener.heard, IsEmpty());
}

TEST_F(VoiceProcessingIOTest, skipsEmptyAndOverlongBlocksWithoutRenderingThem)
{
    ASSERT_TRUE(capture.start());
    unit.calls.clear();

    EXPECT_EQ(unit.announce(0), noErr);
    EXPECT_EQ(unit.announce(16385), noErr);

    EXPECT_THAT(unit.calls, IsEmpty());
    EXPECT_THAT(listener.heard, IsEmpty());
}

TEST_F(VoiceProcessingIOTest, rendersTheLongestBlockThatFits)
{
    ASSERT_TRUE(capture.start());
    unit.microphone.assign(16384, 0.5f);

    EXPECT_EQ(unit.announce(16384), noErr);

    ASSERT_EQ(listener.heard.size(), 1);
    EXPECT_EQ(listener.heard.front(), unit.microphone);
}

TEST_F(VoiceProcessingIOTest, playsSilenceInEveryBufferThatHasMemory)
{
    ASSERT_TRUE(capture.start());
    std::array<float, 4> first { 1, 2, 3, 4 };
    std::array<float, 4> last { 5, 6, 7, 8 };
    struct {
        AudioBufferList list;
        AudioBuffer more[2];
    } buffers { { 3, { { 1, sizeof first, first.data() } } },
        { { 1, sizeof last, nullptr }, { 1, 2 * sizeof(float), last.data() } } };

    EXPECT_EQ(unit.askForSound(&buffers.list), noErr);

    EXPECT_THAT(first, ElementsAre(0, 0, 0, 0));
    EXPECT_THAT(last, ElementsAre(0, 0, 7, 8)); // The whole buffer, and no more than the buffer.
}

TEST_F(VoiceProcessingIOTest, playsSilenceIntoNothing)
{
    ASSERT_TRUE(capture.start());

    EXPECT_EQ(unit.askForSound(nullptr), noErr);
}

} // namespace
} // namespace Orvello
