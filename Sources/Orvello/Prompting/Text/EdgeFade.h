#pragma once

#include <array>
#include <vector>

/// How the prompter's text dissolves toward the card's edges: clear at the top, opaque from a tenth
/// of the height on, opaque until 82 % of it, clear at the bottom, evenly in between.
namespace Orvello::EdgeFade {

/// The heights between which the fade is linear, as shares of the card's height from its top.
inline constexpr std::array stops { 0.0, 0.1, 0.82, 1.0 };

/// From 0 (clear) to 1 (opaque) at a share of the card's height; clear outside the card.
[[nodiscard]] double visibilityAt(double height);

/// A part of the card from edge to edge in which the text is equally visible. In points.
struct Band {
    double top = 0;
    double bottom = 0;
    double visibility = 1;

    friend bool operator==(const Band&, const Band&) = default;
};

/// A band of several device pixels has at most this share of the text's opacity from edge to edge,
/// and one pixel's share.
inline constexpr double smallestStep = 1.0 / 64;

/// The card from top to bottom, without what is clear. The edges lie between device pixels, of
/// which there are `scale` in a point.
[[nodiscard]] std::vector<Band> bands(double cardHeight, double scale);

} // namespace Orvello::EdgeFade
