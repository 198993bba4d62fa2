#include "Orvello/Adapters/Linux/Sound/EchoCanceller.h"

#include <algorithm>
#include <cmath>

#include <webrtc/modules/audio_processing/include/audio_processing.h>

namespace Orvello {

namespace {

/// Only where the search begins: the canceller looks for the delay itself.
constexpr int assumedDelayMilliseconds = 50;

/// Quieter than the last bit of 16-bit sound: nothing that a microphone could hear again.
constexpr float audible = 1.0f / 65536;

/// The longest echo, with the time that the two streams may be apart.
constexpr int framesOfEcho = 300;

const webrtc::StreamConfig mono(EchoCanceller::sampleRate, 1);

/// One sample that is not a number would stay in the adaptive filter for good.
void makeSound(std::span<float> frame)
{
    for (float& sample : frame)
        sample = std::isfinite(sample) ? std::clamp(sample, -1.0f, 1.0f) : 0.0f;
}

std::unique_ptr<webrtc::AudioProcessing> makeProcessing()
{
    webrtc::Config config;
    config.Set<webrtc::DelayAgnostic>(new webrtc::DelayAgnostic(true));
    config.Set<webrtc::ExtendedFilter>(new webrtc::ExtendedFilter(true));
    return std::unique_ptr<webrtc::AudioProcessing>(webrtc::AudioProcessing::Create(config));
}

} // namespace

EchoCanceller::EchoCanceller()
    : m_processing(makeProcessing())
    , m_framesSinceFarEnd(framesOfEcho)
{
}

EchoCanceller::~EchoCanceller() = default;

int EchoCanceller::initialize()
{
    webrtc::ProcessingConfig formats;
    for (webrtc::StreamConfig& format : formats.streams)
        format = mono;
    if (const int error = m_processing->Initialize(formats))
        return error;
    webrtc::EchoCancellation& echo = *m_processing->echo_cancellation();
    // Speech that stays behind opens the voice gate, and nobody listens to the result.
    if (const int error = echo.set_suppression_level(webrtc::EchoCancellation::kHighSuppression))
        return error;
    return echo.Enable(true);
}

void EchoCanceller::hearFarEnd(std::span<const float> samples)
{
    m_farEnd.add(samples, [this](std::span<float> frame) {
        makeSound(frame);
        if (std::any_of(frame.begin(), frame.end(),
                [](float sample) { return std::abs(sample) >= audible; }))
            m_framesSinceFarEnd = 0;
        if (!isFarEndAudible())
            return;
        float* const channel = frame.data();
        m_processing->ProcessReverseStream(&channel, mono, mono, &channel);
    });
}

void EchoCanceller::process(std::span<float> frame)
{
    makeSound(frame);
    // Most of the time nothing is played, and to find no echo costs as much as to remove one.
    if (!isFarEndAudible())
        return;
    ++m_framesSinceFarEnd;
    float* const channel = frame.data();
    m_processing->set_stream_delay_ms(assumedDelayMilliseconds);
    m_processing->ProcessStream(&channel, mono, mono, &channel);
}

bool EchoCanceller::isFarEndAudible() const { return m_framesSinceFarEnd < framesOfEcho; }

} // namespace Orvello
