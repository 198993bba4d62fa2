#include "Tests/EndToEnd/WebRtcDetector.h"

#include <modules/audio_processing/include/audio_processing.h>

namespace Orvello::Testing {

struct WebRtcDetector::Library {
    webrtc::StreamConfig mono { sampleRate, 1 };
    rtc::scoped_refptr<webrtc::AudioProcessing> processing
        = webrtc::AudioProcessingBuilder().Create();
};

WebRtcDetector::WebRtcDetector()
    : m_library(std::make_unique<Library>())
{
    webrtc::AudioProcessing::Config config;
    config.voice_detection.enabled = true;
    m_library->processing->ApplyConfig(config);
}

WebRtcDetector::~WebRtcDetector() = default;

bool WebRtcDetector::hearsVoice(float* frame)
{
    m_library->processing->ProcessStream(&frame, m_library->mono, m_library->mono, &frame);
    return m_library->processing->GetStatistics().voice_detected.value_or(false);
}

} // namespace Orvello::Testing
