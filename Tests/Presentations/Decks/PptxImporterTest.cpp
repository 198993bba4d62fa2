#include "Orvello/Presentations/Decks/PptxImporter.h"

#include "Tests/Support/DeckBuilder.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <thread>
#include <vector>

namespace Orvello::PptxImporter {
namespace {

using namespace Qt::StringLiterals;
using Testing::DeckBuilder;
namespace Pptx = Testing::Pptx;

class PptxImporterTest : public ::testing::Test {
protected:
    QString write(const QByteArray& bytes)
    {
        QFile file(folder.filePath(u"deck.pptx"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        return file.fileName();
    }

    /// The slides of a package that imports.
    QList<SlideNote> slidesOf(const QByteArray& bytes)
    {
        const auto slides = importNotes(write(bytes));
        EXPECT_TRUE(slides.has_value());
        return slides ? *slides : QList<SlideNote>();
    }
    QList<SlideNote> slidesOf(const DeckBuilder& deck) { return slidesOf(deck.build()); }

    /// The error of a package that does not.
    std::optional<ImportError> errorOf(const QByteArray& bytes)
    {
        const auto slides = importNotes(write(bytes));
        return slides ? std::nullopt : std::optional(slides.error());
    }
    std::optional<ImportError> errorOf(const DeckBuilder& deck) { return errorOf(deck.build()); }

    /// The notes of a deck of one slide with this notes page.
    QString notesOf(const QByteArray& shapes)
    {
        const auto slides
            = slidesOf(DeckBuilder()
                           .slide("Title", "")
                           .part("ppt/notesSlides/notesSlide1.xml", Pptx::notes(shapes)));
        return slides.value(0).notes;
    }

    /// The title of a deck of one slide with these shapes.
    std::optional<QString> titleOf(const QByteArray& shapes)
    {
        const auto slides = slidesOf(
            DeckBuilder().slideWithoutNotes("").part("ppt/slides/slide1.xml", Pptx::slide(shapes)));
        return slides.value(0).title;
    }

    QTemporaryDir folder;
};

const QString decks = QStringLiteral(ORVELLO_TEST_DECKS);

TEST_F(PptxImporterTest, describesItsErrorsToTheUser)
{
    EXPECT_EQ(description(ImportError::Unreadable).toUtf8(),
        "The file could not be opened as a PowerPoint package.");
    EXPECT_EQ(description(ImportError::NotAPresentation).toUtf8(),
        "No slides were found \xe2\x80\x94 is this a .pptx presentation?");
}

TEST_F(PptxImporterTest, importsTitlesAndNotesInOrder)
{
    EXPECT_EQ(slidesOf(DeckBuilder()
                           .slide("Opening", "Hello all")
                           .slideWithoutNotes("Silence")
                           .slide("", "Untitled")),
        (QList<SlideNote> { { 1, u"Opening"_s, u"Hello all"_s }, { 2, u"Silence"_s, u""_s },
            { 3, std::nullopt, u"Untitled"_s } }));
}

TEST_F(PptxImporterTest, importsADeckThatLibreOfficeWrote)
{
    const auto slides = importNotes(decks + u"/talk.pptx"_s);

    ASSERT_TRUE(slides.has_value());
    const QList<SlideNote> expected {
        { 1, u"Welcome"_s,
            u"Good morning, everyone.\nThank you for coming.\nSit down.\n\nLet us begin."_s },
        { 2, u"No notes here"_s, u""_s },
        { 3, u"Spare slide"_s, u"Only if somebody asks."_s },
        { 4, u"Привет, 世界"_s,
            u"Заметки докладчика.\n日本語のノート。\nשלום \U0001f399\ufe0f & <thanks>"_s },
        { 5, std::nullopt, u"Untitled, but not unsaid."_s },
        { 6, u"Two\nlines"_s, u""_s },
    };
    EXPECT_EQ(*slides, expected);
}

TEST_F(PptxImporterTest, importsALongerDeckThatLibreOfficeWrote)
{
    const auto slides = importNotes(decks + u"/twelve-slides.pptx"_s);

    ASSERT_TRUE(slides.has_value());
    ASSERT_EQ(slides->size(), 12);
    for (int number = 1; number <= 12; ++number) {
        const QString notes = u"Notes of slide %1.\nA second paragraph."_s.arg(number);
        const SlideNote expected { number, u"Slide %1"_s.arg(number), number == 5 ? u""_s : notes };
        EXPECT_EQ(slides->at(number - 1), expected);
    }
}

TEST_F(PptxImporterTest, numbersSlidesByTheirIdsAndNotByTheirFileNames)
{
    const auto slides = slidesOf(DeckBuilder().slide("A", "a").slide("B", "b").slide("C", "c").part(
        "ppt/presentation.xml", Pptx::presentation({ "rId3", "rId1", "rId2" })));

    EXPECT_EQ(slides,
        (QList<SlideNote> { { 1, u"C"_s, u"c"_s }, { 2, u"A"_s, u"a"_s }, { 3, u"B"_s, u"b"_s } }));
}

TEST_F(PptxImporterTest, countsOnlyIdsWithARelationship)
{
    const auto slides = slidesOf(DeckBuilder().slide("A", "a").slide("B", "b").part(
        "ppt/presentation.xml", Pptx::presentation({ "rid1", "rId9", "rId2", "rId1 ", "rId1" })));

    EXPECT_EQ(slides, (QList<SlideNote> { { 1, u"B"_s, u"b"_s }, { 2, u"A"_s, u"a"_s } }));
}

TEST_F(PptxImporterTest, importsASlideThatIsListedTwiceTwice)
{
    const auto slides = slidesOf(DeckBuilder().slide("A", "a").part(
        "ppt/presentation.xml", Pptx::presentation({ "rId1", "rId1" })));

    EXPECT_EQ(slides, (QList<SlideNote> { { 1, u"A"_s, u"a"_s }, { 2, u"A"_s, u"a"_s } }));
}

TEST_F(PptxImporterTest, takesTheFirstRelationshipOfAnIdWhateverItsType)
{
    const auto slides = slidesOf(
        DeckBuilder().slide("A", "a").slide("B", "b").part("ppt/_rels/presentation.xml.rels",
            Pptx::relationships(Pptx::relationship("rId1", "theme", "slides/slide2.xml")
                + Pptx::relationship("rId1", "slide", "slides/slide1.xml"))));

    EXPECT_EQ(slides, (QList<SlideNote> { { 1, u"B"_s, u"b"_s } }));
}

TEST_F(PptxImporterTest, takesTheFirstNotesPageOfASlide)
{
    const auto slides = slidesOf(
        DeckBuilder().slide("A", "a").slide("B", "b").part("ppt/slides/_rels/slide1.xml.rels",
            Pptx::relationships(Pptx::relationship("rId1", "notesSlides", "../notesSlides/none.xml")
                + "<Relationship Id='rId2' Type='any-notesSlide' "
                  "Target='../notesSlides/notesSlide2.xml'/>"
                + Pptx::relationship("rId3", "notesSlide", "../notesSlides/notesSlide1.xml"))));

    EXPECT_EQ(slides.value(0).notes, u"b"_s);
}

TEST_F(PptxImporterTest, doesNotLookForAnotherNotesPageWhenTheFirstIsMissing)
{
    const auto slides
        = slidesOf(DeckBuilder().slide("A", "a").part("ppt/slides/_rels/slide1.xml.rels",
            Pptx::relationships(Pptx::relationship("rId1", "notesSlide", "../notesSlides/none.xml")
                + Pptx::relationship("rId2", "notesSlide", "../notesSlides/notesSlide1.xml"))));

    EXPECT_EQ(slides, (QList<SlideNote> { { 1, u"A"_s, u""_s } }));
}

TEST_F(PptxImporterTest, findsASlideElsewhereButItsRelationshipsInTheSlidesFolder)
{
    const auto slides = slidesOf(
        DeckBuilder()
            .slide("A", "a")
            .part("other/place/slide1.xml",
                Pptx::slide(Pptx::shape("ctrTitle", Pptx::paragraph("Elsewhere"))))
            .part("ppt/_rels/presentation.xml.rels",
                Pptx::relationships(
                    Pptx::relationship("rId1", "slide", "../other/./place//slide1.xml"))));

    EXPECT_EQ(slides, (QList<SlideNote> { { 1, u"Elsewhere"_s, u"a"_s } }));
}

TEST_F(PptxImporterTest, takesAbsoluteTargetsAsRelative)
{
    const auto slides
        = slidesOf(DeckBuilder().slide("A", "a").part("ppt/_rels/presentation.xml.rels",
            Pptx::relationships(Pptx::relationship("rId1", "slide", "/ppt/slides/slide1.xml"))));

    EXPECT_EQ(slides, (QList<SlideNote> { { 1, std::nullopt, u"a"_s } }));
}

TEST_F(PptxImporterTest, importsHiddenSlides)
{
    QByteArray hidden = Pptx::slide(Pptx::shape("title", Pptx::paragraph("Hidden")));
    hidden.replace("<p:sld ", "<p:sld show=\"0\" ");

    const auto slides
        = slidesOf(DeckBuilder().slide("A", "a").part("ppt/slides/slide1.xml", hidden));

    EXPECT_EQ(slides, (QList<SlideNote> { { 1, u"Hidden"_s, u"a"_s } }));
}

TEST_F(PptxImporterTest, readsTheTitlePlaceholdersOfASlideOnly)
{
    EXPECT_EQ(titleOf(Pptx::shape("body", Pptx::paragraph("body"))
                  + Pptx::shape("subTitle", Pptx::paragraph("subtitle"))
                  + Pptx::shape("", Pptx::paragraph("text box"))
                  + Pptx::shape("ctrTitle", Pptx::paragraph("Centred"))),
        u"Centred"_s);
}

TEST_F(PptxImporterTest, joinsSeveralTitlesByNewlinesAndTrimsTheWhole)
{
    EXPECT_EQ(titleOf(Pptx::shape("title", "") + Pptx::shape("title", Pptx::paragraph(" One "))
                  + Pptx::shape("ctrTitle", Pptx::paragraph("Two")) + Pptx::shape("title", "")),
        u"One\nTwo"_s);
}

TEST_F(PptxImporterTest, joinsTheRunsOfATitleAndSeparatesItsParagraphs)
{
    EXPECT_EQ(titleOf(Pptx::shape("title",
                  "<a:p><a:r><a:t>Split</a:t></a:r><a:r><a:t>ted</a:t></a:r></a:p>"
                  "<a:p><a:r><a:t>Second</a:t></a:r></a:p>")),
        u"Splitted\nSecond"_s);
}

TEST_F(PptxImporterTest, hasNoTitleInsteadOfAnEmptyOne)
{
    EXPECT_EQ(titleOf(Pptx::shape("title", Pptx::paragraph(" \n\t&#xa0; "))), std::nullopt);
    EXPECT_EQ(titleOf(""), std::nullopt);
}

TEST_F(PptxImporterTest, keepsASlideWhoseNotesAreOnlyWhiteSpace)
{
    EXPECT_EQ(slidesOf(DeckBuilder().slide("A", " \n ").slide("B", "b")),
        (QList<SlideNote> { { 1, u"A"_s, u""_s }, { 2, u"B"_s, u"b"_s } }));
}

TEST_F(PptxImporterTest, readsTheBodyPlaceholdersOfANotesPageOnly)
{
    EXPECT_EQ(notesOf(Pptx::shape("sldImg", "") + Pptx::shape("hdr", Pptx::paragraph("header"))
                  + Pptx::shape("body", Pptx::paragraph("First") + Pptx::paragraph("Second"))
                  + Pptx::shape("sldNum", Pptx::paragraph("7"))
                  + Pptx::shape("ftr", Pptx::paragraph("footer"))
                  + Pptx::shape("body", Pptx::paragraph("Third"))),
        u"First\nSecond\nThird"_s);
}

TEST_F(PptxImporterTest, hasEmptyNotesWhenTheyAreInNoBodyPlaceholder)
{
    EXPECT_EQ(notesOf("<p:sp><p:nvPr><p:ph idx=\"1\"/></p:nvPr>" + Pptx::paragraph("no type")
                  + "</p:sp>" + Pptx::shape("", Pptx::paragraph("text box"))),
        u""_s);
}

TEST_F(PptxImporterTest, doesWithoutMissingParts)
{
    const DeckBuilder deck = DeckBuilder().slide("A", "a");

    EXPECT_EQ(slidesOf(DeckBuilder(deck).without("ppt/slides/slide1.xml")),
        (QList<SlideNote> { { 1, std::nullopt, u"a"_s } }));
    EXPECT_EQ(slidesOf(DeckBuilder(deck).without("ppt/slides/_rels/slide1.xml.rels")),
        (QList<SlideNote> { { 1, u"A"_s, u""_s } }));
    EXPECT_EQ(slidesOf(DeckBuilder(deck).without("ppt/notesSlides/notesSlide1.xml")),
        (QList<SlideNote> { { 1, u"A"_s, u""_s } }));
}

TEST_F(PptxImporterTest, takesDamagedPartsForMissing)
{
    const QByteArray deck = DeckBuilder().slide("A", "a").slide("B", "b").build();
    const auto damaged = [&deck](QByteArrayView part) {
        QByteArray bytes = deck;
        overwrite(bytes, part, Testing::DirectoryField::Checksum, 1);
        return bytes;
    };
    const SlideNote second { 2, u"B"_s, u"b"_s };

    EXPECT_EQ(slidesOf(damaged("ppt/slides/slide1.xml")),
        (QList<SlideNote> { { 1, std::nullopt, u"a"_s }, second }));
    EXPECT_EQ(slidesOf(damaged("ppt/slides/_rels/slide1.xml.rels")),
        (QList<SlideNote> { { 1, u"A"_s, u""_s }, second }));
    EXPECT_EQ(slidesOf(damaged("ppt/notesSlides/notesSlide1.xml")),
        (QList<SlideNote> { { 1, u"A"_s, u""_s }, second }));
    EXPECT_EQ(errorOf(damaged("ppt/presentation.xml")), ImportError::NotAPresentation);
    EXPECT_EQ(errorOf(damaged("ppt/_rels/presentation.xml.rels")), ImportError::NotAPresentation);
}

TEST_F(PptxImporterTest, keepsWhatAPartContributedBeforeItsXmlFails)
{
    const QByteArray shapes = Pptx::shape("title", Pptx::paragraph("First"))
        + Pptx::shape("title", Pptx::paragraph("Second"));
    QByteArray torn = Pptx::slide(shapes);
    torn.truncate(torn.indexOf("Second"));
    QByteArray presentation = Pptx::presentation({ "rId1", "rId2" });
    presentation.insert(presentation.indexOf("<p:sldId id=\"256\" r:id=\"rId2\""), "<&>");

    EXPECT_EQ(slidesOf(DeckBuilder()
                           .slide("A", "a")
                           .slide("B", "b")
                           .part("ppt/slides/slide1.xml", torn)
                           .part("ppt/presentation.xml", presentation)),
        (QList<SlideNote> { { 1, u"First"_s, u"a"_s } }));
}

TEST_F(PptxImporterTest, readsPartsInUtf16)
{
    const QString notes = QString::fromUtf8(
        Pptx::notes(Pptx::shape("body", Pptx::paragraph("Füße 中"))).replace("UTF-8", "UTF-16"));
    QByteArray utf16("\xff\xfe");
    utf16.append(reinterpret_cast<const char*>(notes.utf16()), notes.size() * 2);

    const auto slides
        = slidesOf(DeckBuilder().slide("A", "").part("ppt/notesSlides/notesSlide1.xml", utf16));

    EXPECT_EQ(slides.value(0).notes, u"Füße 中"_s);
}

TEST_F(PptxImporterTest, refusesWhatIsNoPackage)
{
    EXPECT_EQ(errorOf("This is not a ZIP archive."), ImportError::Unreadable);
    EXPECT_EQ(errorOf(QByteArray()), ImportError::Unreadable);
    const QByteArray deck = DeckBuilder().slide("A", "a").build();
    EXPECT_EQ(errorOf(deck.first(deck.size() / 2)), ImportError::Unreadable);
}

TEST_F(PptxImporterTest, refusesWhatIsNoFile)
{
    const QString pipe = folder.filePath(u"pipe"_s);
    ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);

    for (const QString& path : { folder.path(), folder.filePath(u"missing.pptx"_s), u""_s, pipe,
             u"/dev/null"_s, u"/dev/zero"_s }) {
        const auto slides = importNotes(path);
        ASSERT_FALSE(slides.has_value()) << path.toStdString();
        EXPECT_EQ(slides.error(), ImportError::Unreadable) << path.toStdString();
    }
}

TEST_F(PptxImporterTest, refusesAPackageWithoutSlides)
{
    const DeckBuilder deck = DeckBuilder().slide("A", "a");

    EXPECT_EQ(errorOf(Testing::ZipBuilder().add("word/document.xml", "<a/>").build()),
        ImportError::NotAPresentation);
    EXPECT_EQ(errorOf(DeckBuilder()), ImportError::NotAPresentation);
    EXPECT_EQ(
        errorOf(DeckBuilder(deck).without("ppt/presentation.xml")), ImportError::NotAPresentation);
    EXPECT_EQ(errorOf(DeckBuilder(deck).without("ppt/_rels/presentation.xml.rels")),
        ImportError::NotAPresentation);
    EXPECT_EQ(errorOf(DeckBuilder(deck).part(
                  "ppt/presentation.xml", Pptx::presentation({ "rId7", "rId8" }))),
        ImportError::NotAPresentation);
    EXPECT_EQ(errorOf(DeckBuilder(deck).part("ppt/presentation.xml", "no XML")),
        ImportError::NotAPresentation);
}

TEST_F(PptxImporterTest, refusesADeckWhoseRelationshipsHaveAnotherPrefix)
{
    QByteArray presentation = Pptx::presentation({ "rId1" });
    presentation.replace("r:id", "rel:id").replace("xmlns:r=", "xmlns:rel=");

    EXPECT_EQ(errorOf(DeckBuilder().slide("A", "a").part("ppt/presentation.xml", presentation)),
        ImportError::NotAPresentation);
}

TEST_F(PptxImporterTest, opensAFileWithAnyName)
{
    const QString path = folder.filePath(u"Präsentation 中 (1).pptx"_s);
    ASSERT_TRUE(QFile::copy(decks + u"/talk.pptx"_s, path));

    EXPECT_TRUE(importNotes(path).has_value());
}

TEST_F(PptxImporterTest, importsOnSeveralThreadsAtOnce)
{
    const QString path = decks + u"/twelve-slides.pptx"_s;
    // libzip has the C library look at the time zone, under a lock that ThreadSanitizer does not
    // see. With a zone that is set and known before the threads start, nothing is changed there.
    qputenv("TZ", "UTC");
    const auto expected = importNotes(path);
    ASSERT_TRUE(expected.has_value());

    std::vector<QList<SlideNote>> results(4);
    std::vector<std::thread> threads;
    for (auto& result : results) {
        threads.emplace_back([&result, &path] {
            for (int round = 0; round < 5; ++round) {
                const auto slides = importNotes(path);
                result = slides ? *slides : QList<SlideNote>();
            }
        });
    }
    for (std::thread& thread : threads)
        thread.join();

    for (const auto& result : results)
        EXPECT_EQ(result, *expected);
}

} // namespace
} // namespace Orvello::PptxImporter
