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

class DeckUpdateTest : public LibraryStoreImportTest {
protected:
    DeckUpdateTest() { id = *store.importPptx(talk); }

    const Script& script() const { return *store.activeScript(); }

    static PptxImporter::Deck deckOf(const QList<SlideNote>& slides) { return { slides, {}, {} }; }

    LibraryStore& store = launchWith({ u"A"_s });
    QString talk = deckNamed(u"talk.pptx"_s);
    QUuid id;
};

TEST_F(DeckUpdateTest, knowsTheFileOfADeckAlsoAtTheNextLaunch)
{
    ASSERT_TRUE(store.deckFile(id));
    EXPECT_EQ(store.deckFile(id)->path, talk);
    EXPECT_EQ(store.deckFile(id)->stamp, PptxImporter::FileStamp::of(talk));
    EXPECT_EQ(store.scriptOfDeckFile(talk), id);
    EXPECT_EQ(store.scriptOfDeckFile(u"/elsewhere/talk.pptx"_s), std::nullopt);
    EXPECT_EQ(store.deckFile(store.scripts().last().id), nullptr);

    LibraryStore& next = launch();
    EXPECT_EQ(next.scriptOfDeckFile(talk), id);
    // The library's own form has no word of it.
    QFile library(path);
    ASSERT_TRUE(library.open(QIODevice::ReadOnly));
    EXPECT_FALSE(library.readAll().contains(decks.path().toUtf8()));
}

TEST_F(DeckUpdateTest, forgetsTheFilesOfScriptsThatAreGoneForGood)
{
    store.remove(id);
    EXPECT_TRUE(launch().deckFile(id)); // It can still be brought back.

    time.advance(31.0 * 24 * 60 * 60);
    EXPECT_FALSE(launch().deckFile(id));
}

TEST_F(DeckUpdateTest, livesWithAFileThatMakesNoSense)
{
    for (const QByteArray& bytes : { QByteArray("{\"x\": 3, \"y\": {\"path\": 4}}"),
             QByteArray("["), QByteArray(100, '\0') }) {
        QFile file(folders.path + u"/Orvello/deck-files.json"_s);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.close();
        EXPECT_FALSE(launch().deckFile(id));
    }
}

TEST_F(DeckUpdateTest, aCopyHasTheSameFile)
{
    store.duplicate(id);
    ASSERT_NE(store.activeScript()->id, id);
    ASSERT_TRUE(store.deckFile(store.activeScript()->id));
    EXPECT_EQ(store.deckFile(store.activeScript()->id)->path, talk);
}

TEST_F(DeckUpdateTest, replacesTheNotesInPlace)
{
    const QSignalSpy changes(&store, &LibraryStore::scriptsChanged);
    log.clear();
    time.advance(60);
    store.updateDeck(id, talk, deckOf({ { 1, u"Intro"_s, u"Hello everybody"_s }, notes[1] }));

    EXPECT_EQ(titles(store.scripts()), (QStringList { u"talk"_s, u"A"_s }));
    EXPECT_EQ(script().id, id);
    EXPECT_EQ(script().slides->first().notes, u"Hello everybody"_s);
    EXPECT_EQ(script().body, joinedBody(*script().slides));
    EXPECT_EQ(script().updatedAt, time.date());
    EXPECT_EQ(saved(), store.scripts());
    EXPECT_THAT(log.lines(), ElementsAre("IMPORT_PPTX updated slides=2 file=talk.pptx"));
    ASSERT_EQ(changes.count(), 1);
    const auto change = changes.first().first().value<LibraryChange>();
    EXPECT_EQ(change.kind, LibraryChange::Kind::Edited);
    EXPECT_TRUE(change.hasNewSlides);
    EXPECT_TRUE(store.deletedScripts().isEmpty());
}

TEST_F(DeckUpdateTest, changesNothingWhereNothingHasChanged)
{
    const QSignalSpy changes(&store, &LibraryStore::scriptsChanged);
    const Script before = script();
    time.advance(60);
    store.updateDeck(id, talk, deckOf(notes));

    EXPECT_EQ(changes.count(), 0);
    EXPECT_EQ(script(), before);
}

TEST_F(DeckUpdateTest, keepsTheTitleThatTheUserGave)
{
    store.updateActive(u"My talk"_s, {});
    store.updateDeck(id, decks.filePath(u"final.pptx"_s), deckOf(notes));

    EXPECT_EQ(script().title, u"My talk"_s);
    EXPECT_EQ(script().deckSource, u"final.pptx"_s);
    EXPECT_EQ(store.deckFile(id)->path, decks.filePath(u"final.pptx"_s));
}

TEST_F(DeckUpdateTest, takesTheNameOfTheNewFileForThatOfTheFormer)
{
    store.updateDeck(id, decks.filePath(u"final.pptx"_s), deckOf(notes));

    EXPECT_EQ(script().title, u"final"_s);
}

TEST_F(DeckUpdateTest, keepsAVersionWhoseNotesWouldBeGone)
{
    const Script before = script();
    store.updateDeck(id, talk, deckOf({ { 1, u"Welcome"_s, {} } }));

    EXPECT_EQ(script().slides->size(), 1);
    ASSERT_EQ(store.deletedScripts().size(), 1);
    EXPECT_EQ(store.deletedScripts().first().script.slides, before.slides);
    EXPECT_EQ(store.deletedScripts().first().script.title, u"talk (before the update)"_s);

    store.restore(0);
    EXPECT_EQ(titles(store.scripts()),
        (QStringList { u"talk"_s, u"talk (before the update)"_s, u"A"_s }));
    EXPECT_NE(store.activeScriptID(), id);
}

TEST_F(DeckUpdateTest, keepsABodyThatSomebodyHasEdited)
{
    store.updateActive({}, u"Edited by another program"_s);
    store.updateDeck(id, talk, deckOf({ { 1, u"Intro"_s, u"Hello everybody"_s }, notes[1] }));

    ASSERT_EQ(store.deletedScripts().size(), 1);
    EXPECT_EQ(store.deletedScripts().first().script.body, u"Edited by another program"_s);
}

TEST_F(DeckUpdateTest, leavesATypedScriptAlone)
{
    const Script typed = store.scripts().last();
    store.updateDeck(typed.id, talk, deckOf(notes));
    store.updateDeck(QUuid::createUuid(), talk, deckOf(notes));

    EXPECT_EQ(store.scripts().last(), typed);
    EXPECT_EQ(store.deckFile(typed.id), nullptr);
}

TEST_F(DeckUpdateTest, knowsWhichNotesWouldBeGone)
{
    Script script = Script::create(u"Talk"_s, {}, {});
    script.slides = { { 1, u"Welcome"_s, u"Hello"_s }, { 2, u"Plan"_s, u"Three steps"_s },
        { 3, u"Blank"_s, {} }, { 4, u"End"_s, u"Thanks"_s } };
    const auto lost
        = [&](const QList<SlideNote>& slides) { return LibraryStore::lostNotes(script, slides); };

    EXPECT_EQ(lost(*script.slides), QList<qint64>());
    EXPECT_EQ(lost({}), QList<qint64>({ 1, 2, 4 }));
    // Edited, moved, renamed, and with a new one before them.
    EXPECT_EQ(lost({ { 1, u"New"_s, u"New"_s }, { 2, u"Plan"_s, u"Four steps"_s },
                  { 3, u"Farewell"_s, u"Thanks"_s }, { 4, u"Welcome"_s, u"Hi"_s } }),
        QList<qint64>());
    // The last slide is gone; the notes of the second are.
    EXPECT_EQ(
        lost({ { 1, u"Welcome"_s, u"Hello"_s }, { 2, u"Plan"_s, {} }, { 3, u"Blank"_s, {} } }),
        QList<qint64>({ 2, 4 }));
}

} // namespace
} // namespace Orvello
