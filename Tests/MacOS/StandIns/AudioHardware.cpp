#include "Tests/MacOS/StandIns/AudioHardware.h"

#include <algorithm>
#include <cstring>
#include <string>

/// A text, which has one owner here.
struct __CFString {
    std::u16string text;
};

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

const AudioHardware::Device* AudioHardware::deviceWith(AudioObjectID object) const
{
    const auto device = std::find_if(devices.begin(), devices.end(),
        [object](const Device& candidate) { return candidate.object == object; });
    return device == devices.end() ? nullptr : &*device;
}

std::vector<AudioObjectID> AudioHardware::objectsOf(
    AudioObjectID object, const AudioObjectPropertyAddress& address) const
{
    std::vector<AudioObjectID> objects;
    if (address.mSelector == kAudioHardwarePropertyProcessObjectList)
        for (const Process& process : processes)
            objects.push_back(process.object);
    if (address.mSelector == kAudioHardwarePropertyDevices)
        for (const Device& device : devices)
            objects.push_back(device.object);
    if (address.mSelector == kAudioDevicePropertyStreams
        && address.mScope == kAudioObjectPropertyScopeInput)
        if (const Device* const device = deviceWith(object))
            objects.assign(device->inputStreams, 1000);
    return objects;
}

bool AudioHardware::hasProperty(
    AudioObjectID object, const AudioObjectPropertyAddress& address) const
{
    const Device* const device = deviceWith(object);
    return device && fourCharacters(address.mSelector) == "tapd"
        && address.mScope == kAudioObjectPropertyScopeOutput && device->deliversPlayedSound;
}

OSStatus AudioHardware::propertyDataSize(
    AudioObjectID object, const AudioObjectPropertyAddress& address, UInt32& bytes)
{
    calls.push_back("size " + described(object, address));
    if (sizeStatus == noErr)
        bytes = static_cast<UInt32>(objectsOf(object, address).size() * sizeof(AudioObjectID));
    return sizeStatus;
}

OSStatus AudioHardware::propertyData(
    AudioObjectID object, const AudioObjectPropertyAddress& address, UInt32& bytes, void* data)
{
    calls.push_back("read " + described(object, address) + ' ' + std::to_string(bytes));
    if (std::vector<AudioObjectID> objects = objectsOf(object, address); !objects.empty()) {
        if (address.mSelector == kAudioHardwarePropertyProcessObjectList && listStatus != noErr)
            return listStatus;
        objects.resize(objects.size() - std::min(goneInBetween, objects.size()));
        bytes = std::min(bytes, static_cast<UInt32>(objects.size() * sizeof(AudioObjectID)));
        if (bytes > 0)
            std::memcpy(data, objects.data(), bytes);
        return noErr;
    }
    if (address.mSelector == kAudioHardwarePropertyDefaultInputDevice
        && defaultInputStatus == noErr)
        return readValue(&defaultInput, sizeof defaultInput, bytes, data);
    const bool ofInput = address.mScope == kAudioObjectPropertyScopeInput;
    if (const Device* const device = deviceWith(object)) {
        if (address.mSelector == kAudioDevicePropertyDeviceUID)
            return readText(device->identifier, bytes, data);
        if (address.mSelector == kAudioObjectPropertyName)
            return readText(device->name, bytes, data);
        if (address.mSelector == kAudioDevicePropertyDeviceCanBeDefaultDevice && ofInput)
            return readValue(&device->canBeDefault, sizeof(UInt32), bytes, data);
        if (address.mSelector == kAudioDevicePropertyMute && ofInput && device->isMuted)
            return readValue(&*device->isMuted, sizeof(UInt32), bytes, data);
        return unknownProperty;
    }
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

OSStatus AudioHardware::readText(const std::u16string& text, UInt32& bytes, void* data)
{
    const CFStringRef string = new __CFString { text };
    ++stringsInUse;
    return readValue(&string, sizeof string, bytes, data);
}

void AudioHardware::tell(AudioObjectPropertySelector property) const
{
    const AudioObjectPropertyAddress address { property, kAudioObjectPropertyScopeGlobal,
        kAudioObjectPropertyElementMain };
    for (const Listener& listener : listeners) {
        if (listener.property == property)
            listener.function(kAudioObjectSystemObject, 1, &address, listener.client);
    }
}

void AudioHardware::changeDefaultInput(AudioObjectID device)
{
    defaultInput = device;
    tell(kAudioHardwarePropertyDefaultInputDevice);
}

void AudioHardware::connect(const Device& device)
{
    devices.push_back(device);
    tell(kAudioHardwarePropertyDevices);
}

void AudioHardware::disconnect(AudioObjectID object)
{
    std::erase_if(devices, [object](const Device& device) { return device.object == object; });
    tell(kAudioHardwarePropertyDevices);
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

OSStatus AudioObjectAddPropertyListener(AudioObjectID, const AudioObjectPropertyAddress* address,
    AudioObjectPropertyListenerProc listener, void* client)
{
    AudioHardware::current()->listeners.push_back({ address->mSelector, listener, client });
    return noErr;
}

OSStatus AudioObjectRemovePropertyListener(AudioObjectID, const AudioObjectPropertyAddress* address,
    AudioObjectPropertyListenerProc listener, void* client)
{
    std::erase(AudioHardware::current()->listeners,
        AudioHardware::Listener { address->mSelector, listener, client });
    return noErr;
}

Boolean AudioObjectHasProperty(AudioObjectID object, const AudioObjectPropertyAddress* address)
{
    return AudioHardware::current()->hasProperty(object, *address);
}

void CFRelease(CFTypeRef string)
{
    delete static_cast<CFStringRef>(string);
    --AudioHardware::current()->stringsInUse;
}

CFIndex CFStringGetLength(CFStringRef string) { return static_cast<CFIndex>(string->text.size()); }

void CFStringGetCharacters(CFStringRef string, CFRange range, UniChar* buffer)
{
    string->text.copy(reinterpret_cast<char16_t*>(buffer), static_cast<std::size_t>(range.length),
        static_cast<std::size_t>(range.location));
}
