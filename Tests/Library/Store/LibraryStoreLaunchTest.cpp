#include "Tests/Library/Store/LibraryStoreFixture.h"

#include "Orvello/Library/Records/WelcomeScript.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class LibraryStoreLaunchTest : public Testing::LibraryStoreFixture { };

TEST_F(LibraryStoreLaunchTest, welcomesANewUserWithOneActiveScript)
{
    const LibraryStore& store = launch();

    ASSERT_EQ(store.scripts().size(), 1);
    const Script& script = store.scripts().first();
    EXPECT_EQ(script.title, u"Welcome to Orvello"_s);
    EXPECT_EQ(script.body, WelcomeScript::body(facts));
    EXPECT_EQ(script.createdAt, time.date());
    EXPECT_EQ(script.updatedAt, time.date());
    EXPECT_EQ(script.slides, std::nullopt);
    EXPECT_EQ(script.deckSource, std::nullopt);
    EXPECT_EQ(store.activeScriptID(), script.id);
    EXPECT_EQ(storedActiveID(), UuidText::format(script.id));
    EXPECT_EQ(saved(), store.scripts());
}

TEST_F(LibraryStoreLaunchTest, makesTheFirstScriptOfAFormerSingleOne)
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

TEST_F(LibraryStoreLaunchTest, keepsAnEmptyFormerScriptButNoneThatIsNoText)
{
    defaults.stored.insert(u"script"_s, u""_s);
    EXPECT_EQ(launch().scripts().first().title, u"My Script"_s);

    QFile::remove(path);
    defaults.stored.insert(u"script"_s, 5);
    EXPECT_EQ(launch().scripts().first().title, u"Welcome to Orvello"_s);
    EXPECT_FALSE(defaults.stored.contains(u"script"_s));
}

TEST_F(LibraryStoreLaunchTest, leavesTheFormerScriptAloneOnceThereIsALibrary)
{
    launchWith({ u"A"_s });
    defaults.stored.insert(u"script"_s, u"Hi"_s);

    EXPECT_EQ(titles(launch().scripts()), QStringList { u"A"_s });
    EXPECT_TRUE(defaults.stored.contains(u"script"_s));
}

TEST_F(LibraryStoreLaunchTest, keepsTheLibraryFromRunToRun)
{
    const QList<Script> scripts = launchWith({ u"A"_s, u"B"_s, u"C"_s }).scripts();

    const LibraryStore& store = launch();

    EXPECT_EQ(store.scripts(), scripts);
    EXPECT_EQ(titles(store.scripts()), (QStringList { u"A"_s, u"B"_s, u"C"_s }));
    EXPECT_EQ(store.activeScriptID(), scripts.last().id);
    ASSERT_TRUE(store.activeScript());
    EXPECT_EQ(store.activeScript()->title, u"C"_s);
}

TEST_F(LibraryStoreLaunchTest, doesNotSaveALibraryThatItOnlyLoaded)
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

TEST_F(LibraryStoreLaunchTest, replacesAFileThatMakesNoSense)
{
    for (const char* bytes : { "", "[", "{}", "[]", "[{}]", "[{\"id\":5}]", "\xFF\xFE" }) {
        putFile(bytes);

        const LibraryStore& store = launch();

        EXPECT_EQ(titles(store.scripts()), QStringList { u"Welcome to Orvello"_s }) << bytes;
        EXPECT_EQ(saved(), store.scripts()) << bytes;
        EXPECT_EQ(store.activeScriptID(), store.scripts().first().id) << bytes;
    }
}

TEST_F(LibraryStoreLaunchTest, keepsAnActiveIdThatNamesNoScript)
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

TEST_F(LibraryStoreLaunchTest, activatesTheFirstScriptWithoutAStoredId)
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

TEST_F(LibraryStoreLaunchTest, writesAStoredActiveIdBackInUpperCase)
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

TEST_F(LibraryStoreLaunchTest, startsInOrder)
{
    RecordingDefaults recording;
    recording.setValue(u"activeScriptID"_s, u"not an id"_s);
    recording.changes.clear();

    const LibraryStore store(recording, folders, time, facts);

    EXPECT_EQ(recording.changes,
        (QStringList { u"remove activeScriptID"_s, u"set activeScriptID"_s, u"remove script"_s,
            u"set activeScriptID"_s }));
}

} // namespace
} // namespace Orvello
