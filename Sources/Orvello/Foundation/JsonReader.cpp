#include "Orvello/Foundation/JsonReader.h"

#include <QLocale>
#include <QStringDecoder>

#include <cmath>
#include <limits>

#include <rapidjson/reader.h>

namespace Orvello {
namespace {

/// The document as RapidJSON reads it: in place, decoded strings written over their source.
class DocumentStream {
public:
    using Ch = char;

    explicit DocumentStream(char* document) ///< Terminated by NUL.
        : m_begin(document)
        , m_next(document)
    {
    }

    Ch Peek() const { return *m_next; }
    Ch Take()
    {
        const Ch taken = *m_next++;
        if (!m_isInString && taken >= '1' && taken <= '9')
            skipDigits();
        return taken;
    }
    std::size_t Tell() const { return static_cast<std::size_t>(m_next - m_begin); }

    Ch* PutBegin()
    {
        m_isInString = true;
        return m_put = m_next;
    }
    void Put(Ch unit) { *m_put++ = unit; }
    std::size_t PutEnd(Ch* begin)
    {
        m_isInString = false;
        return static_cast<std::size_t>(m_put - begin);
    }

private:
    /// RapidJSON refuses a number past the range of double although it passes numbers on as text.
    /// It is therefore shown a run of digits only up to the first that is not zero, which changes
    /// nothing about whether the number is well-formed.
    void skipDigits()
    {
        while (*m_next >= '0' && *m_next <= '9')
            ++m_next;
    }

    char* m_begin;
    char* m_next;
    char* m_put = nullptr;
    bool m_isInString = false;
};

/// Adapts a JsonHandler to RapidJSON's handler concept.
class Events {
public:
    explicit Events(JsonHandler& handler)
        : m_handler(handler)
    {
    }

    bool Null() { return m_handler.null(); }
    bool Bool(bool value) { return m_handler.boolean(value); }
    bool RawNumber(const char* digits, std::size_t length, bool)
    {
        return m_handler.number({ digits, length });
    }
    bool String(const char* text, std::size_t length, bool)
    {
        return isWellFormed(text, length) && m_handler.string({ text, length });
    }
    bool Key(const char* name, std::size_t length, bool)
    {
        return isWellFormed(name, length) && m_handler.key({ name, length });
    }
    bool StartObject() { return ++m_depth <= Json::maximumDepth && m_handler.beginObject(); }
    bool EndObject(std::size_t)
    {
        --m_depth;
        return m_handler.endObject();
    }
    bool StartArray() { return ++m_depth <= Json::maximumDepth && m_handler.beginArray(); }
    bool EndArray(std::size_t)
    {
        --m_depth;
        return m_handler.endArray();
    }

    // The reader instantiates these, but never calls them when it passes numbers on as text.
    bool Int(int) { return false; }
    bool Uint(unsigned) { return false; }
    bool Int64(std::int64_t) { return false; }
    bool Uint64(std::uint64_t) { return false; }
    bool Double(double) { return false; }

private:
    /// The document's bytes were checked as a whole, but RapidJSON lets the escape of a lone low
    /// surrogate through.
    static bool isWellFormed(const char* text, std::size_t length)
    {
        return QUtf8StringView(text, static_cast<qsizetype>(length)).isValidUtf8();
    }

    JsonHandler& m_handler;
    int m_depth = 0;
};

bool hasByteOrderMark(const QByteArray& document) { return document.startsWith("\xEF\xBB\xBF"); }

} // namespace
} // namespace Orvello

/// The stream is copied into a local while RapidJSON reads a value, as its own in-place stream is.
template <>
struct rapidjson::StreamTraits<Orvello::DocumentStream> {
    enum { copyOptimization = 1 };
};

namespace Orvello::Json {

bool read(QByteArray document, JsonHandler& handler)
{
    // Lengths are 32 bits wide in RapidJSON.
    static_assert(maximumSize < std::numeric_limits<rapidjson::SizeType>::max());
    if (document.size() > maximumSize || !QUtf8StringView(document).isValidUtf8())
        return false;

    const qsizetype start = hasByteOrderMark(document) ? 3 : 0;
    DocumentStream stream(document.data() + start);
    Events events(handler);
    rapidjson::Reader reader;
    constexpr unsigned options = rapidjson::kParseInsituFlag | rapidjson::kParseIterativeFlag
        | rapidjson::kParseNumbersAsStringsFlag;
    if (reader.Parse<options>(stream, events).IsError())
        return false;

    // RapidJSON takes a NUL for the end of the text.
    return stream.Tell() == static_cast<std::size_t>(document.size() - start);
}

QString text(std::string_view utf8)
{
    // QString::fromUtf8 would drop a leading U+FEFF.
    QStringDecoder decoder(QStringDecoder::Utf8,
        QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    return decoder(QByteArrayView(utf8.data(), static_cast<qsizetype>(utf8.size())));
}

std::optional<qint64> integer(std::string_view digits)
{
    if (digits.find_first_of(".eE") == std::string_view::npos) {
        bool fits = false;
        const qint64 number = QByteArrayView(digits.data(), static_cast<qsizetype>(digits.size()))
                                  .toLongLong(&fits);
        return fits ? std::optional(number) : std::nullopt;
    }

    constexpr double limit = 9223372036854775808.0; // 2^63, the first double past the range.
    const std::optional<double> real = finite(digits);
    if (!real || *real != std::trunc(*real) || *real < -limit || *real >= limit)
        return std::nullopt;
    return static_cast<qint64>(*real);
}

std::optional<double> finite(std::string_view digits)
{
    // QLocale, unlike QByteArray, tells a number too large (infinite) from one too small (0).
    const double number = QLocale::c().toDouble(
        QString::fromLatin1(digits.data(), static_cast<qsizetype>(digits.size())));
    if (!std::isfinite(number))
        return std::nullopt;
    return number;
}

} // namespace Orvello::Json
