#include "Orvello/Diagnostics/LogFormat.h"

#include "Orvello/Diagnostics/LogField.h"

#include <QByteArrayView>
#include <QString>

#include <algorithm>
#include <cstdlib>

namespace Orvello::LogFormat {

namespace {

using LogField::Conversion;

/// Held so far inside the range of int that no sum or sign of it overflows.
constexpr std::int64_t largestNumber = 100'000'000;

int held(std::int64_t number)
{
    return static_cast<int>(std::clamp(number, -largestNumber, largestNumber));
}

/// Walks once through a format and its arguments.
class Formatter {
public:
    Formatter(std::string& line, std::string_view format, std::span<const LogArgument> arguments)
        : m_line(line)
        , m_format(format)
        , m_arguments(arguments)
    {
    }

    void run()
    {
        while (!m_format.empty()) {
            const std::size_t percent = std::min(m_format.find('%'), m_format.size());
            m_line.append(m_format.substr(0, percent));
            m_format.remove_prefix(percent);
            if (!m_format.empty())
                convertNext();
        }
    }

private:
    void convertNext()
    {
        const std::string_view start = m_format;
        const Conversion conversion = parseConversion();
        const std::string_view spelling = start.substr(0, start.size() - m_format.size());

        if (conversion.type == '%') {
            m_line += '%';
            return;
        }
        const LogArgument* const argument
            = LogField::isKnown(conversion.type) ? nextArgument() : nullptr;
        if (argument)
            LogField::append(m_line, conversion, *argument);
        else
            m_line.append(spelling);
    }

    const LogArgument* nextArgument()
    {
        if (m_arguments.empty())
            return nullptr;
        const LogArgument* const argument = m_arguments.data();
        m_arguments = m_arguments.subspan(1);
        return argument;
    }

    Conversion parseConversion()
    {
        Conversion conversion;
        m_format.remove_prefix(1); // The percent sign.
        if (!m_format.empty() && !LogField::isKnown(m_format.front())) { // Mostly it is a mere %d.
            parseFlags(conversion);
            parseWidth(conversion);
            parsePrecision(conversion);
            parseLength(conversion);
        }
        if (!m_format.empty()) {
            conversion.type = m_format.front();
            m_format.remove_prefix(1);
        }
        return conversion;
    }

    bool take(char c)
    {
        if (!m_format.starts_with(c))
            return false;
        m_format.remove_prefix(1);
        return true;
    }

    void parseFlags(Conversion& conversion)
    {
        for (;;) {
            if (take('-'))
                conversion.isLeftAligned = true;
            else if (take('+'))
                conversion.showsPlus = true;
            else if (take(' '))
                conversion.showsBlankForPlus = true;
            else if (take('#'))
                conversion.isAlternate = true;
            else if (take('0'))
                conversion.fillsWithZeros = true;
            else if (!take('\'')) // Groups thousands as the locale does, and the log has none.
                return;
        }
    }

    void parseWidth(Conversion& conversion)
    {
        const int width = take('*') ? integerArgument() : parseNumber();
        conversion.isLeftAligned |= width < 0;
        conversion.width = std::abs(width);
    }

    void parsePrecision(Conversion& conversion)
    {
        if (!take('.'))
            return;
        const int precision = take('*') ? integerArgument() : parseNumber();
        if (precision >= 0)
            conversion.precision = precision;
    }

    void parseLength(Conversion& conversion)
    {
        if (take('h'))
            conversion.integerBytes = take('h') ? sizeof(char) : sizeof(short);
        while (take('l') || take('q') || take('j') || take('z') || take('t') || take('L')) { }
    }

    int parseNumber()
    {
        int number = 0;
        while (!m_format.empty() && m_format.front() >= '0' && m_format.front() <= '9') {
            number = held(std::int64_t { number } * 10 + (m_format.front() - '0'));
            m_format.remove_prefix(1);
        }
        return number;
    }

    /// The value of a *, or 0 when there is no integer.
    int integerArgument()
    {
        const LogArgument* const argument = nextArgument();
        if (!argument)
            return 0;
        if (const auto* value = std::get_if<std::int64_t>(&argument->value()))
            return held(*value);
        if (const auto* value = std::get_if<std::uint64_t>(&argument->value()))
            return held(static_cast<std::int64_t>(std::min<std::uint64_t>(*value, largestNumber)));
        return 0;
    }

    std::string& m_line;
    std::string_view m_format; ///< What is left of it.
    std::span<const LogArgument> m_arguments; ///< Those not used yet.
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
    Formatter(line, format, arguments).run();
    repairUtf8(line, start);
}

} // namespace Orvello::LogFormat
