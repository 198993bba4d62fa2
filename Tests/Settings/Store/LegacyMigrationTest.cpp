#include "Orvello/Settings/Store/LegacyMigration.h"

#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/FileObstacles.h"
#include "Tests/Support/LogCapture.h"

#include <QDateTime>
#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::StartsWith;

class LegacyMigrationTest : public ::testing::Test {
protected:
    void migrate()
    {
        LegacyMigration::runIfNeeded({ defaults, former, folders, u"The sample text."_s });
    }

    QString pathOf(const QString& name) const { return folders.path + u'/' + name; }
    bool exists(const QString& name) const { return QFileInfo::exists(pathOf(name)); }

    void writeFile(const QString& name, const QByteArray& bytes) const
    {
        QDir().mkpath(QFileInfo(pathOf(name)).path());
        QFile file(pathOf(name));
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        ASSERT_EQ(file.write(bytes), bytes.size());
    }
    QByteArray readFile(const QString& name) const
    {
        QFile file(pathOf(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(no file)");
    }

    QStringList namesIn(const QString& folder = {}) const
    {
        return QDir(pathOf(folder)).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
    }

    /// What the library file holds after the library `json` of the former product was migrated.
    QByteArray migrated(const QByteArray& json)
    {
        writeFile(u"Drumlin/scripts.json"_s, json);
        migrate();
        return readFile(u"Orvello/scripts.json"_s);
    }

    Testing::FakeUserDefaults defaults;
    Testing::FakeUserDefaults former;
    Testing::FakeFolders folders;
    Testing::LogCapture log;
};

TEST_F(LegacyMigrationTest, carriesTheFormerGhostModeOverAsStealthMode)
{
    former.stored = { { u"ghostMode"_s, false } };

    migrate();

    EXPECT_EQ(defaults.stored.value(u"stealthMode"_s), QVariant(false));
    EXPECT_FALSE(defaults.stored.contains(u"ghostMode"_s));
}

TEST_F(LegacyMigrationTest, carriesValuesOfEveryType)
{
    former.stored = {
        { u"aBoolean"_s, true },
        { u"anInteger"_s, qint64(9007199254740993) },
        { u"aDouble"_s, 0.1 },
        { u"aString"_s, u"Grün"_s },
        { u"bytes"_s, QByteArray("\0\xff", 2) },
        { u"aDate"_s, QDateTime::fromSecsSinceEpoch(1700000000) },
        { u"aList"_s, QVariantList { 1, u"two"_s } },
        { u"aMap"_s, QVariantMap { { u"key"_s, 2.5 } } },
    };

    migrate();

    for (auto entry = former.stored.begin(); entry != former.stored.end(); ++entry) {
        EXPECT_EQ(defaults.stored.value(entry.key()), entry.value()) << qPrintable(entry.key());
        EXPECT_EQ(defaults.stored.value(entry.key()).typeId(), entry.value().typeId());
    }
}

TEST_F(LegacyMigrationTest, keepsValuesThatTheCurrentDefaultsHold)
{
    defaults.stored = { { u"speed"_s, 40.0 }, { u"stealthMode"_s, true } };
    former.stored = { { u"speed"_s, 90.0 }, { u"ghostMode"_s, false } };

    migrate();

    EXPECT_EQ(defaults.stored.value(u"speed"_s), QVariant(40.0));
    EXPECT_EQ(defaults.stored.value(u"stealthMode"_s), QVariant(true));
}

TEST_F(LegacyMigrationTest, countsSkippedKeysToo)
{
    defaults.stored = { { u"speed"_s, 40.0 } };
    former.stored = { { u"speed"_s, 90.0 }, { u"fontSize"_s, 20.0 }, { u"ghostMode"_s, true } };

    migrate();

    EXPECT_THAT(log.lines(), ElementsAre("MIGRATE copied 3 preference keys from app.drumlin.mac"));
}

TEST_F(LegacyMigrationTest, saysNothingWithoutFormerPreferencesOrFolder)
{
    migrate();

    EXPECT_THAT(log.lines(), IsEmpty());
    EXPECT_FALSE(exists(u"Orvello"_s));
}

TEST_F(LegacyMigrationTest, setsTheMarkerEvenWhenNothingWasThere)
{
    migrate();

    EXPECT_EQ(defaults.stored.value(u"migratedFromDrumlin"_s), QVariant(true));
}

TEST_F(LegacyMigrationTest, neverRunsASecondTime)
{
    migrate();
    former.stored = { { u"ghostMode"_s, false } };
    writeFile(u"Drumlin/scripts.json"_s, "[]");

    migrate();

    EXPECT_FALSE(defaults.stored.contains(u"stealthMode"_s));
    EXPECT_FALSE(exists(u"Orvello"_s));
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(LegacyMigrationTest, runsWhenTheMarkerIsFalse)
{
    defaults.stored = { { u"migratedFromDrumlin"_s, false } };
    former.stored = { { u"ghostMode"_s, false } };

    migrate();

    EXPECT_TRUE(defaults.stored.contains(u"stealthMode"_s));
}

TEST_F(LegacyMigrationTest, copiesTheFormerFolderWhole)
{
    writeFile(u"Drumlin/scripts.json"_s, "[]");
    writeFile(u"Drumlin/deep/er/file.txt"_s, "text");
    QFile::link(u"file.txt"_s, pathOf(u"Drumlin/deep/er/link"_s));

    migrate();

    EXPECT_EQ(readFile(u"Orvello/scripts.json"_s), "[]");
    EXPECT_EQ(readFile(u"Orvello/deep/er/file.txt"_s), "text");
    EXPECT_TRUE(QFileInfo(pathOf(u"Orvello/deep/er/link"_s)).isSymLink());
    EXPECT_EQ(readFile(u"Drumlin/scripts.json"_s), "[]");
    EXPECT_THAT(log.lines(), ElementsAre("MIGRATE copied Application Support/Drumlin -> Orvello"));
    EXPECT_THAT(namesIn(), ElementsAre(u"Drumlin"_s, u"Orvello"_s));
}

TEST_F(LegacyMigrationTest, copiesAFormerFolderThatIsALink)
{
    writeFile(u"elsewhere/scripts.json"_s, "[]");
    QFile::link(u"elsewhere"_s, pathOf(u"Drumlin"_s));

    migrate();

    EXPECT_EQ(readFile(u"Orvello/scripts.json"_s), "[]");
    EXPECT_FALSE(QFileInfo(pathOf(u"Orvello"_s)).isSymLink());
}

TEST_F(LegacyMigrationTest, migratesPreferencesBeforeTheFolder)
{
    former.stored = { { u"speed"_s, 90.0 } };
    writeFile(u"Drumlin/scripts.json"_s, "[]");

    migrate();

    EXPECT_THAT(log.lines(),
        ElementsAre(StartsWith("MIGRATE copied 1 preference"), StartsWith("MIGRATE copied App")));
}

TEST_F(LegacyMigrationTest, keepsTheLibraryOfAnExistingFolder)
{
    writeFile(u"Drumlin/scripts.json"_s, R"([{"title":"former"}])");
    writeFile(u"Orvello/scripts.json"_s, R"([{"title":"current"}])");

    migrate();

    EXPECT_EQ(readFile(u"Orvello/scripts.json"_s), R"([{"title":"current"}])");
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(LegacyMigrationTest, leavesAnEmptyCurrentFolderAlone)
{
    writeFile(u"Drumlin/scripts.json"_s, "[]");
    QDir().mkpath(pathOf(u"Orvello"_s));

    migrate();

    EXPECT_FALSE(exists(u"Orvello/scripts.json"_s));
}

TEST_F(LegacyMigrationTest, isNotKeptFromTheScriptsByTheLogOfThisLaunch)
{
    writeFile(u"Drumlin/scripts.json"_s, "[]");
    writeFile(u"Drumlin/logs/drumlin.log"_s, "former");
    writeFile(u"Orvello/logs/orvello.log"_s, "launch\n");
    QFile openLog(pathOf(u"Orvello/logs/orvello.log"_s));
    ASSERT_TRUE(openLog.open(QIODevice::Append));

    migrate();
    openLog.write("more\n");
    openLog.close();

    EXPECT_EQ(readFile(u"Orvello/scripts.json"_s), "[]");
    EXPECT_EQ(readFile(u"Orvello/logs/orvello.log"_s), "launch\nmore\n");
    EXPECT_EQ(readFile(u"Orvello/logs/drumlin.log"_s), "former");
}

TEST_F(LegacyMigrationTest, leavesNothingOfACopyThatFailed)
{
    writeFile(u"Drumlin/a.txt"_s, "a");
    ASSERT_EQ(::mkfifo(QFile::encodeName(pathOf(u"Drumlin/pipe"_s)).constData(), 0600), 0);

    migrate();

    EXPECT_THAT(log.lines(), ElementsAre(StartsWith("MIGRATE support folder copy failed: ")));
    EXPECT_THAT(namesIn(), ElementsAre(u"Drumlin"_s));
    EXPECT_EQ(defaults.stored.value(u"migratedFromDrumlin"_s), QVariant(true));
}

TEST_F(LegacyMigrationTest, takesAFormerFileForNoFolder)
{
    writeFile(u"Drumlin"_s, "text");

    migrate();

    EXPECT_THAT(namesIn(), ElementsAre(u"Drumlin"_s));
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(LegacyMigrationTest, isNotKeptFromTheScriptsByAFormerFileInThePlaceOfTheLogs)
{
    writeFile(u"elsewhere/drumlin.log"_s, "former");
    writeFile(u"Drumlin/scripts.json"_s, "[]");
    const QString logs = pathOf(u"Drumlin/logs"_s);
    for (const bool isLink : { false, true }) {
        if (isLink)
            QFile::link(pathOf(u"elsewhere"_s), logs);
        else
            writeFile(u"Drumlin/logs"_s, "text");
        writeFile(u"Orvello/logs/orvello.log"_s, "launch\n");

        migrate();

        EXPECT_EQ(readFile(u"Orvello/scripts.json"_s), "[]");
        EXPECT_EQ(readFile(u"Orvello/logs/orvello.log"_s), "launch\n");
        EXPECT_FALSE(QFileInfo(pathOf(u"Orvello/logs"_s)).isSymLink());
        EXPECT_THAT(namesIn(u"elsewhere"_s), ElementsAre(u"drumlin.log"_s)) << "not ours";
        QFile::remove(logs);
        QDir(pathOf(u"Orvello"_s)).removeRecursively();
        defaults.stored.clear();
    }
}

TEST_F(LegacyMigrationTest, leavesTheLogsWhereTheyWereWhenTheyCannotMove)
{
    writeFile(u"Drumlin/scripts.json"_s, "[]");
    writeFile(u"Drumlin/logs/orvello.log/file"_s, "a folder in the way");
    writeFile(u"Drumlin/logs/drumlin.log"_s, "former");
    for (const QString& name : { u"a.log"_s, u"orvello.log"_s, u"z.log"_s })
        writeFile(u"Orvello/logs/"_s + name, name.toUtf8());

    migrate();

    EXPECT_THAT(log.lines(), ElementsAre(StartsWith("MIGRATE support folder copy failed: ")));
    EXPECT_THAT(namesIn(), ElementsAre(u"Drumlin"_s, u"Orvello"_s));
    EXPECT_THAT(namesIn(u"Orvello"_s), ElementsAre(u"logs"_s));
    EXPECT_THAT(namesIn(u"Orvello/logs"_s), ElementsAre(u"a.log"_s, u"orvello.log"_s, u"z.log"_s));
    EXPECT_EQ(readFile(u"Orvello/logs/orvello.log"_s), "orvello.log");
}

TEST_F(LegacyMigrationTest, putsTheLogsBackWhenTheCurrentFolderCannotChange)
{
    writeFile(u"Drumlin/scripts.json"_s, "[]");
    writeFile(u"Orvello/logs/orvello.log"_s, "launch\n");
    const auto permit = [this](const QString& name, mode_t mode) {
        ASSERT_EQ(::chmod(QFile::encodeName(pathOf(name)).constData(), mode), 0);
    };
    for (const QString& name : { u"."_s, u"Orvello/logs"_s })
        permit(name, 0777);
    permit(u"Orvello"_s, 0555);

    {
        const Testing::OrdinaryUser user;
        migrate();
    }
    permit(u"Orvello"_s, 0755);

    EXPECT_THAT(log.lines(), ElementsAre(StartsWith("MIGRATE support folder copy failed: ")));
    EXPECT_THAT(namesIn(), ElementsAre(u"Drumlin"_s, u"Orvello"_s));
    EXPECT_EQ(readFile(u"Orvello/logs/orvello.log"_s), "launch\n");
}

TEST_F(LegacyMigrationTest, leavesNoHalfLibraryOnAFullDisk)
{
    writeFile(u"Drumlin/scripts.json"_s, QByteArray(100'000, ' '));

    {
        const Testing::FullDisk disk(20'000);
        migrate();
    }

    EXPECT_FALSE(exists(u"Orvello"_s));
    EXPECT_THAT(namesIn(), ElementsAre(u"Drumlin"_s));
}

TEST_F(LegacyMigrationTest, startsAfreshAfterACopyThatDiedHalfWay)
{
    writeFile(u"Drumlin/scripts.json"_s, "[]");
    writeFile(u"Orvello.migrating/half.txt"_s, "ha");

    migrate();

    EXPECT_EQ(readFile(u"Orvello/scripts.json"_s), "[]");
    EXPECT_FALSE(exists(u"Orvello/half.txt"_s));
    EXPECT_FALSE(exists(u"Orvello.migrating"_s));
}

TEST_F(LegacyMigrationTest, refreshesTheWelcomeScript)
{
    const QByteArray library = migrated(R"([
        {"title":"Mine","body":"Welcome to Drumlin","other":[1,2.5,null,true]},
        {"title":"Welcome to Drumlin","body":"old","id":"X","createdAt":764539200.123}])");

    const QJsonArray expected {
        QJsonObject { { u"title"_s, u"Mine"_s }, { u"body"_s, u"Welcome to Drumlin"_s },
            { u"other"_s, QJsonArray { 1, 2.5, QJsonValue::Null, true } } },
        QJsonObject { { u"title"_s, u"Welcome to Orvello"_s }, { u"body"_s, u"The sample text."_s },
            { u"id"_s, u"X"_s }, { u"createdAt"_s, 764539200.123 } },
    };
    EXPECT_EQ(QJsonDocument::fromJson(library), QJsonDocument(expected));
}

TEST_F(LegacyMigrationTest, keepsAWelcomeScriptThatTheUserRenamed)
{
    const QByteArray library = R"([ {"title" : "My Welcome", "body" : "old"} ])";

    EXPECT_EQ(migrated(library), library);
}

TEST_F(LegacyMigrationTest, leavesALibraryAloneThatIsNoArrayOfObjects)
{
    const QByteArray library = R"([ {"title" : "Welcome to Drumlin"}, 7 ])";

    EXPECT_EQ(migrated(library), library);
}

TEST_F(LegacyMigrationTest, leavesAnUnreadableLibraryAlone)
{
    const QByteArray library = R"([{"title":"Welcome to Drumlin")";

    EXPECT_EQ(migrated(library), library);
}

TEST_F(LegacyMigrationTest, ignoresATitleThatIsNoString)
{
    const QByteArray library = R"([ {"title" : ["Welcome to Drumlin"]}, {} ])";

    EXPECT_EQ(migrated(library), library);
}

} // namespace
} // namespace Orvello
