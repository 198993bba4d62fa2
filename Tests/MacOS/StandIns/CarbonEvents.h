#pragma once

#include "Tests/MacOS/StandIns/CallRecord.h"

#include <Carbon/Carbon.h>

#include <optional>

/// The key that a stand-in's press event carries.
struct OpaqueEventRef {
    std::optional<EventHotKeyID> key; ///< Nothing: it cannot be read.
};

namespace Orvello::Testing {

/// Stands in for the Carbon event manager and records what is asked of it. Linked into a test in
/// place of Carbon; one exists at a time.
class CarbonEvents final {
public:
    CarbonEvents() { current() = this; }
    ~CarbonEvents() { current() = nullptr; }
    CarbonEvents(const CarbonEvents&) = delete;
    CarbonEvents& operator=(const CarbonEvents&) = delete;

    static CarbonEvents*& current();

    /// Sends an event to the handler and returns what it answers.
    OSStatus press(std::optional<EventHotKeyID> key);

    bool refusesKeys = false;
    CallRecord calls;

    // What the adapter gave last.
    EventHandlerUPP handler = nullptr;
    void* userData = nullptr;
    int keys = 0; ///< How many keys have been registered; their numbers are the references.
};

} // namespace Orvello::Testing
