#include "Orvello/Adapters/Linux/Sound/PulseSound.h"
#include "Orvello/Platform/Sound/SoundPlatform.h"

namespace Orvello {

namespace {

class LinuxSoundPlatform final : public SoundPlatform {
public:
    MicrophonePermission& microphonePermission() override { return m_sound.permission; }
    VoiceProcessing& voiceProcessing() override { return m_sound.voiceProcessing; }
    RawMicrophone& rawMicrophone() override { return m_sound.microphone; }
    AudioProcesses& audioProcesses() override { return m_sound.processes; }
    Microphones& microphones() override { return m_sound.microphones; }

private:
    PulseSound m_sound;
};

} // namespace

std::unique_ptr<SoundPlatform> SoundPlatform::create()
{
    return std::make_unique<LinuxSoundPlatform>();
}

} // namespace Orvello
