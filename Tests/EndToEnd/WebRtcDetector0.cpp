#include "Tests/EndToEnd/WebRtcDetector.h"

#include <webrtc/modules/audio_processing/include/audio_processing.h>

namespace Orvello::Testing {

struct WebRtcDetector::Library {
    webrtc::StreamConfig mono { sampleRate, 1 };
    std::unique_ptr<webrtc::AudioProcessing> processing
        = std::unique_ptr<webrtc::AudioProcessing>(webrtc::AudioProcessing::Create());
};

WebRtcDetector::WebRtcDetector()
    : m_library(std::make_unique<Library>())
{
    webrtc::VoiceDetection& detection = *m_library->processing->voice_detection();
    detection.Enable(true);
    detection.set_likelihood(webrtc::VoiceDetection::kModerateLikelihood);
}

WebRtcDetector::~WebRtcDetector() = default;

bool WebRtcDetector::hearsVoice(float* frame)
{
    m_library->processing->ProcessStream(&frame, m_library->mono, m_library->mono, &frame);
    return m_library->processing->voice_detection()->stream_has_voice();
}

} // namespace Orvello::Testing
