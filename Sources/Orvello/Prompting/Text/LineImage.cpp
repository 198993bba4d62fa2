#include "Orvello/Prompting/Text/LineImage.h"

#include "Orvello/Prompting/Text/TextOutline.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace Orvello {

namespace {

/// The longest side of a picture; every renderer takes a slightly larger one as a texture.
constexpr double largestSide = 4000;

/// The box that holds all glyphs, in points from the frame's left edge and the baseline. Stacked
/// accents and leaning letters may leave their own boxes by half the font's size.
QRectF roomFor(const QTextLine& line)
{
    const double reach = 0.5 * line.height();
    const QRectF box = line.naturalTextRect();
    return box.translated(0, -line.ascent()).adjusted(-reach, -reach, reach, reach);
}

bool isClear(const QImage& image, const QRect& area)
{
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const auto* const row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = area.left(); x <= area.right(); ++x) {
            if (row[x] != 0)
                return false;
        }
    }
    return true;
}

/// The part of the picture that is not blank.
QRect inkOf(const QImage& image)
{
    QRect ink = image.rect();
    while (!ink.isEmpty() && isClear(image, { ink.left(), ink.top(), ink.width(), 1 }))
        ink.setTop(ink.top() + 1);
    while (!ink.isEmpty() && isClear(image, { ink.left(), ink.bottom(), ink.width(), 1 }))
        ink.setBottom(ink.bottom() - 1);
    while (!ink.isEmpty() && isClear(image, { ink.left(), ink.top(), 1, ink.height() }))
        ink.setLeft(ink.left() + 1);
    while (!ink.isEmpty() && isClear(image, { ink.right(), ink.top(), 1, ink.height() }))
        ink.setRight(ink.right() - 1);
    return ink;
}

/// Grown to whole device pixels, with an empty border of one to filter into.
QRect devicePixelsAround(const QRect& ink)
{
    constexpr int rows = LineImage::rowsPerPixel;
    const int top = static_cast<int>(std::floor(ink.top() / double(rows)));
    const int bottom = static_cast<int>(std::ceil((ink.bottom() + 1) / double(rows)));
    return QRect(ink.left(), top, ink.width(), bottom - top).adjusted(-1, -1, 1, 1);
}

/// In device pixels. The outline is as wide as half a stem, and as much again to fade. One more is
/// for the pixels that a letter's edge covers in part.
TextOutline::Reach outlineReach(double fontPixels)
{
    constexpr double share = 0.03;
    const int width = std::max(static_cast<int>(std::lround(share * fontPixels)), 1);
    return { width + 1, width };
}

} // namespace

LineImage LineImage::of(const PromptLine& line, const PromptTypography& typography,
    const QColor& color, double scale, const QColor& outline)
{
    const QTextLine laidOut = line.inPiece();
    const QRectF room = roomFor(laidOut);
    // A line that no texture could hold is drawn coarser.
    const double resolution = std::min({ scale, largestSide / (room.width() * typography.scale),
        largestSide / (room.height() * typography.scale * rowsPerPixel) });
    const double pixels = typography.scale * resolution; // Pixels for each unscaled point.
    const QRect area = QRectF(room.topLeft() * pixels, room.size() * pixels).toAlignedRect();
    QImage canvas(area.width(), area.height() * rowsPerPixel, QImage::Format_ARGB32_Premultiplied);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    painter.setPen(color);
    painter.scale(1, rowsPerPixel);
    painter.translate(-area.topLeft());
    painter.scale(pixels, pixels);
    laidOut.draw(&painter, { 0, -laidOut.ascent() });
    painter.end();

    const QRect ink = inkOf(canvas);
    if (ink.isEmpty())
        return {};
    const TextOutline::Reach reach = outline.alpha() > 0
        ? outlineReach(typography.font.pixelSize() * pixels)
        : TextOutline::Reach();
    const int border = reach.whole();
    const QRect kept = devicePixelsAround(ink).adjusted(-border, -border, border, border);
    const QRect rows(
        kept.left(), kept.top() * rowsPerPixel, kept.width(), kept.height() * rowsPerPixel);
    const QRectF place = kept.translated(area.topLeft());
    const QRectF placeInPoints(place.topLeft() / resolution, place.size() / resolution);
    if (border == 0)
        return { canvas.copy(rows), placeInPoints };
    const TextOutline::Reach along { reach.full * rowsPerPixel, reach.soft * rowsPerPixel };
    return { TextOutline::around(canvas.copy(rows), outline, reach, along), placeInPoints };
}

} // namespace Orvello
