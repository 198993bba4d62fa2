#include "Orvello/Adapters/Linux/Sound/EchoCanceller.h"

#include <algorithm>
#include <cmath>

namespace Orvello {

namespace {

/// Only where the search begins: the canceller looks for the delay itself.
constexpr int assumedDelayMilliseconds = 50;

/// Quieter than the last bit of 16-bit sound: nothing that a microphone could hear again.
constexpr float audible = 1.0f / 65536;

/// The longest echo, including the time by which the two streams may differ.
constexpr int framesOfEcho = 300;

/// One sample that is not a number would stay in the adaptive filter for good.
void makeSound(std::span<float> frame)
{
    for (float& sample : frame)
        sample = std::isfinite(sample) ? std::clamp(sample, -1.0f, 1.0f) : 0.0f;
}

} // namespace

EchoCanceller::EchoCanceller()
    : m_framesSinceFarEnd(framesOfEcho)
{
}

int EchoCanceller::initialize() { return m_removal.initialize(); }

void EchoCanceller::hearFarEnd(std::span<const float> samples)
{
    m_farEnd.add(samples, [this](std::span<float> frame) {
        makeSound(frame);
        if (std::any_of(frame.begin(), frame.end(),
                [](float sample) { return std::abs(sample) >= audible; }))
            m_framesSinceFarEnd = 0;
        if (isFarEndAudible())
            m_removal.hearFarEnd(frame.data());
    });
}

void EchoCanceller::process(std::span<float> frame)
{
    makeSound(frame);
    // Most of the time nothing is played, and finding no echo costs as much as removing one.
    if (!isFarEndAudible())
        return;
    ++m_framesSinceFarEnd;
    m_removal.process(frame.data(), assumedDelayMilliseconds);
}

bool EchoCanceller::isFarEndAudible() const { return m_framesSinceFarEnd < framesOfEcho; }

} // namespace Orvello
