#include "Orvello/Library/Records/ScriptCoding.h"

#include <QJsonDocument>

#include <gtest/gtest.h>

#include <limits>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

const QUuid id(u"{e621e1f8-c36c-495a-93fc-0c247a3e6e5f}"_s);

/// The members of a plain script, to be followed by others and a closing brace.
const QByteArray required = R"({"id":"E621E1F8-C36C-495A-93FC-0C247A3E6E5F","title":"Title",)"
                            R"("body":"Body","createdAt":802345678.5,"updatedAt":802345679.25)";

Script plainScript()
{
    return { .id = id,
        .title = u"Title"_s,
        .body = u"Body"_s,
        .createdAt = { 802345678.5 },
        .updatedAt = { 802345679.25 },
        .slides = {},
        .deckSource = {} };
}

Script deckScript()
{
    Script script = plainScript();
    script.slides
        = QList<SlideNote> { { 1, u"Intro"_s, u"Hello all"_s }, { 2, std::nullopt, u""_s } };
    script.deckSource = u"talk.pptx"_s;
    return script;
}

std::optional<Script> decodeOne(const QByteArray& object)
{
    const auto scripts = ScriptCoding::decode('[' + object + ']');
    return scripts && scripts->size() == 1 ? std::optional(scripts->first()) : std::nullopt;
}

/// A plain script with another value for one member, or without it if `value` is empty.
QByteArray withMember(const QByteArray& key, const QByteArray& value)
{
    QByteArrayList members;
    for (const QByteArray& member : required.sliced(1).split(',')) {
        const bool isMeant = member.startsWith('"' + key + "\":");
        if (!isMeant)
            members += member;
        else if (!value.isEmpty())
            members += '"' + key + "\":" + value;
    }
    return '{' + members.join(',') + '}';
}

/// Makes JSON comparable: neither the order of keys nor white space matters.
QJsonDocument parsed(const QByteArray& json) { return QJsonDocument::fromJson(json); }

QByteArray withSlide(const QByteArray& slide) { return required + ",\"slides\":[" + slide + "]}"; }

TEST(ScriptEncodingTest, writesTheFiveRequiredKeysOfAPlainScript)
{
    EXPECT_EQ(parsed(ScriptCoding::encode(plainScript())), parsed(required + '}'));
}

TEST(ScriptEncodingTest, writesADeckScript)
{
    EXPECT_EQ(parsed(ScriptCoding::encode(deckScript())),
        parsed(required
            + R"(,"slides":[{"index":1,"title":"Intro","notes":"Hello all"},{"index":2,"notes":""}],)"
              R"("deckSource":"talk.pptx"})"));
}

TEST(ScriptEncodingTest, writesAnEmptyDeck)
{
    Script script = plainScript();
    script.slides.emplace();

    EXPECT_EQ(parsed(ScriptCoding::encode(script)), parsed(required + R"(,"slides":[]})"));
}

TEST(ScriptEncodingTest, escapesWhatJsonCannotHoldAsItIs)
{
    Script script = plainScript();
    script.title = u"“é” \\ \" / \n \t 😀 \u0001"_s;

    const QByteArray json = ScriptCoding::encode(script);

    EXPECT_TRUE(json.contains(R"("title":"“é” \\ \" / \n \t 😀 \u0001")")) << json.constData();
}

TEST(ScriptEncodingTest, writesNoWhiteSpaceBetweenMembers)
{
    const QByteArray json = ScriptCoding::encode(deckScript());

    EXPECT_EQ(json.count(' '), 1) << json.constData(); // In "Hello all".
    EXPECT_FALSE(json.contains('\n'));
}

TEST(ScriptCodingTest, givesBackWhatWasEncoded)
{
    Script script = deckScript();
    script.title = u"\uFEFF\"\\\n\u0000\u2028\U0010FFFF/"_s;
    script.createdAt = { 802345678.12345678 };
    script.updatedAt = { -5e-324 };
    script.slides->first().index = std::numeric_limits<qint64>::min();
    script.slides->last().index = std::numeric_limits<qint64>::max();
    script.slides->last().title = u""_s;
    script.deckSource = u""_s;

    EXPECT_EQ(decodeOne(ScriptCoding::encode(script)), script);
    EXPECT_EQ(decodeOne(ScriptCoding::encode(plainScript())), plainScript());
}

TEST(ScriptCodingTest, keepsAByteOrderMarkAtTheBeginningOfAText)
{
    Script script = plainScript();
    script.title = u"\uFEFF"_s;
    script.body = u"\uFEFFplain text"_s;

    EXPECT_EQ(decodeOne(ScriptCoding::encode(script)), script);
}

TEST(ScriptCodingTest, givesALoneSurrogateBackAsTheReplacementCharacter)
{
    Script script = plainScript();
    script.body = u"a"_s + QChar(0xD83D) + u"b"_s;
    EXPECT_EQ(decodeOne(ScriptCoding::encode(script))->body, u"a\uFFFDb"_s);

    script.body = u"😀\u0000b"_s + QChar(0xDE00);
    EXPECT_EQ(decodeOne(ScriptCoding::encode(script))->body, u"😀\u0000b\uFFFD"_s);
}

TEST(ScriptDecodingTest, readsListsOfScriptsInOrder)
{
    Script second = plainScript();
    second.title = u"Second"_s;

    EXPECT_EQ(ScriptCoding::decode("[]"), QList<Script> {});
    EXPECT_EQ(ScriptCoding::decode('[' + ScriptCoding::encode(deckScript()) + ",\n"
                  + ScriptCoding::encode(second) + ']'),
        (QList<Script> { deckScript(), second }));
}

TEST(ScriptDecodingTest, doesNotDependOnTheOrderOfKeysNorOnWhiteSpace)
{
    EXPECT_EQ(
        ScriptCoding::decode("\xEF\xBB\xBF \r\n[ {\t\"deckSource\" : \"talk.pptx\", \"slides\": [ "
                             R"({"notes":"Hello all","index":1.0,"title":"Intro"}, )"
                             R"({ "notes" : "" , "index" : 2 } ], )"
                             R"("updatedAt":802345679.25e0,"createdAt":8023456785E-1,)"
                             R"("body":"\u0042ody","title":"Title",)"
                             R"("\u0069d":"e621e1f8-c36c-495a-93fc-0c247a3e6e5f"} ] )"),
        QList<Script> { deckScript() });
}

TEST(ScriptDecodingTest, takesNullForAnAbsentOptionalValue)
{
    EXPECT_EQ(decodeOne(required + R"(,"slides":null,"deckSource":null})"), plainScript());

    Script script = plainScript();
    script.slides = QList<SlideNote> { { 1, std::nullopt, u"n"_s } };
    EXPECT_EQ(decodeOne(withSlide(R"({"index":1,"title":null,"notes":"n"})")), script);
}

TEST(ScriptDecodingTest, needsEveryRequiredKey)
{
    for (const char* key : { "id", "title", "body", "createdAt", "updatedAt" }) {
        EXPECT_EQ(decodeOne(withMember(key, "")), std::nullopt) << key;
        EXPECT_EQ(decodeOne(withMember(key, "null")), std::nullopt) << key;
    }
    for (const char* slide : { R"({"index":1})", R"({"notes":"n"})", "{}",
             R"({"index":null,"notes":"n"})", R"({"index":1,"notes":null})" })
        EXPECT_EQ(decodeOne(withSlide(slide)), std::nullopt) << slide;
    EXPECT_EQ(decodeOne(withMember("title", "\"Title\"")), plainScript());
}

TEST(ScriptDecodingTest, refusesMistypedValues)
{
    for (const char* key : { "id", "title", "body" })
        for (const char* value : { "1", "true", "[]", "{}", "[\"x\"]" })
            EXPECT_EQ(decodeOne(withMember(key, value)), std::nullopt) << key << value;
    for (const char* key : { "createdAt", "updatedAt" })
        for (const char* value : { "\"1\"", "true", "[]", "{}", "[1]", "\"2026-01-01T00:00:00Z\"" })
            EXPECT_EQ(decodeOne(withMember(key, value)), std::nullopt) << key << value;
    for (const char* value : { "1", "true", "{}", "\"x\"", "[1]", "[null]", "[[]]", "[\"x\"]" })
        EXPECT_EQ(decodeOne(required + ",\"slides\":" + value + '}'), std::nullopt) << value;
    for (const char* value : { "1", "true", "[]", "{}" })
        EXPECT_EQ(decodeOne(required + ",\"deckSource\":" + value + '}'), std::nullopt) << value;
    for (const char* slide : { R"({"index":"1","notes":"n"})", R"({"index":true,"notes":"n"})",
             R"({"index":1,"notes":5})", R"({"index":1,"title":5,"notes":"n"})",
             R"({"index":1,"title":{},"notes":"n"})", R"({"index":[1],"notes":"n"})" })
        EXPECT_EQ(decodeOne(withSlide(slide)), std::nullopt) << slide;
}

TEST(ScriptDecodingTest, readsIdsInTheirStandardFormOnly)
{
    for (const char* value : { "\"\"", "\"{E621E1F8-C36C-495A-93FC-0C247A3E6E5F}\"",
             "\"E621E1F8C36C495A93FC0C247A3E6E5F\"", "\"x621E1F8-C36C-495A-93FC-0C247A3E6E5F\"" })
        EXPECT_EQ(decodeOne(withMember("id", value)), std::nullopt) << value;
}

TEST(ScriptDecodingTest, readsAnyFiniteDate)
{
    EXPECT_EQ(decodeOne(withMember("createdAt", "0"))->createdAt, Date { 0 });
    EXPECT_EQ(decodeOne(withMember("createdAt", "-1e300"))->createdAt, Date { -1e300 });
    EXPECT_EQ(decodeOne(withMember("createdAt", "12345678901234567890"))->createdAt,
        Date { 12345678901234567890.0 });
    EXPECT_EQ(decodeOne(withMember("createdAt", "1e400")), std::nullopt);
    EXPECT_EQ(decodeOne(withMember("updatedAt", "-1e400")), std::nullopt);
}

TEST(ScriptDecodingTest, readsIntegralSlideNumbersThatFit)
{
    const auto index = [](const QByteArray& number) -> std::optional<qint64> {
        const auto script = decodeOne(withSlide("{\"index\":" + number + ",\"notes\":\"\"}"));
        return script ? std::optional(script->slides->first().index) : std::nullopt;
    };

    EXPECT_EQ(index("1.0"), 1);
    EXPECT_EQ(index("-3"), -3);
    EXPECT_EQ(index("1e2"), 100);
    EXPECT_EQ(index("9223372036854775807"), std::numeric_limits<qint64>::max());
    EXPECT_EQ(index("1.5"), std::nullopt);
    EXPECT_EQ(index("1e400"), std::nullopt);
    EXPECT_EQ(index("12345678901234567890"), std::nullopt);
}

TEST(ScriptDecodingTest, ignoresUnknownKeysWhateverTheyHold)
{
    for (const QByteArray& value : { QByteArray("null"), QByteArray("true"), QByteArray("\"x\""),
             QByteArray("-12345678901234567890"), QByteArray("[]"),
             QByteArray(R"([{"id":5,"slides":[1]},[[]],"x"])"),
             QByteArray(R"({"id":5,"title":null,"slides":{"index":"x"},"x":{}})"),
             QByteArray(500, '[') + QByteArray(500, ']'),
             QByteArray(R"({"a":)").repeated(500) + '1' + QByteArray(500, '}') }) {
        EXPECT_EQ(decodeOne(required + ",\"color\":" + value + '}'), plainScript())
            << value.left(40).constData();
        EXPECT_EQ(decodeOne("{\"color\":" + value + ',' + required.sliced(1) + '}'), plainScript())
            << value.left(40).constData();

        const auto deck = decodeOne(
            withSlide("{\"x\":" + value + R"(,"index":1,"notes":"n","y":)" + value + '}'));
        ASSERT_TRUE(deck) << value.left(40).constData();
        EXPECT_EQ(deck->slides, (QList<SlideNote> { { 1, std::nullopt, u"n"_s } }));
    }
}

TEST(ScriptDecodingTest, refusesMalformedJsonUnderAnUnknownKey)
{
    for (const char* value : { "", "x", "[", "{]", "01", "1e400", "\"\x80\"" })
        EXPECT_EQ(decodeOne(required + ",\"color\":" + value + '}'), std::nullopt) << value;
}

TEST(ScriptDecodingTest, refusesNestingThatNobodyNeeds)
{
    for (const QByteArray& value : { QByteArray(100'000, '[') + QByteArray(100'000, ']'),
             QByteArray(R"({"a":)").repeated(100'000) + '1' + QByteArray(100'000, '}') })
        EXPECT_EQ(decodeOne(required + ",\"color\":" + value + '}'), std::nullopt)
            << value.left(40).constData();
}

TEST(ScriptDecodingTest, refusesTextThatIsNoUnicode)
{
    for (const char* text : { R"("\ud83d")", R"("\ude00")", R"("\ud83dx")", R"("\ude00\ud83d")",
             "\"\x80\"", "\"\xC0\x80\"", "\"\xED\xA0\x80\"", "\"\xF4\x90\x80\x80\"" }) {
        EXPECT_EQ(decodeOne(withMember("title", text)), std::nullopt) << text;
        EXPECT_EQ(decodeOne(withMember("body", text)), std::nullopt) << text;
        EXPECT_EQ(decodeOne(required + ",\"deckSource\":" + text + '}'), std::nullopt) << text;
    }
    EXPECT_EQ(decodeOne(withMember("title", R"("\ud83d\ude00")"))->title, u"😀"_s);
}

TEST(ScriptDecodingTest, tellsKeysApartByCase)
{
    EXPECT_EQ(decodeOne(required + R"(,"Slides":5,"ID":5,"deck_source":5})"), plainScript());
}

TEST(ScriptDecodingTest, takesTheLastOfDuplicateKeys)
{
    Script script = plainScript();
    script.title = u"Other"_s;

    EXPECT_EQ(decodeOne(required + R"(,"title":5,"title":"Other"})"), script);
    EXPECT_EQ(decodeOne(required + R"(,"title":"Other","title":5})"), std::nullopt);
}

TEST(ScriptDecodingTest, startsEachScriptAfresh)
{
    const QByteArray deck = ScriptCoding::encode(deckScript());

    EXPECT_EQ(ScriptCoding::decode('[' + deck + ',' + required + "}]"),
        (QList<Script> { deckScript(), plainScript() }));
    EXPECT_EQ(ScriptCoding::decode('[' + deck + ",{}]"), std::nullopt);
}

TEST(ScriptDecodingTest, needsAnArrayOfObjects)
{
    for (const char* json : { "", "null", "{}", "5", "\"x\"", "[null]", "[5]", "[\"x\"]", "[[]]",
             "[true]", "{\"scripts\":[]}", "[]]", "[] x", "[]\n[]" })
        EXPECT_EQ(ScriptCoding::decode(json), std::nullopt) << json;
    EXPECT_EQ(ScriptCoding::decode(required + '}'), std::nullopt);
    EXPECT_EQ(ScriptCoding::decode(QByteArray("[]\0", 3)), std::nullopt);
}

TEST(ScriptDecodingTest, refusesEveryTruncation)
{
    const QByteArray json = '[' + ScriptCoding::encode(deckScript()) + ']';

    for (qsizetype length = 0; length < json.size(); ++length)
        EXPECT_EQ(ScriptCoding::decode(json.first(length)), std::nullopt) << length;
}

} // namespace
} // namespace Orvello
