#include "Orvello/Adapters/macOS/Sound/VoiceProcessingIO.h"

#include "Orvello/Adapters/macOS/Sound/HalMicrophones.h"

#include <cstddef>
#include <cstring>
#include <type_traits>

#include <AudioToolbox/AudioToolbox.h>

namespace Orvello {

namespace {

// The unit's two sides, as seen from us: element 1 is the microphone, element 0 the loudspeaker.
constexpr AudioUnitElement microphone = 1;
constexpr AudioUnitElement loudspeaker = 0;

/// In place of a device with which a unit could not be started.
constexpr AudioObjectID unusable = kAudioObjectSystemObject;

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

AudioComponent component() { return AudioComponentFindNext(nullptr, &voiceProcessingUnit); }

} // namespace

class VoiceProcessingIO::Unit final : public VoiceProcessingUnit {
public:
    Unit(AudioUnit unit, Listener& listener, VoiceProcessingIO& owner)
        : m_unit(unit)
        , m_listener(listener)
        , m_owner(owner)
    {
        m_owner.m_unit = this;
    }
    ~Unit() override
    {
        AudioComponentInstanceDispose(m_unit);
        m_owner.m_unit = nullptr;
    }
    Unit(const Unit&) = delete;
    Unit& operator=(const Unit&) = delete;

    Status configure(Setting setting) override;
    Status initialize() override { return AudioUnitInitialize(m_unit); }
    Status start() override;
    Status render(std::span<float> samples) noexcept override;
    void stop() override;
    void uninitialize() override { AudioUnitUninitialize(m_unit); }

    void onDeviceChanged();

private:
    /// The audio thread.
    static OSStatus orvelloVPInputProc(void* unit, AudioUnitRenderActionFlags* flags,
        const AudioTimeStamp* time, UInt32 bus, UInt32 frames, AudioBufferList* buffers);

    /// The audio thread: tells the listener that samples wait, and lets it render() inside.
    void onInput(AudioUnitRenderActionFlags* flags, const AudioTimeStamp* time, UInt32 frames);

    template <typename Value>
    Status set(AudioUnitPropertyID property, AudioUnitScope scope, AudioUnitElement element,
        const Value& value)
    {
        static_assert(std::is_trivially_copyable_v<Value>);
        return AudioUnitSetProperty(m_unit, property, scope, element, &value, sizeof value);
    }

    void useWantedDevice();
    AudioObjectID wantedDevice() const;

    AudioUnit m_unit;
    Listener& m_listener;
    VoiceProcessingIO& m_owner;
    AudioObjectID m_device = kAudioObjectUnknown; ///< What it was given; none follows the system.
    bool m_isStarted = false;
    AudioUnitRenderActionFlags* m_flags = nullptr; ///< What the running callback was given.
    const AudioTimeStamp* m_time = nullptr; ///< The same.
};

OSStatus VoiceProcessingIO::Unit::orvelloVPInputProc(void* unit, AudioUnitRenderActionFlags* flags,
    const AudioTimeStamp* time, UInt32, UInt32 frames, AudioBufferList*)
{
    static_cast<Unit*>(unit)->onInput(flags, time, frames);
    return noErr; // Whatever happened: a skipped block must not fail the unit.
}

VoiceProcessingUnit::Status VoiceProcessingIO::Unit::configure(Setting setting)
{
    constexpr UInt32 on = 1;
    switch (setting) {
    case Setting::EnableInput:
        return set(kAudioOutputUnitProperty_EnableIO, kAudioUnitScope_Input, microphone, on);
    case Setting::EnableOutput: {
        const Status status
            = set(kAudioOutputUnitProperty_EnableIO, kAudioUnitScope_Output, loudspeaker, on);
        if (status == noErr)
            useWantedDevice(); // Devices can be given once both sides are on.
        return status;
    }
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

VoiceProcessingUnit::Status VoiceProcessingIO::Unit::render(std::span<float> samples) noexcept
{
    AudioBufferList buffers {};
    buffers.mNumberBuffers = 1;
    buffers.mBuffers[0]
        = { 1, static_cast<UInt32>(samples.size() * sizeof(Float32)), samples.data() };
    return AudioUnitRender(
        m_unit, m_flags, m_time, microphone, static_cast<UInt32>(samples.size()), &buffers);
}

void VoiceProcessingIO::Unit::onInput(
    AudioUnitRenderActionFlags* flags, const AudioTimeStamp* time, UInt32 frames)
{
    m_flags = flags;
    m_time = time;
    m_listener.onInput(*this, frames);
}

VoiceProcessingUnit::Status VoiceProcessingIO::Unit::start()
{
    const Status status = AudioOutputUnitStart(m_unit);
    m_isStarted = status == noErr;
    return status;
}

void VoiceProcessingIO::Unit::stop()
{
    m_isStarted = false;
    AudioOutputUnitStop(m_unit);
}

AudioObjectID VoiceProcessingIO::Unit::wantedDevice() const
{
    const AudioObjectID chosen = m_owner.m_microphones.chosenDevice();
    // By itself, a unit follows the system's choice only as long as it was given no other.
    return chosen == kAudioObjectUnknown && m_device != kAudioObjectUnknown
        ? HalMicrophones::defaultDevice()
        : chosen;
}

/// A device that it does not take leaves it with the one before, which is better than none.
void VoiceProcessingIO::Unit::useWantedDevice()
{
    const AudioObjectID device = wantedDevice();
    if (device != kAudioObjectUnknown
        && set(kAudioOutputUnitProperty_CurrentDevice, kAudioUnitScope_Global, microphone, device)
            == noErr)
        m_device = device;
}

void VoiceProcessingIO::Unit::onDeviceChanged()
{
    const AudioObjectID device = wantedDevice();
    if (!m_isStarted || device == kAudioObjectUnknown || device == m_device)
        return;
    AudioOutputUnitStop(m_unit);
    uninitialize();
    useWantedDevice();
    // A failure may be that of a device which is only just coming: the next change tries again.
    if (initialize() != noErr || AudioOutputUnitStart(m_unit) != noErr)
        m_device = unusable;
}

VoiceProcessingIO::VoiceProcessingIO(const HalMicrophones& microphones)
    : m_microphones(microphones)
{
}

bool VoiceProcessingIO::isAvailable() { return component() != nullptr; }

VoiceProcessing::Instantiation VoiceProcessingIO::instantiate(
    VoiceProcessingUnit::Listener& listener)
{
    Instantiation result;
    AudioComponentInstance instance = nullptr;
    result.status = AudioComponentInstanceNew(component(), &instance);
    if (result.status == noErr && instance)
        result.unit = std::make_unique<Unit>(instance, listener, *this);
    return result;
}

void VoiceProcessingIO::onDeviceChanged()
{
    if (m_unit)
        m_unit->onDeviceChanged();
}

} // namespace Orvello
