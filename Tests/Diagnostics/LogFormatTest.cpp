#include "Orvello/Diagnostics/LogFormat.h"

#include <QString>

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <cmath>
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

template <typename Argument>
std::string formattedByTheCLibrary(const std::string& format, Argument argument)
{
    std::array<char, 2048> text {};
    const int length = std::snprintf(text.data(), text.size(), format.c_str(), argument);
    return { text.data(), static_cast<std::size_t>(length) };
}

/// Calls `check` with every combination of the flags, and some widths and precisions.
template <typename Check>
void forEachCombination(const std::string& flags, Check check)
{
    for (unsigned chosen = 0; chosen < (1u << flags.size()); ++chosen) {
        std::string some = "%";
        for (std::size_t i = 0; i < flags.size(); ++i) {
            if (chosen & (1u << i))
                some += flags[i];
        }
        for (const char* width : { "", "1", "6", "17", "30" }) {
            for (const char* precision : { "", ".", ".0", ".1", ".4", ".12", ".25" })
                check(some + width + precision);
        }
    }
}

template <typename Integer>
void expectIntegersAsInC(const std::string& flags, const std::string& conversion)
{
    constexpr std::array values { std::numeric_limits<Integer>::min(),
        std::numeric_limits<Integer>::max(), Integer(0), Integer(1), Integer(-1), Integer(42),
        Integer(-42), Integer(255), Integer(1234567) };
    forEachCombination(flags, [&](const std::string& start) {
        for (const Integer value : values) {
            const std::string format = '<' + (start + conversion) + '>';
            ASSERT_EQ(formatted(format, value), formattedByTheCLibrary(format, value)) << format;
        }
    });
}

TEST(LogFormatTest, printsSignedIntegersAsC)
{
    expectIntegersAsInC<int>("-+ 0", "d");
    expectIntegersAsInC<int>("-+ 0", "i");
    expectIntegersAsInC<long>("-+ 0", "ld");
    expectIntegersAsInC<long long>("-+ 0", "lld");
    expectIntegersAsInC<std::ptrdiff_t>("-+ 0", "zd");
    expectIntegersAsInC<std::intmax_t>("-+ 0", "jd");
    expectIntegersAsInC<std::ptrdiff_t>("-+ 0", "td");
}

TEST(LogFormatTest, printsUnsignedIntegersAsC)
{
    expectIntegersAsInC<unsigned>("-0", "u");
    expectIntegersAsInC<unsigned long>("-0", "lu");
    expectIntegersAsInC<unsigned long long>("-0", "llu");
    expectIntegersAsInC<std::size_t>("-0", "zu");
    for (const char* conversion : { "x", "X", "o" }) {
        expectIntegersAsInC<unsigned>("-0#", conversion);
        expectIntegersAsInC<unsigned long long>("-0#", std::string("ll") + conversion);
    }
}

TEST(LogFormatTest, printsNegativeIntegersInTheirOwnSizeWhereThereIsNoSign)
{
    for (const char* conversion : { "u", "x", "X", "o" }) {
        expectIntegersAsInC<int>("-0", conversion);
        expectIntegersAsInC<long long>("-0", std::string("ll") + conversion);
    }
    EXPECT_EQ(formatted("%x", short { -1 }), "ffffffff");
    EXPECT_EQ(formatted("%x", std::int64_t { -1 }), "ffffffffffffffff");
}

TEST(LogFormatTest, cutsIntegersOnlyForTheShortModifiers)
{
    for (const int value : { 0, 1, -1, 127, 128, 255, 256, 300, 32767, 32768, 70000, -70000 }) {
        for (const char* format : { "%hhd", "%hd", "%hhu", "%hu", "%hhx", "%hX", "%+05hhi" })
            EXPECT_EQ(formatted(format, value), formattedByTheCLibrary(format, value)) << format;
    }
    EXPECT_EQ(formatted("%d", std::int64_t { 1 } << 40), "1099511627776");
    EXPECT_EQ(formatted("%u", std::uint64_t { 1 } << 40), "1099511627776");
    EXPECT_EQ(formatted("%d", std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
    EXPECT_EQ(formatted("%lld", 3), "3");
    EXPECT_EQ(formatted("%ld", -3), "-3");
}

TEST(LogFormatTest, printsFloatingPointNumbersAsC)
{
    constexpr std::array values { 0.0, -0.0, 1.0, -1.0, 0.5, 1.5, 2.5, 0.1, 3.14159265358979,
        -273.15, 99.9999995, 1e-5, 123456.0, 1234567.0, 1e15, 1e16, 6.02214076e23, 1e300, -1e-300,
        5e-324, 1.7976931348623157e308, std::numeric_limits<double>::infinity(),
        -std::numeric_limits<double>::infinity(), std::numeric_limits<double>::quiet_NaN() };
    for (const char* conversion : { "f", "F", "e", "E", "g", "G", "lf" }) {
        forEachCombination("-+ 0", [&](const std::string& start) {
            for (const double value : values) {
                const std::string format = '<' + (start + conversion) + '>';
                ASSERT_EQ(formatted(format, value), formattedByTheCLibrary(format, value))
                    << format;
            }
        });
    }
}

TEST(LogFormatTest, printsTextsAsC)
{
    for (const char* text : { "", "a", "abc", "a longer text" }) {
        forEachCombination("-", [&](const std::string& start) {
            const std::string format = "<" + start + "s>";
            ASSERT_EQ(formatted(format, text), formattedByTheCLibrary(format, text)) << format;
            ASSERT_EQ(formatted("<" + start + "@>", text), formattedByTheCLibrary(format, text));
        });
    }
}

TEST(LogFormatTest, printsCharactersAsC)
{
    for (const char* format : { "%c", "%3c", "%-3c|" }) {
        EXPECT_EQ(formatted(format, 'x'), formattedByTheCLibrary(format, 'x'));
        EXPECT_EQ(formatted(format, 65), formattedByTheCLibrary(format, 65));
    }
    EXPECT_EQ(formatted("%c", '\xE9'), "é");
    EXPECT_EQ(formatted("<%c>", 0), std::string("<\0>", 3));
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
    EXPECT_EQ(formatted("%s", qString), "QString é 🎤");
    EXPECT_EQ(formatted("%@", QByteArray("bytes")), "bytes");
    EXPECT_EQ(formatted("%@ %s", static_cast<const char*>(nullptr), QString()), "(null) ");
}

TEST(LogFormatTest, printsBooleansAsNumbers)
{
    EXPECT_EQ(formatted("%d %d", true, false), "1 0");
    EXPECT_EQ(formatted("%u %i %ld", true, false, true), "1 0 1");
    EXPECT_EQ(formatted("%@", true), "1");
}

TEST(LogFormatTest, printsNumbersGivenToATextConversionAsPlainTexts)
{
    EXPECT_EQ(formatted("%@", 42), "42");
    EXPECT_EQ(formatted("%@", -7LL), "-7");
    EXPECT_EQ(formatted("%@", std::numeric_limits<std::uint64_t>::max()), "18446744073709551615");
    EXPECT_EQ(formatted("%@", 0.1), "0.1");
    EXPECT_EQ(formatted("%@", 25.0), "25");
    EXPECT_EQ(formatted("%@", 100000.0), "100000");
    EXPECT_EQ(formatted("%@", 1e20), "1e+20");
    EXPECT_EQ(formatted("%s", -1.5), "-1.5");
    EXPECT_EQ(formatted("<%5@|%-5@>", 42, 42), "<   42|42   >");
    EXPECT_EQ(formatted("%.1@", 12345), "12345");
}

TEST(LogFormatTest, printsAnIntegerGivenToAFloatingPointConversion)
{
    EXPECT_EQ(formatted("%.0f", 24), "24");
    EXPECT_EQ(formatted("%.2f", -3L), "-3.00");
    EXPECT_EQ(formatted("%g", std::uint64_t { 1 } << 63), "9.22337e+18");
}

TEST(LogFormatTest, printsThePlainTextOfAnUnfittingArgument)
{
    EXPECT_EQ(formatted("%d", 2.5), "2.5");
    EXPECT_EQ(formatted("%x", -0.25), "-0.25");
    EXPECT_EQ(formatted("%c", 1.5), "1.5");
    EXPECT_EQ(formatted("%d|%f|%c|%p", "one", "two", u"three"_s, "four"), "one|two|three|four");
    EXPECT_EQ(formatted("<%8d>", "text"), "<    text>");
}

TEST(LogFormatTest, leavesAConversionWithoutAnArgumentAsItIsWritten)
{
    EXPECT_EQ(formatted("slide=%d"), "slide=%d");
    EXPECT_EQ(formatted("%@ and %-8.3f and %@", "one"), "one and %-8.3f and %@");
    EXPECT_EQ(formatted("%*d", 5), "%*d");
    EXPECT_EQ(formatted("%*.*f"), "%*.*f");
}

TEST(LogFormatTest, leavesAnUnknownConversionAsItIsWritten)
{
    EXPECT_EQ(formatted("50%: %d", 3), "50%: 3");
    EXPECT_EQ(formatted("%k %n %y", 1, 2, 3), "%k %n %y");
    EXPECT_EQ(formatted("%é %d", 1), "%é 1");
    EXPECT_EQ(formatted("%1$@", "one"), "%1$@");
    EXPECT_EQ(formatted("100%"), "100%");
    EXPECT_EQ(formatted("100%", 1), "100%");
    EXPECT_EQ(formatted("%-08.3l", 1), "%-08.3l");
    EXPECT_EQ(formatted(std::string_view("%\0d", 3), 1), std::string("%\0d", 3));
}

TEST(LogFormatTest, ignoresLeftOverArguments)
{
    EXPECT_EQ(formatted("only %d", 1, 2, "three"), "only 1");
    EXPECT_EQ(formatted("none", 1.5), "none");
    EXPECT_EQ(formatted("", 1), "");
}

TEST(LogFormatTest, printsAPercentSign)
{
    EXPECT_EQ(formatted("100%%"), "100%");
    EXPECT_EQ(formatted("%%d %d%%", 5), "%d 5%");
    EXPECT_EQ(formatted("%5%|%-%"), "%|%");
}

TEST(LogFormatTest, takesWidthAndPrecisionFromArguments)
{
    EXPECT_EQ(formatted("<%*d>", 6, 42), "<    42>");
    EXPECT_EQ(formatted("<%*d>", -6, 42), "<42    >");
    EXPECT_EQ(formatted("<%.*f>", 2, 3.14159), "<3.14>");
    EXPECT_EQ(formatted("<%*.*f>", 8, 1, 3.14159), "<     3.1>");
    EXPECT_EQ(formatted("<%.*d>", -1, 0), "<0>");
    EXPECT_EQ(formatted("<%*d>", "no number", 42), "<42>");
    EXPECT_EQ(formatted("<%*d>", INT_MIN, 42).size(), 1026u);
    EXPECT_EQ(formatted("<%*d>", std::numeric_limits<std::uint64_t>::max(), 42).size(), 1026u);
}

TEST(LogFormatTest, boundsEveryField)
{
    EXPECT_EQ(formatted("%99999999999999999999d", 1), std::string(1023, ' ') + "1");
    EXPECT_EQ(formatted("%099999d", 1), std::string(1023, '0') + "1");
    EXPECT_EQ(formatted("%.99999d", 1), std::string(1023, '0') + "1");
    EXPECT_EQ(formatted("%99999@", "a"), std::string(1023, ' ') + "a");
    const std::string longest = formatted("%.99999f", -std::numeric_limits<double>::max());
    EXPECT_EQ(longest.size(), 1 + 309 + 1 + 1024u);
    EXPECT_TRUE(longest.starts_with("-1797693134862315708"));
    EXPECT_EQ(
        formatted("%.99999e", std::numeric_limits<double>::denorm_min()).size(), 2 + 1024 + 5u);
}

TEST(LogFormatTest, doesNotCutALongText)
{
    const std::string text(100'000, 'x');
    EXPECT_EQ(formatted("%@", text), text);
    EXPECT_EQ(formatted("%.50000@", text), text.substr(0, 50'000));
    EXPECT_EQ(formatted("%.99999999999999@", text), text);
}

TEST(LogFormatTest, countsCharactersNotBytes)
{
    EXPECT_EQ(formatted("<%4@>", "é🎤"), "<  é🎤>");
    EXPECT_EQ(formatted("<%-4s>", u"é🎤"_s), "<é🎤  >");
    EXPECT_EQ(formatted("<%.1@>", "é🎤"), "<é>");
    EXPECT_EQ(formatted("<%.1s>", u"🎤é"_s), "<🎤>");
}

TEST(LogFormatTest, keepsANulInsideATextOrFormat)
{
    const std::string_view text("a\0b", 3);
    EXPECT_EQ(formatted("<%@>", text), std::string("<a\0b>", 5));
    EXPECT_EQ(formatted("<%s>", QString::fromUtf8(text.data(), 3)), std::string("<a\0b>", 5));
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

TEST(LogFormatTest, printsAddressesInHexadecimal)
{
    EXPECT_EQ(formatted("%p", std::uintptr_t { 0xdeadbeef }), "0xdeadbeef");
    EXPECT_EQ(formatted("%12p", std::uintptr_t { 0xbeef }), "      0xbeef");
}

} // namespace
} // namespace Orvello
