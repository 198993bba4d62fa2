#pragma once

#include <algorithm>
#include <span>

/// The arithmetic of the voice gate, in single precision throughout.
namespace Orvello::Loudness {

/// The root mean square of at least one sample. A sample that is not a number counts as silence; an
/// infinite one makes the result infinite.
[[nodiscard]] float rootMeanSquare(std::span<const float> samples) noexcept;

/// The loudness (full scale 1) that speech must exceed at a sensitivity, laid out for 0 to 1:
/// thirty decibels from -26 dBFS, which takes the loudest speech, down to -56 dBFS.
[[nodiscard]] float speechThreshold(double sensitivity) noexcept;

/// The sensitivity at which speech must exceed this loudness: the other way round.
[[nodiscard]] double sensitivityOf(float threshold) noexcept;

/// What the level indicator shows for a loudness: 0 for silence, 1 from 0.04 of full scale on.
[[nodiscard]] inline float levelTarget(float rootMeanSquare) noexcept
{
    return std::min(rootMeanSquare * 25.0f, 1.0f);
}

} // namespace Orvello::Loudness
