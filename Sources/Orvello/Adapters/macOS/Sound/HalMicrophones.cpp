#include "Orvello/Adapters/macOS/Sound/HalMicrophones.h"

#include "Orvello/Adapters/macOS/Sound/HalProperties.h"

#include <algorithm>

namespace Orvello {

using namespace HalProperties;
using namespace Qt::StringLiterals;

namespace {

constexpr AudioObjectPropertyAddress defaultInput
    = address(kAudioHardwarePropertyDefaultInputDevice);
constexpr AudioObjectPropertyAddress allDevices = address(kAudioHardwarePropertyDevices);

/// 'tapd', which no header names: a loudspeaker delivers what it plays, for echo cancellers.
constexpr AudioObjectPropertyAddress playedSound
    = address(0x74617064, kAudioObjectPropertyScopeOutput);

/// A thread of the audio hardware layer.
OSStatus onChanged(AudioObjectID, UInt32, const AudioObjectPropertyAddress*, void* changed)
{
    static_cast<WakeUp*>(changed)->signal();
    return noErr;
}

bool isMicrophone(AudioObjectID device)
{
    const auto input = [](AudioObjectPropertySelector selector) {
        return address(selector, kAudioObjectPropertyScopeInput);
    };
    return !objects(device, input(kAudioDevicePropertyStreams)).empty()
        && value<UInt32>(device, input(kAudioDevicePropertyDeviceCanBeDefaultDevice)) == 1u
        && AudioObjectHasProperty(device, &playedSound) == 0;
}

/// Those that the voice-processing unit and audio engines make for themselves, in this process.
bool isMadeBySystem(const QString& identifier)
{
    return identifier.startsWith("VPAUAggregateAudioDevice"_L1)
        || identifier.startsWith("CADefaultDeviceAggregate"_L1);
}

/// Many devices have no switch, and are never muted then.
bool isMuted(AudioObjectID device)
{
    return value<UInt32>(device, address(kAudioDevicePropertyMute, kAudioObjectPropertyScopeInput))
        == 1u;
}

} // namespace

HalMicrophones::HalMicrophones()
    : m_changed([this] { reconsider(); })
{
    for (const AudioObjectPropertyAddress& property : { defaultInput, allDevices })
        AudioObjectAddPropertyListener(kAudioObjectSystemObject, &property, &onChanged, &m_changed);
    reconsider(); // Not before: from now on, whatever changes is told.
}

HalMicrophones::~HalMicrophones()
{
    for (const AudioObjectPropertyAddress& property : { defaultInput, allDevices })
        AudioObjectRemovePropertyListener(
            kAudioObjectSystemObject, &property, &onChanged, &m_changed);
}

/// Devices also come and go because this process captures sound. A capture that did not succeed
/// must not try again because of that.
void HalMicrophones::reconsider()
{
    m_devices = connectedDevices();
    const std::pair now { chosenDevice(), defaultDevice() };
    if (now != std::exchange(m_told, now) && m_deviceObserver)
        m_deviceObserver();
    if (m_observer)
        m_observer();
}

QList<HalMicrophones::Device> HalMicrophones::connectedDevices()
{
    QList<Device> devices;
    for (const AudioObjectID device : objects(kAudioObjectSystemObject, allDevices)) {
        const QString identifier
            = isMicrophone(device) ? text(device, kAudioDevicePropertyDeviceUID) : QString();
        if (!identifier.isEmpty() && !isMadeBySystem(identifier))
            devices.append({ device, { identifier, text(device, kAudioObjectPropertyName) } });
    }
    return devices;
}

HalMicrophones::DeviceID HalMicrophones::chosenDevice() const
{
    const auto chosen = std::find_if(m_devices.begin(), m_devices.end(),
        [this](const Device& device) { return device.microphone.identifier == m_chosen; });
    return chosen == m_devices.end() ? kAudioObjectUnknown : chosen->device;
}

HalMicrophones::DeviceID HalMicrophones::defaultDevice()
{
    return value<AudioObjectID>(kAudioObjectSystemObject, defaultInput)
        .value_or(kAudioObjectUnknown);
}

Microphones::State HalMicrophones::state()
{
    State state;
    for (const Device& device : m_devices)
        state.choices.append(device.microphone);
    DeviceID heard = chosenDevice();
    if (heard == kAudioObjectUnknown) {
        const auto systemsChoice = value<AudioObjectID>(kAudioObjectSystemObject, defaultInput);
        if (!systemsChoice)
            state.trouble = Trouble::NoAnswer;
        else if (*systemsChoice == kAudioObjectUnknown)
            state.trouble = Trouble::NoMicrophone;
        heard = systemsChoice.value_or(kAudioObjectUnknown);
    }
    if (heard == kAudioObjectUnknown)
        return state;
    state.heard = text(heard, kAudioObjectPropertyName);
    if (isMuted(heard))
        state.trouble = Trouble::Muted;
    return state;
}

void HalMicrophones::choose(const QString& identifier)
{
    m_chosen = identifier;
    m_changed.signal();
}

} // namespace Orvello
