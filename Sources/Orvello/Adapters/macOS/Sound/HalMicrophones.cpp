#include "Orvello/Adapters/macOS/Sound/HalMicrophones.h"

#include <CoreAudio/CoreAudio.h>

namespace Orvello {

namespace {

constexpr AudioObjectPropertyAddress defaultInput { kAudioHardwarePropertyDefaultInputDevice,
    kAudioObjectPropertyScopeGlobal, kAudioObjectPropertyElementMain };

/// A thread of the audio hardware layer.
OSStatus onDeviceChanged(
    AudioObjectID, UInt32, const AudioObjectPropertyAddress*, void* deviceChanged)
{
    static_cast<WakeUp*>(deviceChanged)->signal();
    return noErr;
}

} // namespace

HalMicrophones::HalMicrophones()
    : m_deviceChanged([this] {
        if (m_deviceObserver)
            m_deviceObserver();
        if (m_observer)
            m_observer();
    })
{
    AudioObjectAddPropertyListener(
        kAudioObjectSystemObject, &defaultInput, &onDeviceChanged, &m_deviceChanged);
}

HalMicrophones::~HalMicrophones()
{
    AudioObjectRemovePropertyListener(
        kAudioObjectSystemObject, &defaultInput, &onDeviceChanged, &m_deviceChanged);
}

Microphones::State HalMicrophones::state()
{
    State state;
    AudioObjectID device = kAudioObjectUnknown;
    UInt32 bytes = sizeof device;
    const OSStatus status = AudioObjectGetPropertyData(
        kAudioObjectSystemObject, &defaultInput, 0, nullptr, &bytes, &device);
    if (status == noErr && device == kAudioObjectUnknown)
        state.trouble = Trouble::NoMicrophone;
    return state;
}

} // namespace Orvello
