#include "Orvello/Foundation/JsonWriter.h"

#include <QString>

#include <gtest/gtest.h>

#include <limits>
#include <utility>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

QByteArray string(QStringView text)
{
    QByteArray json;
    Json::appendString(json, text);
    return json;
}

QByteArray number(double value)
{
    QByteArray json;
    Json::appendNumber(json, value);
    return json;
}

TEST(JsonWriterTest, quotesText)
{
    EXPECT_EQ(string(u""), "\"\"");
    EXPECT_EQ(string(u"plain / text"), "\"plain / text\"");
    EXPECT_EQ(string(u"\u007F é € 😀"), "\"\x7F \xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80\"");
}

TEST(JsonWriterTest, escapesWhatMustBeEscaped)
{
    EXPECT_EQ(string(u"\"\\\b\t\n\f\r"), R"("\"\\\b\t\n\f\r")");
    EXPECT_EQ(string(u"\0\u0001\u000B\u001F"_s), R"("\u0000\u0001\u000B\u001F")");
}

TEST(JsonWriterTest, findsWhatMustBeEscapedAnywhereInPlainText)
{
    const QString plain = u"0123456789AB~"_s;
    const std::pair<QString, QByteArray> specials[] = { { u"\""_s, R"(\")" }, { u"\\"_s, R"(\\)" },
        { u"\n"_s, R"(\n)" }, { u"\0"_s, R"(\u0000)" }, { u"\u001F"_s, R"(\u001F)" },
        { u"\u0080"_s, "\xC2\x80" }, { u"\u0122"_s, "\xC4\xA2" }, { u"\u225C"_s, "\xE2\x89\x9C" },
        { u"😀"_s, "\xF0\x9F\x98\x80" } };
    for (const auto& [special, written] : specials)
        for (qsizetype i = 0; i <= plain.size(); ++i)
            EXPECT_EQ(string(plain.first(i) + special + plain.sliced(i)),
                '"' + plain.first(i).toLatin1() + written + plain.sliced(i).toLatin1() + '"');
}

TEST(JsonWriterTest, writesEveryBoundaryOfUtf8)
{
    EXPECT_EQ(string(u"\u007F\u0080\u07FF\u0800\uD7FF\uE000\uFFFF"),
        "\"\x7F\xC2\x80\xDF\xBF\xE0\xA0\x80\xED\x9F\xBF\xEE\x80\x80\xEF\xBF\xBF\"");
    EXPECT_EQ(string(u"\U00010000\U0010FFFF"), "\"\xF0\x90\x80\x80\xF4\x8F\xBF\xBF\"");
}

TEST(JsonWriterTest, replacesLoneSurrogates)
{
    const QChar high(0xD83D);
    const QChar low(0xDE00);
    const QByteArray replacement = "\xEF\xBF\xBD";

    EXPECT_EQ(string(QString(high)), '"' + replacement + '"');
    EXPECT_EQ(string(QString(low)), '"' + replacement + '"');
    EXPECT_EQ(string(QString(high) + u'x'), '"' + replacement + "x\"");
    EXPECT_EQ(string(QString(low) + high), '"' + replacement + replacement + '"');
    EXPECT_EQ(string(QString(high) + high + low), '"' + replacement + "\xF0\x9F\x98\x80\"");
}

TEST(JsonWriterTest, appendsToWhatIsThere)
{
    QByteArray json = "[";
    Json::appendString(json, u"a");
    json += ',';
    Json::appendNumber(json, 1.5);

    EXPECT_EQ(json, "[\"a\",1.5");
}

TEST(JsonWriterTest, writesTheShortestDigitsThatReadBackTheSame)
{
    EXPECT_EQ(number(0), "0");
    EXPECT_EQ(number(0.1), "0.1");
    EXPECT_EQ(number(-2.5), "-2.5");
    EXPECT_EQ(number(802345678.123), "802345678.123");
    EXPECT_EQ(number(1e22), "1e+22");

    for (const double value : { 802345678.12345678, 1.0 / 3, 5e-324, 1e-7, 123456789012345680.0,
             std::numeric_limits<double>::max(), std::numeric_limits<double>::lowest() })
        EXPECT_EQ(number(value).toDouble(), value);
}

} // namespace
} // namespace Orvello
