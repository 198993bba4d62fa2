#include "Orvello/Adapters/Linux/Sound/EchoRemoval.h"

#include <modules/audio_processing/include/audio_processing.h>

namespace Orvello {

struct EchoRemoval::Library {
    webrtc::StreamConfig mono;
    rtc::scoped_refptr<webrtc::AudioProcessing> processing;
};

EchoRemoval::EchoRemoval(int sampleRate)
    : m_library(new Library {
        .mono = { sampleRate, 1 }, .processing = webrtc::AudioProcessingBuilder().Create() })
{
}

EchoRemoval::~EchoRemoval() = default;

int EchoRemoval::initialize()
{
    webrtc::ProcessingConfig formats;
    for (webrtc::StreamConfig& format : formats.streams)
        format = m_library->mono;
    if (const int error = m_library->processing->Initialize(formats))
        return error;
    webrtc::AudioProcessing::Config config;
    config.echo_canceller.enabled = true;
    config.residual_echo_detector.enabled = false; // It measures only.
    m_library->processing->ApplyConfig(config);
    return webrtc::AudioProcessing::kNoError;
}

void EchoRemoval::hearFarEnd(float* frame)
{
    m_library->processing->ProcessReverseStream(&frame, m_library->mono, m_library->mono, &frame);
}

void EchoRemoval::process(float* frame, int delayMilliseconds)
{
    m_library->processing->set_stream_delay_ms(delayMilliseconds);
    m_library->processing->ProcessStream(&frame, m_library->mono, m_library->mono, &frame);
}

} // namespace Orvello
