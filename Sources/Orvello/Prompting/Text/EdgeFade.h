#pragma once

#include <array>

/// How the prompter's text dissolves toward the card's edges: clear at the top, opaque from a tenth
/// of the height on, opaque until 82 % of it, clear at the bottom, evenly in between.
namespace Orvello::EdgeFade {

/// The heights between which the fade is linear, as shares of the card's height from its top.
inline constexpr std::array stops { 0.0, 0.1, 0.82, 1.0 };

/// From 0 (clear) to 1 (opaque) at a share of the card's height; clear outside the card.
[[nodiscard]] double visibilityAt(double height);

} // namespace Orvello::EdgeFade
