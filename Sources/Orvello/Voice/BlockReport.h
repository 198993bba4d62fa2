#pragma once

namespace Orvello {

/// What one block of samples, or a run of them, means for the published values.
struct BlockReport {
    /// Smoothing that turns the level before into the level after: level * decay + gain.
    float levelDecay = 1;
    float levelGain = 0;

    bool isSpeaking = false;

    /// Loudness of the first block with this `isSpeaking`, for the log.
    float rootMeanSquare = 0;
    float threshold = 0;

    /// The report of one block that pulls the level towards `levelTarget`.
    static BlockReport ofBlock(
        float levelTarget, bool isSpeaking, float rootMeanSquare, float threshold) noexcept
    {
        return { 0.7f, levelTarget * 0.3f, isSpeaking, rootMeanSquare, threshold };
    }

    [[nodiscard]] float smoothed(float level) const noexcept
    {
        return level * levelDecay + levelGain;
    }

    /// Continues this report with the one after it. A change of `isSpeaking` in between is lost.
    void append(const BlockReport& next) noexcept
    {
        levelGain = levelGain * next.levelDecay + next.levelGain;
        levelDecay *= next.levelDecay;
        if (isSpeaking != next.isSpeaking) {
            isSpeaking = next.isSpeaking;
            rootMeanSquare = next.rootMeanSquare;
            threshold = next.threshold;
        }
    }
};

} // namespace Orvello
