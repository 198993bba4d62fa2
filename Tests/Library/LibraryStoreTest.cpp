#include "Orvello/Library/LibraryStore.h"

#include "Orvello/Library/UuidText.h"
#include "Orvello/Library/WelcomeScript.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/FileObstacles.h"
#include "Tests/Support/ManualTimeSource.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class LibraryStoreTest : public ::testing::Test {
protected:
    /// Begins a run of the program on what earlier runs left.
    LibraryStore& launch()
    {
        m_store = std::make_unique<LibraryStore>(defaults, folders, time);
        return *m_store;
    }

    /// A store with scripts of these titles, from the top, the last of which is active.
    LibraryStore& launchWith(const QStringList& titles)
    {
        QList<Script> scripts;
        for (const QString& title : titles)
            scripts.append(Script::create(title, u"Body of "_s + title, { 5 }));
        LibraryFile(folders).save(scripts);
        defaults.stored.insert(u"activeScriptID"_s, UuidText::format(scripts.last().id));
        return launch();
    }

    static QStringList titles(const QList<Script>& scripts)
    {
        QStringList list;
        for (const Script& script : scripts)
            list.append(script.title);
        return list;
    }

    QList<Script> saved() const { return LibraryFile(folders).load(); }
    QString storedActiveID() const { return defaults.stored.value(u"activeScriptID"_s).toString(); }

    void putFile(const QByteArray& bytes) const
    {
        QDir().mkpath(folders.path + u"/Orvello"_s);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    /// Whether the library file was written since the last call or the launch.
    bool wasSaved() const { return QFile::remove(path); }

    Testing::FakeFolders folders;
    Testing::FakeUserDefaults defaults;
    Testing::ManualTimeSource time;
    QString path = folders.path + u"/Orvello/scripts.json"_s;

private:
    std::unique_ptr<LibraryStore> m_store;
};

TEST_F(LibraryStoreTest, welcomesANewUserWithOneActiveScript)
{
    const LibraryStore& store = launch();

    ASSERT_EQ(store.scripts().size(), 1);
    const Script& script = store.scripts().first();
    EXPECT_EQ(script.title, u"Welcome to Orvello"_s);
    EXPECT_EQ(script.body, WelcomeScript::body());
    EXPECT_EQ(script.createdAt, time.date());
    EXPECT_EQ(script.updatedAt, time.date());
    EXPECT_EQ(script.slides, std::nullopt);
    EXPECT_EQ(script.deckSource, std::nullopt);
    EXPECT_EQ(store.activeScriptID(), script.id);
    EXPECT_EQ(storedActiveID(), UuidText::format(script.id));
    EXPECT_EQ(saved(), store.scripts());
}

TEST_F(LibraryStoreTest, makesTheFirstScriptOfAFormerSingleOne)
{
    defaults.stored.insert(u"script"_s, u"Hi"_s);

    const LibraryStore& store = launch();

    ASSERT_EQ(store.scripts().size(), 1);
    EXPECT_EQ(store.scripts().first().title, u"My Script"_s);
    EXPECT_EQ(store.scripts().first().body, u"Hi"_s);
    EXPECT_FALSE(defaults.stored.contains(u"script"_s));
    EXPECT_EQ(store.activeScriptID(), store.scripts().first().id);
    EXPECT_EQ(saved(), store.scripts());
}

TEST_F(LibraryStoreTest, keepsAnEmptyFormerScriptButNoneThatIsNoText)
{
    defaults.stored.insert(u"script"_s, u""_s);
    EXPECT_EQ(launch().scripts().first().title, u"My Script"_s);

    QFile::remove(path);
    defaults.stored.insert(u"script"_s, 5);
    EXPECT_EQ(launch().scripts().first().title, u"Welcome to Orvello"_s);
    EXPECT_FALSE(defaults.stored.contains(u"script"_s));
}

TEST_F(LibraryStoreTest, leavesTheFormerScriptAloneOnceThereIsALibrary)
{
    launchWith({ u"A"_s });
    defaults.stored.insert(u"script"_s, u"Hi"_s);

    EXPECT_EQ(titles(launch().scripts()), QStringList { u"A"_s });
    EXPECT_TRUE(defaults.stored.contains(u"script"_s));
}

TEST_F(LibraryStoreTest, keepsTheLibraryFromRunToRun)
{
    const QList<Script> scripts = launchWith({ u"A"_s, u"B"_s, u"C"_s }).scripts();

    const LibraryStore& store = launch();

    EXPECT_EQ(store.scripts(), scripts);
    EXPECT_EQ(titles(store.scripts()), (QStringList { u"A"_s, u"B"_s, u"C"_s }));
    EXPECT_EQ(store.activeScriptID(), scripts.last().id);
    ASSERT_TRUE(store.activeScript());
    EXPECT_EQ(store.activeScript()->title, u"C"_s);
}

TEST_F(LibraryStoreTest, doesNotSaveALibraryThatItOnlyLoaded)
{
    putFile("[ ]");
    launchWith({ u"A"_s });
    QFile::remove(path + u".copy"_s);
    ASSERT_TRUE(QFile::copy(path, path + u".copy"_s));
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::Append));
    file.write("\n");
    file.close();

    launch();

    EXPECT_EQ(QFileInfo(path).size(), QFileInfo(path + u".copy"_s).size() + 1);
}

TEST_F(LibraryStoreTest, replacesAFileThatMakesNoSense)
{
    for (const char* bytes : { "", "[", "{}", "[]", "[{}]", "[{\"id\":5}]", "\xFF\xFE" }) {
        putFile(bytes);

        const LibraryStore& store = launch();

        EXPECT_EQ(titles(store.scripts()), QStringList { u"Welcome to Orvello"_s }) << bytes;
        EXPECT_EQ(saved(), store.scripts()) << bytes;
        EXPECT_EQ(store.activeScriptID(), store.scripts().first().id) << bytes;
    }
    EXPECT_EQ(QDir(folders.path + u"/Orvello"_s).entryList(QDir::Files),
        QStringList { u"scripts.json"_s });
}

TEST_F(LibraryStoreTest, keepsAnActiveIdThatNamesNoScript)
{
    launchWith({ u"A"_s, u"B"_s });
    const QUuid stale = QUuid::createUuid();
    defaults.stored.insert(u"activeScriptID"_s, UuidText::format(stale));

    LibraryStore& store = launch();

    EXPECT_EQ(store.activeScriptID(), stale);
    EXPECT_EQ(store.activeScript(), &store.scripts().first());
    EXPECT_EQ(storedActiveID(), UuidText::format(stale));

    store.setActiveScriptID(store.scripts().last().id);
    EXPECT_EQ(store.activeScript(), &store.scripts().last());
}

TEST_F(LibraryStoreTest, activatesTheFirstScriptWithoutAStoredId)
{
    launchWith({ u"A"_s, u"B"_s });
    for (const QVariant& stored : { QVariant(), QVariant(u"not an id"_s), QVariant(u""_s),
             QVariant(5), QVariant(u"{E621E1F8-C36C-495A-93FC-0C247A3E6E5F}"_s) }) {
        defaults.stored.insert(u"activeScriptID"_s, stored);

        const LibraryStore& store = launch();

        EXPECT_EQ(store.activeScriptID(), store.scripts().first().id);
        EXPECT_EQ(storedActiveID(), UuidText::format(store.scripts().first().id));
    }
}

TEST_F(LibraryStoreTest, writesAStoredActiveIdBackInUpperCase)
{
    const QUuid id = launchWith({ u"A"_s, u"B"_s }).scripts().last().id;
    defaults.stored.insert(u"activeScriptID"_s, UuidText::format(id).toLower());

    EXPECT_EQ(launch().activeScriptID(), id);
    EXPECT_EQ(storedActiveID(), UuidText::format(id));
}

/// Writes down each change in order.
class RecordingDefaults final : public UserDefaults {
public:
    QVariant value(const QString& key) const override { return m_defaults.value(key); }
    void setValue(const QString& key, const QVariant& value) override
    {
        changes.append(u"set "_s + key);
        m_defaults.setValue(key, value);
    }
    void remove(const QString& key) override
    {
        changes.append(u"remove "_s + key);
        m_defaults.remove(key);
    }
    QVariantMap storedValues() const override { return m_defaults.storedValues(); }

    QStringList changes;

private:
    Testing::FakeUserDefaults m_defaults;
};

TEST_F(LibraryStoreTest, startsInOrder)
{
    RecordingDefaults recording;
    recording.setValue(u"activeScriptID"_s, u"not an id"_s);
    recording.changes.clear();

    const LibraryStore store(recording, folders, time);

    EXPECT_EQ(recording.changes,
        (QStringList { u"remove activeScriptID"_s, u"set activeScriptID"_s, u"remove script"_s,
            u"set activeScriptID"_s }));
}

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

TEST_F(LibraryStoreTest, isTheSharedOneOnceAdopted)
{
    LibraryStore& store = launch();

    LibraryStore::adoptShared(store);

    EXPECT_EQ(&LibraryStore::shared(), &store);
}

TEST_F(LibraryStoreTest, joinsADecksNotes)
{
    EXPECT_EQ(
        LibraryStore::joinedBody({ { 1, std::nullopt, u""_s } }), u"— Slide 1 —\n(no notes)"_s);
}

} // namespace
} // namespace Orvello
