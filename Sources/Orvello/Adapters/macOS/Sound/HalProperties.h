#pragma once

#include <QString>

#include <optional>
#include <vector>

#include <CoreAudio/CoreAudio.h>

/// Properties of the audio hardware layer's objects. Reading one that an object does not have is no
/// error, but an answer: nothing.
namespace Orvello::HalProperties {

constexpr AudioObjectPropertyAddress address(AudioObjectPropertySelector selector,
    AudioObjectPropertyScope scope = kAudioObjectPropertyScopeGlobal)
{
    return { selector, scope, kAudioObjectPropertyElementMain };
}

template <typename Value>
[[nodiscard]] std::optional<Value> value(
    AudioObjectID object, const AudioObjectPropertyAddress& address)
{
    Value value {};
    UInt32 bytes = sizeof value;
    if (AudioObjectGetPropertyData(object, &address, 0, nullptr, &bytes, &value) != noErr)
        return std::nullopt;
    return value;
}

/// Empty where there are none.
[[nodiscard]] std::vector<AudioObjectID> objects(
    AudioObjectID object, const AudioObjectPropertyAddress& address);

[[nodiscard]] QString text(AudioObjectID object, AudioObjectPropertySelector selector);

} // namespace Orvello::HalProperties
