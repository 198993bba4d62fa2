#pragma once

#include "Orvello/Adapters/Linux/Sound/EchoRemoval.h"
#include "Orvello/Adapters/Linux/Sound/SampleBlocks.h"

#include <cstddef>
#include <span>

namespace Orvello {

/// Removes what the computer plays from what its microphone hears, by WebRTC audio processing,
/// which finds the delay between the two by itself. One thread.
class EchoCanceller {
public:
    static constexpr int sampleRate = 48000;
    static constexpr std::size_t frameSamples = sampleRate / 100; ///< Processed at a time.

    EchoCanceller();

    /// Makes it ready; 0, or WebRTC's error number.
    int initialize();

    /// Any number of samples of what is played.
    void hearFarEnd(std::span<const float> samples);

    /// Cleans `frameSamples` samples of the microphone in place.
    void process(std::span<float> frame);

private:
    bool isFarEndAudible() const;

    EchoRemoval m_removal { sampleRate };
    SampleBlocks m_farEnd { frameSamples };
    int m_framesSinceFarEnd; ///< Microphone frames since something audible was played.
};

} // namespace Orvello
