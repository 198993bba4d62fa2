#pragma once

#include "Tests/Gallery/Scene.h"

#include <QDir>
#include <QImage>

namespace Orvello::Gallery {

/// The pictures of the scenes side by side, pixel for pixel, in front of their wallpapers and above
/// their names. Each group of scenes begins a row.
QImage contactSheet(const Scenes& scenes, const QDir& folder);

} // namespace Orvello::Gallery
