#include "Orvello/Shell/Windows/Branding.h"

#include <QPainter>
#include <QPixmap>

namespace Orvello::Branding {

using namespace Qt::StringLiterals;

namespace {

constexpr int glyphSide = 18; ///< In points.

/// A lens above three lines of text, in a square of `glyphSide` points.
void drawGlyph(QPainter& painter, const QColor& color)
{
    painter.setPen(Qt::NoPen);
    painter.setBrush(color);
    painter.drawEllipse(QRectF(6.75, 1.5, 4.5, 4.5));
    painter.drawRoundedRect(QRectF(2, 8, 14, 2), 1, 1);
    painter.drawRoundedRect(QRectF(3.5, 11.5, 11, 2), 1, 1);
    painter.drawRoundedRect(QRectF(5.5, 15, 7, 2), 1, 1);
}

/// The glyph on a tile, or by itself, at `side` pixels.
QPixmap drawn(int side, const QColor& glyph, const QColor& tile)
{
    QPixmap pixmap(side, side);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(side / double { glyphSide }, side / double { glyphSide });
    if (tile.isValid()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(tile);
        painter.drawRoundedRect(QRectF(0, 0, glyphSide, glyphSide), 4, 4);
        painter.translate(glyphSide / 2.0, glyphSide / 2.0);
        painter.scale(0.78, 0.78);
        painter.translate(-glyphSide / 2.0, -glyphSide / 2.0);
    }
    drawGlyph(painter, glyph);
    return pixmap;
}

} // namespace

QIcon appIcon() { return QIcon(u":/Orvello/AppIcon-256.png"_s); }

QColor accentColor() { return { 74, 86, 214 }; }

QIcon menuBarGlyph()
{
    QIcon icon;
    for (const int scale : { 1, 2, 3 }) {
        QPixmap pixmap = drawn(glyphSide * scale, Qt::black, {});
        pixmap.setDevicePixelRatio(scale);
        icon.addPixmap(pixmap);
    }
    icon.setIsMask(true);
    return icon;
}

QIcon trayIcon()
{
    QIcon icon;
    for (const int side : { 16, 22, 24, 32, 48 })
        icon.addPixmap(drawn(side, Qt::white, accentColor()));
    return icon;
}

} // namespace Orvello::Branding
