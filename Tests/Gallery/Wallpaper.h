#pragma once

#include <QRect>

class QPainter;

namespace Orvello::Gallery {

/// What may lie behind a translucent window.
enum class Wallpaper {
    None, ///< The sheet itself: for windows that nothing shines through.
    Document, ///< Black on white, the least friendly one.
    Photo, ///< Bright and colourful.
    Night, ///< Nearly black.
};

void paintWallpaper(QPainter& painter, const QRect& area, Wallpaper wallpaper);

} // namespace Orvello::Gallery
