#pragma once

#include <QString>
#include <QStringList>

/// The rounded face that the prompter is set in: the system's own where there is one, else the one
/// that the program ships.
namespace Orvello::PromptFont {

/// Makes that face available, and returns the family to ask for. Needs the application object.
[[nodiscard]] QString family();

/// The family of the first of these files that holds a face; empty if none does.
[[nodiscard]] QString familyOf(const QStringList& files);

} // namespace Orvello::PromptFont
