#pragma once

#include "Orvello/Platform/Linux/GrantedMicrophonePermission.h"
#include "Orvello/Platform/Linux/PulseAudioProcesses.h"
#include "Orvello/Platform/Linux/PulseConnection.h"
#include "Orvello/Platform/Linux/PulseMicrophone.h"
#include "Orvello/Platform/Linux/PulseVoiceProcessing.h"

namespace Orvello {

/// All sound on one connection. Making it starts the sound thread.
struct PulseSound {
    PulseConnection connection;
    PulseVoiceProcessing voiceProcessing { connection };
    PulseMicrophone microphone { connection };
    PulseAudioProcesses processes { connection };
    GrantedMicrophonePermission permission;
};

} // namespace Orvello
