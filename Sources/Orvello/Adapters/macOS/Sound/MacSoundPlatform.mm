#include "Orvello/Adapters/macOS/Sound/CapturePermission.h"
#include "Orvello/Adapters/macOS/Sound/EngineMicrophone.h"
#include "Orvello/Adapters/macOS/Sound/HalAudioProcesses.h"
#include "Orvello/Adapters/macOS/Sound/HalMicrophones.h"
#include "Orvello/Adapters/macOS/Sound/VoiceProcessingIO.h"
#include "Orvello/Platform/Sound/SoundPlatform.h"

#include <optional>

namespace Orvello {

namespace {

class MacSoundPlatform final : public SoundPlatform {
public:
    MacSoundPlatform()
    {
        m_microphones.setDeviceObserver([this] {
            if (m_rawMicrophone)
                m_rawMicrophone->onDeviceChanged();
        });
    }

    MicrophonePermission& microphonePermission() override { return m_microphonePermission; }
    VoiceProcessing& voiceProcessing() override { return m_voiceProcessing; }
    RawMicrophone& rawMicrophone() override
    {
        return m_rawMicrophone ? *m_rawMicrophone : m_rawMicrophone.emplace();
    }
    AudioProcesses& audioProcesses() override { return m_audioProcesses; }
    Microphones& microphones() override { return m_microphones; }

private:
    CapturePermission m_microphonePermission;
    VoiceProcessingIO m_voiceProcessing;
    std::optional<EngineMicrophone> m_rawMicrophone; ///< Nobody's until the microphone is wanted.
    HalAudioProcesses m_audioProcesses;
    HalMicrophones m_microphones;
};

} // namespace

std::unique_ptr<SoundPlatform> SoundPlatform::create()
{
    return std::make_unique<MacSoundPlatform>();
}

} // namespace Orvello
