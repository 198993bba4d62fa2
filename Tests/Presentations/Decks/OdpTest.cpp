#include "Orvello/Presentations/Decks/OdpNotesParser.h"
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

QByteArray content(const QByteArray& pages)
{
    return "<office:document-content xmlns:office=\"o\" xmlns:draw=\"d\" xmlns:text=\"t\" "
           "xmlns:presentation=\"p\" xmlns:svg=\"s\"><office:body><office:presentation>"
        + pages + "</office:presentation></office:body></office:document-content>";
}

QByteArray frame(const QByteArray& kind, const QByteArray& text)
{
    return "<draw:frame presentation:class=\"" + kind + "\"><draw:text-box>" + text
        + "</draw:text-box></draw:frame>";
}

QByteArray page(const QByteArray& title, const QByteArray& notes)
{
    return "<draw:page>" + frame("title", title) + frame("outline", "<text:p>shown</text:p>")
        + "<presentation:notes><draw:page-thumbnail presentation:class=\"page\"/>"
        + frame("notes", notes) + "</presentation:notes></draw:page>";
}

class OdpTest : public ::testing::Test {
protected:
    Result<Deck, ImportError> import(const QByteArray& bytes)
    {
        QFile file(folder.filePath(u"deck.odp"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        return importDeck(file.fileName());
    }
    static Testing::ZipBuilder package(const QByteArray& pages)
    {
        return Testing::ZipBuilder()
            .add("mimetype", "application/vnd.oasis.opendocument.presentation",
                Testing::Compression::Stored)
            .add("content.xml", content(pages));
    }
    QList<SlideNote> slidesOf(const QByteArray& pages)
    {
        const auto deck = import(package(pages).build());
        EXPECT_TRUE(deck.has_value());
        return deck ? deck->slides : QList<SlideNote>();
    }
    QString notesOf(const QByteArray& text) { return slidesOf(page("", text)).value(0).notes; }

    QTemporaryDir folder;
};

TEST_F(OdpTest, readsTitlesAndNotesInTheOrderOfThePages)
{
    EXPECT_EQ(slidesOf(page("<text:p>One</text:p>", "<text:p>First</text:p>") + "<draw:page/>"
                  + page("", "<text:p>Third</text:p>")),
        (QList<SlideNote> { { 1, u"One"_s, u"First"_s }, { 2, std::nullopt, u""_s },
            { 3, std::nullopt, u"Third"_s } }));
}

TEST_F(OdpTest, readsTextAsItIsShown)
{
    EXPECT_EQ(notesOf("<text:p>One</text:p><text:p/><text:p>Two</text:p>"), u"One\n\nTwo"_s);
    EXPECT_EQ(notesOf("<text:p>a<text:line-break/>b<text:tab/>c</text:p>"), u"a\nb\tc"_s);
    EXPECT_EQ(notesOf("<text:p>a<text:s/>b<text:s text:c=\"3\"/>c</text:p>"), u"a b   c"_s);
    EXPECT_EQ(notesOf("<text:p>\n  a \n <text:span> b</text:span>\tc\n</text:p>"), u"a b c"_s);
    EXPECT_EQ(notesOf("<text:p>Page <text:page-number>3</text:page-number>"
                      "<text:a>, see</text:a></text:p>"),
        u"Page 3, see"_s);
    EXPECT_EQ(notesOf("<text:list><text:list-item><text:p>a</text:p></text:list-item>"
                      "<text:list-item><text:p>b</text:p></text:list-item></text:list>"),
        u"a\nb"_s);
}

TEST_F(OdpTest, leavesOutWhatIsNoTextOfThePlaceholder)
{
    EXPECT_EQ(notesOf("<text:p>a<office:annotation><dc:creator>me</dc:creator>"
                      "<text:p>comment</text:p></office:annotation>b</text:p>"),
        u"ab"_s);
    EXPECT_EQ(slidesOf("<draw:page>" + frame("notes", "<text:p>no notes here</text:p>")
                  + frame("subtitle", "<text:p>no title</text:p>") + "<presentation:notes>"
                  + frame("title", "<text:p>no title either</text:p>")
                  + "</presentation:notes></draw:page>"),
        (QList<SlideNote> { { 1, std::nullopt, u""_s } }));
}

TEST_F(OdpTest, joinsSeveralPlaceholders)
{
    EXPECT_EQ(slidesOf("<draw:page>" + frame("title", "<text:p>a</text:p>")
                  + frame("title", "<text:p>b</text:p>") + "</draw:page>")
                  .value(0)
                  .title,
        u"a\nb"_s);
}

TEST_F(OdpTest, goesByTheContentNotByTheName)
{
    EXPECT_EQ(import(DeckBuilder().slide("A", "a").build())->slides,
        (QList<SlideNote> { { 1, u"A"_s, u"a"_s } }));
}

TEST_F(OdpTest, refusesOtherDocuments)
{
    const auto spreadsheet
        = Testing::ZipBuilder()
              .add("mimetype", "application/vnd.oasis.opendocument.spreadsheet")
              .add("content.xml",
                  "<office:document-content><office:body/></office:document-content>");
    EXPECT_EQ(import(spreadsheet.build()).error(), ImportError::NotAPresentation);
    EXPECT_EQ(import(package("").build()).error(), ImportError::NotAPresentation);
}

TEST_F(OdpTest, saysThatAPasswordProtectsIt)
{
    const QByteArray manifest
        = "<manifest:manifest><manifest:file-entry><manifest:encryption-data/>"
          "</manifest:file-entry></manifest:manifest>";
    EXPECT_EQ(import(package("").add("META-INF/manifest.xml", manifest).build()).error(),
        ImportError::Protected);

    const QString name = u"EncryptedPackage"_s;
    const QByteArray stream(reinterpret_cast<const char*>(name.utf16()), 2 * name.size());
    const QByteArray compound = QByteArray::fromHex("d0cf11e0a1b11ae1") + QByteArray(5000, '\0');
    EXPECT_EQ(import(compound + stream + QByteArray(100, '\0')).error(), ImportError::Protected);
    EXPECT_EQ(import(compound + QByteArray(300'000, 'x') + stream).error(), ImportError::Protected);
    EXPECT_EQ(import(compound).error(), ImportError::Unreadable);
}

TEST_F(OdpTest, saysWhichNotesALimitTook)
{
    const QByteArray endless(static_cast<qsizetype>(Limits::partText) + 1, 'x');
    const QByteArray fine = page("<text:p>T</text:p>", "<text:p>fine</text:p>");
    const auto deck
        = import(package(fine + page("", "<text:p>" + endless + "</text:p>") + fine).build());
    ASSERT_TRUE(deck);
    EXPECT_EQ(deck->unread, QList<qint64> { 2 });
    EXPECT_EQ(deck->slides.last(), (SlideNote { 3, u"T"_s, u"fine"_s }));
}

TEST_F(OdpTest, takesNoMoreThanItsLimits)
{
    OdpNotesParser parser({ .slides = 2, .partText = 5, .totalText = 8 });
    parser.parse(
        content(page("<text:p>abc</text:p>", "<text:p>de<text:s text:c=\"99999999999\"/></text:p>")
            + page("<text:p>fgh</text:p>", "") + page("", ""))
            .toStdString());
    EXPECT_EQ(parser.takeSlides(),
        (QList<SlideNote> { { 1, u"abc"_s, u"de"_s }, { 2, std::nullopt, u""_s } }));
    EXPECT_EQ(parser.cutSlides(), (QList<qint64> { 1, 2 }));
}

TEST_F(OdpTest, saysTheSameOfTheOtherFormat)
{
    const QByteArray text(static_cast<qsizetype>(Limits::partText) + 1, 'x');
    const QByteArray huge = Pptx::notes(Pptx::shape("body", Pptx::paragraph(text)));
    const auto deck = import(DeckBuilder()
                                 .slide("A", "a")
                                 .slide("B", "b")
                                 .slide("C", "c")
                                 .part("ppt/notesSlides/notesSlide2.xml", huge)
                                 .part("ppt/notesSlides/notesSlide3.xml",
                                     QByteArray(static_cast<qsizetype>(Limits::entrySize) + 1, ' '))
                                 .build());
    ASSERT_TRUE(deck);
    EXPECT_EQ(deck->unread, (QList<qint64> { 2, 3 }));
}

TEST_F(OdpTest, letsSlidesTakeNothingAwayFromTheNotes)
{
    constexpr int count = 40;
    const QByteArrayList ids(count, "rId1");
    const QByteArray large = Pptx::slide(
        Pptx::shape("title", Pptx::paragraph("A")) + QByteArray(15 * 1024 * 1024, ' '));
    const auto deck = import(DeckBuilder()
                                 .slide("A", "a")
                                 .part("ppt/presentation.xml", Pptx::presentation(ids))
                                 .part("ppt/slides/slide1.xml", large)
                                 .build());
    ASSERT_TRUE(deck);
    ASSERT_EQ(deck->slides.size(), count);
    EXPECT_EQ(deck->slides.last().notes, u"a"_s);
    EXPECT_TRUE(deck->unread.isEmpty());
}

TEST(SlideRangesTest, writesThemAsPeopleDo)
{
    EXPECT_EQ(slideRanges({}), u""_s);
    EXPECT_EQ(slideRanges({ 3 }), u"3"_s);
    EXPECT_EQ(slideRanges({ 3, 5, 6, 257, 258, 259 }), u"3, 5–6, 257–259"_s);
}

} // namespace
} // namespace Orvello::PptxImporter
