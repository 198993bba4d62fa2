#include "Orvello/Voice/VoiceActivityDetector.h"

#include "Orvello/Voice/Loudness.h"

namespace Orvello {

// The steps of a block, inline because the calls would cost more than a short block's samples.

inline float VoiceActivityDetector::thresholdAt(double sensitivity) noexcept
{
    if (sensitivity != m_sensitivity) {
        m_sensitivity = sensitivity;
        m_threshold = Loudness::speechThreshold(sensitivity);
    }
    return m_threshold;
}

inline bool VoiceActivityDetector::speakingAfterLoudBlock(double now) noexcept
{
    if (!m_aboveSince)
        m_aboveSince = now;
    if (now - *m_aboveSince < attackSeconds)
        return m_speakingInternal;
    m_silenceDeadline = now + hangoverSeconds;
    return true;
}

inline bool VoiceActivityDetector::speakingAfterQuietBlock(double now) noexcept
{
    m_aboveSince.reset();
    return m_speakingInternal && m_silenceDeadline >= now;
}

BlockReport VoiceActivityDetector::process(
    std::span<const float> samples, double sensitivity, double now) noexcept
{
    const float rootMeanSquare = Loudness::rootMeanSquare(samples);
    const float threshold = thresholdAt(sensitivity);
    const bool isLoud = rootMeanSquare > threshold;
    m_speakingInternal = isLoud ? speakingAfterLoudBlock(now) : speakingAfterQuietBlock(now);
    return BlockReport::ofBlock(
        Loudness::levelTarget(rootMeanSquare), m_speakingInternal, rootMeanSquare, threshold);
}

} // namespace Orvello
