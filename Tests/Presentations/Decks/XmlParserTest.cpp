#include "Orvello/Presentations/Decks/XmlParser.h"

#include <QTemporaryFile>

#include <gtest/gtest.h>

#include <string>

namespace Orvello::PptxImporter {
namespace {

/// Writes events down: "<name attribute=value>", "</name>" and text as it comes.
class EventRecorder final : public XmlParser {
public:
    std::string events;

private:
    void startElement(std::string_view name, const XmlAttributes& attributes) override
    {
        events += '<' + std::string(name);
        if (const auto value = attributes.value("r:id"))
            events += " r:id=" + std::string(*value);
        events += '>';
    }
    void endElement(std::string_view name) override { events += "</" + std::string(name) + '>'; }
    void characters(std::string_view text) override { events += text; }
};

std::string eventsOf(std::string_view document)
{
    EventRecorder recorder;
    recorder.parse(document);
    return recorder.events;
}

std::string repeated(std::string_view text, int count)
{
    std::string result;
    result.reserve(text.size() * static_cast<std::size_t>(count));
    for (int i = 0; i < count; ++i)
        result += text;
    return result;
}

TEST(XmlParserTest, namesElementsAndAttributesAsTheyAreWritten)
{
    EXPECT_EQ(eventsOf("<p:a xmlns:q='x'><q:b r:id='7' id='8'>text</q:b><c/></p:a>"),
        "<p:a><q:b r:id=7>text</q:b><c></c></p:a>");
}

TEST(XmlParserTest, deliversWhatCameBeforeAnError)
{
    EXPECT_EQ(eventsOf("<a><b>one</b><b>two</c><b>three</b></a>"), "<a><b>one</b><b>two");
    EXPECT_EQ(eventsOf("<a><b>one</b><b>tw"), "<a><b>one</b><b>tw");
    EXPECT_EQ(eventsOf("<a></a>trailing"), "<a></a>");
    EXPECT_EQ(eventsOf("<a>\xff</a>"), "<a>");
}

TEST(XmlParserTest, hasNothingToDeliverFromWhatIsNotXml)
{
    EXPECT_EQ(eventsOf(""), "");
    EXPECT_EQ(eventsOf("plain text"), "");
    EXPECT_EQ(eventsOf(std::string_view("\0\0\0\0", 4)), "");
}

TEST(XmlParserTest, readsUtf16WithItsMark)
{
    using namespace std::string_view_literals;
    EXPECT_EQ(eventsOf("\xff\xfe<\0a\0>\0\x2d\x4e<\0/\0a\0>\0"sv), "<a>\xe4\xb8\xad</a>");
    EXPECT_EQ(eventsOf("\xfe\xff\0<\0a\0>\x4e\x2d\0<\0/\0a\0>"sv), "<a>\xe4\xb8\xad</a>");
}

TEST(XmlParserTest, readsUtf8WithAMarkAndLatin1)
{
    EXPECT_EQ(eventsOf("\xef\xbb\xbf<a>\xc3\xa9</a>"), "<a>\xc3\xa9</a>");
    EXPECT_EQ(
        eventsOf("<?xml version='1.0' encoding='ISO-8859-1'?><a>\xe9</a>"), "<a>\xc3\xa9</a>");
}

TEST(XmlParserTest, resolvesReferencesWithinTheDocument)
{
    EXPECT_EQ(eventsOf("<!DOCTYPE a [<!ENTITY greeting 'Hello'>]>"
                       "<a>&greeting; &lt;&amp;&gt; &#x4e2d;<![CDATA[<raw>]]></a>"),
        "<a>Hello <&> \xe4\xb8\xad<raw></a>");
}

TEST(XmlParserTest, loadsNothingFromOutside)
{
    QTemporaryFile secret;
    ASSERT_TRUE(secret.open());
    secret.write("secret");
    secret.close();
    const std::string url = "file://" + secret.fileName().toStdString();

    EXPECT_EQ(eventsOf("<!DOCTYPE a SYSTEM '" + url + "'><a>text</a>"), "<a>text</a>");
    EXPECT_EQ(eventsOf("<!DOCTYPE a [<!ENTITY x SYSTEM '" + url + "'>]><a>before &x; after</a>"),
        "<a>before  after</a>");
    EXPECT_EQ(eventsOf("<!DOCTYPE a [<!ENTITY % x SYSTEM '" + url + "'> %x;]><a>text</a>"),
        "<a>text</a>");
}

TEST(XmlParserTest, endsWhenEntitiesGrowTheDocument)
{
    std::string document = "<!DOCTYPE a [<!ENTITY e0 'ha'>";
    for (int i = 1; i < 10; ++i) {
        const std::string reference = "&e" + std::to_string(i - 1) + ';';
        document += "<!ENTITY e" + std::to_string(i) + " '" + repeated(reference, 10) + "'>";
    }

    const std::string events = eventsOf(document + "]><a>kept<b>&e9;</b></a>");

    EXPECT_TRUE(events.starts_with("<a>kept<b>"));
    EXPECT_LT(events.size(), 2 * document.size());
}

TEST(XmlParserTest, endsWhenOneLongEntityIsRepeated)
{
    const std::string document = "<!DOCTYPE a [<!ENTITY e '" + std::string(100'000, 'x') + "'>]><a>"
        + repeated("&e;", 100'000) + "</a>";

    EXPECT_LT(eventsOf(document).size(), 2 * document.size());
}

TEST(XmlParserTest, endsAtTooManyDeclarations)
{
    std::string chain = "<!DOCTYPE a [<!ENTITY e0 ''>";
    for (int i = 1; i < 200'000; ++i)
        chain += "<!ENTITY e" + std::to_string(i) + " '&e" + std::to_string(i - 1) + ";'>";
    EXPECT_EQ(eventsOf(chain + "]><a>&e199999;</a>"), "");

    std::string defaults = "<!DOCTYPE a [<!ATTLIST a";
    for (int i = 0; i < 200'000; ++i)
        defaults += " a" + std::to_string(i) + " CDATA ''";
    EXPECT_EQ(eventsOf(defaults + ">]><a/>"), "");
}

TEST(XmlParserTest, acceptsAsManyDeclarationsAsItSays)
{
    std::string document = "<!DOCTYPE a [";
    for (int i = 0; i < XmlParser::maximumDeclarations; ++i)
        document += "<!ENTITY e" + std::to_string(i) + " 'x'>";

    EXPECT_EQ(eventsOf(document + "]><a>&e15;</a>"), "<a>x</a>");
    EXPECT_EQ(eventsOf(document + "<!ENTITY one 'more'>]><a>&e15;</a>"), "");
}

TEST(XmlParserTest, endsWhereTheDocumentNestsTooDeep)
{
    const int depth = XmlParser::maximumDepth;
    const std::string deepest = repeated("<a>", depth);
    const std::string ends = repeated("</a>", depth);

    EXPECT_EQ(eventsOf(deepest + ends), deepest + ends);
    EXPECT_EQ(eventsOf(deepest + "<b>x</b>" + ends), deepest);
    EXPECT_EQ(eventsOf(repeated("<a>", 3'000'000)), deepest);
}

TEST(XmlParserTest, readsAVeryLongTokenInOneGo)
{
    EXPECT_EQ(eventsOf("<a><!--" + std::string(30'000'000, ' ') + "-->text</a>"), "<a>text</a>");
}

} // namespace
} // namespace Orvello::PptxImporter
