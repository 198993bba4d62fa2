// The raw microphone over a recording AVFAudio: what is asked of the engine, and in which order.

#include "Orvello/Adapters/macOS/Sound/EngineMicrophone.h"

#include "Orvello/Adapters/macOS/Sound/HalMicrophones.h"
#include "Orvello/Platform/Sound/SampleListener.h"
#include "Tests/MacOS/GNUstep/GNUstepTest.h"
#include "Tests/MacOS/StandIns/AudioHardware.h"
#include "Tests/MacOS/StandIns/VoiceUnit.h"
#include "Tests/Support/EventLoop.h"

#include <gmock/gmock.h>

#include <memory>
#include <optional>
#include <string>
#include <vector>

#import <AVFoundation/AVFoundation.h>

#pragma clang diagnostic ignored "-Wincomplete-implementation"
#pragma clang diagnostic ignored "-Wobjc-property-implementation"

namespace {

struct Recorded {
    Orvello::Testing::VoiceUnit unit; ///< Behind the engines' input nodes. Has the record of calls.
    int engines = 0;
    AVAudioEngine* engine = nil; ///< The newest.
    AVAudioNodeTapBlock tap = nil;
    AVAudioChannelCount channels = 1; ///< Of the device; 0 when there is none.
    NSError* startError = nil;
    std::string raising; ///< The call that raises an exception.
    std::vector<float> samples;
};

Recorded* current = nullptr;

void record(const std::string& call)
{
    current->unit.calls.push_back(call);
    if (call == current->raising)
        [NSException raise:@"com.apple.coreaudio.avfaudio" format:@"required condition is false"];
}

} // namespace

NSString* const AVAudioEngineConfigurationChangeNotification
    = @"AVAudioEngineConfigurationChangeNotification";

@implementation AVAudioFormat
- (double)sampleRate
{
    return 44100;
}
- (AVAudioChannelCount)channelCount
{
    return current->channels;
}
@end

@implementation AVAudioTime
@end

@implementation AVAudioPCMBuffer
- (AVAudioFrameCount)frameLength
{
    return static_cast<AVAudioFrameCount>(current->samples.size());
}
- (float* const*)floatChannelData
{
    static float* channel;
    channel = current->samples.data();
    return current->samples.empty() ? nullptr : &channel;
}
@end

@implementation AVAudioNode
- (AVAudioFormat*)inputFormatForBus:(AVAudioNodeBus)bus
{
    record("device's format " + std::to_string(bus));
    return [[[AVAudioFormat alloc] init] autorelease];
}
- (AVAudioFormat*)outputFormatForBus:(AVAudioNodeBus)bus
{
    record("node's format " + std::to_string(bus));
    return [[[AVAudioFormat alloc] init] autorelease];
}
- (void)installTapOnBus:(AVAudioNodeBus)bus
             bufferSize:(AVAudioFrameCount)frames
                 format:(AVAudioFormat*)format
                  block:(AVAudioNodeTapBlock)block
{
    record(
        "tap " + std::to_string(bus) + ' ' + std::to_string(frames) + (format ? " converted" : ""));
    current->tap = (AVAudioNodeTapBlock)_Block_copy((const void*)block);
}
- (void)removeTapOnBus:(AVAudioNodeBus)bus
{
    record("no tap " + std::to_string(bus));
}
@end

@implementation AVAudioIONode
- (AudioUnit)audioUnit
{
    return reinterpret_cast<AudioUnit>(std::uintptr_t { 2 });
}
@end

@implementation AVAudioInputNode
@end

@interface RecordedEngine : AVAudioEngine {
    BOOL isRunning;
}
@property (assign) BOOL isRunning;
@end

@implementation AVAudioEngine
+ (instancetype)alloc
{
    return self == [AVAudioEngine class] ? [RecordedEngine alloc] : [super alloc];
}
@end

@implementation RecordedEngine
@synthesize isRunning;
- (instancetype)init
{
    record("engine " + std::to_string(++current->engines));
    current->engine = self;
    return [super init];
}
- (AVAudioInputNode*)inputNode
{
    static AVAudioInputNode* const node = [[AVAudioInputNode alloc] init];
    if (current->raising == "input")
        record("input");
    return node;
}
- (BOOL)startAndReturnError:(NSError**)error
{
    record("start");
    *error = current->startError;
    self.isRunning = current->startError == nil;
    return self.isRunning;
}
- (void)stop
{
    record("stop");
    self.isRunning = NO;
}
@end

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class HeardBlocks final : public SampleListener {
public:
    void onSamples(std::span<const float> samples) noexcept override
    {
        heard.emplace_back(samples.begin(), samples.end());
    }
    std::vector<std::vector<float>> heard;
};

class EngineMicrophoneTest : public GNUstepTest {
protected:
    EngineMicrophoneTest()
    {
        current = &recorded;
        hardware.connect({ 77, u"BuiltIn", u"MacBook Microphone" });
        hardware.connect({ 80, u"USB:1", u"USB Microphone" });
        microphones.emplace();
        microphones->setDeviceObserver([this] { microphone->onDeviceChanged(); });
        microphone.emplace(*microphones);
        calls().clear();
    }
    ~EngineMicrophoneTest() override
    {
        microphone.reset();
        current = nullptr;
    }

    Testing::CallRecord& calls() { return recorded.unit.calls; }

    void start()
    {
        microphone->installTap(2048, listener);
        ASSERT_TRUE(microphone->start());
        calls().clear();
    }

    /// What a tap's thread does.
    void deliver(std::vector<float> samples)
    {
        recorded.samples = std::move(samples);
        recorded.tap([[[AVAudioPCMBuffer alloc] init] autorelease],
            [[[AVAudioTime alloc] init] autorelease]);
    }

    /// What the engine does of its own accord.
    void changeConfiguration()
    {
        ((RecordedEngine*)recorded.engine).isRunning = NO;
        [[NSNotificationCenter defaultCenter]
            postNotificationName:AVAudioEngineConfigurationChangeNotification
                          object:recorded.engine];
    }

    void fail()
    {
        recorded.startError =
            [NSError errorWithDomain:@"com.apple.coreaudio.avfaudio"
                                code:-10868
                            userInfo:[NSDictionary dictionaryWithObject:@"No device."
                                                                 forKey:NSLocalizedDescriptionKey]];
    }

    Recorded recorded;
    Testing::AudioHardware hardware;
    std::optional<HalMicrophones> microphones;
    std::optional<EngineMicrophone> microphone;
    HeardBlocks listener;
};

TEST_F(EngineMicrophoneTest, asksTheDeviceBeforeItBelievesTheNode)
{
    EXPECT_EQ(microphone->sampleRate(), 44100);
    EXPECT_THAT(calls(), ElementsAre("engine 2", "device's format 0", "node's format 0"));

    recorded.channels = 0;
    EXPECT_EQ(microphone->sampleRate(), 0) << "the node would still promise samples";

    recorded.raising = "input";
    EXPECT_EQ(microphone->sampleRate(), 0) << "without a device there may be no node";
}

TEST_F(EngineMicrophoneTest, hearsTheNodeUnconverted)
{
    microphone->installTap(2048, listener);
    EXPECT_TRUE(microphone->start());
    EXPECT_THAT(calls(), ElementsAre("tap 0 2048", "start"));

    deliver({ 0.5f, -0.5f });
    deliver({});
    EXPECT_THAT(listener.heard, ElementsAre(ElementsAre(0.5f, -0.5f), IsEmpty()));
}

TEST_F(EngineMicrophoneTest, hearsNothingOnceTheTapIsGone)
{
    start();
    microphone->removeTap();
    EXPECT_THAT(calls(), ElementsAre("no tap 0"));

    deliver({ 0.5f }); // One that was on its way.
    EXPECT_THAT(listener.heard, IsEmpty());

    microphone->removeTap();
    microphone->stop();
    EXPECT_THAT(calls(), ElementsAre("no tap 0", "stop")) << "there was no other tap";
}

TEST_F(EngineMicrophoneTest, saysWhyItCannotStart)
{
    recorded.raising = "tap 0 2048";
    microphone->installTap(2048, listener);
    EXPECT_EQ(microphone->start().error(), u"required condition is false");
    EXPECT_THAT(calls(), ElementsAre("tap 0 2048")) << "nothing to start";

    recorded.raising = "start";
    microphone->installTap(2048, listener);
    EXPECT_EQ(microphone->start().error(), u"required condition is false");

    recorded.raising.clear();
    fail();
    EXPECT_EQ(microphone->start().error(), u"No device.");
}

TEST_F(EngineMicrophoneTest, endsWhereTheTapCannotBeRemoved)
{
    start();
    recorded.raising = "no tap 0";

    microphone->removeTap();
    deliver({ 0.5f });

    EXPECT_THAT(listener.heard, IsEmpty());
}

TEST_F(EngineMicrophoneTest, startsAgainWhenTheEngineHasStopped)
{
    start();

    changeConfiguration();
    EXPECT_THAT(calls(), IsEmpty()) << "the engine waits until its observers are done";
    Testing::drainEvents();

    EXPECT_THAT(calls(), ElementsAre("no tap 0", "tap 0 2048", "start"));
    deliver({ 0.5f });
    EXPECT_THAT(listener.heard, ElementsAre(ElementsAre(0.5f)));
}

TEST_F(EngineMicrophoneTest, losesItsMicrophoneAndHearsTheNextOne)
{
    start();
    fail();
    hardware.changeDefaultInput(kAudioObjectUnknown);
    changeConfiguration();
    Testing::drainEvents();
    EXPECT_EQ(recorded.engine.running, NO);

    recorded.startError = nil;
    calls().clear();
    Testing::drainEvents();
    EXPECT_THAT(calls(), IsEmpty()) << "there is nothing to hear";

    hardware.changeDefaultInput(77);
    Testing::drainEvents();
    EXPECT_THAT(calls(), ElementsAre("no tap 0", "tap 0 2048", "start"));
    deliver({ 0.5f });
    EXPECT_THAT(listener.heard, ElementsAre(ElementsAre(0.5f)));
}

TEST_F(EngineMicrophoneTest, asksANewEngineWhereTheOldOneDoesNotStartAgain)
{
    start();
    recorded.raising = "start";
    changeConfiguration();
    Testing::drainEvents();

    EXPECT_THAT(calls(),
        ElementsAre("no tap 0", "tap 0 2048", "start", "no tap 0", "stop", "engine 2", "tap 0 2048",
            "start"));
}

TEST_F(EngineMicrophoneTest, givesTheChosenMicrophoneToANewEngineBeforeAnythingIsAskedOfIt)
{
    microphones->choose(u"USB:1"_s);
    Testing::drainEvents();
    EXPECT_THAT(calls(), IsEmpty()) << "nobody listens";

    EXPECT_EQ(microphone->sampleRate(), 44100);
    EXPECT_THAT(calls(),
        ElementsAre("engine 2", "set 2000 global 0 4: 80", "device's format 0", "node's format 0"));
}

TEST_F(EngineMicrophoneTest, followsTheChoiceAndFallsBackWhileItIsNotConnected)
{
    start();
    const auto anew = [](const std::string& engine, const std::vector<std::string>& setting) {
        Testing::CallRecord expected { "no tap 0", "stop", engine };
        expected.insert(expected.end(), setting.begin(), setting.end());
        expected.insert(expected.end(), { "tap 0 2048", "start" });
        return expected;
    };

    microphones->choose(u"USB:1"_s);
    Testing::drainEvents();
    EXPECT_EQ(calls(), anew("engine 2", { "set 2000 global 0 4: 80" }));

    calls().clear();
    hardware.disconnect(80);
    Testing::drainEvents();
    EXPECT_EQ(calls(), anew("engine 3", {})) << "which follows the system's choice";

    calls().clear();
    hardware.connect({ 91, u"USB:1", u"USB Microphone" });
    Testing::drainEvents();
    EXPECT_EQ(calls(), anew("engine 4", { "set 2000 global 0 4: 91" }));
}

TEST_F(EngineMicrophoneTest, hearsTheSystemsChoiceWhereTheEngineDoesNotTakeTheChosenOne)
{
    recorded.unit.failures["set 2000"] = -10851;
    microphones->choose(u"USB:1"_s);
    EXPECT_EQ(microphone->sampleRate(), 44100);
    start();

    recorded.raising = "input";
    hardware.changeDefaultInput(80);
    Testing::drainEvents();
    EXPECT_THAT(recorded.unit.calls.back(), "input") << "even where there is no node at all";
}

TEST_F(EngineMicrophoneTest, doesNothingMoreOnceItHasStopped)
{
    start();
    changeConfiguration();
    microphone->stop();
    calls().clear();
    Testing::drainEvents();
    hardware.changeDefaultInput(80);
    Testing::drainEvents();
    EXPECT_THAT(calls(), IsEmpty());

    changeConfiguration();
    microphones->setDeviceObserver({});
    microphone.reset();
    calls().clear();
    Testing::drainEvents();
    changeConfiguration();
    Testing::drainEvents();
    EXPECT_THAT(calls(), IsEmpty());
}

} // namespace
} // namespace Orvello
