#pragma once

#include <QString>

#include <span>
#include <string_view>

/// The one table of what the command line takes. The help text, the parser and its suggestions, the
/// manual page and the shells' completions are made from it.
namespace Orvello::CommandLineTable {

enum class Section { Files, Options, Environment, Signals, ExitStatus };

struct Entry {
    Section section = Section::Options;
    std::string_view name; ///< Spelled as it is typed, such as "--voice".
    std::string_view argument; ///< What follows the name; empty for nothing.
    std::string_view help; ///< What it does: one line, no full stop.
};

/// Section by section.
[[nodiscard]] std::span<const Entry> entries();

/// The heading of the section's entries, such as "Exit status".
[[nodiscard]] std::string_view heading(Section section);

/// How to call the program, and in a few lines what it is.
[[nodiscard]] std::string_view usage();
[[nodiscard]] std::string_view summary();

/// All of it, as `--help` prints it.
[[nodiscard]] QString helpText();

/// The option that a mistyped one most resembles; empty when it resembles none.
[[nodiscard]] QString nearestOption(const QString& mistyped);

} // namespace Orvello::CommandLineTable
