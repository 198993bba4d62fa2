#include "Tests/Library/Store/LibraryStoreFixture.h"

#include "Tests/Support/DeckBuilder.h"
#include "Tests/Support/LogCapture.h"

#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class LibraryStoreImportTest : public Testing::LibraryStoreFixture {
protected:
    /// A package of two slides, the second without notes.
    QString deckNamed(const QString& name) const
    {
        const QByteArray package
            = Testing::DeckBuilder().slide("Intro", "Hello all").slideWithoutNotes("").build();
        const QString deck = decks.filePath(name);
        QFile file(deck);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(package);
        return deck;
    }

    const QList<SlideNote> notes { { 1, u"Intro"_s, u"Hello all"_s }, { 2, std::nullopt, u""_s } };
    QTemporaryDir decks;
    Testing::LogCapture log;
};

TEST_F(LibraryStoreImportTest, addsTheDeckOnTopAndMakesItActive)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    time.advance(60);

    const auto imported = store.importPptx(deckNamed(u"talk.pptx"_s));

    ASSERT_TRUE(imported);
    EXPECT_EQ(titles(store.scripts()), (QStringList { u"talk"_s, u"A"_s, u"B"_s }));
    const Script& script = store.scripts().first();
    EXPECT_EQ(script.id, *imported);
    EXPECT_EQ(script.slides, notes);
    EXPECT_EQ(script.body,
        u"\u2014 Slide 1 \u00B7 Intro \u2014\nHello all\n\n\u2014 Slide 2 \u2014\n(no notes)"_s);
    EXPECT_EQ(script.deckSource, u"talk.pptx"_s);
    EXPECT_EQ(script.createdAt, time.date());
    EXPECT_EQ(script.updatedAt, time.date());
    EXPECT_EQ(store.activeScriptID(), script.id);
    EXPECT_EQ(storedActiveID(), UuidText::format(script.id));
    EXPECT_EQ(saved(), store.scripts());
}

TEST_F(LibraryStoreImportTest, logsTheSlidesAndTheFile)
{
    LibraryStore& store = launchWith({ u"A"_s });
    log.clear();

    EXPECT_TRUE(store.importPptx(deckNamed(u"talk \u00FC%d.pptx"_s), u"Keynote"_s));

    EXPECT_THAT(log.lines(), ElementsAre("IMPORT_PPTX ok slides=2 file=talk \u00FC%d.pptx"));
}

TEST_F(LibraryStoreImportTest, keepsTheGivenNameOfTheDeck)
{
    LibraryStore& store = launchWith({ u"A"_s });

    EXPECT_TRUE(store.importPptx(deckNamed(u"copy.pptx"_s), u"Quarterly review"_s));
    EXPECT_EQ(store.scripts().first().deckSource, u"Quarterly review"_s);
    EXPECT_EQ(store.scripts().first().title, u"copy"_s);

    EXPECT_TRUE(store.importPptx(deckNamed(u"copy.pptx"_s), u""_s));
    EXPECT_EQ(store.scripts().first().deckSource, u""_s);
}

TEST_F(LibraryStoreImportTest, takesTheFileNameWithoutItsExtensionForTheTitle)
{
    LibraryStore& store = launchWith({ u"A"_s });
    const std::pair<QString, QString> cases[] = { { u"talk.pptx"_s, u"talk"_s },
        { u"a.b.pptx"_s, u"a.b"_s }, { u"talk"_s, u"talk"_s }, { u".pptx"_s, u".pptx"_s },
        { u".a.pptx"_s, u".a"_s }, { u"Q3 (v1.2).PPTX"_s, u"Q3 (v1.2)"_s } };

    for (const auto& [file, title] : cases) {
        EXPECT_TRUE(store.importPptx(deckNamed(file)));
        EXPECT_EQ(store.scripts().first().title, title);
        EXPECT_EQ(store.scripts().first().deckSource, file);
    }
}

TEST_F(LibraryStoreImportTest, announcesTheDeckOnceItIsSaved)
{
    LibraryStore& store = launchWith({ u"A"_s });
    const QSignalSpy scriptsChanged(&store, &LibraryStore::scriptsChanged);
    const QSignalSpy activeChanged(&store, &LibraryStore::activeScriptIDChanged);

    EXPECT_TRUE(store.importPptx(deckNamed(u"talk.pptx"_s)));

    EXPECT_EQ(scriptsChanged.count(), 1);
    EXPECT_EQ(activeChanged.count(), 1);
}

TEST_F(LibraryStoreImportTest, leavesTheLibraryAloneWhenTheDeckCannotBeRead)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    const QList<Script> before = store.scripts();
    const auto active = store.activeScriptID();
    QFile emptyPackage(decks.filePath(u"empty.pptx"_s));
    ASSERT_TRUE(emptyPackage.open(QIODevice::WriteOnly));
    emptyPackage.write(Testing::DeckBuilder().build());
    emptyPackage.close();
    const QSignalSpy scriptsChanged(&store, &LibraryStore::scriptsChanged);
    log.clear();
    ASSERT_TRUE(wasSaved());

    const auto missing = store.importPptx(decks.filePath(u"missing.pptx"_s));
    const auto empty = store.importPptx(emptyPackage.fileName());

    ASSERT_FALSE(missing);
    EXPECT_EQ(missing.error(), PptxImporter::ImportError::Unreadable);
    ASSERT_FALSE(empty);
    EXPECT_EQ(empty.error(), PptxImporter::ImportError::NotAPresentation);
    EXPECT_EQ(store.scripts(), before);
    EXPECT_EQ(store.activeScriptID(), active);
    EXPECT_EQ(scriptsChanged.count(), 0);
    EXPECT_FALSE(wasSaved());
    EXPECT_THAT(log.lines(), IsEmpty());
}

} // namespace
} // namespace Orvello
