#include "Tests/Gallery/Wallpaper.h"

#include <QFont>
#include <QPainter>
#include <QRadialGradient>

namespace Orvello::Gallery {

using namespace Qt::StringLiterals;

namespace {

void paintDocument(QPainter& painter, const QRect& area)
{
    painter.fillRect(area, Qt::white);
    QFont font;
    font.setPixelSize(15);
    painter.setFont(font);
    painter.setPen(Qt::black);
    const QString words
        = u"The quarterly figures are in, and they read better than we had dared to hope. "_s;
    painter.drawText(
        area.adjusted(6, 4, -6, 0), Qt::TextWordWrap | Qt::AlignJustify, words.repeated(40));
}

void paintPhoto(QPainter& painter, const QRect& area)
{
    QLinearGradient sky(area.topLeft(), area.bottomLeft());
    sky.setColorAt(0, QColor(58, 134, 255));
    sky.setColorAt(0.55, QColor(255, 214, 165));
    sky.setColorAt(0.56, QColor(64, 145, 108));
    sky.setColorAt(1, QColor(27, 67, 50));
    painter.fillRect(area, sky);
    QRadialGradient sun(
        area.left() + area.width() * 0.75, area.top() + area.height() * 0.35, area.height() * 0.4);
    sun.setColorAt(0, QColor(255, 255, 255));
    sun.setColorAt(0.3, QColor(255, 240, 120));
    sun.setColorAt(1, QColor(255, 240, 120, 0));
    painter.fillRect(area, sun);
}

} // namespace

void paintWallpaper(QPainter& painter, const QRect& area, Wallpaper wallpaper)
{
    painter.save();
    painter.setClipRect(area);
    switch (wallpaper) {
    case Wallpaper::None:
        break;
    case Wallpaper::Document:
        paintDocument(painter, area);
        break;
    case Wallpaper::Photo:
        paintPhoto(painter, area);
        break;
    case Wallpaper::Night:
        painter.fillRect(area, QColor(12, 14, 22));
        break;
    }
    painter.restore();
}

} // namespace Orvello::Gallery
