#pragma once

#include <QString>

/// The rounded face that the prompter is set in: the system's own where there is one, else the one
/// that the program ships.
namespace Orvello::PromptFont {

/// Makes the shipped face available, if any, and returns the family to ask for. Needs the
/// application object.
[[nodiscard]] QString family();

} // namespace Orvello::PromptFont
