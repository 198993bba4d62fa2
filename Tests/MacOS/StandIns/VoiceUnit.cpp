#include "Tests/MacOS/StandIns/VoiceUnit.h"

#include <algorithm>
#include <cstdint>
#include <cstring>
#include <sstream>

namespace Orvello::Testing {

namespace {

// What the callbacks of the running block are given; rendering must hand on the very same.
AudioUnitRenderActionFlags blockFlags = 0;
const AudioTimeStamp blockTime {};

} // namespace

VoiceUnit*& VoiceUnit::current()
{
    static VoiceUnit* unit = nullptr;
    return unit;
}

OSStatus VoiceUnit::answer(const std::string& call)
{
    calls.push_back(call);
    const auto failure = std::find_if(failures.begin(), failures.end(),
        [&](const auto& candidate) { return call.rfind(candidate.first, 0) == 0; });
    return failure == failures.end() ? noErr : failure->second;
}

OSStatus VoiceUnit::announce(UInt32 frames)
{
    return inputCallback.inputProc(
        inputCallback.inputProcRefCon, &blockFlags, &blockTime, 1, frames, nullptr);
}

OSStatus VoiceUnit::askForSound(AudioBufferList* buffers) const
{
    return renderCallback.inputProc(
        renderCallback.inputProcRefCon, &blockFlags, &blockTime, 0, 4, buffers);
}

namespace {

AudioComponent theComponent() { return reinterpret_cast<AudioComponent>(std::uintptr_t { 1 }); }

AudioUnit theInstance() { return reinterpret_cast<AudioUnit>(std::uintptr_t { 2 }); }

std::string nameOf(AudioUnitScope scope)
{
    constexpr const char* names[] { "global", "input", "output" };
    return names[scope];
}

std::string described(const AudioStreamBasicDescription& format)
{
    std::ostringstream text;
    text << format.mSampleRate << ' ' << fourCharacters(format.mFormatID) << ' '
         << format.mFormatFlags << ' ' << format.mBytesPerPacket << ' ' << format.mFramesPerPacket
         << ' ' << format.mBytesPerFrame << ' ' << format.mChannelsPerFrame << ' '
         << format.mBitsPerChannel << ' ' << format.mReserved;
    return text.str();
}

template <typename Value>
Value valueAt(const void* data)
{
    Value value;
    std::memcpy(&value, data, sizeof value);
    return value;
}

std::string described(AudioUnitPropertyID property, const void* data)
{
    switch (property) {
    case kAudioOutputUnitProperty_CurrentDevice:
    case kAudioOutputUnitProperty_EnableIO:
        return std::to_string(valueAt<UInt32>(data));
    case kAudioUnitProperty_StreamFormat:
        return described(valueAt<AudioStreamBasicDescription>(data));
    case 2108: { // The SDK's AUVoiceIOOtherAudioDuckingConfiguration.
        struct Ducking {
            Boolean mEnableAdvancedDucking;
            UInt32 mDuckingLevel;
        };
        const auto ducking = valueAt<Ducking>(data);
        return "advanced " + std::to_string(ducking.mEnableAdvancedDucking) + " level "
            + std::to_string(ducking.mDuckingLevel);
    }
    default:
        return valueAt<AURenderCallbackStruct>(data).inputProcRefCon ? "with unit" : "without unit";
    }
}

} // namespace
} // namespace Orvello::Testing

using namespace Orvello::Testing;

AudioComponent AudioComponentFindNext(
    AudioComponent previous, const AudioComponentDescription* description)
{
    VoiceUnit::current()->answer("find " + fourCharacters(description->componentType) + ' '
        + fourCharacters(description->componentSubType) + ' '
        + fourCharacters(description->componentManufacturer) + ' '
        + std::to_string(description->componentFlags) + ' '
        + std::to_string(description->componentFlagsMask) + (previous ? " after another" : ""));
    return VoiceUnit::current()->isPresent ? theComponent() : nullptr;
}

OSStatus AudioComponentInstanceNew(AudioComponent component, AudioComponentInstance* instance)
{
    const OSStatus status
        = VoiceUnit::current()->answer(component == theComponent() ? "new" : "new of another");
    if (status == noErr && !VoiceUnit::current()->givesNoInstance)
        *instance = theInstance();
    return status;
}

OSStatus AudioComponentInstanceDispose(AudioComponentInstance instance)
{
    return VoiceUnit::current()->answer(
        instance == theInstance() ? "dispose" : "dispose of another");
}

OSStatus AudioUnitSetProperty(AudioUnit, AudioUnitPropertyID property, AudioUnitScope scope,
    AudioUnitElement element, const void* data, UInt32 size)
{
    VoiceUnit& unit = *VoiceUnit::current();
    const OSStatus status = unit.answer("set " + std::to_string(property) + ' ' + nameOf(scope)
        + ' ' + std::to_string(element) + ' ' + std::to_string(size) + ": "
        + described(property, data));
    if (status == noErr && property == kAudioOutputUnitProperty_SetInputCallback)
        unit.inputCallback = valueAt<AURenderCallbackStruct>(data);
    if (status == noErr && property == kAudioUnitProperty_SetRenderCallback)
        unit.renderCallback = valueAt<AURenderCallbackStruct>(data);
    return status;
}

OSStatus AudioUnitInitialize(AudioUnit) { return VoiceUnit::current()->answer("initialize"); }

OSStatus AudioUnitUninitialize(AudioUnit) { return VoiceUnit::current()->answer("uninitialize"); }

OSStatus AudioOutputUnitStart(AudioUnit) { return VoiceUnit::current()->answer("start"); }

OSStatus AudioOutputUnitStop(AudioUnit) { return VoiceUnit::current()->answer("stop"); }

OSStatus AudioUnitRender(AudioUnit, AudioUnitRenderActionFlags* flags, const AudioTimeStamp* time,
    UInt32 bus, UInt32 frames, AudioBufferList* buffers)
{
    VoiceUnit& unit = *VoiceUnit::current();
    const AudioBuffer& buffer = buffers->mBuffers[0];
    const OSStatus status = unit.answer("render bus " + std::to_string(bus) + " frames "
        + std::to_string(frames) + " buffers " + std::to_string(buffers->mNumberBuffers)
        + " channels " + std::to_string(buffer.mNumberChannels) + " bytes "
        + std::to_string(buffer.mDataByteSize)
        + (flags == &blockFlags && time == &blockTime ? "" : " at another time"));
    if (status == noErr)
        std::memcpy(buffer.mData, unit.microphone.data(),
            std::min<std::size_t>(buffer.mDataByteSize, unit.microphone.size() * sizeof(float)));
    return status;
}
