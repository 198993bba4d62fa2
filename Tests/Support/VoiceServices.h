#pragma once

#include "Orvello/Voice/VoiceActivityEngine.h"
#include "Tests/Support/FakeMicActivity.h"
#include "Tests/Support/FakeMicrophonePermission.h"
#include "Tests/Support/FakeMicrophones.h"
#include "Tests/Support/FakeRawMicrophone.h"
#include "Tests/Support/FakeVoiceProcessing.h"
#include "Tests/Support/FakeWorkspace.h"
#include "Tests/Support/ManualTimeSource.h"

#include <string>
#include <vector>

namespace Orvello::Testing {

/// A voice engine over fakes, for what shows one.
struct VoiceServices {
    explicit VoiceServices(SettingsStore& settings)
        : voice(settings,
            { time, permission, voiceProcessing, rawMicrophone, micActivity, microphones,
                workspace })
    {
    }

    std::vector<std::string> journal;
    ManualTimeSource time;
    FakeMicrophonePermission permission;
    FakeVoiceProcessing voiceProcessing { journal };
    FakeRawMicrophone rawMicrophone { journal };
    FakeMicActivity micActivity;
    FakeMicrophones microphones;
    FakeWorkspace workspace;
    VoiceActivityEngine voice;
};

} // namespace Orvello::Testing
