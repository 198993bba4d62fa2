#pragma once

#include "Orvello/Library/Records/Script.h"

namespace Orvello::ScriptExport {

enum class Format { Text, Markdown };

/// What a file with that script holds: as text its body, as Markdown its title and its body, a deck
/// slide by slide. Lines end as they do in text files, wherever the prompter begins a new one.
[[nodiscard]] QString contentOf(const Script& script, Format format);

/// The same for scripts that share a file, in which each has its title.
[[nodiscard]] QString contentOf(const QList<Script>& scripts, Format format);

/// A title as a file name without an extension, which every system takes.
[[nodiscard]] QString fileNameOf(const QString& title);

} // namespace Orvello::ScriptExport
