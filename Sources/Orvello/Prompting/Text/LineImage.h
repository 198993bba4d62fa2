#pragma once

#include "Orvello/Prompting/Text/PromptLayout.h"

#include <QColor>
#include <QImage>
#include <QRectF>

namespace Orvello {

/// A line of the prompter's text as pixels, ready to be drawn at any fraction of a pixel of height.
struct LineImage {
    /// Rows for each device pixel. With two, a line that stands between pixels is as sharp as one
    /// that does not: drawn with linear filtering, a pixel is the mean of the rows that it covers.
    static constexpr int rowsPerPixel = 2;

    QImage pixels; ///< Premultiplied; null for a line without a mark.
    QRectF place; ///< In points, from the frame's left edge and the line's baseline.

    /// Draws the line at the typography's scaled size, with a soft outline unless that is
    /// transparent. `scale` is the number of device pixels for each point.
    [[nodiscard]] static LineImage of(const PromptLine& line, const PromptTypography& typography,
        const QColor& color, double scale, const QColor& outline = Qt::transparent);
};

} // namespace Orvello
