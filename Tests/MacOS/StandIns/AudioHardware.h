#pragma once

#include "Tests/MacOS/StandIns/CallRecord.h"

#include <CoreAudio/CoreAudio.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace Orvello::Testing {

/// Stands in for the audio hardware layer: devices and process objects, and a record of what is
/// read of them. Linked into a test in place of CoreAudio and of CoreFoundation's texts; one exists
/// at a time.
class AudioHardware final {
public:
    struct Process {
        AudioObjectID object = 0;
        std::optional<std::int32_t> pid; ///< Nothing: reading it fails.
        std::optional<UInt32> isRunningInput; ///< The same.
    };

    struct Device {
        AudioObjectID object = 0;
        std::u16string identifier;
        std::u16string name;
        std::size_t inputStreams = 1;
        UInt32 canBeDefault = 1;
        std::optional<UInt32> isMuted = {}; ///< Nothing: it has no such switch.
        bool deliversPlayedSound = false; ///< A loudspeaker, for echo cancellers.
    };

    AudioHardware() { current() = this; }
    ~AudioHardware() { current() = nullptr; }
    AudioHardware(const AudioHardware&) = delete;
    AudioHardware& operator=(const AudioHardware&) = delete;

    static AudioHardware*& current();

    OSStatus propertyDataSize(
        AudioObjectID object, const AudioObjectPropertyAddress& address, UInt32& bytes);
    OSStatus propertyData(
        AudioObjectID object, const AudioObjectPropertyAddress& address, UInt32& bytes, void* data);

    bool hasProperty(AudioObjectID object, const AudioObjectPropertyAddress& address) const;

    struct Listener {
        AudioObjectPropertySelector property;
        AudioObjectPropertyListenerProc function;
        void* client;
        friend bool operator==(const Listener&, const Listener&) = default;
    };
    std::vector<Listener> listeners;

    void changeDefaultInput(AudioObjectID device);
    void connect(const Device& device);
    void disconnect(AudioObjectID device);

    std::vector<Device> devices;
    std::vector<Process> processes;
    AudioObjectID defaultInput = 77;
    OSStatus defaultInputStatus = noErr;
    OSStatus sizeStatus = noErr;
    OSStatus listStatus = noErr;
    std::size_t goneInBetween = 0; ///< How many objects go between the two reads of a list.
    CallRecord calls;

    int stringsInUse = 0; ///< Texts that were handed out and not released.

private:
    const Device* deviceWith(AudioObjectID object) const;
    std::vector<AudioObjectID> objectsOf(
        AudioObjectID object, const AudioObjectPropertyAddress& address) const;
    OSStatus readText(const std::u16string& text, UInt32& bytes, void* data);
    void tell(AudioObjectPropertySelector property) const;
};

} // namespace Orvello::Testing
