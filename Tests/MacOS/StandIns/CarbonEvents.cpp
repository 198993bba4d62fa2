#include "Tests/MacOS/StandIns/CarbonEvents.h"

#include <cstdint>
#include <cstring>
#include <string>

namespace Orvello::Testing {

CarbonEvents*& CarbonEvents::current()
{
    static CarbonEvents* events = nullptr;
    return events;
}

OSStatus CarbonEvents::press(std::optional<EventHotKeyID> key)
{
    OpaqueEventRef event { key };
    return handler(nullptr, &event, userData);
}

} // namespace Orvello::Testing

namespace {

using Orvello::Testing::CarbonEvents;
using Orvello::Testing::fourCharacters;

EventTargetRef applicationTarget()
{
    return reinterpret_cast<EventTargetRef>(std::uintptr_t { 1 });
}

EventHandlerRef installedHandler()
{
    return reinterpret_cast<EventHandlerRef>(std::uintptr_t { 77 });
}

std::string nameOf(EventTargetRef target)
{
    return target == applicationTarget() ? "application" : "another target";
}

void record(const std::string& call) { CarbonEvents::current()->calls.push_back(call); }

} // namespace

EventTargetRef GetApplicationEventTarget() { return applicationTarget(); }

OSStatus InstallEventHandler(EventTargetRef target, EventHandlerUPP handler, ItemCount count,
    const EventTypeSpec* list, void* userData, EventHandlerRef* reference)
{
    std::string call = "install on " + nameOf(target);
    for (ItemCount i = 0; i < count; ++i)
        call += ' ' + fourCharacters(list[i].eventClass) + ' ' + std::to_string(list[i].eventKind);
    record(call);
    CarbonEvents::current()->handler = handler;
    CarbonEvents::current()->userData = userData;
    *reference = installedHandler();
    return noErr;
}

OSStatus RemoveEventHandler(EventHandlerRef reference)
{
    record(reference == installedHandler() ? "remove handler" : "remove something else");
    return noErr;
}

OSStatus RegisterEventHotKey(UInt32 keyCode, UInt32 modifiers, EventHotKeyID id,
    EventTargetRef target, OptionBits options, EventHotKeyRef* reference)
{
    record("register " + std::to_string(keyCode) + ' ' + std::to_string(modifiers) + ' '
        + fourCharacters(id.signature) + ' ' + std::to_string(id.id) + " on " + nameOf(target)
        + " options " + std::to_string(options));
    if (CarbonEvents::current()->refusesKeys)
        return -9878;
    const int number = ++CarbonEvents::current()->keys;
    *reference = reinterpret_cast<EventHotKeyRef>(static_cast<std::uintptr_t>(number));
    return noErr;
}

OSStatus UnregisterEventHotKey(EventHotKeyRef key)
{
    record("unregister " + std::to_string(reinterpret_cast<std::uintptr_t>(key)));
    return noErr;
}

OSStatus GetEventParameter(EventRef event, EventParamName name, EventParamType type,
    EventParamType*, ByteCount size, ByteCount*, void* data)
{
    record("parameter " + fourCharacters(name) + ' ' + fourCharacters(type) + ' '
        + std::to_string(size));
    if (!event->key)
        return -9870;
    std::memcpy(data, &*event->key, sizeof *event->key);
    return noErr;
}
