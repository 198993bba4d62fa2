#include "Orvello/Adapters/Linux/Sound/EchoRemoval.h"

#include <webrtc/modules/audio_processing/include/audio_processing.h>

namespace Orvello {

namespace {

webrtc::AudioProcessing* makeProcessing()
{
    webrtc::Config config;
    config.Set<webrtc::DelayAgnostic>(new webrtc::DelayAgnostic(true));
    config.Set<webrtc::ExtendedFilter>(new webrtc::ExtendedFilter(true));
    return webrtc::AudioProcessing::Create(config);
}

} // namespace

struct EchoRemoval::Library {
    webrtc::StreamConfig mono;
    std::unique_ptr<webrtc::AudioProcessing> processing;
};

EchoRemoval::EchoRemoval(int sampleRate)
    : m_library(new Library { .mono = { sampleRate, 1 },
        .processing = std::unique_ptr<webrtc::AudioProcessing>(makeProcessing()) })
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
    webrtc::EchoCancellation& echo = *m_library->processing->echo_cancellation();
    // Speech that stays behind opens the voice gate, and nobody listens to the result.
    if (const int error = echo.set_suppression_level(webrtc::EchoCancellation::kHighSuppression))
        return error;
    return echo.Enable(true);
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
