#pragma once

#include <QColor>
#include <QImage>

/// A soft outline around letters, made once with their picture.
namespace Orvello::TextOutline {

/// In pixels of the picture, which need not be squares.
struct Reach {
    int full = 0; ///< So far from the letters, the outline has all of its opacity.
    int soft = 0; ///< Beyond, it fades away within twice as much.

    int whole() const { return full + 2 * soft; }
};

/// The letters, which are premultiplied, with the outline around them. The picture must have room
/// for it.
[[nodiscard]] QImage around(
    const QImage& letters, const QColor& color, const Reach& across, const Reach& along);

} // namespace Orvello::TextOutline
