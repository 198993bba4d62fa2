#pragma once

#include <QList>
#include <QRectF>
#include <QString>

#include <optional>

/// Where the prompter panel stands: pure arithmetic on frames in the coordinates of Screens.
namespace Orvello::PanelFrame {

/// What is taken for the main screen when there is none.
inline constexpr QRectF assumedScreen { 0, 0, 1440, 900 };

/// 720 × 200 points, centred on the main screen, its top edge 6 points below the screen's: as close
/// to the camera as it gets.
[[nodiscard]] QRectF initial(const QList<QRectF>& screens);

/// `frame` itself if enough of it to grab lies on one of the screens; else moved, and shrunk if it
/// must be, onto the nearest of them. Unchanged when there is no screen.
[[nodiscard]] QRectF onScreen(const QRectF& frame, const QList<QRectF>& screens);

/// `frame` with its size clamped between the two; its top left corner stays.
[[nodiscard]] QRectF withSizeBetween(const QRectF& frame, QSizeF smallest, QSizeF largest);

// Log and settings count frames from the bottom left corner of the primary screen, y upward.

/// A frame as the log writes it: "{{360, 694}, {720, 200}}".
[[nodiscard]] QString description(const QRectF& frame, const QList<QRectF>& screens);

/// A frame as the settings keep it: x, y, width, height of the frame and of the main screen,
/// separated by blanks.
[[nodiscard]] QString text(const QRectF& frame, const QList<QRectF>& screens);

/// Reads such a text; nothing unless it begins with four finite numbers, the sizes positive.
[[nodiscard]] std::optional<QRectF> parsed(const QString& text, const QList<QRectF>& screens);

} // namespace Orvello::PanelFrame
