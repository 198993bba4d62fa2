#pragma once

#include "Tests/MacOS/StandIns/CallRecord.h"

#include <AudioToolbox/AudioToolbox.h>

#include <map>
#include <string>
#include <vector>

namespace Orvello::Testing {

/// Stands in for the system's audio components: a voice-processing unit that records each call.
/// Linked into a test in place of AudioToolbox; one exists at a time.
class VoiceUnit final {
public:
    VoiceUnit() { current() = this; }
    ~VoiceUnit() { current() = nullptr; }
    VoiceUnit(const VoiceUnit&) = delete;
    VoiceUnit& operator=(const VoiceUnit&) = delete;

    static VoiceUnit*& current();

    /// Records a call and answers it with its failure, if it is to fail.
    OSStatus answer(const std::string& call);

    /// What the unit's audio thread does: announces so many frames.
    OSStatus announce(UInt32 frames);

    /// What the unit does before it plays: asks for sound in these buffers.
    OSStatus askForSound(AudioBufferList* buffers) const;

    bool isPresent = true;
    bool givesNoInstance = false;
    /// What a call returns when it fails, by the beginning of the call's record.
    std::map<std::string, OSStatus> failures;
    std::vector<float> microphone; ///< What rendering delivers.
    CallRecord calls;

    // What the adapter set last.
    AURenderCallbackStruct inputCallback {};
    AURenderCallbackStruct renderCallback {};
};

} // namespace Orvello::Testing
