#pragma once

#include <QString>

#include <functional>
#include <optional>

class QQuickWindow;

/// What draws the windows: Qt Quick's own renderer on the processor, or OpenGL. It is one for the
/// process, and settled before its first window.
namespace Orvello::Renderer {

enum class Kind {
    Software,
    OpenGL,
    Hardware, ///< Whatever Qt Quick chooses where there is graphics hardware.
};

/// What a user calls it, in the variable ORVELLO_RENDERER.
[[nodiscard]] QString nameOf(Kind kind);
[[nodiscard]] std::optional<Kind> named(const QString& name);

/// The one to try when this one cannot start.
[[nodiscard]] Kind otherThan(Kind kind);

/// Before the first window.
void use(Kind kind);

/// Called when a window cannot be drawn, with the reason in Qt's words. Once, before the first
/// window.
void onFailure(std::function<void(const QString& reason)> handler);

/// Every window of Qt Quick must be watched: one that is not ends the process at its first frame
/// when that cannot be drawn.
void watch(QQuickWindow& window);

} // namespace Orvello::Renderer
