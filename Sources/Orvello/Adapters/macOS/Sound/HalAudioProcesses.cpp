#include "Orvello/Adapters/macOS/Sound/HalAudioProcesses.h"

#include <optional>
#include <sys/types.h>
#include <vector>

#include <CoreAudio/CoreAudio.h>

namespace Orvello {

namespace {

constexpr AudioObjectPropertyAddress globalProperty(AudioObjectPropertySelector selector)
{
    return { selector, kAudioObjectPropertyScopeGlobal, kAudioObjectPropertyElementMain };
}

std::vector<AudioObjectID> processObjects()
{
    constexpr AudioObjectPropertyAddress list
        = globalProperty(kAudioHardwarePropertyProcessObjectList);
    UInt32 bytes = 0;
    if (AudioObjectGetPropertyDataSize(kAudioObjectSystemObject, &list, 0, nullptr, &bytes) != noErr
        || bytes == 0)
        return {};
    std::vector<AudioObjectID> objects(bytes / sizeof(AudioObjectID));
    if (AudioObjectGetPropertyData(
            kAudioObjectSystemObject, &list, 0, nullptr, &bytes, objects.data())
        != noErr)
        return {};
    // A process may have gone between the two calls.
    objects.resize(bytes / sizeof(AudioObjectID));
    return objects;
}

template <typename Value>
std::optional<Value> property(AudioObjectID object, AudioObjectPropertySelector selector)
{
    const AudioObjectPropertyAddress address = globalProperty(selector);
    Value value {};
    UInt32 bytes = sizeof value;
    if (AudioObjectGetPropertyData(object, &address, 0, nullptr, &bytes, &value) != noErr)
        return std::nullopt;
    return value;
}

} // namespace

QList<qint64> HalAudioProcesses::capturingInput()
{
    QList<qint64> processes;
    for (const AudioObjectID object : processObjects()) {
        const auto process = property<pid_t>(object, kAudioProcessPropertyPID);
        if (!process)
            continue;
        if (property<UInt32>(object, kAudioProcessPropertyIsRunningInput).value_or(0) != 0)
            processes.append(*process);
    }
    return processes;
}

} // namespace Orvello
