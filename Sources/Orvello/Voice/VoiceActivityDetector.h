#pragma once

#include "Orvello/Voice/BlockReport.h"

#include <limits>
#include <optional>
#include <span>

namespace Orvello {

/// Decides from loudness alone whether somebody speaks: an attack time keeps a click from counting,
/// a hangover bridges the breaths. Belongs to the thread that delivers the audio; takes no lock and
/// no memory.
class VoiceActivityDetector {
public:
    static constexpr double attackSeconds = 0.1;
    static constexpr double hangoverSeconds = 0.7;

    /// Takes one block of at least one sample. `now` is the monotonic time in seconds.
    BlockReport process(std::span<const float> samples, double sensitivity, double now) noexcept;

    /// Forgets that somebody is speaking, but not how long it has been loud. Any thread, while no
    /// process() runs.
    void stopSpeaking() noexcept { m_speakingInternal = false; }

    /// Takes the next block for the first. The thread of process().
    void forget() noexcept
    {
        m_speakingInternal = false;
        m_aboveSince.reset();
    }

private:
    float thresholdAt(double sensitivity) noexcept;
    bool speakingAfterLoudBlock(double now) noexcept;
    bool speakingAfterQuietBlock(double now) noexcept;

    bool m_speakingInternal = false;
    std::optional<double> m_aboveSince; ///< Start of the current run of loud blocks.
    double m_silenceDeadline = 0; ///< Until this moment, quiet blocks do not end speaking.

    // The threshold of the latest sensitivity: the exponential is the most expensive step of a
    // short block.
    double m_sensitivity = std::numeric_limits<double>::quiet_NaN();
    float m_threshold = 0;
};

} // namespace Orvello
