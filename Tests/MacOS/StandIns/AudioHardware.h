#pragma once

#include "Tests/MacOS/StandIns/CallRecord.h"

#include <CoreAudio/CoreAudio.h>

#include <cstdint>
#include <optional>
#include <vector>

namespace Orvello::Testing {

/// Stands in for the audio hardware layer: process objects, and a record of what is read of them.
/// Linked into a test in place of CoreAudio; one exists at a time.
class AudioHardware final {
public:
    struct Process {
        AudioObjectID object = 0;
        std::optional<std::int32_t> pid; ///< Nothing: reading it fails.
        std::optional<UInt32> isRunningInput; ///< The same.
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

    void addListener(AudioObjectPropertyListenerProc listener, void* client);
    void removeListener(AudioObjectPropertyListenerProc listener, void* client);
    std::size_t listenerCount() const { return m_listeners.size(); }
    void changeDefaultInput(AudioObjectID device);

    std::vector<Process> processes;
    AudioObjectID defaultInput = 77;
    OSStatus sizeStatus = noErr;
    OSStatus listStatus = noErr;
    std::size_t processesGoneInBetween = 0; ///< How many end between the two reads of the list.
    CallRecord calls;

private:
    struct Listener {
        AudioObjectPropertyListenerProc function;
        void* client;
        friend bool operator==(const Listener&, const Listener&) = default;
    };

    std::vector<Listener> m_listeners;
    OSStatus readList(UInt32& bytes, void* data) const;
};

} // namespace Orvello::Testing
