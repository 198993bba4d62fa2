#include "Orvello/Foundation/AtomicFile.h"
#include "Tests/Library/Store/LibraryStoreFixture.h"
#include "Tests/Support/FileObstacles.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using SaveState = LibraryStore::SaveState;

/// What became of scripts that the user, a full disk or a power cut took away.
class LibrarySafetyTest : public Testing::LibraryStoreFixture {
protected:
    static constexpr double day = 24 * 60 * 60;

    QString inFolder(const QString& name) const { return folders.path + u"/Orvello/"_s + name; }
    static QByteArray contents(const QString& name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }
    static mode_t permissions(const QString& name)
    {
        struct stat status { };
        ::stat(QFile::encodeName(name).constData(), &status);
        return status.st_mode & 07777;
    }
    QStringList files(const QString& pattern) const
    {
        return QDir(inFolder({})).entryList({ pattern }, QDir::Files);
    }
    static QStringList titlesOf(const QList<DeletedScript>& scripts)
    {
        QStringList titles;
        for (const DeletedScript& deleted : scripts)
            titles.append(deleted.script.title);
        return titles;
    }
};

TEST_F(LibrarySafetyTest, keepsWhatIsDeletedAndPutsItBackWhereItWas)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s, u"C"_s });
    const QList<Script> before = store.scripts();
    const QSignalSpy changed(&store, &LibraryStore::deletedScriptsChanged);

    store.remove(before[1].id);
    EXPECT_EQ(titlesOf(store.deletedScripts()), QStringList { u"B"_s });
    EXPECT_EQ(store.deletedScripts().first().deletedAt, time.date());
    EXPECT_EQ(changed.count(), 1);

    store.restore(0);
    EXPECT_EQ(store.scripts(), before);
    EXPECT_EQ(store.activeScriptID(), before[1].id);
    EXPECT_TRUE(store.deletedScripts().isEmpty());
    EXPECT_EQ(saved(), before);
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(LibrarySafetyTest, restoresTheNewestFirstEvenIntoAnEmptyLibrary)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    store.remove(store.scripts().first().id);
    time.advance(1);
    store.remove(store.scripts().first().id);
    EXPECT_EQ(titlesOf(store.deletedScripts()), (QStringList { u"B"_s, u"A"_s }));

    store.restore(0);
    store.restore(0);
    store.restore(0); // There is none left.

    EXPECT_EQ(titles(store.scripts()), (QStringList { u"A"_s, u"B"_s }));
}

TEST_F(LibrarySafetyTest, keepsTheDeletedForThirtyDaysFromRunToRun)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s, u"C"_s });
    const QList<DeletedScript> expected { { store.scripts()[1], time.date(), 1 } };
    store.remove(store.scripts()[1].id);

    time.advance(29 * day);
    EXPECT_EQ(launch().deletedScripts(), expected);
    EXPECT_EQ(saved().size(), 2);

    time.advance(2 * day);
    EXPECT_TRUE(launch().deletedScripts().isEmpty());
    EXPECT_EQ(contents(inFolder(u"deleted.json"_s)), "[]");
}

TEST_F(LibrarySafetyTest, keepsDeletedScriptsThatItCannotRead)
{
    launchWith({ u"A"_s }).remove(QUuid());
    QFile file(inFolder(u"deleted.json"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write("[{\"script\":");
    file.close();

    LibraryStore& store = launch();
    store.remove(store.scripts().first().id);

    EXPECT_EQ(titlesOf(store.deletedScripts()), QStringList { u"A"_s });
    const QStringList kept = files(u"deleted.json.damaged-*"_s);
    ASSERT_EQ(kept.size(), 1);
    EXPECT_EQ(contents(inFolder(kept.first())), "[{\"script\":");
}

TEST_F(LibrarySafetyTest, writesNoLibraryWithoutAScriptThatTheOtherFileCouldNotTake)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    const QByteArray before = contents(path);
    ASSERT_TRUE(QDir().mkpath(inFolder(u"deleted.json"_s))); // Nothing can be written there.

    store.remove(store.scripts().first().id);

    EXPECT_EQ(contents(path), before);
    EXPECT_EQ(store.saveState(), SaveState::Failing);
    ASSERT_TRUE(QDir().rmdir(inFolder(u"deleted.json"_s)));
    time.advance(2);
    EXPECT_EQ(store.saveState(), SaveState::Saved);
    EXPECT_EQ(titles(saved()), QStringList { u"B"_s });
    EXPECT_EQ(titlesOf(launch().deletedScripts()), QStringList { u"A"_s });
}

TEST_F(LibrarySafetyTest, keepsTheBytesOfADamagedLibraryAndOffersTheLastFlushedOne)
{
    launchWith({ u"A"_s, u"B"_s }).updateActive(u"Newest"_s, {});
    quit();
    putFile("[{\"id\":");

    LibraryStore& store = launch();

    EXPECT_EQ(titles(store.scripts()), QStringList { u"Welcome to Orvello"_s });
    ASSERT_TRUE(store.rescue().offer());
    EXPECT_EQ(store.rescue().offer()->scriptCount, 2);
    EXPECT_EQ(contents(inFolder(store.rescue().damaged())), "[{\"id\":");
    EXPECT_TRUE(store.rescue().damaged().startsWith(u"scripts.json.damaged-2026-05-09-"_s))
        << store.rescue().damaged().toStdString();

    const QSignalSpy changed(&store, &LibraryStore::rescueChanged);
    store.takeOfferedCopy();
    EXPECT_EQ(
        titles(store.scripts()), (QStringList { u"Welcome to Orvello"_s, u"A"_s, u"Newest"_s }));
    EXPECT_EQ(store.activeScript()->title, u"A"_s);
    EXPECT_EQ(saved(), store.scripts());
    EXPECT_FALSE(store.rescue().hasNews());
    EXPECT_EQ(changed.count(), 1);
    EXPECT_FALSE(launch().rescue().hasNews());
    EXPECT_EQ(files(u"scripts.json.copy-*"_s).size(), 1);
}

TEST_F(LibrarySafetyTest, offersTheCopyOfTheLastStartWhenTheFlushedOneIsTornToo)
{
    launchWith({ u"A"_s, u"B"_s });
    quit();
    putFile("");
    QFile flushed(AtomicFile::flushedName(path));
    ASSERT_TRUE(flushed.remove()); // It is the very file that has just been emptied.
    ASSERT_TRUE(flushed.open(QIODevice::WriteOnly));
    flushed.write("torn");
    flushed.close();

    const LibraryStore& store = launch();

    ASSERT_TRUE(store.rescue().offer());
    EXPECT_EQ(store.rescue().offer()->scriptCount, 2);
    EXPECT_EQ(store.rescue().damaged(), u""_s); // There was nothing to keep.
}

TEST_F(LibrarySafetyTest, keepsTheOfferFromRunToRunUntilItIsAnswered)
{
    launchWith({ u"A"_s, u"B"_s });
    quit();
    putFile("damaged");
    launch().addScript();

    LibraryStore& store = launch();
    ASSERT_TRUE(store.rescue().offer());
    EXPECT_EQ(store.rescue().offer()->scriptCount, 2);
    store.closeRescue();
    EXPECT_FALSE(store.rescue().hasNews());
    EXPECT_FALSE(launch().rescue().hasNews());
    EXPECT_EQ(files(u"scripts.json.copy-*"_s).size(), 1);
    EXPECT_EQ(files(u"scripts.json.damaged-*"_s).size(), 1);
}

TEST_F(LibrarySafetyTest, offersNothingToANewUser)
{
    EXPECT_FALSE(launch().rescue().hasNews());
    EXPECT_FALSE(launch().rescue().hasNews());
}

TEST_F(LibrarySafetyTest, copiesTheLibraryAtEachStartOnceAnHourAndAtTheEnd)
{
    const QString copy = path + u".last"_s;
    const auto awaitCopy = [&] {
        for (int i = 0; i < 10'000 && !QFile::exists(copy); ++i)
            ::usleep(1000); // Another thread is at it.
        return titles(LibraryFile::read(copy).value_or(QList<Script> {}));
    };

    LibraryStore& store = launchWith({ u"A"_s });
    EXPECT_EQ(awaitCopy(), QStringList { u"A"_s });

    store.updateActive(u"B"_s, {});
    ASSERT_TRUE(QFile::remove(copy));
    time.advance(3599);
    EXPECT_FALSE(QFile::exists(copy));
    time.advance(1);
    EXPECT_EQ(awaitCopy(), QStringList { u"B"_s });

    store.updateActive(u"C"_s, {});
    ASSERT_TRUE(QFile::remove(copy));
    quit();
    EXPECT_EQ(awaitCopy(), QStringList { u"C"_s });
}

TEST_F(LibrarySafetyTest, neverWritesTheLibraryOfAnotherProcess)
{
    LibraryStore& first = launchWith({ u"A"_s, u"B"_s });
    LibraryStore second(defaults, folders, time, facts);

    second.addScript();
    second.updateActive(u"Second's"_s, {});
    second.remove(second.scripts().last().id);
    time.advance(10);

    EXPECT_EQ(second.saveState(), SaveState::Foreign);
    EXPECT_EQ(first.saveState(), SaveState::Saved);
    EXPECT_EQ(saved(), first.scripts());
    EXPECT_TRUE(LibraryFile(folders).load() == first.scripts());
    first.updateActive(u"First's"_s, {});
    EXPECT_EQ(saved(), first.scripts());
}

TEST_F(LibrarySafetyTest, getsTheLibraryOnceTheOtherProcessHasEnded)
{
    launchWith({ u"A"_s });

    EXPECT_EQ(launch().saveState(), SaveState::Saved);
}

TEST_F(LibrarySafetyTest, removesWhatAKilledProcessLeft)
{
    launchWith({ u"A"_s });
    QFile leftover(path + u".tmp-2ab"_s);
    ASSERT_TRUE(leftover.open(QIODevice::WriteOnly));

    launch();

    EXPECT_FALSE(leftover.exists());
}

TEST_F(LibrarySafetyTest, keepsEverythingForTheUsersEyesAlone)
{
    folders.path = folders.directory.filePath(u"share"_s);
    path = inFolder(u"scripts.json"_s);
    const mode_t before = ::umask(0);
    LibraryStore& store = launch();
    store.addScript();
    store.remove(store.scripts().first().id);
    launch();
    ::umask(before);

    EXPECT_EQ(permissions(inFolder(u"."_s)), 0700u);
    const QStringList names = QDir(inFolder({})).entryList(QDir::Files | QDir::Hidden);
    EXPECT_GE(names.size(), 4);
    for (const QString& name : names)
        EXPECT_EQ(permissions(inFolder(name)), 0600u) << name.toStdString();
}

TEST_F(LibrarySafetyTest, triesAFailedSaveAgainUntilItSucceeds)
{
    LibraryStore& store = launchWith({ u"A"_s });
    const QSignalSpy stateChanged(&store, &LibraryStore::saveStateChanged);

    {
        const Testing::FullDisk disk(10);
        store.updateActive(u"New"_s, {});
        EXPECT_EQ(store.saveState(), SaveState::Failing);
        EXPECT_EQ(store.saveProblem(), std::errc::file_too_large);
        time.advance(6);
        EXPECT_EQ(store.saveState(), SaveState::Failing);
        EXPECT_EQ(stateChanged.count(), 1);
        EXPECT_EQ(titles(saved()), QStringList { u"A"_s });
    }
    time.advance(2);

    EXPECT_EQ(store.saveState(), SaveState::Saved);
    EXPECT_EQ(stateChanged.count(), 2);
    EXPECT_EQ(saved(), store.scripts());
}

TEST_F(LibrarySafetyTest, movesAScriptAndSavesTheOrder)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s, u"C"_s });
    QList<LibraryChange> changes;
    QObject::connect(&store, &LibraryStore::scriptsChanged, &store,
        [&](const LibraryChange& change) { changes.append(change); });

    store.move(0, 2);
    EXPECT_EQ(titles(store.scripts()), (QStringList { u"B"_s, u"C"_s, u"A"_s }));
    EXPECT_EQ(saved(), store.scripts());
    store.move(2, -5);
    EXPECT_EQ(titles(store.scripts()), (QStringList { u"A"_s, u"B"_s, u"C"_s }));
    EXPECT_EQ(saved(), store.scripts());
    store.move(1, 1);

    ASSERT_EQ(changes.size(), 2);
    EXPECT_EQ(changes.first(),
        (LibraryChange { .kind = LibraryChange::Kind::Moved,
            .row = 0,
            .newRow = 2,
            .id = store.scripts().first().id }));
    EXPECT_EQ(store.activeScript()->title, u"C"_s);
}

TEST_F(LibrarySafetyTest, duplicatesAScriptBelowItself)
{
    LibraryStore& store = launchWith({ u"A"_s, u"B"_s });
    time.advance(5);

    store.duplicate(store.scripts().first().id);

    EXPECT_EQ(titles(store.scripts()), (QStringList { u"A"_s, u"A copy"_s, u"B"_s }));
    EXPECT_EQ(store.scripts()[1].body, u"Body of A"_s);
    EXPECT_EQ(store.scripts()[1].createdAt, time.date());
    EXPECT_NE(store.scripts()[1].id, store.scripts()[0].id);
    EXPECT_EQ(store.activeScriptID(), store.scripts()[1].id);
    EXPECT_EQ(saved(), store.scripts());
    store.duplicate(QUuid::createUuid());
    EXPECT_EQ(store.scripts().size(), 3);
}

} // namespace
} // namespace Orvello
