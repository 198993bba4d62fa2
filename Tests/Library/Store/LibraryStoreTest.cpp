#include "Tests/Library/Store/LibraryStoreFixture.h"

#include "Tests/Support/FileObstacles.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class LibraryStoreTest : public Testing::LibraryStoreFixture { };

TEST_F(LibraryStoreTest, addsAnEmptyScriptOnTopAndMakesItActive)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    time.advance(60);

    const QUuid id = store.addScript();

    EXPECT_EQ(titles(store.scripts()), (QStringList { u"Untitled"_s, u"A"_s, u"B"_s }));
    const Script& script = store.scripts().first();
    EXPECT_EQ(script.id, id);
    EXPECT_EQ(script.body, u""_s);
    EXPECT_EQ(script.createdAt, time.date());
    EXPECT_EQ(script.updatedAt, time.date());
    EXPECT_EQ(script.slides, std::nullopt);
    EXPECT_EQ(script.deckSource, std::nullopt);
    EXPECT_EQ(store.activeScriptID(), id);
    EXPECT_EQ(storedActiveID(), UuidText::format(id));
    EXPECT_EQ(saved(), store.scripts());
}

TEST_F(LibraryStoreTest, activatesTheFirstRemainingScriptWhenTheActiveOneIsRemoved)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s, u"C"_s });

    store.remove(store.scripts().last().id);

    EXPECT_EQ(titles(store.scripts()), (QStringList { u"A"_s, u"B"_s }));
    EXPECT_EQ(store.activeScriptID(), store.scripts().first().id);
    EXPECT_EQ(storedActiveID(), UuidText::format(store.scripts().first().id));
    EXPECT_EQ(saved(), store.scripts());
}

TEST_F(LibraryStoreTest, keepsTheActiveScriptWhenAnotherIsRemoved)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s, u"C"_s });
    const QUuid active = *store.activeScriptID();

    store.remove(store.scripts().first().id);

    EXPECT_EQ(titles(store.scripts()), (QStringList { u"B"_s, u"C"_s }));
    EXPECT_EQ(store.activeScriptID(), active);
    EXPECT_EQ(saved(), store.scripts());
}

TEST_F(LibraryStoreTest, isEmptyAfterTheLastScriptIsRemovedUntilTheNextLaunch)
{
    LibraryStore& store = launchWith({ u"A"_s });

    store.remove(store.scripts().first().id);

    EXPECT_TRUE(store.scripts().isEmpty());
    EXPECT_EQ(store.activeScriptID(), std::nullopt);
    EXPECT_EQ(store.activeScript(), nullptr);
    EXPECT_FALSE(defaults.stored.contains(u"activeScriptID"_s));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "[]");

    EXPECT_EQ(titles(launch().scripts()), QStringList { u"Welcome to Orvello"_s });
}

TEST_F(LibraryStoreTest, savesEvenWhenThereIsNothingToRemove)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    const QUuid active = *store.activeScriptID();
    QSignalSpy scriptsChanged(&store, &LibraryStore::scriptsChanged);
    ASSERT_TRUE(wasSaved());

    store.remove(QUuid::createUuid());

    EXPECT_TRUE(wasSaved());
    EXPECT_EQ(store.activeScriptID(), active);
    EXPECT_EQ(scriptsChanged.count(), 0);
}

TEST_F(LibraryStoreTest, activatesTheFirstScriptWhenAStaleActiveIdIsRemoved)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    const QUuid stale = QUuid::createUuid();
    store.setActiveScriptID(stale);

    store.remove(stale);

    EXPECT_EQ(store.scripts().size(), 2);
    EXPECT_EQ(store.activeScriptID(), store.scripts().first().id);
}

TEST_F(LibraryStoreTest, removesEveryScriptWithTheId)
{
    Script twin = Script::create(u"A"_s, u""_s, { 1 });
    LibraryFile(folders).save({ twin, Script::create(u"B"_s, u""_s, { 1 }), twin });
    LibraryStore& store = launch();

    store.remove(twin.id);

    EXPECT_EQ(titles(store.scripts()), QStringList { u"B"_s });
}

TEST_F(LibraryStoreTest, replacesTitleAndBodyOfTheActiveScript)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    time.advance(1);

    store.updateActive(u"New title"_s, std::nullopt);
    EXPECT_EQ(store.scripts()[1].title, u"New title"_s);
    EXPECT_EQ(store.scripts()[1].body, u"Body of B"_s);
    EXPECT_EQ(store.scripts()[1].createdAt, Date { 5 });
    EXPECT_EQ(store.scripts()[1].updatedAt, time.date());
    EXPECT_EQ(saved(), store.scripts());

    time.advance(1);
    store.updateActive(std::nullopt, u"New body"_s);
    EXPECT_EQ(store.scripts()[1].title, u"New title"_s);
    EXPECT_EQ(store.scripts()[1].body, u"New body"_s);
    EXPECT_EQ(store.scripts()[1].updatedAt, time.date());
    EXPECT_EQ(saved(), store.scripts());

    store.updateActive(u""_s, u""_s);
    EXPECT_EQ(store.scripts()[1].title, u""_s);
    EXPECT_EQ(store.scripts()[1].body, u""_s);
    EXPECT_EQ(store.scripts()[0].title, u"A"_s);
    EXPECT_EQ(store.scripts()[0].updatedAt, Date { 5 });
    EXPECT_EQ(saved(), store.scripts());
}

TEST_F(LibraryStoreTest, renewsTheDateAndSavesEvenWithoutAnEdit)
{
    LibraryStore& store = launchWith({ u"A"_s });
    time.advance(1);

    store.updateActive(std::nullopt, std::nullopt);

    EXPECT_EQ(store.scripts().first().title, u"A"_s);
    EXPECT_EQ(store.scripts().first().updatedAt, time.date());
    EXPECT_EQ(saved(), store.scripts());
}

TEST_F(LibraryStoreTest, editsTheFirstScriptWhenNoneIsActive)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    store.setActiveScriptID(std::nullopt);

    store.updateActive(u"New"_s, std::nullopt);

    EXPECT_EQ(titles(store.scripts()), (QStringList { u"New"_s, u"B"_s }));
    EXPECT_EQ(store.activeScriptID(), std::nullopt);
}

TEST_F(LibraryStoreTest, editsNothingWhenTheActiveIdNamesNoScript)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    store.setActiveScriptID(QUuid::createUuid());
    const QList<Script> before = store.scripts();
    const QSignalSpy scriptsChanged(&store, &LibraryStore::scriptsChanged);
    ASSERT_TRUE(wasSaved());

    store.updateActive(u"New"_s, u"New"_s);

    EXPECT_EQ(store.scripts(), before);
    EXPECT_FALSE(wasSaved());
    EXPECT_EQ(scriptsChanged.count(), 0);
}

TEST_F(LibraryStoreTest, editsNothingInAnEmptyLibrary)
{
    LibraryStore& store = launchWith({ u"A"_s });
    store.remove(store.scripts().first().id);
    ASSERT_TRUE(wasSaved());

    store.updateActive(u"New"_s, u"New"_s);

    EXPECT_TRUE(store.scripts().isEmpty());
    EXPECT_FALSE(wasSaved());
}

TEST_F(LibraryStoreTest, editsTheFirstOfScriptsWithTheSameId)
{
    const Script twin = Script::create(u"A"_s, u""_s, { 1 });
    LibraryFile(folders).save({ twin, twin });
    LibraryStore& store = launch();

    store.updateActive(u"New"_s, std::nullopt);

    EXPECT_EQ(titles(store.scripts()), (QStringList { u"New"_s, u"A"_s }));
}

TEST_F(LibraryStoreTest, storesTheActiveIdAtEachAssignmentWithoutSavingTheLibrary)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    const QUuid first = store.scripts().first().id;
    ASSERT_TRUE(wasSaved());
    const int writes = defaults.writes;

    store.setActiveScriptID(first);
    EXPECT_EQ(storedActiveID(), UuidText::format(first));

    defaults.stored.remove(u"activeScriptID"_s);
    store.setActiveScriptID(first);
    EXPECT_EQ(storedActiveID(), UuidText::format(first));
    EXPECT_EQ(defaults.writes, writes + 2);

    store.setActiveScriptID(std::nullopt);
    EXPECT_FALSE(defaults.stored.contains(u"activeScriptID"_s));
    EXPECT_FALSE(wasSaved());
}

TEST_F(LibraryStoreTest, announcesWhatChangedOnceItIsSaved)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    QSignalSpy activeChanged(&store, &LibraryStore::activeScriptIDChanged);
    int announcedScripts = 0;
    QObject::connect(&store, &LibraryStore::scriptsChanged, &store, [&] {
        ++announcedScripts;
        EXPECT_EQ(saved(), store.scripts());
        EXPECT_TRUE(store.activeScript());
    });

    store.updateActive(u"New"_s, std::nullopt);
    EXPECT_EQ(announcedScripts, 1);
    EXPECT_EQ(activeChanged.count(), 0);

    store.addScript();
    EXPECT_EQ(announcedScripts, 2);
    EXPECT_EQ(activeChanged.count(), 1);

    store.remove(store.scripts().last().id);
    EXPECT_EQ(announcedScripts, 3);
    EXPECT_EQ(activeChanged.count(), 1);

    store.remove(store.scripts().first().id);
    EXPECT_EQ(announcedScripts, 4);
    EXPECT_EQ(activeChanged.count(), 2);

    store.setActiveScriptID(store.activeScriptID());
    EXPECT_EQ(activeChanged.count(), 2);
    store.setActiveScriptID(std::nullopt);
    EXPECT_EQ(activeChanged.count(), 3);
    EXPECT_EQ(announcedScripts, 4);
}

TEST_F(LibraryStoreTest, saysWhichScriptCameOrWent)
{
    using Kind = LibraryChange::Kind;
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s, u"C"_s });
    QList<LibraryChange> changes;
    QObject::connect(&store, &LibraryStore::scriptsChanged, &store,
        [&](const LibraryChange& change) { changes.append(change); });
    const QUuid b = store.scripts()[1].id;

    const QUuid added = store.addScript();
    store.remove(b);

    EXPECT_EQ(changes,
        (QList<LibraryChange> { { .kind = Kind::Inserted, .row = 0, .id = added },
            { .kind = Kind::Removed, .row = 2, .id = b } }));
}

TEST_F(LibraryStoreTest, saysWhatWasEditedAndWhere)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    const QUuid id = store.scripts()[1].id;
    QList<LibraryChange> changes;
    QObject::connect(&store, &LibraryStore::scriptsChanged, &store,
        [&](const LibraryChange& change) { changes.append(change); });

    store.editActive(5, 2, u"for"_s);
    store.updateActive(u"New"_s, std::nullopt);
    store.updateActive(u"New"_s, u"Other"_s);
    store.updateActive(std::nullopt, u"Other"_s);

    EXPECT_EQ(store.scripts()[1].body, u"Other"_s);
    EXPECT_EQ(changes,
        (QList<LibraryChange> { { .row = 1, .id = id, .body = TextEdit { 5, 2, 3 } },
            { .row = 1, .id = id, .hasNewTitle = true },
            { .row = 1, .id = id, .body = TextEdit { 0, 10, 5 } }, { .row = 1, .id = id } }));
}

TEST_F(LibraryStoreTest, editsAPartOfTheActiveBody)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    time.advance(60);

    store.editActive(0, 4, u"Text"_s);
    EXPECT_EQ(store.scripts()[1].body, u"Text of B"_s);
    EXPECT_EQ(store.scripts()[1].updatedAt, time.date());
    store.editActive(9, 0, u"!"_s);
    EXPECT_EQ(store.scripts()[1].body, u"Text of B!"_s);
    EXPECT_EQ(store.scripts()[0].body, u"Body of A"_s);
    EXPECT_EQ(saved(), store.scripts());

    store.setActiveScriptID(QUuid::createUuid());
    EXPECT_TRUE(wasSaved());
    store.editActive(0, 0, u"!"_s);
    EXPECT_FALSE(wasSaved());
}

TEST_F(LibraryStoreTest, goesOnInMemoryWhenItCannotSave)
{
    LibraryStore& store = launchWith({ u"A"_s });
    const QList<Script> before = saved();

    {
        const Testing::FullDisk disk(10);
        store.updateActive(u"New"_s, std::nullopt);
    }
    EXPECT_EQ(titles(store.scripts()), QStringList { u"New"_s });
    EXPECT_EQ(saved(), before);

    store.addScript();
    EXPECT_EQ(saved(), store.scripts());
}

TEST_F(LibraryStoreTest, startsWhereItCannotEverSave)
{
    folders.path = folders.directory.filePath(u"a file"_s);
    QFile inTheWay(folders.path);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));

    LibraryStore& store = launch();
    store.addScript();

    EXPECT_EQ(titles(store.scripts()), (QStringList { u"Untitled"_s, u"Welcome to Orvello"_s }));
}

} // namespace
} // namespace Orvello
