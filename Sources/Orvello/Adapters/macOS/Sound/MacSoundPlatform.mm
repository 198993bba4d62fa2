#include "Orvello/Adapters/macOS/Sound/EngineMicrophone.h"
#include "Orvello/Adapters/macOS/Sound/HalAudioProcesses.h"
#include "Orvello/Adapters/macOS/Sound/HalMicrophones.h"
#include "Orvello/Adapters/macOS/Sound/VoiceProcessingIO.h"
#include "Orvello/Platform/Sound/MicrophonePermission.h"
#include "Orvello/Platform/Sound/SoundPlatform.h"

#include <optional>

#import <AVFoundation/AVFoundation.h>

namespace Orvello {

namespace {

/// The user's decision about the microphone in System Settings, Privacy & Security.
class CapturePermission final : public MicrophonePermission {
public:
    Status status() const override
    {
        switch ([AVCaptureDevice authorizationStatusForMediaType:AVMediaTypeAudio]) {
        case AVAuthorizationStatusNotDetermined:
            return Status::NotDetermined;
        case AVAuthorizationStatusRestricted:
            return Status::Restricted;
        case AVAuthorizationStatusDenied:
            return Status::Denied;
        case AVAuthorizationStatusAuthorized:
            return Status::Authorized;
        }
        return Status::Denied; // A status that a later system added.
    }
    void request(std::function<void(bool isGranted)> completion) override
    {
        [AVCaptureDevice requestAccessForMediaType:AVMediaTypeAudio
                                 completionHandler:^(BOOL granted) { completion(granted); }];
    }
};

class MacSoundPlatform final : public SoundPlatform {
public:
    MacSoundPlatform()
    {
        m_microphones.setDeviceObserver([this] {
            m_voiceProcessing.onDeviceChanged();
            if (m_rawMicrophone)
                m_rawMicrophone->onDeviceChanged();
        });
    }

    MicrophonePermission& microphonePermission() override { return m_microphonePermission; }
    VoiceProcessing& voiceProcessing() override { return m_voiceProcessing; }
    RawMicrophone& rawMicrophone() override
    {
        return m_rawMicrophone ? *m_rawMicrophone : m_rawMicrophone.emplace(m_microphones);
    }
    AudioProcesses& audioProcesses() override { return m_audioProcesses; }
    Microphones& microphones() override { return m_microphones; }

private:
    HalMicrophones m_microphones;
    CapturePermission m_microphonePermission;
    VoiceProcessingIO m_voiceProcessing { m_microphones };
    std::optional<EngineMicrophone> m_rawMicrophone; ///< Nobody's until the microphone is wanted.
    HalAudioProcesses m_audioProcesses;
};

} // namespace

std::unique_ptr<SoundPlatform> SoundPlatform::create()
{
    return std::make_unique<MacSoundPlatform>();
}

} // namespace Orvello
