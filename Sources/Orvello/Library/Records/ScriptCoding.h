#pragma once

#include "Orvello/Library/Records/Script.h"

#include <QByteArray>

class QJsonObject;

/// Scripts as the library file holds them. Dates are seconds since 2001-01-01 00:00:00 UTC.
namespace Orvello::ScriptCoding {

/// The JSON object of one script, without white space; absent values are left out.
[[nodiscard]] QByteArray encode(const Script& script);

/// Reads a JSON array of scripts, all or nothing: a required key that is missing or mistyped, in
/// any script, or text that is not JSON, gives nothing. Keys of other names are ignored with
/// whatever they hold. If an object holds a key twice, the last one counts.
[[nodiscard]] std::optional<QList<Script>> decode(const QByteArray& json);

/// Reads one script, by the same rules.
[[nodiscard]] std::optional<Script> decode(const QJsonObject& object);

} // namespace Orvello::ScriptCoding
