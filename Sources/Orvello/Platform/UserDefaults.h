#pragma once

#include <QString>
#include <QVariant>

#include <optional>

namespace Orvello {

/// One domain of preference values: booleans, numbers and strings. A value of another kind that the
/// system keeps there can be passed on as it is, from one domain to another. Main thread. What a
/// setter stored survives the death of the process right after it returned.
class UserDefaults {
public:
    virtual ~UserDefaults() = default;

    /// The stored value, or an invalid variant when there is none. A launch-argument pair `-Key
    /// value` shadows the key as a string for this run.
    virtual QVariant value(const QString& key) const = 0;

    /// Stores the value at once. A shadowed key keeps reading as its launch argument.
    virtual void setValue(const QString& key, const QVariant& value) = 0;

    /// Removes what is stored under the key; a missing key is no error.
    virtual void remove(const QString& key) = 0;

    /// Everything stored in the domain, without launch arguments.
    virtual QVariantMap storedValues() const = 0;
};

/// How a preference value converts when it is asked for by type.
namespace DefaultsValue {

/// A number, or a boolean as 0 or 1; nothing for any other value, a numeric string among them.
[[nodiscard]] std::optional<double> asNumber(const QVariant& value);

/// A boolean, or a number that is exactly 0 or 1; nothing for any other value.
[[nodiscard]] std::optional<bool> asBoolean(const QVariant& value);

/// A string; nothing for any other value.
[[nodiscard]] std::optional<QString> asString(const QVariant& value);

/// The integer reading: a number truncated toward zero and held inside 64 bits, a boolean as 0 or
/// 1, a string by the decimal integer it starts with; 0 for everything else.
[[nodiscard]] qint64 asInteger(const QVariant& value);

} // namespace DefaultsValue

} // namespace Orvello
