#include "Orvello/Diagnostics/LogFormat.h"

#include <QString>

#include <gtest/gtest.h>

#include <array>
#include <cstdio>
#include <limits>

using namespace Qt::StringLiterals;

namespace Orvello {
namespace {

template <typename... Arguments>
std::string formatted(std::string_view format, const Arguments&... arguments)
{
    std::string line;
    LogFormat::append(
        line, format, std::array<LogArgument, sizeof...(Arguments)> { LogArgument(arguments)... });
    return line;
}

TEST(LogFormatTest, printsIntegersOfEverySize)
{
    EXPECT_EQ(formatted("%d %d %d", 0, -42, short { 7 }), "0 -42 7");
    EXPECT_EQ(formatted("%ld", std::numeric_limits<std::int64_t>::min()), "-9223372036854775808");
    EXPECT_EQ(formatted("%ld", std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
    EXPECT_EQ(formatted("%d", std::int64_t { 1 } << 40), "1099511627776");
    EXPECT_EQ(formatted("%d %ld", true, false), "1 0");
}

TEST(LogFormatTest, printsNumbersWithTheirDecimalsAsC)
{
    constexpr std::array values { 0.0, -0.0, 1.0, -1.0, 0.5, 1.5, 2.5, 0.1, 3.14159265358979,
        -273.15, 99.9999995, 1e-5, 123456.0, 1e16, 6.02214076e23, 1e300, -1e-300, 5e-324,
        1.7976931348623157e308, -1.7976931348623157e308, std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN() };
    for (const char* format : { "%.0f", "%.1f", "%.2f", "%.4f", "%.9f" }) {
        for (const double value : values) {
            std::array<char, 512> byTheCLibrary {};
            std::snprintf(byTheCLibrary.data(), byTheCLibrary.size(), format, value);
            EXPECT_EQ(formatted(format, value), byTheCLibrary.data());
        }
    }
    EXPECT_EQ(formatted("rms=%.4f thr=%.4f", 0.03125f, 0.015), "rms=0.0312 thr=0.0150");
}

TEST(LogFormatTest, takesEveryKindOfText)
{
    const std::string string = "string";
    const QString qString = u"QString é 🎤"_s;

    EXPECT_EQ(formatted("%@", "literal"), "literal");
    EXPECT_EQ(formatted("%@", string), "string");
    EXPECT_EQ(formatted("%@", std::string_view("view")), "view");
    EXPECT_EQ(formatted("%@", qString), "QString é 🎤");
    EXPECT_EQ(formatted("%@", QStringView(qString).first(7)), "QString");
    EXPECT_EQ(formatted("%@", QByteArray("bytes")), "bytes");
    EXPECT_EQ(formatted("%@ %@", static_cast<const char*>(nullptr), QString()), "(null) ");
}

TEST(LogFormatTest, printsAnArgumentOfAnotherKindAsWhatItIs)
{
    EXPECT_EQ(formatted("%@ %@ %@", 42, -7LL, true), "42 -7 1");
    EXPECT_EQ(formatted("%@ %@ %@", 0.1, 25.0, 1e20), "0.1 25 1e+20");
    EXPECT_EQ(formatted("%d %ld", 2.5, 100000.0), "2.5 100000");
    EXPECT_EQ(formatted("%d|%.2f|%ld", "one", "two", u"three"_s), "one|two|three");
    EXPECT_EQ(formatted("%.0f %.4f", 24, -3L), "24 -3");
}

TEST(LogFormatTest, leavesAConversionWithoutAnArgumentAsItIsWritten)
{
    EXPECT_EQ(formatted("slide=%d"), "slide=%d");
    EXPECT_EQ(formatted("%@ and %.4f and %@", "one"), "one and %.4f and %@");
}

TEST(LogFormatTest, leavesAnUnknownConversionAsItIsWritten)
{
    EXPECT_EQ(formatted("50%: %d", 3), "50%: 3");
    EXPECT_EQ(formatted("%k %n %l %.f %.10f %.4d %", 1), "%k %n %l %.f %.10f %.4d %");
    EXPECT_EQ(formatted("%é %d", 1), "%é 1");
    EXPECT_EQ(formatted("100%", 1), "100%");
    EXPECT_EQ(formatted("%.4"), "%.4");
    EXPECT_EQ(formatted(std::string_view("%\0d", 3), 1), std::string("%\0d", 3));
}

TEST(LogFormatTest, ignoresLeftOverArguments)
{
    EXPECT_EQ(formatted("only %d", 1, 2, "three"), "only 1");
    EXPECT_EQ(formatted("", 1), "");
}

TEST(LogFormatTest, printsAPercentSign)
{
    EXPECT_EQ(formatted("100%%"), "100%");
    EXPECT_EQ(formatted("%%d %d%%", 5), "%d 5%");
}

TEST(LogFormatTest, neverReadsAnArgumentAsAFormat)
{
    EXPECT_EQ(formatted("%@ %@", "%@ %d 100%", "second"), "%@ %d 100% second");
}

TEST(LogFormatTest, doesNotCutALongText)
{
    const std::string text(100'000, 'x');
    EXPECT_EQ(formatted("%@", text), text);
}

TEST(LogFormatTest, keepsANulInsideATextOrFormat)
{
    const std::string_view text("a\0b", 3);
    EXPECT_EQ(formatted("<%@>", text), std::string("<a\0b>", 5));
    EXPECT_EQ(formatted("<%@>", QString::fromUtf8(text.data(), 3)), std::string("<a\0b>", 5));
    EXPECT_EQ(formatted(text), std::string(text));
}

TEST(LogFormatTest, replacesWhatIsNotUtf8)
{
    const std::string replacement = "\uFFFD";
    EXPECT_EQ(formatted("a%@b", "\xFF"), "a" + replacement + "b");
    EXPECT_EQ(formatted("\xC3 %@", "é"), replacement + " é");
    EXPECT_EQ(formatted("%@", "cut \xE2\x82"), "cut " + replacement + replacement);
    EXPECT_EQ(formatted("%@%@", "\xC3", "\xA9"), "é"); // Two halves make a whole.
    const std::array<char16_t, 3> loneSurrogate { u'a', 0xD83C, u'b' };
    EXPECT_EQ(formatted("%@", QStringView(loneSurrogate)), "a" + replacement + "b");
}

TEST(LogFormatTest, leavesWhatTheLineHeldBefore)
{
    std::string line = "\xFF before ";
    const std::array arguments { LogArgument("\xFE") };

    LogFormat::append(line, "%@", arguments);

    EXPECT_EQ(line, "\xFF before \uFFFD");
}

} // namespace
} // namespace Orvello
