#include "Orvello/Library/Import/DeckRecord.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

const QString fallback = u"Fallback"_s;

/// A record written with "/" for the record separator and "|" for the unit separator.
QString separated(QString text) { return text.replace(u'/', u'\x1e').replace(u'|', u'\x1f'); }

std::optional<DeckRecord> parsed(const QString& text)
{
    return DeckRecord::parse(separated(text), fallback);
}

TEST(DeckRecordTest, readsTheNameAndTheSlidesInOrder)
{
    const auto record = parsed(u"Talk/Intro|Hello all/Plan|First this\nthen that\n"_s);

    ASSERT_TRUE(record);
    EXPECT_EQ(record->name, u"Talk"_s);
    EXPECT_EQ(record->slides,
        QList<SlideNote>(
            { { 1, u"Intro"_s, u"Hello all"_s }, { 2, u"Plan"_s, u"First this\nthen that"_s } }));
}

TEST(DeckRecordTest, keepsSlidesWithoutNotes)
{
    const auto record = parsed(u"Talk/Intro|/|Only notes/"_s);

    ASSERT_TRUE(record);
    EXPECT_EQ(record->slides,
        QList<SlideNote>({ { 1, u"Intro"_s, u""_s }, { 2, std::nullopt, u"Only notes"_s },
            { 3, std::nullopt, u""_s } }));
}

TEST(DeckRecordTest, readsNothingWithoutASlide)
{
    EXPECT_FALSE(parsed(u"Talk\n"_s));
    EXPECT_FALSE(parsed(u""_s));
}

TEST(DeckRecordTest, readsNothingWithoutNotes)
{
    EXPECT_FALSE(parsed(u"Talk/Intro|/Plan| \n\t/"_s));
}

TEST(DeckRecordTest, namesANamelessDeckByTheFallback)
{
    EXPECT_EQ(parsed(u"/Intro|Hello"_s)->name, fallback);
}

TEST(DeckRecordTest, takesTheNameAsItStands)
{
    EXPECT_EQ(parsed(u"\n  My talk /Intro|Hello"_s)->name, u"  My talk "_s);
    EXPECT_EQ(parsed(u" /Intro|Hello"_s)->name, u" "_s);
}

TEST(DeckRecordTest, trimsTitlesAndNotes)
{
    const auto record = parsed(u"Talk/\r\n Intro\t| \u2028Hello\u00a0/ |x"_s);

    EXPECT_EQ(record->slides,
        QList<SlideNote>({ { 1, u"Intro"_s, u"Hello"_s }, { 2, std::nullopt, u"x"_s } }));
}

TEST(DeckRecordTest, ignoresFurtherFields)
{
    EXPECT_EQ(parsed(u"Talk/Intro|Hello|more|and more"_s)->slides,
        QList<SlideNote>({ { 1, u"Intro"_s, u"Hello"_s } }));
}

TEST(DeckRecordTest, countsSlidesByTheirPlace)
{
    const auto record = parsed(u"Talk///|third"_s);

    ASSERT_EQ(record->slides.size(), 3);
    EXPECT_EQ(record->slides[2].index, 3);
    EXPECT_EQ(record->slides[2].notes, u"third"_s);
}

TEST(DeckRecordTest, trimsOnlyLineBreaksAroundTheWhole)
{
    // A separator at the end opens one more slide, also before a line break.
    EXPECT_EQ(parsed(u"\r\n\u2028Talk/a|b/\x85\u2029\v\f\n"_s)->slides.size(), 2);
    EXPECT_EQ(parsed(u"\r\n\u2028Talk/a|b"_s)->name, u"Talk"_s);
}

class DeckLocationTest : public ::testing::Test {
protected:
    QString madeFile(const QString& name)
    {
        QFile file(folder.filePath(name));
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        return file.fileName();
    }

    static std::optional<QString> localDeck(const QString& path)
    {
        return DeckLocation { u"Talk"_s, true, path }.localDeck();
    }

    QTemporaryDir folder;
};

TEST_F(DeckLocationTest, readsTheThreeFields)
{
    const auto location
        = DeckLocation::parse(separated(u"Talk.pptx|true|#\n"_s).replace(u'#', u"/a/b c.pptx"_s));

    EXPECT_EQ(location.name, u"Talk.pptx"_s);
    EXPECT_TRUE(location.isSaved);
    EXPECT_EQ(location.path, u"/a/b c.pptx"_s);
}

TEST_F(DeckLocationTest, readsWhatIsThere)
{
    const auto nothing = DeckLocation::parse(u"\n"_s);
    EXPECT_EQ(nothing.name, u"PowerPoint"_s);
    EXPECT_FALSE(nothing.isSaved);
    EXPECT_EQ(nothing.path, QString());

    const auto name = DeckLocation::parse(u"Talk"_s);
    EXPECT_EQ(name.name, u"Talk"_s);
    EXPECT_FALSE(name.isSaved);

    const auto nameless = DeckLocation::parse(separated(u"|TRUE|\t x \n"_s));
    EXPECT_EQ(nameless.name, u"PowerPoint"_s);
    EXPECT_TRUE(nameless.isSaved);
    EXPECT_EQ(nameless.path, u"x"_s);
}

TEST_F(DeckLocationTest, isSavedOnlyForTheWordTrue)
{
    EXPECT_TRUE(DeckLocation::parse(separated(u"Talk|True|"_s)).isSaved);
    for (const QString& word : { u"false"_s, u" true"_s, u"true "_s, u"1"_s, u""_s, u"yes"_s })
        EXPECT_FALSE(DeckLocation::parse(separated(u"Talk|"_s + word + u"|p"_s)).isSaved);
}

TEST_F(DeckLocationTest, knowsTheFormatsOfTheImporter)
{
    for (const QString& name : { u"a.pptx"_s, u"b.PPTX"_s, u"c.pptm"_s, u"d.ppsx"_s, u"e.ppsm"_s,
             u"f.potx"_s, u"g.h.pptx"_s }) {
        const QString path = madeFile(name);
        EXPECT_EQ(localDeck(path), path);
    }
    for (const QString& name :
        { u"a.key"_s, u"b.ppt"_s, u"c.odp"_s, u"pptx"_s, u".pptx"_s, u"d.pptx.bak"_s, u"e."_s })
        EXPECT_EQ(localDeck(madeFile(name)), std::nullopt) << name.toStdString();
}

TEST_F(DeckLocationTest, needsAReadableFileWithAnAbsolutePath)
{
    EXPECT_EQ(localDeck(folder.filePath(u"none.pptx"_s)), std::nullopt);
    EXPECT_EQ(localDeck(u"Disk:Users:me:Talk.pptx"_s), std::nullopt);
    EXPECT_EQ(localDeck(u"https://example.com/Talk.pptx"_s), std::nullopt);
    EXPECT_EQ(localDeck(QString()), std::nullopt);
}

} // namespace
} // namespace Orvello
