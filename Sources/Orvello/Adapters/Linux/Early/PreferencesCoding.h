#pragma once

#include <QByteArray>
#include <QVariantMap>

#include <optional>

/// A domain of preferences as one JSON object, written so that every type comes back as itself:
///
/// | value | JSON |
/// |---|---|
/// | boolean, string, list, map | as such |
/// | integer | a number of digits alone: 30 |
/// | double | a number with a point or an exponent: 30.0; {"$double": "inf"} if it is not finite |
/// | byte array | {"$data": "<base64>"} |
/// | date | {"$date": <seconds since 2001-01-01 00:00:00 UTC, with milliseconds>} |
///
/// A map key that starts with a dollar sign gets a second one in front.
namespace Orvello::PreferencesCoding {

[[nodiscard]] QByteArray encode(const QVariantMap& preferences);

/// Nothing if the text is not JSON, is not an object, holds a number outside the range of double,
/// or nests deeper than 500 levels. A key that an object holds twice counts as first written.
[[nodiscard]] std::optional<QVariantMap> decode(QByteArray json);

/// Whether values of this type can be stored.
[[nodiscard]] bool isStorable(const QVariant& value);

} // namespace Orvello::PreferencesCoding
