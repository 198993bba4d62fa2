#include "Orvello/Diagnostics/LogField.h"

#include <QByteArray>
#include <QStringEncoder>

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>
#include <span>
#include <string_view>

namespace Orvello::LogField {

namespace {

/// Where widths, and the precisions of numbers, end.
constexpr int widestField = 1024;

/// A double's digits before the point, the point, and an exponent.
constexpr std::size_t longestNumber = std::numeric_limits<double>::max_exponent10 + 12;

/// Significant digits of a number that is printed as a text, as Foundation describes one.
constexpr int plainTextDigits = 16;

struct Integer {
    bool isNegative = false;
    std::uint64_t magnitude = 0;
};

bool isInteger(const LogArgument& argument)
{
    return std::holds_alternative<std::int64_t>(argument.value())
        || std::holds_alternative<std::uint64_t>(argument.value());
}

std::uint64_t bitsOf(const LogArgument& argument)
{
    if (const auto* value = std::get_if<std::int64_t>(&argument.value()))
        return static_cast<std::uint64_t>(*value);
    return std::get<std::uint64_t>(argument.value());
}

/// How far the low `bytes` bytes of an integer are from the top of 64 bits.
int shiftToTop(std::size_t bytes) { return static_cast<int>(8 * (sizeof(std::int64_t) - bytes)); }

Integer signedReading(const LogArgument& argument, std::size_t bytes)
{
    std::uint64_t bits = bitsOf(argument);
    if (bytes < sizeof(int)) {
        const int shift = shiftToTop(bytes);
        bits = static_cast<std::uint64_t>(static_cast<std::int64_t>(bits << shift) >> shift);
    } else if (std::holds_alternative<std::uint64_t>(argument.value())) {
        return { false, bits };
    }
    const bool isNegative = static_cast<std::int64_t>(bits) < 0;
    return { isNegative, isNegative ? 0 - bits : bits };
}

Integer unsignedReading(const LogArgument& argument, std::size_t bytes)
{
    const int shift = shiftToTop(std::min(bytes, argument.integerBytes()));
    return { false, bitsOf(argument) << shift >> shift };
}

std::optional<double> numberIn(const LogArgument& argument)
{
    if (const auto* value = std::get_if<double>(&argument.value()))
        return *value;
    if (const auto* value = std::get_if<std::int64_t>(&argument.value()))
        return static_cast<double>(*value);
    if (const auto* value = std::get_if<std::uint64_t>(&argument.value()))
        return static_cast<double>(*value);
    return std::nullopt;
}

bool startsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

std::size_t characterCount(std::string_view utf8)
{
    return static_cast<std::size_t>(std::count_if(utf8.begin(), utf8.end(), startsCharacter));
}

std::string_view firstCharacters(std::string_view utf8, std::size_t count)
{
    const auto end = std::find_if(utf8.begin(), utf8.end(),
        [&count](char byte) { return startsCharacter(byte) && count-- == 0; });
    return utf8.substr(0, static_cast<std::size_t>(end - utf8.begin()));
}

std::string_view viewOf(std::span<const char> characters)
{
    return { characters.data(), characters.size() };
}

void makeUpperCase(std::span<char> ascii)
{
    for (char& c : ascii) {
        if (c >= 'a' && c <= 'z')
            c = static_cast<char>(c - 'a' + 'A');
    }
}

int baseOf(char type)
{
    if (type == 'o')
        return 8;
    return type == 'x' || type == 'X' || type == 'p' ? 16 : 10;
}

std::string_view signFor(const Conversion& conversion, bool isNegative)
{
    if (isNegative)
        return "-";
    if (conversion.showsPlus)
        return "+";
    return conversion.showsBlankForPlus ? " " : "";
}

std::string_view prefixFor(const Conversion& conversion, const Integer& value)
{
    switch (conversion.type) {
    case 'd':
    case 'i':
        return signFor(conversion, value.isNegative);
    case 'p':
        return "0x";
    case 'x':
        return conversion.isAlternate && value.magnitude != 0 ? "0x" : "";
    case 'X':
        return conversion.isAlternate && value.magnitude != 0 ? "0X" : "";
    default:
        return "";
    }
}

std::size_t widthOf(const Conversion& conversion)
{
    return static_cast<std::size_t>(std::min(conversion.width, widestField));
}

/// The zeros that fill a numeric field up to its width, where the flags ask for it.
std::size_t zerosToFill(const Conversion& conversion, std::size_t used)
{
    const bool fills = conversion.fillsWithZeros && !conversion.isLeftAligned;
    return fills && widthOf(conversion) > used ? widthOf(conversion) - used : 0;
}

/// The zeros in front of an integer's digits.
std::size_t zerosFor(const Conversion& conversion, std::string_view prefix, std::string_view digits)
{
    std::size_t zeros = 0;
    if (conversion.precision) {
        const auto wanted = static_cast<std::size_t>(std::min(*conversion.precision, widestField));
        zeros = wanted > digits.size() ? wanted - digits.size() : 0;
    } else {
        zeros = zerosToFill(conversion, prefix.size() + digits.size());
    }
    const bool needsOctalMark = conversion.type == 'o' && conversion.isAlternate;
    return needsOctalMark && zeros == 0 && !digits.starts_with('0') ? 1 : zeros;
}

/// As printf(3) does.
int printed(std::span<char> buffer, char notation, int precision, double magnitude)
{
    switch (notation) {
    case 'e':
        return std::snprintf(buffer.data(), buffer.size(), "%.*e", precision, magnitude);
    case 'f':
        return std::snprintf(buffer.data(), buffer.size(), "%.*f", precision, magnitude);
    default:
        return std::snprintf(buffer.data(), buffer.size(), "%.*g", precision, magnitude);
    }
}

/// The same in every locale: what the user's puts between the digits for a point, which may be
/// several bytes, becomes one. (std::to_chars knows no locale, but macOS 13.0 has none for
/// doubles.)
std::span<char> withPoint(std::span<char> number)
{
    const auto isOfNumber
        = [](char c) { return (c >= '0' && c <= '9') || c == 'e' || c == '+' || c == '-'; };
    const auto point = std::find_if_not(number.begin(), number.end(), isOfNumber);
    const auto rest = std::find_if(point, number.end(), isOfNumber);
    if (rest == number.end())
        return number; // All of them digits, or no number at all.
    *point = '.';
    const auto end = std::copy(rest, number.end(), point + 1);
    return number.first(static_cast<std::size_t>(end - number.begin()));
}

/// Prints the fields of one line.
class FieldPrinter {
public:
    FieldPrinter(std::string& line, const Conversion& conversion)
        : m_line(line)
        , m_conversion(conversion)
    {
    }

    void print(const LogArgument& argument)
    {
        const bool fits = isInteger(argument) ? printInteger(argument) : printNumber(argument);
        if (!fits)
            printPlainText(argument);
    }

private:
    /// One field: `prefix` (a sign or a base), zeros and body, filled up to the width.
    void printField(std::string_view prefix, std::size_t zeros, std::string_view body,
        std::size_t bodyCharacters)
    {
        const std::size_t used = prefix.size() + zeros + bodyCharacters;
        const std::size_t padding = widthOf(m_conversion) > used ? widthOf(m_conversion) - used : 0;
        if (padding > 0 && !m_conversion.isLeftAligned)
            m_line.append(padding, ' ');
        if (used > bodyCharacters)
            m_line.append(prefix).append(zeros, '0');
        m_line.append(body);
        if (padding > 0 && m_conversion.isLeftAligned)
            m_line.append(padding, ' ');
    }

    bool printInteger(const LogArgument& argument)
    {
        switch (m_conversion.type) {
        case 'd':
        case 'i':
            printDigits(signedReading(argument, m_conversion.integerBytes));
            return true;
        case 'u':
        case 'o':
        case 'x':
        case 'X':
        case 'p':
            printDigits(unsignedReading(argument, m_conversion.integerBytes));
            return true;
        case 'c':
            printCharacter(bitsOf(argument));
            return true;
        default:
            return printNumber(argument);
        }
    }

    void printDigits(const Integer& value)
    {
        std::array<char, 24> buffer; // 64 bits have 22 octal digits.
        const char* end = buffer.data();
        if (value.magnitude != 0 || m_conversion.precision != 0)
            end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value.magnitude,
                baseOf(m_conversion.type))
                      .ptr;
        const std::span digits(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
        if (m_conversion.type == 'X')
            makeUpperCase(digits);

        const std::string_view prefix = prefixFor(m_conversion, value);
        const std::size_t zeros = zerosFor(m_conversion, prefix, viewOf(digits));
        printField(prefix, zeros, viewOf(digits), digits.size());
    }

    /// The low byte as a character of Latin-1, whose first half is ASCII.
    void printCharacter(std::uint64_t bits)
    {
        const auto code = static_cast<unsigned>(bits & 0xFF);
        if (code < 0x80) {
            const char ascii = static_cast<char>(code);
            printField({}, 0, { &ascii, 1 }, 1);
        } else {
            const std::array<char, 2> utf8 { static_cast<char>(0xC0 | (code >> 6)),
                static_cast<char>(0x80 | (code & 0x3F)) };
            printField({}, 0, viewOf(utf8), 1);
        }
    }

    bool printNumber(const LogArgument& argument)
    {
        const std::optional<double> number = numberIn(argument);
        if (!number)
            return false;
        switch (m_conversion.type) {
        case 'f':
        case 'F':
            printNumber(*number, 'f');
            return true;
        case 'e':
        case 'E':
            printNumber(*number, 'e');
            return true;
        case 'g':
        case 'G':
            printNumber(*number, 'g');
            return true;
        default:
            return false;
        }
    }

    void printNumber(double number, char notation)
    {
        const int precision = std::min(m_conversion.precision.value_or(6), widestField);
        std::array<char, longestNumber + widestField> buffer;
        const int length = printed(buffer, notation, precision, std::abs(number));
        const std::span written = std::span(buffer).first(static_cast<std::size_t>(length));
        const std::span digits = std::isfinite(number) ? withPoint(written) : written;
        if (m_conversion.type < 'a')
            makeUpperCase(digits);

        const std::string_view sign = signFor(m_conversion, std::signbit(number));
        const std::size_t zeros
            = std::isfinite(number) ? zerosToFill(m_conversion, sign.size() + digits.size()) : 0;
        printField(sign, zeros, viewOf(digits), digits.size());
    }

    void printPlainText(const LogArgument& argument)
    {
        if (const auto* text = std::get_if<std::string_view>(&argument.value())) {
            printText(*text);
        } else if (const auto* utf16 = std::get_if<QStringView>(&argument.value())) {
            QStringEncoder encode(QStringEncoder::Utf8); // Lone surrogates become U+FFFD.
            const QByteArray utf8 = encode(*utf16);
            printText(viewOf(utf8));
        } else {
            Conversion plain;
            plain.isLeftAligned = m_conversion.isLeftAligned;
            plain.width = m_conversion.width;
            plain.type = 'd';
            if (!isInteger(argument)) {
                plain.type = 'g';
                plain.precision = plainTextDigits;
            }
            FieldPrinter(m_line, plain).print(argument);
        }
    }

    void printText(std::string_view utf8)
    {
        if (m_conversion.precision)
            utf8 = firstCharacters(utf8, static_cast<std::size_t>(*m_conversion.precision));
        const std::size_t characters = m_conversion.width > 0 ? characterCount(utf8) : 0;
        printField({}, 0, utf8, characters);
    }

    std::string& m_line;
    const Conversion& m_conversion;
};

} // namespace

bool isKnown(char type)
{
    switch (type) {
    case '@':
    case 's':
    case 'c':
    case 'd':
    case 'i':
    case 'u':
    case 'o':
    case 'x':
    case 'X':
    case 'p':
    case 'f':
    case 'F':
    case 'e':
    case 'E':
    case 'g':
    case 'G':
        return true;
    default:
        return false;
    }
}

void append(std::string& line, const Conversion& conversion, const LogArgument& argument)
{
    FieldPrinter(line, conversion).print(argument);
}

} // namespace Orvello::LogField
