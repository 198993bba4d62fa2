#pragma once

#include "Tests/Gallery/Scene.h"

#include <QDir>

namespace Orvello::Gallery {

/// Where the picture of the scene with that number lies. Its pixels are device pixels.
QString pictureOf(const QDir& folder, qsizetype number);

/// Shows each of the scenes that has the scale, and saves its picture. Qt knows one scale for a
/// process, so each scale takes a process with QT_SCALE_FACTOR set. False when a scene was not to
/// be seen.
bool renderScenes(const Scenes& scenes, double scale, const QDir& folder);

} // namespace Orvello::Gallery
