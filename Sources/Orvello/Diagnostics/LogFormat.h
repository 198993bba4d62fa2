#pragma once

#include "Orvello/Diagnostics/LogArgument.h"

#include <span>
#include <string>
#include <string_view>

/// The formats of the log, a few of printf's and Foundation's: %@ for a text, %d and %ld for an
/// integer, %.0f to %.9f for a number with that many decimals, %% for a percent sign.
///
/// An argument knows its type, so none is ever misread: one that does not suit its conversion
/// prints as it would with the right one, a number without a precision with up to 16 digits. A
/// conversion without an argument, or one not listed here, appears in the result as it is written;
/// left-over arguments are ignored. The decimal point is a point in every locale.
namespace Orvello::LogFormat {

/// Appends the message to `line`. What is appended is always valid UTF-8: a byte or a surrogate
/// that encodes nothing becomes U+FFFD. A NUL is a character like any other.
void append(std::string& line, std::string_view format, std::span<const LogArgument> arguments);

} // namespace Orvello::LogFormat
