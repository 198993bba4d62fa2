#pragma once

#include <memory>

namespace Orvello {

class AudioProcesses;
class MicrophonePermission;
class Microphones;
class RawMicrophone;
class VoiceProcessing;

/// The third step: sound. Whatever it returns by reference lives as long as the platform.
class SoundPlatform {
public:
    /// After the application object. May start a thread.
    static std::unique_ptr<SoundPlatform> create();

    virtual ~SoundPlatform() = default;

    virtual MicrophonePermission& microphonePermission() = 0;
    virtual VoiceProcessing& voiceProcessing() = 0;
    virtual RawMicrophone& rawMicrophone() = 0;
    virtual AudioProcesses& audioProcesses() = 0;
    virtual Microphones& microphones() = 0;
};

} // namespace Orvello
