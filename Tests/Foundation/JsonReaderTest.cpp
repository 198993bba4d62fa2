#include "Orvello/Foundation/JsonReader.h"

#include <gtest/gtest.h>

#include <limits>
#include <optional>
#include <string>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

/// Writes down what it receives, a blank after each item.
class Transcript final : public JsonHandler {
public:
    bool null() override { return note("null"); }
    bool boolean(bool value) override { return note(value ? "true" : "false"); }
    bool number(std::string_view digits) override { return note(digits); }
    bool string(std::string_view value) override { return note('"' + std::string(value) + '"'); }
    bool key(std::string_view name) override { return note(std::string(name) + ':'); }
    bool beginObject() override { return note("{"); }
    bool endObject() override { return note("}"); }
    bool beginArray() override { return note("["); }
    bool endArray() override { return note("]"); }

    std::string text;
    std::string refused; ///< The item at which to end the reading.

private:
    bool note(std::string_view item)
    {
        text += item;
        text += ' ';
        return item != refused;
    }
};

std::optional<std::string> transcript(const QByteArray& document)
{
    Transcript handler;
    if (!Json::read(document, handler))
        return std::nullopt;
    return handler.text;
}

TEST(JsonReaderTest, reportsADocumentInOrder)
{
    EXPECT_EQ(transcript(R"( { "a" : [ 1, -2.5e3, true ], "b": {}, "c": null, "d": [] } )"),
        "{ a: [ 1 -2.5e3 true ] b: { } c: null d: [ ] } ");
}

TEST(JsonReaderTest, readsASingleValueOfAnyKind)
{
    EXPECT_EQ(transcript("\"text\""), "\"text\" ");
    EXPECT_EQ(transcript("0"), "0 ");
    EXPECT_EQ(transcript("\tfalse\r\n"), "false ");
}

TEST(JsonReaderTest, reportsEveryDuplicateKey)
{
    EXPECT_EQ(transcript(R"({"a":1,"a":2})"), "{ a: 1 a: 2 } ");
}

TEST(JsonReaderTest, resolvesEscapes)
{
    EXPECT_EQ(transcript(R"(["\"\\\/\b\f\n\r\t", "\u0041\u00e9\u20AC\ud83d\ude00"])"),
        "[ \"\"\\/\b\f\n\r\t\" \"A\xC3\xA9\xE2\x82\xAC\xF0\x9F\x98\x80\" ] ");
    EXPECT_EQ(transcript(R"({"\u0061\"":1})"), "{ a\": 1 } ");
}

TEST(JsonReaderTest, keepsAnEscapedNulInsideAText)
{
    EXPECT_EQ(transcript(R"(["a\u0000b"])"), std::string("[ \"a\0b\" ] ", 10));
}

TEST(JsonReaderTest, passesNumbersOnAsWritten)
{
    for (const char* number : { "0", "-0", "10", "-1", "0.5", "1.0", "0.001", "1e5", "1E+5",
             "1e-05", "100200300400500600700800900", "-9223372036854775809", "1e400",
             "-1.5e99999999999999", "0e400", "0.0e999" })
        EXPECT_EQ(transcript(number), std::string(number) + ' ');
}

TEST(JsonReaderTest, passesNumbersOfAThousandDigitsOn)
{
    const QByteArray digits(1000, '9');
    for (const QByteArray& number : { digits, '-' + digits, "0." + digits, digits + "." + digits,
             "1e" + digits, "1e-" + digits, '1' + QByteArray(1000, '0') })
        EXPECT_EQ(transcript('[' + number + ",1]"), "[ " + number.toStdString() + " 1 ] ");
}

TEST(JsonReaderTest, refusesWhatIsNoNumber)
{
    for (const char* text : { "01", "-01", "00", "+1", ".5", "1.", "1.e5", "1e", "1e+", "-", "--1",
             "0x10", "1_000", "1,5", "NaN", "Infinity", "-Infinity", "1.5.5", "1e5e5", "1 2" })
        EXPECT_EQ(transcript(text), std::nullopt) << text;
}

TEST(JsonReaderTest, refusesWhatIsNoJson)
{
    for (const char* text : { "", " ", "[", "]", "{", "}", "[1", "[1,", "[1,]", "[,1]", "[1 2]",
             "[1,,2]", "{\"a\"}", "{\"a\":}", "{\"a\":1,}", "{,}", "{a:1}", "{'a':1}", "{1:1}",
             "{\"a\" 1}", "[\"a]", "[a]", "nul", "nulll", "TRUE", "[}", "{]", "[[]", "{}}", "[] []",
             "[]x", "// comment\n[]", "[/* comment */]", "\"a\nb\"", "\"\t\"", "\"\\x41\"",
             "\"\\u12\"", "\"\\u12G4\"", "\"\\\"", "'a'", "\f[]", "[\v]" })
        EXPECT_EQ(transcript(text), std::nullopt) << text;
}

TEST(JsonReaderTest, refusesLoneSurrogateEscapes)
{
    for (const char* text : { R"("\ud83d")", R"("\ude00")", R"("\ud83dx")", R"("\ud83d\n")",
             R"("\ud83d\ud83d")", R"("\ude00\ud83d")", R"({"\ude00":1})" })
        EXPECT_EQ(transcript(text), std::nullopt) << text;
}

TEST(JsonReaderTest, refusesBytesThatAreNotUtf8)
{
    for (const char* text : { "\"\x80\"", "\"\xFF\"", "\"\xC3\"", "\"\xC0\x80\"", "\"\xE2\x82\"",
             "\"\xED\xA0\x80\"", "\"\xED\xB0\x80\"", "\"\xF4\x90\x80\x80\"", "\"\xF0\x9F\x98\"",
             "\"\xF0", "[]\xFF", "\xFE\xFF[]" })
        EXPECT_EQ(transcript(text), std::nullopt) << QByteArray(text).toHex().constData();
}

TEST(JsonReaderTest, skipsAByteOrderMark)
{
    EXPECT_EQ(transcript("\xEF\xBB\xBF[1]"), "[ 1 ] ");
    EXPECT_EQ(transcript("\xEF\xBB\xBF"), std::nullopt);
    EXPECT_EQ(transcript("\xEF\xBB\xBF\xEF\xBB\xBF[]"), std::nullopt);
    EXPECT_EQ(transcript("[\xEF\xBB\xBF]"), std::nullopt);
}

TEST(JsonReaderTest, refusesANulAnywhere)
{
    for (const QByteArray& text : { QByteArray("\0[]", 3), QByteArray("[]\0", 3),
             QByteArray("[\0]", 3), QByteArray("[]\0[]", 5), QByteArray("\"a\0b\"", 5) })
        EXPECT_EQ(transcript(text), std::nullopt) << text.toHex().constData();
}

TEST(JsonReaderTest, readsDeepNesting)
{
    Transcript handler;

    EXPECT_TRUE(Json::read(
        QByteArray(Json::maximumDepth, '[') + QByteArray(Json::maximumDepth, ']'), handler));
    EXPECT_FALSE(Json::read(
        QByteArray(Json::maximumDepth + 1, '[') + QByteArray(Json::maximumDepth + 1, ']'),
        handler));
    EXPECT_FALSE(Json::read(QByteArray("{\"a\":").repeated(3'000'000), handler));
}

TEST(JsonReaderTest, endsWhenTheHandlerSaysSo)
{
    for (const char* refused : { "{", "a:", "1", "\"b\"", "null", "true", "[", "]", "}" }) {
        Transcript handler;
        handler.refused = refused;

        EXPECT_FALSE(Json::read(R"({"a":1,"a":"b","a":null,"a":true,"a":[]})", handler));

        EXPECT_TRUE(handler.text.ends_with(std::string(refused) + ' ')) << refused;
    }
}

TEST(JsonReaderTest, leavesTheCallersBytesAlone)
{
    const QByteArray document = R"(["a\nb"])";
    const QByteArray copy = document;
    Transcript handler;

    EXPECT_TRUE(Json::read(document, handler));

    EXPECT_EQ(document, R"(["a\nb"])");
    EXPECT_EQ(copy, R"(["a\nb"])");
}

TEST(JsonTextTest, keepsALeadingByteOrderMark)
{
    EXPECT_EQ(Json::text("\xEF\xBB\xBF\xC3\xA9"), u"\uFEFFé"_s);
}

TEST(JsonNumberTest, takesIntegralNumbersThatFitForIntegers)
{
    EXPECT_EQ(Json::integer("0"), 0);
    EXPECT_EQ(Json::integer("-0"), 0);
    EXPECT_EQ(Json::integer("1.0"), 1);
    EXPECT_EQ(Json::integer("1e2"), 100);
    EXPECT_EQ(Json::integer("10e-1"), 1);
    EXPECT_EQ(Json::integer("1e-400"), 0); // Too small to be told from it.
    EXPECT_EQ(Json::integer("9223372036854775807"), std::numeric_limits<qint64>::max());
    EXPECT_EQ(Json::integer("-9223372036854775808"), std::numeric_limits<qint64>::min());
    EXPECT_EQ(Json::integer("-9.223372036854775808e18"), std::numeric_limits<qint64>::min());
}

TEST(JsonNumberTest, takesNoOtherNumberForAnInteger)
{
    for (const char* number : { "1.5", "-0.1", "1e400", "12345678901234567890",
             "9223372036854775808", "-9223372036854775809", "9.3e18", "1e-1" })
        EXPECT_EQ(Json::integer(number), std::nullopt) << number;
}

TEST(JsonNumberTest, readsTheNearestDouble)
{
    EXPECT_EQ(Json::finite("0.1"), 0.1);
    EXPECT_EQ(Json::finite("802345678.12345678"), 802345678.12345678);
    EXPECT_EQ(Json::finite("5e-324"), 5e-324);
    EXPECT_EQ(Json::finite("1e-400"), 0.0);
    EXPECT_EQ(Json::finite("12345678901234567890"), 12345678901234567890.0);
    EXPECT_EQ(Json::finite("1.7976931348623157e308"), std::numeric_limits<double>::max());
    EXPECT_EQ(Json::finite("1e309"), std::nullopt);
    EXPECT_EQ(Json::finite("-1e309"), std::nullopt);
    EXPECT_EQ(Json::finite(std::string(400, '9')), std::nullopt);
}

} // namespace
} // namespace Orvello
