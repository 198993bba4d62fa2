#pragma once

#include <QByteArrayView>

/// Who draws what OpenGL is told to on this display: graphics hardware, or the processor in its
/// place.
namespace Orvello::HardwareRenderer {

/// Whether it is hardware. Asks the driver only where there can be any: loading one that draws on
/// the processor takes as long as the rest of the launch, and most of the memory. After the
/// application object is made.
[[nodiscard]] bool isThere();

/// Whether a renderer that OpenGL calls by this name draws on the processor.
[[nodiscard]] bool isSoftware(QByteArrayView name);

} // namespace Orvello::HardwareRenderer
