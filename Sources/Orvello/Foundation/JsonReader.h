#pragma once

#include <QByteArray>
#include <QString>

#include <optional>
#include <string_view>

namespace Orvello {

/// Receives what a JSON document holds, in document order. Texts are valid UTF-8 with every escape
/// resolved, and live only during the call. Returning false ends the reading.
class JsonHandler {
public:
    virtual ~JsonHandler() = default;

    virtual bool null() = 0;
    virtual bool boolean(bool value) = 0;
    virtual bool number(std::string_view digits) = 0; ///< As written, of whatever size.
    virtual bool string(std::string_view text) = 0;
    virtual bool key(std::string_view name) = 0;
    virtual bool beginObject() = 0;
    virtual bool endObject() = 0;
    virtual bool beginArray() = 0;
    virtual bool endArray() = 0;
};

/// Reading foreign JSON. No document, however malformed, does more than fail.
namespace Json {

/// How deep arrays and objects may nest. Depth costs a few bytes of heap per level, never stack.
inline constexpr int maximumDepth = 1'000'000;

/// The longest document, in bytes.
inline constexpr qsizetype maximumSize = 4'000'000'000;

/// Hands the whole document to `handler`. Strictly RFC 8259, in UTF-8; a byte order mark in front
/// is skipped. Returns false as soon as the text turns out to be anything else, or is longer or
/// nests deeper than the limits above, or the handler returns false. Duplicate keys are all
/// reported.
[[nodiscard]] bool read(QByteArray document, JsonHandler& handler);

/// The text of a string or key, a leading U+FEFF included.
[[nodiscard]] QString text(std::string_view utf8);

/// A number as written, if it is integral and fits: 1, 1.0 and 10e-1 do.
[[nodiscard]] std::optional<qint64> integer(std::string_view digits);

/// The nearest double of a number as written; nothing if that is infinite.
[[nodiscard]] std::optional<double> finite(std::string_view digits);

} // namespace Json
} // namespace Orvello
