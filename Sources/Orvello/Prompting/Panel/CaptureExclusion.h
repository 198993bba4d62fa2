#pragma once

#include <QRectF>
#include <QSizeF>

#include <memory>

/// The window server's capture-exclude shape: a region of a window that screen sharing and
/// recordings leave out. The calls are private to macOS, so each is looked up by name at run time,
/// once; where one is missing, what needs it fails softly. Main thread or any other; the look-ups
/// are thread-safe.
namespace Orvello::CaptureExclusion {

/// A region of the window server, released with the last reference.
using Region = std::shared_ptr<const void>;

/// How much wider and higher than the window its shape is, in points, so that growth and the shadow
/// stay covered until the next application.
inline constexpr double margin = 200;

/// Whether the connection, the exclude-shape call and at least one of the two region makers were
/// found.
[[nodiscard]] bool isUsable();

/// Whether the connection and the exclude-shape call were found: enough to clear a shape.
[[nodiscard]] bool canSetShape();

/// A region that covers `rect`, in points of the window; null if it cannot be made.
[[nodiscard]] Region makeRegion(const QRectF& rect);

/// Excludes the window with this number and size from captures, or ends that. Returns whether the
/// window server accepted the call; false for a window number below 1. A number beyond 32 bits is a
/// mistake of the caller and ends the process.
bool setExcluded(bool on, qint64 windowNumber, QSizeF windowSize);

} // namespace Orvello::CaptureExclusion
