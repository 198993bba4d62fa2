#pragma once

#include <QColor>

/// Whether text can be read on a card that lets what lies under it through, and what helps it where
/// it cannot. Contrast is that of the Web Content Accessibility Guidelines: from 1 for the same
/// colour to 21 for white and black.
namespace Orvello::Legibility {

/// The least contrast for text of any size.
inline constexpr double smallestContrast = 4.5;

[[nodiscard]] double contrast(const QColor& one, const QColor& other);

/// What is seen of `under` through a black card of that opacity, from 0 to 1.
[[nodiscard]] QColor throughCard(const QColor& under, double cardOpacity);

/// What has to lie around letters of that colour, which is black and just opaque enough for the
/// contrast wherever the card stands. Transparent where the card alone is dark enough.
[[nodiscard]] QColor outlineOf(const QColor& text, double cardOpacity);

} // namespace Orvello::Legibility
