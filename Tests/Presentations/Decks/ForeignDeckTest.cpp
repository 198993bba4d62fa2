#include "Orvello/Presentations/Decks/PptxImporter.h"

#include "Tests/Support/DeckBuilder.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvello::PptxImporter {
namespace {

using namespace Qt::StringLiterals;
using Testing::DeckBuilder;
namespace Pptx = Testing::Pptx;

/// Parts as presentation programs write them, with what the importer does not look for around it.
class ForeignDeckTest : public ::testing::Test {
protected:
    Result<Deck, ImportError> import(const QByteArray& bytes, const QString& name = u"deck.pptx"_s)
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        return importDeck(file.fileName());
    }

    /// What becomes of a slide with these shapes and a notes page with these.
    SlideNote importSlide(const QByteArray& shapes, const QByteArray& notes = {})
    {
        const auto deck
            = import(DeckBuilder()
                         .slide("", "")
                         .part("ppt/slides/slide1.xml", part("p:sld", shapes))
                         .part("ppt/notesSlides/notesSlide1.xml", part("p:notes", notes))
                         .build());
        EXPECT_TRUE(deck.has_value());
        return deck ? deck->slides.value(0) : SlideNote();
    }

    static QByteArray part(const QByteArray& root, const QByteArray& shapes)
    {
        return "<?xml version=\"1.0\" encoding=\"UTF-8\" standalone=\"yes\"?>\r\n<" + root
            + " xmlns:a=\"http://schemas.openxmlformats.org/drawingml/2006/main\""
              " xmlns:p=\"http://schemas.openxmlformats.org/presentationml/2006/main\""
              " xmlns:mc=\"http://schemas.openxmlformats.org/markup-compatibility/2006\""
              " xmlns:a14=\"http://schemas.microsoft.com/office/drawing/2010/main\""
              " xmlns:m=\"http://schemas.openxmlformats.org/officeDocument/2006/math\">"
              "<p:cSld><p:spTree><p:nvGrpSpPr><p:cNvPr id=\"1\" name=\"\"/></p:nvGrpSpPr>"
            + shapes + "</p:spTree></p:cSld></" + root + ">";
    }

    /// A shape with this placeholder and these runs in one paragraph.
    static QByteArray shape(const QByteArray& placeholder, const QByteArray& runs)
    {
        return "<p:sp><p:nvSpPr><p:cNvPr id=\"2\" name=\"x\"/><p:cNvSpPr><a:spLocks noGrp=\"1\"/>"
               "</p:cNvSpPr><p:nvPr>"
            + placeholder + "</p:nvPr></p:nvSpPr><p:spPr/><p:txBody><a:bodyPr/><a:lstStyle/><a:p>"
            + runs + "<a:endParaRPr lang=\"en-US\" dirty=\"0\"/></a:p></p:txBody></p:sp>";
    }
    static QByteArray title(const QByteArray& runs)
    {
        return shape("<p:ph type=\"title\"/>", runs);
    }
    static QByteArray body(const QByteArray& runs)
    {
        return shape("<p:ph type=\"body\" idx=\"1\"/>", runs);
    }
    static QByteArray run(const QByteArray& text)
    {
        return "<a:r><a:rPr lang=\"en-US\" dirty=\"0\"/><a:t>" + text + "</a:t></a:r>";
    }

    QTemporaryDir folder;
};

TEST_F(ForeignDeckTest, readsWhatFieldsShow)
{
    const SlideNote slide = importSlide(
        title(run("Page ")
            + "<a:fld id=\"{B6F15528-21DE-4FAA-801E-634DDDAF4B2B}\" type=\"slidenum\">"
              "<a:rPr lang=\"en-US\"/><a:pPr/><a:t>7</a:t></a:fld>"),
        body("<a:fld id=\"{5BCAD085-E8A6-8845-BD4E-CB4CCA059FC4}\" type=\"datetime1\">"
             "<a:t>3/1/26</a:t></a:fld>"
            + run(": say hello")));

    EXPECT_EQ(slide.title, u"Page 7"_s);
    EXPECT_EQ(slide.notes, u"3/1/26: say hello"_s);
}

TEST_F(ForeignDeckTest, keepsTabsAndBreaks)
{
    const SlideNote slide = importSlide(title(run("One") + "<a:br><a:rPr/></a:br>" + run("Two")),
        body(run("Pause\there") + "<a:br/>" + run("and here")));

    EXPECT_EQ(slide.title, u"One\nTwo"_s);
    EXPECT_EQ(slide.notes, u"Pause\there\nand here"_s);
}

/// Both are shapes of the part, and which of them a program shows, it decides by what it knows.
TEST_F(ForeignDeckTest, readsEachAlternative)
{
    const SlideNote slide = importSlide("<mc:AlternateContent><mc:Choice Requires=\"a14\">"
            + title(run("New")) + "</mc:Choice><mc:Fallback>" + title(run("Old"))
            + "</mc:Fallback></mc:AlternateContent>",
        body(run("Before") + "<mc:AlternateContent><mc:Choice Requires=\"a14\">" + run(" it")
            + "</mc:Choice><mc:Fallback/></mc:AlternateContent>"));

    EXPECT_EQ(slide.title, u"New\nOld"_s);
    EXPECT_EQ(slide.notes, u"Before it"_s);
}

TEST_F(ForeignDeckTest, readsTheLettersOfAnEquation)
{
    const SlideNote slide = importSlide(title(run("Why ")
        + "<a14:m><m:oMath><m:r><m:rPr/><m:t>E</m:t></m:r><m:r><m:t>=m</m:t></m:r>"
          "<m:sSup><m:e><m:r><m:t>c</m:t></m:r></m:e><m:sup><m:r><m:t>2</m:t></m:r></m:sup></"
          "m:sSup>"
          "</m:oMath></a14:m>"));

    EXPECT_EQ(slide.title, u"Why E=mc2"_s);
}

TEST_F(ForeignDeckTest, findsPlaceholdersInGroupsAndNothingElseThere)
{
    const SlideNote slide = importSlide("<p:grpSp><p:nvGrpSpPr/><p:grpSpPr/>"
            + shape("", run("A box")) + "<p:grpSp>" + title(run("Deep down"))
            + "</p:grpSp></p:grpSp><p:pic/><p:cxnSp/>"
              "<p:graphicFrame><a:tbl><a:tr><a:tc><a:txBody><a:p>"
            + run("A cell") + "</a:p></a:txBody></a:tc></a:tr></a:tbl></p:graphicFrame>",
        "<p:grpSp>" + body(run("In a group")) + "</p:grpSp>");

    EXPECT_EQ(slide.title, u"Deep down"_s);
    EXPECT_EQ(slide.notes, u"In a group"_s);
}

TEST_F(ForeignDeckTest, goesByTheTypeOfANotesPlaceholderNotByItsIndex)
{
    EXPECT_EQ(importSlide({}, shape("<p:ph idx=\"1\"/>", run("Untyped"))).notes, QString());
    EXPECT_EQ(importSlide({},
                  shape("<p:ph type=\"body\" sz=\"quarter\" idx=\"3\"/>", run("Typed"))
                      + shape("<p:ph type=\"sldNum\" sz=\"quarter\" idx=\"5\"/>", run("4")))
                  .notes,
        u"Typed"_s);
}

TEST_F(ForeignDeckTest, readsCommentsAndUnknownElementsPast)
{
    const SlideNote slide = importSlide(title(run("A<!-- secret -->B") + "<?pi x?>"
        + "<a:ext uri=\"{x}\"><x:y xmlns:x=\"urn:x\">hidden</x:y></a:ext>"
        + run("<![CDATA[<C>]]>")));

    EXPECT_EQ(slide.title, u"AB<C>"_s);
}

/// The first bytes of a compound file, and the name of its one stream wherever a program puts it.
QByteArray protectedFile(qsizetype nameAt, qsizetype size)
{
    QByteArray bytes(size, '\0');
    bytes.replace(0, 8, QByteArray::fromHex("d0cf11e0a1b11ae1"));
    const QString name = u"EncryptedPackage"_s;
    for (qsizetype i = 0; i < name.size(); ++i)
        bytes[nameAt + 2 * i] = name[i].toLatin1();
    return bytes;
}

TEST_F(ForeignDeckTest, saysThatAPasswordProtectsIt)
{
    for (const auto& bytes : { protectedFile(1536, 20'000), protectedFile(900'000, 920'000) }) {
        const auto deck = import(bytes, u"Quarterly talk.pptx"_s);
        ASSERT_FALSE(deck.has_value());
        EXPECT_EQ(deck.error(), ImportError::Protected);
        EXPECT_EQ(description(deck.error()),
            u"The presentation is protected by a password. Save a copy without one in your "
            "presentation program, and import that."_s);
    }
    // A document of before 2007 is a compound file, too.
    QByteArray old = protectedFile(1536, 20'000);
    old.replace(1536, 1, "X");
    EXPECT_EQ(import(old).error(), ImportError::Unreadable);
}

} // namespace
} // namespace Orvello::PptxImporter
