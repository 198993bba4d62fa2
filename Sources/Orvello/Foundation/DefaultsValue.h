#pragma once

#include <QString>
#include <QVariant>

#include <optional>

/// How a preference value converts when it is asked for by type.
namespace Orvello::DefaultsValue {

/// A number, or a boolean as 0 or 1; nothing for any other value, a numeric string among them.
[[nodiscard]] std::optional<double> asNumber(const QVariant& value);

/// A boolean, or a number that is exactly 0 or 1; nothing for any other value.
[[nodiscard]] std::optional<bool> asBoolean(const QVariant& value);

/// A string; nothing for any other value.
[[nodiscard]] std::optional<QString> asString(const QVariant& value);

/// The integer reading: a number truncated toward zero and clamped to 64 bits, a boolean as 0 or 1,
/// a string by the decimal integer it starts with; 0 for everything else.
[[nodiscard]] qint64 asInteger(const QVariant& value);

} // namespace Orvello::DefaultsValue
