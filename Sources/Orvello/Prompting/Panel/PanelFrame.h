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

/// The same place for a panel of that size, on the screen that the point is on.
[[nodiscard]] QRectF underCamera(QSizeF size, QPointF point, const QList<QRectF>& screens);

/// Where the user has put the panel.
struct Home {
    QRectF frame;
    QRectF screen; ///< The screen that it was on then. Empty when that is not known.

    friend bool operator==(const Home&, const Home&) = default;
};

/// The screen is the one that most of the frame is on, or the nearest.
[[nodiscard]] Home homeAt(const QRectF& frame, const QList<QRectF>& screens);

/// Where a panel with that home stands on the screens that there are now: at home, while its screen
/// is there; else on another one, at the same place as seen from the screen's top centre, moved and
/// shrunk as far as it must be to be seen. Its frame when there is no screen.
[[nodiscard]] QRectF placeOf(const Home& home, const QList<QRectF>& screens);

/// `frame` with its size clamped between the two; its top left corner stays.
[[nodiscard]] QRectF withSizeBetween(const QRectF& frame, QSizeF smallest, QSizeF largest);

// Log and settings count frames from the bottom left corner of the primary screen, y upward.

/// A frame as the log writes it: "{{360, 694}, {720, 200}}".
[[nodiscard]] QString description(const QRectF& frame, const QList<QRectF>& screens);

/// A home as the settings keep it: x, y, width, height of the frame and of its screen, separated by
/// blanks.
[[nodiscard]] QString text(const Home& home, const QList<QRectF>& screens);

/// Reads such a text; nothing unless it begins with four finite numbers, the sizes positive. The
/// screen is empty unless four more follow.
[[nodiscard]] std::optional<Home> parsed(const QString& text, const QList<QRectF>& screens);

} // namespace Orvello::PanelFrame
