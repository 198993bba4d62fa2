#include "Orvello/Adapters/macOS/Sound/VoiceProcessingIO.h"

#include <cstddef>
#include <cstring>
#include <type_traits>

#include <AudioToolbox/AudioToolbox.h>

namespace Orvello {

namespace {

// The unit's two sides, as seen from us: element 1 is the microphone, element 0 the loudspeaker.
constexpr AudioUnitElement microphone = 1;
constexpr AudioUnitElement loudspeaker = 0;

constexpr AudioComponentDescription voiceProcessingUnit { kAudioUnitType_Output,
    kAudioUnitSubType_VoiceProcessingIO, kAudioUnitManufacturer_Apple, 0, 0 };

constexpr AudioStreamBasicDescription monoFloat48k { .mSampleRate = 48000,
    .mFormatID = kAudioFormatLinearPCM,
    .mFormatFlags = kAudioFormatFlagIsFloat | kAudioFormatFlagIsPacked,
    .mBytesPerPacket = sizeof(Float32),
    .mFramesPerPacket = 1,
    .mBytesPerFrame = sizeof(Float32),
    .mChannelsPerFrame = 1,
    .mBitsPerChannel = 32,
    .mReserved = 0 };

/// How far the unit turns other programs' sound down. The SDK declares the property and its value
/// for macOS 14 and later alone, and building for macOS 13 must not use those names; an older unit
/// refuses the property, which is no failure.
struct OtherAudioDucking {
    static constexpr AudioUnitPropertyID property = 2108;
    static constexpr UInt32 minimum = 10;

    Boolean isAdvanced = false;
    UInt32 level = minimum;
};
static_assert(sizeof(OtherAudioDucking) == 8 && offsetof(OtherAudioDucking, level) == 4);

/// The audio thread: fills what the unit is about to play with silence.
OSStatus orvelloVPSilenceProc(void*, AudioUnitRenderActionFlags*, const AudioTimeStamp*, UInt32,
    UInt32, AudioBufferList* buffers)
{
    if (!buffers)
        return noErr;
    // The list is longer than its type says.
    for (const AudioBuffer& buffer : std::span(buffers->mBuffers + 0, buffers->mNumberBuffers)) {
        if (buffer.mData)
            std::memset(buffer.mData, 0, buffer.mDataByteSize);
    }
    return noErr;
}

class Unit final : public VoiceProcessingUnit {
public:
    Unit(AudioUnit unit, Listener& listener)
        : m_unit(unit)
        , m_listener(listener)
    {
    }
    ~Unit() override { AudioComponentInstanceDispose(m_unit); }
    Unit(const Unit&) = delete;
    Unit& operator=(const Unit&) = delete;

    Status configure(Setting setting) override;
    Status initialize() override { return AudioUnitInitialize(m_unit); }
    Status start() override { return AudioOutputUnitStart(m_unit); }
    Status render(std::span<float> samples) noexcept override;
    void stop() override { AudioOutputUnitStop(m_unit); }
    void uninitialize() override { AudioUnitUninitialize(m_unit); }

    /// The audio thread: tells the listener that samples wait, and lets it render() inside.
    void onInput(AudioUnitRenderActionFlags* flags, const AudioTimeStamp* time, UInt32 frames);

private:
    template <typename Value>
    Status set(AudioUnitPropertyID property, AudioUnitScope scope, AudioUnitElement element,
        const Value& value)
    {
        static_assert(std::is_trivially_copyable_v<Value>);
        return AudioUnitSetProperty(m_unit, property, scope, element, &value, sizeof value);
    }

    AudioUnit m_unit;
    Listener& m_listener;
    AudioUnitRenderActionFlags* m_flags = nullptr; ///< What the running callback was given.
    const AudioTimeStamp* m_time = nullptr; ///< The same.
};

OSStatus orvelloVPInputProc(void* unit, AudioUnitRenderActionFlags* flags,
    const AudioTimeStamp* time, UInt32, UInt32 frames, AudioBufferList*)
{
    static_cast<Unit*>(unit)->onInput(flags, time, frames);
    return noErr; // Whatever happened: a skipped block must not fail the unit.
}

VoiceProcessingUnit::Status Unit::configure(Setting setting)
{
    constexpr UInt32 on = 1;
    switch (setting) {
    case Setting::EnableInput:
        return set(kAudioOutputUnitProperty_EnableIO, kAudioUnitScope_Input, microphone, on);
    case Setting::EnableOutput:
        return set(kAudioOutputUnitProperty_EnableIO, kAudioUnitScope_Output, loudspeaker, on);
    case Setting::MicrophoneFormat:
        return set(
            kAudioUnitProperty_StreamFormat, kAudioUnitScope_Output, microphone, monoFloat48k);
    case Setting::RenderFormat:
        return set(
            kAudioUnitProperty_StreamFormat, kAudioUnitScope_Input, loudspeaker, monoFloat48k);
    case Setting::InputCallback:
        return set(kAudioOutputUnitProperty_SetInputCallback, kAudioUnitScope_Global, microphone,
            AURenderCallbackStruct { &orvelloVPInputProc, this });
    case Setting::RenderCallback:
        return set(kAudioUnitProperty_SetRenderCallback, kAudioUnitScope_Input, loudspeaker,
            AURenderCallbackStruct { &orvelloVPSilenceProc, nullptr });
    case Setting::OtherAudioDucking:
        return set(
            OtherAudioDucking::property, kAudioUnitScope_Global, loudspeaker, OtherAudioDucking {});
    }
    return noErr;
}

VoiceProcessingUnit::Status Unit::render(std::span<float> samples) noexcept
{
    AudioBufferList buffers {};
    buffers.mNumberBuffers = 1;
    buffers.mBuffers[0]
        = { 1, static_cast<UInt32>(samples.size() * sizeof(Float32)), samples.data() };
    return AudioUnitRender(
        m_unit, m_flags, m_time, microphone, static_cast<UInt32>(samples.size()), &buffers);
}

void Unit::onInput(AudioUnitRenderActionFlags* flags, const AudioTimeStamp* time, UInt32 frames)
{
    m_flags = flags;
    m_time = time;
    m_listener.onInput(*this, frames);
}

AudioComponent component() { return AudioComponentFindNext(nullptr, &voiceProcessingUnit); }

} // namespace

bool VoiceProcessingIO::isAvailable() { return component() != nullptr; }

VoiceProcessing::Instantiation VoiceProcessingIO::instantiate(
    VoiceProcessingUnit::Listener& listener)
{
    Instantiation result;
    AudioComponentInstance instance = nullptr;
    result.status = AudioComponentInstanceNew(component(), &instance);
    if (result.status == noErr && instance)
        result.unit = std::make_unique<Unit>(instance, listener);
    return result;
}

} // namespace Orvello
