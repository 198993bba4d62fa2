#pragma once

#include "Tests/Gallery/Scene.h"

#include <QDir>
#include <QImage>

namespace Orvello::Gallery {

/// The highest sheet that every viewer opens, in pixels. One picture alone may be higher.
inline constexpr int largestSheet = 4000;

/// The pictures of the scenes side by side, pixel for pixel, in front of their wallpapers and above
/// their names. Each group of scenes begins a row.
QList<QImage> contactSheets(const Scenes& scenes, const QDir& folder);

/// An HTML page with the names of all scenes and their pictures, which lie in that folder beside
/// the page, and with those sheets.
QByteArray indexPage(
    const Scenes& scenes, const QString& folderName, const QStringList& sheetNames);

} // namespace Orvello::Gallery
