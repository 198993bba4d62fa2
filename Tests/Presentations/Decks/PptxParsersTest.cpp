#include "Orvello/Presentations/Decks/PlaceholderTextParser.h"
#include "Orvello/Presentations/Decks/RelsParser.h"
#include "Orvello/Presentations/Decks/SlideOrderParser.h"

#include <gtest/gtest.h>

#include <string>

namespace Orvello::PptxImporter {
namespace {

using namespace Qt::StringLiterals;

QList<Rel> relsOf(std::string_view document)
{
    RelsParser parser;
    parser.parse(document);
    return parser.rels;
}

QStringList slideRelIdsOf(std::string_view document)
{
    SlideOrderParser parser;
    parser.parse(document);
    return parser.slideRelIds;
}

QStringList textOf(const std::string& shapes, qsizetype maximumLength = 1000)
{
    PlaceholderTextParser parser({ "title", "ctrTitle" }, maximumLength);
    parser.parse("<p:sld>" + shapes + "</p:sld>");
    return parser.collected;
}

/// A shape with an accepted placeholder and this text body.
std::string title(const std::string& body)
{
    return "<p:sp><p:nvSpPr><p:ph type='title'/></p:nvSpPr><p:txBody>" + body
        + "</p:txBody></p:sp>";
}

TEST(RelsParserTest, collectsRelationshipsInDocumentOrder)
{
    EXPECT_EQ(relsOf("<Relationships><Relationship Id='b' Type='t1' Target='x'/>"
                     "<Relationship Target='y' Type='t2' Id='a' TargetMode='External'/>"
                     "</Relationships>"),
        (QList<Rel> { { u"b"_s, u"t1"_s, u"x"_s }, { u"a"_s, u"t2"_s, u"y"_s } }));
}

TEST(RelsParserTest, knowsItsElementsWithAndWithoutAPrefix)
{
    EXPECT_EQ(relsOf("<r><pr:Relationship Id='a'/><Relationship Id='b'/><MyRelationship Id='c'/>"
                     "<Relationships Id='d'/><relationship Id='e'/></r>"),
        (QList<Rel> { { u"a"_s, {}, {} }, { u"b"_s, {}, {} } }));
}

TEST(RelsParserTest, leavesAFieldEmptyWithoutItsAttribute)
{
    EXPECT_EQ(relsOf("<r><Relationship/><Relationship id='a' TYPE='b' x:Target='c'/></r>"),
        (QList<Rel> { {}, {} }));
}

TEST(RelsParserTest, takesAnEndlessValueForAMissingOne)
{
    const std::string longest(RelsParser::maximumValueLength, 'x');

    const QList<Rel> rels = relsOf("<r><Relationship Id='" + longest + "' Target='" + longest
        + "x'/><Relationship Id='next'/></r>");

    ASSERT_EQ(rels.size(), 2);
    EXPECT_EQ(rels[0].id.toStdString(), longest);
    EXPECT_EQ(rels[0].target, u""_s);
}

TEST(SlideOrderParserTest, collectsTheIdsInDocumentOrder)
{
    EXPECT_EQ(slideRelIdsOf("<p:presentation><p:sldMasterIdLst><p:sldMasterId r:id='m'/>"
                            "</p:sldMasterIdLst><p:sldIdLst><p:sldId id='300' r:id='rId9'/>"
                            "<p:sldId id='256' r:id='rId2'/></p:sldIdLst></p:presentation>"),
        (QStringList { u"rId9"_s, u"rId2"_s }));
}

TEST(SlideOrderParserTest, knowsItsElementByTheEndOfItsName)
{
    EXPECT_EQ(slideRelIdsOf("<a><sldId r:id='1'/><x:sldId r:id='2'/><p:customsldId r:id='3'/>"
                            "<p:sldIdLst r:id='4'/><p:sldid r:id='5'/></a>"),
        (QStringList { u"1"_s, u"2"_s, u"3"_s }));
}

TEST(SlideOrderParserTest, takesTheIdByItsUsualPrefixOnly)
{
    EXPECT_EQ(slideRelIdsOf("<p:x xmlns:rel='http://schemas.openxmlformats.org/officeDocument/2006/"
                            "relationships'><p:sldId id='1' rel:id='a'/><p:sldId id='2'/>"
                            "<p14:sldId id='3'/><p:sldId r:id=''/></p:x>"),
        QStringList { u""_s });
}

TEST(PlaceholderTextParserTest, collectsOneStringForEachAcceptedShape)
{
    EXPECT_EQ(textOf(title("<a:p><a:t>One</a:t></a:p>") + title("<a:p><a:t>Two</a:t></a:p>")),
        (QStringList { u"One"_s, u"Two"_s }));
}

TEST(PlaceholderTextParserTest, acceptsAShapeByTheTypeOfItsPlaceholder)
{
    EXPECT_EQ(textOf("<p:sp><p:ph type='ctrTitle'/><a:t>accepted</a:t></p:sp>"
                     "<p:sp><p:ph type='body'/><a:t>another type</a:t></p:sp>"
                     "<p:sp><p:ph/><a:t>no type</a:t></p:sp>"
                     "<p:sp><p:ph x:type='title'/><a:t>another attribute</a:t></p:sp>"
                     "<p:sp><p:ph type='Title'/><a:t>another case</a:t></p:sp>"
                     "<p:sp><a:t>text box</a:t></p:sp>"),
        QStringList { u"accepted"_s });
}

TEST(PlaceholderTextParserTest, knowsElementsByAnyPrefixButNotWithoutOne)
{
    EXPECT_EQ(textOf("<x:sp><y:ph type='title'/><z:t>any prefix</z:t></x:sp>"
                     "<sp><p:ph type='title'/><a:t>no prefix</a:t></sp>"
                     "<p:sp><ph type='title'/><a:t>no prefix</a:t></p:sp>"
                     "<p:sp><p:ph type='title'/><t>no prefix</t></p:sp>"),
        (QStringList { u"any prefix"_s, u""_s }));
}

TEST(PlaceholderTextParserTest, acceptsAPlaceholderThatFollowsTheText)
{
    EXPECT_EQ(
        textOf("<p:sp><a:t>text</a:t><p:ph type='title'/></p:sp>"), QStringList { u"text"_s });
}

TEST(PlaceholderTextParserTest, staysAcceptedAfterAnotherPlaceholder)
{
    EXPECT_EQ(textOf("<p:sp><p:ph type='title'/><p:ph type='body'/><a:t>text</a:t></p:sp>"),
        QStringList { u"text"_s });
}

TEST(PlaceholderTextParserTest, ignoresPlaceholdersOutsideAShape)
{
    EXPECT_EQ(textOf("<p:ph type='title'/><p:sp><a:t>text</a:t></p:sp>"), QStringList());
    EXPECT_EQ(textOf("<p:pic><p:ph type='title'/><a:t>text</a:t></p:pic>"), QStringList());
}

TEST(PlaceholderTextParserTest, joinsTheRunsOfAParagraph)
{
    EXPECT_EQ(textOf(title("<a:p><a:r><a:t>Split ti</a:t></a:r><a:r><a:t>tle</a:t></a:r></a:p>")),
        QStringList { u"Split title"_s });
}

TEST(PlaceholderTextParserTest, endsParagraphsAndBreaksLinesByNewlines)
{
    EXPECT_EQ(textOf(title("<a:p><a:t>one</a:t></a:p><a:p><a:t>two</a:t><a:br><a:rPr/></a:br>"
                           "<a:t>three</a:t></a:p><a:p/><a:p><a:t>four</a:t></a:p>")),
        QStringList { u"one\ntwo\nthree\n\nfour"_s });
}

TEST(PlaceholderTextParserTest, takesCharactersFromTextRunsOnly)
{
    EXPECT_EQ(textOf(title(" a <a:p> b <a:r> c <a:t>text</a:t> d </a:r> e </a:p> f ")),
        QStringList { u"text"_s });
}

TEST(PlaceholderTextParserTest, joinsCharactersThatComeInPieces)
{
    EXPECT_EQ(textOf(title("<a:p><a:t>a&amp;b\nc<!-- x -->d&#x1f399;<![CDATA[<e>]]></a:t></a:p>")),
        QStringList { u"a&b\ncd\U0001f399<e>"_s });
}

TEST(PlaceholderTextParserTest, trimsUnicodeWhiteSpaceAroundEachShape)
{
    EXPECT_EQ(textOf(title(
                  "<a:p/><a:p><a:t>&#xa0;&#x3000;\t in  side &#x2003;&#x2028;</a:t></a:p><a:p/>")),
        QStringList { u"in  side"_s });
}

TEST(PlaceholderTextParserTest, keepsAnEmptyAcceptedShapeAsAnEmptyString)
{
    EXPECT_EQ(
        textOf(title("<a:p><a:t>  </a:t></a:p>") + title("")), (QStringList { u""_s, u""_s }));
}

TEST(PlaceholderTextParserTest, ignoresTextOfThePartThatIsInNoShape)
{
    EXPECT_EQ(textOf("<a:p><a:t>before</a:t><a:br/></a:p>" + title("<a:t>text</a:t>")
                  + "<a:p><a:t>after</a:t></a:p>"),
        QStringList { u"text"_s });
}

TEST(PlaceholderTextParserTest, beginsAnewWithAShapeInsideAShape)
{
    EXPECT_EQ(textOf("<p:sp><p:ph type='title'/><a:t>outer</a:t>"
                     "<p:sp><a:t>inner</a:t></p:sp><a:t>after</a:t></p:sp>"),
        QStringList());
    // What the inner shape left behind is collected once more.
    EXPECT_EQ(textOf("<p:sp><a:t>outer</a:t><p:sp><p:ph type='title'/><a:t>inner</a:t></p:sp>"
                     "<a:t>after</a:t></p:sp>"),
        (QStringList { u"inner"_s, u"inner"_s }));
}

TEST(PlaceholderTextParserTest, keepsReadingARunThatAShapeInterrupts)
{
    // The end of a shape does not end the run: its further characters still count, unseen.
    EXPECT_EQ(textOf("<p:sp><p:ph type='title'/><a:t>one<p:sp><p:ph type='title'/></p:sp>two</a:t>"
                     "<a:br/></p:sp>"),
        (QStringList { u""_s, u"two"_s }));
}

TEST(PlaceholderTextParserTest, keepsTheShapesBeforeAnError)
{
    EXPECT_EQ(textOf(title("<a:t>one</a:t>") + title("<a:t>two</a:p>")), QStringList { u"one"_s });
}

TEST(PlaceholderTextParserTest, endsBeforeTheShapeThatIsTooLong)
{
    const std::string shapes
        = title("<a:t>12345</a:t>") + title("<a:t>789</a:t>") + title("<a:t>last</a:t>");

    EXPECT_EQ(textOf(shapes, 10), (QStringList { u"12345"_s, u"789"_s }));
    EXPECT_EQ(textOf(shapes, 9), QStringList { u"12345"_s });
    EXPECT_EQ(textOf(shapes, 0), QStringList());
}

TEST(PlaceholderTextParserTest, boundsWhatNestedShapesRepeat)
{
    std::string shapes;
    for (int i = 0; i < 100; ++i)
        shapes += "<p:sp>";
    shapes += "<p:ph type='title'/><a:t>12345678</a:t>";
    for (int i = 0; i < 100; ++i)
        shapes += "</p:sp>";

    EXPECT_EQ(textOf(shapes, 30), (QStringList { u"12345678"_s, u"12345678"_s, u"12345678"_s }));
}

} // namespace
} // namespace Orvello::PptxImporter
