#include "Orvello/Adapters/macOS/Sound/HalProperties.h"

#include <memory>

namespace Orvello {

std::vector<AudioObjectID> HalProperties::objects(
    AudioObjectID object, const AudioObjectPropertyAddress& address)
{
    UInt32 bytes = 0;
    if (AudioObjectGetPropertyDataSize(object, &address, 0, nullptr, &bytes) != noErr || bytes == 0)
        return {};
    std::vector<AudioObjectID> objects(bytes / sizeof(AudioObjectID));
    if (AudioObjectGetPropertyData(object, &address, 0, nullptr, &bytes, objects.data()) != noErr)
        return {};
    objects.resize(bytes / sizeof(AudioObjectID)); // Some may have gone between the two calls.
    return objects;
}

QString HalProperties::text(AudioObjectID object, AudioObjectPropertySelector selector)
{
    // The caller's to release.
    const std::unique_ptr<const __CFString, decltype(&CFRelease)> string(
        value<CFStringRef>(object, address(selector)).value_or(nullptr), &CFRelease);
    if (!string)
        return {};
    QString text(CFStringGetLength(string.get()), Qt::Uninitialized);
    CFStringGetCharacters(
        string.get(), { 0, text.size() }, reinterpret_cast<UniChar*>(text.data()));
    return text;
}

} // namespace Orvello
