#include "Orvello/Adapters/Linux/Desktop/X11Shadow.h"

#include <QPainter>

#include <algorithm>
#include <array>
#include <cmath>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

// In points, much like the shadow of a window on a Mac.
constexpr double cornerRadius = 16; // The card's.
constexpr double blur = 24;
constexpr double drop = 8; // The light comes from above.
constexpr double darkest = 0.5;

/// From a corner of the shadow's window to where its edges look the same everywhere.
constexpr int corner = X11Shadow::margin + static_cast<int>(cornerRadius + blur + drop);

/// Outside positive, inside negative: how far the point is from a rectangle with the card's
/// corners.
double distanceTo(const QRectF& box, QPointF point)
{
    const QPointF half = box.bottomRight() - box.center();
    const double x = std::abs(point.x() - box.center().x()) - half.x() + cornerRadius;
    const double y = std::abs(point.y() - box.center().y()) - half.y() + cornerRadius;
    return std::hypot(std::max(x, 0.0), std::max(y, 0.0)) + std::min(std::max(x, y), 0.0)
        - cornerRadius;
}

double shadeAt(double distance)
{
    const double share = std::clamp((blur - distance) / (2 * blur), 0.0, 1.0);
    return darkest * share * share * (3 - 2 * share);
}

QImage paintedTile(double scale)
{
    const int side = static_cast<int>(std::ceil((2 * corner + 1) * scale));
    QImage tile(side, side, QImage::Format_ARGB32_Premultiplied);
    const double points = side / scale;
    const QRectF panel = QRectF(0, 0, points, points)
                             .adjusted(X11Shadow::margin, X11Shadow::margin, -X11Shadow::margin,
                                 -X11Shadow::margin);
    for (int y = 0; y < side; ++y) {
        auto* const row = reinterpret_cast<QRgb*>(tile.scanLine(y));
        for (int x = 0; x < side; ++x) {
            const QPointF place((x + 0.5) / scale, (y + 0.5) / scale);
            // Not under the panel, which would be darker than it is set to be.
            const double outside = std::clamp(distanceTo(panel, place) * scale + 0.5, 0.0, 1.0);
            const double shade = shadeAt(distanceTo(panel.translated(0, drop), place));
            row[x] = qRgba(0, 0, 0, static_cast<int>(std::lround(255 * shade * outside)));
        }
    }
    return tile;
}

} // namespace

X11Shadow::X11Shadow()
{
    setTitle(u"Orvello shadow"_s);
    setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus
        | Qt::BypassWindowManagerHint | Qt::WindowTransparentForInput);
    QSurfaceFormat translucent = format();
    translucent.setAlphaBufferSize(8);
    setFormat(translucent);
    create();
}

void X11Shadow::surround(const QRect& panel)
{
    setGeometry(panel.adjusted(-margin, -margin, margin, margin));
}

const QImage& X11Shadow::tile(double scale)
{
    if (m_tile.isNull() || m_tile.devicePixelRatio() != scale) {
        m_tile = paintedTile(scale);
        m_tile.setDevicePixelRatio(scale);
    }
    return m_tile;
}

/// The corners as they are, and what is between them along the edges, stretched.
void X11Shadow::paintEvent(QPaintEvent* /*event*/)
{
    const double scale = devicePixelRatio();
    const QImage& image = tile(scale);
    const double side = image.width() / scale;
    const std::array<double, 4> from { 0, corner, side - corner, side };
    const auto places = [](double length) {
        return std::array<double, 4> { 0, corner, length - corner, length };
    };
    const std::array<double, 4> across = places(width());
    const std::array<double, 4> along = places(height());

    QPainter painter(this);
    painter.setCompositionMode(QPainter::CompositionMode_Source);
    painter.fillRect(QRect(QPoint(), size()), Qt::transparent);
    for (std::size_t row = 0; row < 3; ++row) {
        for (std::size_t column = 0; column < 3; ++column) {
            if (row == 1 && column == 1)
                continue;
            const QRectF target(
                QPointF(across[column], along[row]), QPointF(across[column + 1], along[row + 1]));
            const QRectF source(QPointF(from[column] * scale, from[row] * scale),
                QPointF(from[column + 1] * scale, from[row + 1] * scale));
            painter.drawImage(target, image, source);
        }
    }
}

} // namespace Orvello
