#pragma once

#include "Orvello/Diagnostics/LogArgument.h"

#include <span>
#include <string>
#include <string_view>

/// The printf formats of the log, with the Foundation conversion %@ for texts.
///
/// Known are the conversions @ s c d i u o x X p f F e E g G and %%, the flags - + space # 0 ',
/// width and precision (also as *) and the length modifiers hh h l ll q j z t L. It is safe where
/// printf is not, because an argument knows its type:
/// - An integer is never cut to the size that a length modifier names; only hh and h, which ask for
///   it, cut. Width and precision of a text count characters, so that none is ever split.
/// - An argument of another kind than its conversion prints as its plain text; an integer also
///   suits the floating-point conversions. So a number suits %@ and %s.
/// - A conversion without an argument, or one that is not known, stands in the result as it is
///   written. Left-over arguments are ignored.
/// - The decimal point is a point in every locale.
/// - Widths, and the precisions of numbers, end at 1,024.
namespace Orvello::LogFormat {

/// Appends the message to `line`. What is appended is always valid UTF-8: a byte or a surrogate
/// that encodes nothing becomes U+FFFD. A NUL is a character like any other.
void append(std::string& line, std::string_view format, std::span<const LogArgument> arguments);

} // namespace Orvello::LogFormat
