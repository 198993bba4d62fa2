#pragma once

#include "Orvello/Adapters/Linux/Sound/GrantedMicrophonePermission.h"
#include "Orvello/Adapters/Linux/Sound/PulseAudioProcesses.h"
#include "Orvello/Adapters/Linux/Sound/PulseConnection.h"
#include "Orvello/Adapters/Linux/Sound/PulseMicrophone.h"
#include "Orvello/Adapters/Linux/Sound/PulseMicrophones.h"
#include "Orvello/Adapters/Linux/Sound/PulseVoiceProcessing.h"

namespace Orvello {

/// All sound on one connection. Making it starts the sound thread.
struct PulseSound {
    PulseConnection connection;
    PulseVoiceProcessing voiceProcessing { connection };
    PulseMicrophone microphone { connection };
    PulseAudioProcesses processes { connection };
    PulseMicrophones microphones { connection };
    GrantedMicrophonePermission permission;
};

} // namespace Orvello
