#include "Orvello/Presentations/Decks/PptxImporter.h"

#include "Tests/Support/DeckBuilder.h"
#include "Tests/Support/HostileZip.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvello::PptxImporter {
namespace {

using namespace Qt::StringLiterals;
using Testing::DeckBuilder;
using Testing::ZipBuilder;
namespace Pptx = Testing::Pptx;

class HostilePackageTest : public ::testing::Test {
protected:
    Result<QList<SlideNote>, ImportError> import(const QByteArray& bytes)
    {
        QFile file(folder.filePath(u"deck.pptx"_s));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        EXPECT_EQ(file.write(bytes), bytes.size());
        file.close();
        return importNotes(file.fileName());
    }
    QList<SlideNote> slidesOf(const DeckBuilder& deck)
    {
        const auto slides = import(deck.build());
        EXPECT_TRUE(slides.has_value());
        return slides ? *slides : QList<SlideNote>();
    }
    void expectUnreadable(const QByteArray& bytes)
    {
        const auto slides = import(bytes);
        ASSERT_FALSE(slides.has_value());
        EXPECT_EQ(slides.error(), ImportError::Unreadable);
    }

    QTemporaryDir folder;
    const SlideNote intact { 2, u"B"_s, u"b"_s };
};

/// A deck in which many ids mean the same slide.
DeckBuilder deckThatRepeatsItsSlide(int count)
{
    const QByteArrayList ids(count, "rId1");
    return DeckBuilder().slide("A", "a").part("ppt/presentation.xml", Pptx::presentation(ids));
}

/// A deck of two slides, the notes of the first being these.
DeckBuilder deckWithNotesPart(const QByteArray& content)
{
    return DeckBuilder().slide("A", "a").slide("B", "b").part(
        "ppt/notesSlides/notesSlide1.xml", content);
}

TEST_F(HostilePackageTest, anEntryThatExpandsToGigabytesCountsAsMissing)
{
    const QByteArray bomb = Testing::deflatedZeros(4096);
    ASSERT_LT(bomb.size(), 16 * 1024 * 1024);
    const QByteArray path = "ppt/notesSlides/notesSlide1.xml";
    for (const quint32 claimedSize : { 100U, 1'000'000U, 0xffff'fff0U }) {
        QByteArray bytes = DeckBuilder()
                               .slide("A", "a")
                               .slide("B", "b")
                               .without(path)
                               .package()
                               .add(path, bomb, Testing::Compression::Stored)
                               .build();
        overwrite(bytes, path, Testing::DirectoryField::Method, 8);
        overwrite(bytes, path, Testing::DirectoryField::Size, claimedSize);

        const auto slides = import(bytes);

        ASSERT_TRUE(slides.has_value());
        EXPECT_EQ(*slides, (QList<SlideNote> { { 1, u"A"_s, u""_s }, intact }));
    }
}

TEST_F(HostilePackageTest, aHundredThousandSlidesAreImported)
{
    QByteArrayList ids;
    QByteArray rels;
    for (int number = 1; number <= Limits::slides; ++number) {
        const QByteArray text = QByteArray::number(number);
        ids.append("rId" + text);
        rels += Pptx::relationship("rId" + text, "slide", "slides/slide" + text + ".xml");
    }

    const auto slides
        = slidesOf(DeckBuilder()
                       .slide("A", "a")
                       .slide("B", "b")
                       .part("ppt/presentation.xml", Pptx::presentation(ids))
                       .part("ppt/_rels/presentation.xml.rels", Pptx::relationships(rels)));

    ASSERT_EQ(slides.size(), Limits::slides);
    EXPECT_EQ(slides[1], intact);
    EXPECT_EQ(slides.last(), (SlideNote { Limits::slides, std::nullopt, u""_s }));
}

TEST_F(HostilePackageTest, slidesPastTheLimitAreLeftOut)
{
    const int count = static_cast<int>(Limits::slides) + 1;
    const auto slides = slidesOf(deckThatRepeatsItsSlide(count)
                                     .without("ppt/slides/slide1.xml")
                                     .without("ppt/slides/_rels/slide1.xml.rels"));

    ASSERT_EQ(slides.size(), Limits::slides);
    EXPECT_EQ(slides.last(), (SlideNote { Limits::slides, std::nullopt, u""_s }));
}

TEST_F(HostilePackageTest, entitiesThatExpandDoNotReachTheNotes)
{
    QByteArray document = "<!DOCTYPE n [<!ENTITY e0 'ha'>";
    for (int i = 1; i < 12; ++i) {
        const QByteArray reference = "&e" + QByteArray::number(i - 1) + ';';
        document += "<!ENTITY e" + QByteArray::number(i) + " '" + reference.repeated(10) + "'>";
    }
    document += "]><p:notes>" + Pptx::shape("body", Pptx::paragraph("kept"))
        + Pptx::shape("body", Pptx::paragraph("&e11;")) + "</p:notes>";

    EXPECT_EQ(slidesOf(deckWithNotesPart(document)),
        (QList<SlideNote> { { 1, u"A"_s, u"kept"_s }, intact }));
}

TEST_F(HostilePackageTest, externalEntitiesAreNotLoaded)
{
    const QByteArray document = "<!DOCTYPE n [<!ENTITY x SYSTEM 'file:///etc/passwd'>]><p:notes>"
        + Pptx::shape("body", Pptx::paragraph("[&x;]")) + "</p:notes>";

    EXPECT_EQ(slidesOf(deckWithNotesPart(document)),
        (QList<SlideNote> { { 1, u"A"_s, u"[]"_s }, intact }));
}

TEST_F(HostilePackageTest, targetsMayReferToEachOtherAndToThemselves)
{
    const auto slides = slidesOf(
        DeckBuilder()
            .slide("A", "a")
            .slide("B", "b")
            .part("ppt/slides/_rels/slide1.xml.rels",
                Pptx::relationships(Pptx::relationship("rId1", "notesSlide", "slide1.xml")))
            .part("ppt/_rels/presentation.xml.rels",
                Pptx::relationships(Pptx::relationship("rId1", "slide", "slides/slide1.xml")
                    + Pptx::relationship("rId2", "slide", "presentation.xml")
                    + Pptx::relationship("rId3", "slide", "_rels/presentation.xml.rels")
                    + Pptx::relationship("rId4", "slide", "..")
                    + Pptx::relationship("rId5", "slide", "")))
            .part("ppt/presentation.xml",
                Pptx::presentation({ "rId1", "rId2", "rId3", "rId4", "rId5" })));

    EXPECT_EQ(slides,
        (QList<SlideNote> { { 1, u"A"_s, u""_s }, { 2, std::nullopt, u""_s },
            { 3, std::nullopt, u""_s }, { 4, std::nullopt, u""_s }, { 5, std::nullopt, u""_s } }));
}

TEST_F(HostilePackageTest, targetsDoNotLeaveThePackage)
{
    QFile outside(folder.filePath(u"outside.xml"_s));
    ASSERT_TRUE(outside.open(QIODevice::WriteOnly));
    outside.write(Pptx::notes(Pptx::shape("body", Pptx::paragraph("outside"))));
    outside.close();
    const QByteArray path = outside.fileName().toUtf8();

    for (const QByteArray& target : { path, "../../../../../../.." + path, "file://" + path,
             "../../outside.xml" + QByteArray() }) {
        const auto slides = slidesOf(
            DeckBuilder().slide("A", "a").slide("B", "b").part("ppt/slides/_rels/slide1.xml.rels",
                Pptx::relationships(Pptx::relationship("rId1", "notesSlide", target))));

        EXPECT_EQ(slides, (QList<SlideNote> { { 1, u"A"_s, u""_s }, intact }));
    }
}

TEST_F(HostilePackageTest, namesThatClimbOutAreOnlyNames)
{
    const auto slides = import(DeckBuilder()
                                   .slide("A", "a")
                                   .slide("B", "b")
                                   .package()
                                   .add("../../../etc/passwd", "x")
                                   .add("/etc/passwd", "x")
                                   .add("ppt/../ppt/slides/slide1.xml", "x")
                                   .build());

    ASSERT_TRUE(slides.has_value());
    EXPECT_EQ(*slides, (QList<SlideNote> { { 1, u"A"_s, u"a"_s }, intact }));
}

TEST_F(HostilePackageTest, encryptedEntriesCountAsMissing)
{
    const QByteArray path = "ppt/notesSlides/notesSlide1.xml";
    const QByteArray notes = Pptx::notes(Pptx::shape("body", Pptx::paragraph("secret")));
    const DeckBuilder deck = DeckBuilder().slide("A", "a").slide("B", "b");

    const auto slides
        = import(DeckBuilder(deck).without(path).package().addEncrypted(path, notes).build());
    ASSERT_TRUE(slides.has_value());
    EXPECT_EQ(*slides, (QList<SlideNote> { { 1, u"A"_s, u""_s }, intact }));

    const auto nothing = import(DeckBuilder(deck)
                                    .without("ppt/presentation.xml")
                                    .package()
                                    .addEncrypted("ppt/presentation.xml", "x")
                                    .build());
    ASSERT_FALSE(nothing.has_value());
    EXPECT_EQ(nothing.error(), ImportError::NotAPresentation);
}

TEST_F(HostilePackageTest, namesThatAreNotUtf8DoNotDisturbTheOthers)
{
    ZipBuilder package = DeckBuilder().slide("A", "a").slide("B", "b").package();
    for (int byte = 0x80; byte <= 0xff; ++byte)
        package.add("ppt/slides/slide" + QByteArray(1, static_cast<char>(byte)) + ".xml", "x");

    const auto slides = import(package.build());

    ASSERT_TRUE(slides.has_value());
    EXPECT_EQ(*slides, (QList<SlideNote> { { 1, u"A"_s, u"a"_s }, intact }));
}

TEST_F(HostilePackageTest, anArchiveOfTooManyEntriesIsUnreadable)
{
    const auto slides = import(Testing::archiveOfEmptyEntries(Limits::entries));
    ASSERT_FALSE(slides.has_value());
    EXPECT_EQ(slides.error(), ImportError::NotAPresentation);

    expectUnreadable(Testing::archiveOfEmptyEntries(Limits::entries + 1));
}

TEST_F(HostilePackageTest, aDirectoryThatClaimsMillionsOfEntriesIsUnreadable)
{
    for (const quint64 count : { 70'000ULL, 500'000'000ULL, 1ULL << 58, ~0ULL })
        expectUnreadable(Testing::archiveWithClaimedEntries(count));
}

TEST_F(HostilePackageTest, namesMadeToCollideAreNotHashedByTheMillion)
{
    expectUnreadable(Testing::archiveWithCollidingNames(300'000));
}

TEST_F(HostilePackageTest, manyEndsOfOneArchiveAreNotAllReadThrough)
{
    // Each of them is a candidate for the end of the archive, and has the directory read again.
    QByteArray bytes = Testing::archiveWithCollidingNames(20'000);
    const QByteArray end = bytes.last(22);

    EXPECT_FALSE(import(bytes + end.repeated(2'900)).has_value());
}

TEST_F(HostilePackageTest, aPartWithEndlessTextContributesNone)
{
    const QByteArray text(static_cast<qsizetype>(Limits::partText), 'x');

    EXPECT_EQ(
        slidesOf(deckWithNotesPart(Pptx::notes(Pptx::shape("body", Pptx::paragraph(text + "x"))))),
        (QList<SlideNote> { { 1, u"A"_s, u""_s }, intact }));
    EXPECT_EQ(slidesOf(deckWithNotesPart(Pptx::notes(
                  Pptx::shape("body", "<a:p><a:t>" + text.chopped(2) + "</a:t></a:p>")))),
        (QList<SlideNote> { { 1, u"A"_s, QString::fromLatin1(text.chopped(2)) }, intact }));
}

TEST_F(HostilePackageTest, textPastTheLimitOfAllIsLeftOut)
{
    const QByteArray text(1'000'000, 'x');
    const int possible = static_cast<int>(Limits::totalText / text.size());
    const auto slides = slidesOf(deckThatRepeatsItsSlide(possible + 20)
                                     .part("ppt/notesSlides/notesSlide1.xml",
                                         Pptx::notes(Pptx::shape("body", Pptx::paragraph(text)))));

    ASSERT_EQ(slides.size(), possible + 20);
    EXPECT_EQ(slides[possible - 1].notes.size(), text.size());
    EXPECT_EQ(slides[possible], (SlideNote { possible + 1, u"A"_s, u""_s }));
    EXPECT_EQ(slides.last().notes, u""_s);
}

} // namespace
} // namespace Orvello::PptxImporter
