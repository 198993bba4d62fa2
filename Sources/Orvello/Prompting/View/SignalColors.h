#pragma once

#include <QColor>

/// The colours that mean something on the prompter's card: the system colours of the macOS dark
/// appearance, as in the text's colour presets.
namespace Orvello::SignalColors {

inline constexpr QColor red(255, 69, 58);
inline constexpr QColor orange(255, 159, 10);
inline constexpr QColor yellow(255, 214, 10);
inline constexpr QColor green(48, 209, 88);

} // namespace Orvello::SignalColors
