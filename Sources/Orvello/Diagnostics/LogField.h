#pragma once

#include "Orvello/Diagnostics/LogArgument.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

/// How one argument of a log line is printed.
namespace Orvello::LogField {

/// What a format asks for between a percent sign and the end of its conversion.
struct Conversion {
    bool isLeftAligned = false;
    bool showsPlus = false;
    bool showsBlankForPlus = false;
    bool isAlternate = false;
    bool fillsWithZeros = false;
    int width = 0;
    std::optional<int> precision;
    std::size_t integerBytes = sizeof(std::int64_t); ///< Less for the modifiers hh and h.
    char type = '\0';
};

/// Whether the conversion prints an argument.
[[nodiscard]] bool isKnown(char type);

/// Appends the argument as the conversion asks, or its plain text where the two do not fit.
void append(std::string& line, const Conversion& conversion, const LogArgument& argument);

} // namespace Orvello::LogField
