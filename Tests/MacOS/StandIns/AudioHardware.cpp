#include "Tests/MacOS/StandIns/AudioHardware.h"

#include <algorithm>
#include <cstring>
#include <string>

namespace Orvello::Testing {

namespace {

constexpr OSStatus unknownProperty = 0x77686F3F; // 'who?'

std::string described(AudioObjectID object, const AudioObjectPropertyAddress& address)
{
    return std::to_string(object) + ' ' + fourCharacters(address.mSelector) + ' '
        + fourCharacters(address.mScope) + ' ' + std::to_string(address.mElement);
}

OSStatus readValue(const void* value, UInt32 size, UInt32& bytes, void* data)
{
    if (bytes < size)
        return unknownProperty;
    std::memcpy(data, value, size);
    bytes = size;
    return noErr;
}

} // namespace

AudioHardware*& AudioHardware::current()
{
    static AudioHardware* hardware = nullptr;
    return hardware;
}

OSStatus AudioHardware::propertyDataSize(
    AudioObjectID object, const AudioObjectPropertyAddress& address, UInt32& bytes)
{
    calls.push_back("size " + described(object, address));
    if (sizeStatus == noErr)
        bytes = static_cast<UInt32>(processes.size() * sizeof(AudioObjectID));
    return sizeStatus;
}

OSStatus AudioHardware::propertyData(
    AudioObjectID object, const AudioObjectPropertyAddress& address, UInt32& bytes, void* data)
{
    calls.push_back("read " + described(object, address) + ' ' + std::to_string(bytes));
    if (address.mSelector == kAudioHardwarePropertyProcessObjectList)
        return listStatus == noErr ? readList(bytes, data) : listStatus;
    if (address.mSelector == kAudioHardwarePropertyDefaultInputDevice)
        return readValue(&defaultInput, sizeof defaultInput, bytes, data);
    const auto process = std::find_if(processes.begin(), processes.end(),
        [object](const Process& candidate) { return candidate.object == object; });
    if (process == processes.end())
        return unknownProperty;
    if (address.mSelector == kAudioProcessPropertyPID && process->pid)
        return readValue(&*process->pid, sizeof *process->pid, bytes, data);
    if (address.mSelector == kAudioProcessPropertyIsRunningInput && process->isRunningInput)
        return readValue(&*process->isRunningInput, sizeof(UInt32), bytes, data);
    return unknownProperty;
}

OSStatus AudioHardware::readList(UInt32& bytes, void* data) const
{
    std::vector<AudioObjectID> objects;
    for (std::size_t i = 0; i + processesGoneInBetween < processes.size(); ++i)
        objects.push_back(processes[i].object);
    bytes = std::min(bytes, static_cast<UInt32>(objects.size() * sizeof(AudioObjectID)));
    if (bytes > 0)
        std::memcpy(data, objects.data(), bytes);
    return noErr;
}

void AudioHardware::addListener(AudioObjectPropertyListenerProc listener, void* client)
{
    m_listeners.push_back({ listener, client });
}

void AudioHardware::removeListener(AudioObjectPropertyListenerProc listener, void* client)
{
    std::erase(m_listeners, Listener { listener, client });
}

void AudioHardware::changeDefaultInput(AudioObjectID device)
{
    constexpr AudioObjectPropertyAddress address { kAudioHardwarePropertyDefaultInputDevice,
        kAudioObjectPropertyScopeGlobal, kAudioObjectPropertyElementMain };
    defaultInput = device;
    for (const Listener& listener : m_listeners)
        listener.function(kAudioObjectSystemObject, 1, &address, listener.client);
}

} // namespace Orvello::Testing

using Orvello::Testing::AudioHardware;

OSStatus AudioObjectGetPropertyDataSize(AudioObjectID object,
    const AudioObjectPropertyAddress* address, UInt32, const void*, UInt32* bytes)
{
    return AudioHardware::current()->propertyDataSize(object, *address, *bytes);
}

OSStatus AudioObjectGetPropertyData(AudioObjectID object, const AudioObjectPropertyAddress* address,
    UInt32, const void*, UInt32* bytes, void* data)
{
    return AudioHardware::current()->propertyData(object, *address, *bytes, data);
}

OSStatus AudioObjectAddPropertyListener(AudioObjectID, const AudioObjectPropertyAddress*,
    AudioObjectPropertyListenerProc listener, void* client)
{
    AudioHardware::current()->addListener(listener, client);
    return noErr;
}

OSStatus AudioObjectRemovePropertyListener(AudioObjectID, const AudioObjectPropertyAddress*,
    AudioObjectPropertyListenerProc listener, void* client)
{
    AudioHardware::current()->removeListener(listener, client);
    return noErr;
}
