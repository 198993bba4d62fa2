#pragma once

#include <QByteArray>
#include <QStringView>

/// Writing JSON (RFC 8259, UTF-8) piece by piece.
namespace Orvello::Json {

/// Appends the text as a JSON string. A lone surrogate, which UTF-8 cannot hold, becomes U+FFFD.
void appendString(QByteArray& json, QStringView text);

/// Appends the shortest digits that read back as the same double. `number` must be finite.
void appendNumber(QByteArray& json, double number);

} // namespace Orvello::Json
