#include "Orvello/Diagnostics/LogFormat.h"

#include <QByteArray>
#include <QString>
#include <QStringEncoder>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>
#include <limits>

namespace Orvello::LogFormat {

namespace {

/// The conversion that `format` starts with: its percent sign alone if the conversion is unknown.
std::string_view conversionAtStartOf(std::string_view format)
{
    for (const std::string_view known : { "%@", "%d", "%ld", "%%" }) {
        if (format.starts_with(known))
            return known;
    }
    const bool isFixed = format.size() >= 4 && format[1] == '.' && format[2] >= '0'
        && format[2] <= '9' && format[3] == 'f';
    return format.substr(0, isFixed ? 4 : 1);
}

/// Rounds like printf(3), but with a point in every locale: the user's may have several bytes in
/// its place. (std::to_chars knows no locale, but macOS 13.0 has none for doubles.)
void appendFixed(std::string& line, double number, std::size_t decimals)
{
    constexpr std::size_t decimalsLimit = 9;
    constexpr std::size_t longest
        = std::numeric_limits<double>::max_exponent10 + decimalsLimit + 16;
    std::array<char, longest> buffer;
    const int length
        = std::snprintf(buffer.data(), buffer.size(), "%.*f", static_cast<int>(decimals), number);
    const std::string_view text(buffer.data(), static_cast<std::size_t>(length));
    if (decimals == 0 || !std::isfinite(number)) {
        line.append(text);
        return;
    }
    line.append(text.substr(0, text.find_first_not_of("-0123456789")));
    line += '.';
    line.append(text.substr(text.size() - decimals));
}

/// The text of each kind of argument.
struct ArgumentPrinter {
    void operator()(std::string_view text) const { line.append(text); }
    void operator()(QStringView text) const
    {
        QStringEncoder encode(QStringEncoder::Utf8); // Lone surrogates become U+FFFD.
        const QByteArray utf8 = encode(text);
        line.append(utf8.constData(), static_cast<std::size_t>(utf8.size()));
    }
    void operator()(std::int64_t integer) const { line.append(std::to_string(integer)); }
    void operator()(std::uint64_t integer) const { line.append(std::to_string(integer)); }
    void operator()(double number) const
    {
        if (conversion.ends_with('f'))
            appendFixed(line, number, static_cast<std::size_t>(conversion[2] - '0'));
        else
            line.append(QByteArray::number(number, 'g', 16).toStdString());
    }

    std::string& line;
    std::string_view conversion;
};

/// Replaces what is not UTF-8 in `line` from `start` on.
void repairUtf8(std::string& line, std::size_t start)
{
    const QByteArrayView message = QByteArrayView(line).sliced(static_cast<qsizetype>(start));
    if (!message.isValidUtf8())
        line.replace(start, std::string::npos, QString::fromUtf8(message).toStdString());
}

} // namespace

void append(std::string& line, std::string_view format, std::span<const LogArgument> arguments)
{
    const std::size_t start = line.size();
    while (true) {
        const std::size_t percent = std::min(format.find('%'), format.size());
        line.append(format.substr(0, percent));
        format.remove_prefix(percent);
        if (format.empty())
            break;

        const std::string_view conversion = conversionAtStartOf(format);
        format.remove_prefix(conversion.size());
        if (conversion == "%%") {
            line += '%';
        } else if (conversion == "%" || arguments.empty()) {
            line.append(conversion);
        } else {
            std::visit(ArgumentPrinter { line, conversion }, arguments.front().value());
            arguments = arguments.subspan(1);
        }
    }
    repairUtf8(line, start);
}

} // namespace Orvello::LogFormat
