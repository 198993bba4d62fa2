#pragma once

#include "Orvello/Settings/Store/SettingsStore.h"
#include "Orvello/Voice/VoiceActivityEngine.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeMicActivity.h"
#include "Tests/Support/FakeMicrophonePermission.h"
#include "Tests/Support/FakeMicrophones.h"
#include "Tests/Support/FakeRawMicrophone.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/FakeVoiceProcessing.h"
#include "Tests/Support/FakeWorkspace.h"
#include "Tests/Support/LogCapture.h"
#include "Tests/Support/ManualTimeSource.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

namespace Orvello {

/// An engine on fakes, in a quiet environment with permission granted.
class VoiceFixture : public ::testing::Test {
protected:
    using Lines = std::vector<std::string>;

    void runZoom() { workspace.running = { zoom }; }

    /// Hears one block on whichever path runs and lets the main loop learn of it.
    void hear(float sample, std::size_t frames = 480)
    {
        hearUnnoticed(sample, frames);
        Testing::drainEvents();
    }

    void hearUnnoticed(float sample, std::size_t frames = 480)
    {
        const std::vector<float> samples(frames, sample);
        voiceProcessing.hear(samples);
        microphone.hear(samples);
    }

    /// Loud blocks until the gate must be open.
    void speak()
    {
        hear(loud);
        time.advance(0.125);
        hear(loud);
    }

    static constexpr float loud = 0.1f;
    static constexpr float quiet = 0.0f;
    const RunningApplication zoom { QStringLiteral("us.zoom.xos"), QStringLiteral("Zoom") };

    std::vector<std::string> journal;
    Testing::ManualTimeSource time;
    Testing::FakeMicrophonePermission permission;
    Testing::FakeVoiceProcessing voiceProcessing { journal };
    Testing::FakeRawMicrophone microphone { journal };
    Testing::FakeMicActivity micActivity;
    Testing::FakeMicrophones microphones;
    Testing::FakeWorkspace workspace;
    Testing::FakeUserDefaults defaults;
    SettingsStore settings { defaults };
    Testing::LogCapture log;
    std::unique_ptr<VoiceActivityEngine> engine = std::make_unique<VoiceActivityEngine>(settings,
        VoiceActivityEngine::Ports {
            time, permission, voiceProcessing, microphone, micActivity, microphones, workspace });
};

} // namespace Orvello
