#include "Orvello/Adapters/Linux/Early/JsonUserDefaults.h"

#include "Orvello/Foundation/DefaultsValue.h"

#include "Tests/Support/FileObstacles.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <limits>
#include <sys/stat.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class JsonUserDefaultsTest : public ::testing::Test {
protected:
    JsonUserDefaults open(const QStringList& arguments = {}) const
    {
        return { configuration.path(), u"app.orvello"_s, arguments };
    }

    void putFile(const QByteArray& bytes) const
    {
        QDir().mkpath(folder);
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static QByteArray contents(const QString& name)
    {
        QFile file(name);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }
    QStringList files() const { return QDir(folder).entryList(QDir::Files | QDir::System); }

    QTemporaryDir configuration;
    QString folder = configuration.filePath(u"Orvello"_s);
    QString path = configuration.filePath(u"Orvello/app.orvello.json"_s);
};

TEST_F(JsonUserDefaultsTest, isEmptyAndWritesNothingBeforeTheFirstChange)
{
    JsonUserDefaults defaults = open();

    EXPECT_FALSE(defaults.value(u"speed"_s).isValid());
    EXPECT_TRUE(defaults.storedValues().isEmpty());
    defaults.remove(u"speed"_s);
    EXPECT_FALSE(QFileInfo::exists(folder));
}

TEST_F(JsonUserDefaultsTest, writesEachChangeAtOnce)
{
    JsonUserDefaults defaults = open();

    defaults.setValue(u"speed"_s, 40.5);
    EXPECT_EQ(contents(path), "{\n    \"speed\": 40.5\n}\n");

    defaults.setValue(u"stealthMode"_s, false);
    EXPECT_EQ(contents(path), "{\n    \"speed\": 40.5,\n    \"stealthMode\": false\n}\n");

    defaults.remove(u"speed"_s);
    EXPECT_EQ(contents(path), "{\n    \"stealthMode\": false\n}\n");
    EXPECT_EQ(files(), QStringList { u"app.orvello.json"_s });
}

TEST_F(JsonUserDefaultsTest, givesEveryValueBack)
{
    const QVariantMap values {
        { u"yes"_s, true },
        { u"no"_s, false },
        { u"integer"_s, Q_INT64_C(30) },
        { u"greatest"_s, std::numeric_limits<qint64>::max() },
        { u"least"_s, std::numeric_limits<qint64>::min() },
        { u"double"_s, 0.72 },
        { u"largeDouble"_s, 1e300 },
        { u"string"_s, u"30 “quoted” \n \\ \"😀\""_s },
        { u"empty"_s, u""_s },
        { u"list"_s, QVariantList { Q_INT64_C(1), 1.5, u"1"_s, QVariantList {}, true } },
        { u"map"_s, QVariantMap { { u"a"_s, 1.5 }, { u"b"_s, QVariantMap {} } } },
    };
    {
        JsonUserDefaults defaults = open();
        for (auto value = values.begin(); value != values.end(); ++value)
            defaults.setValue(value.key(), value.value());
    }

    const JsonUserDefaults defaults = open();

    EXPECT_EQ(defaults.storedValues().keys(), values.keys());
    for (auto value = values.begin(); value != values.end(); ++value) {
        const QVariant stored = defaults.value(value.key());
        EXPECT_EQ(stored.typeId(), value->typeId()) << value.key().toStdString();
        EXPECT_EQ(stored, *value) << value.key().toStdString();
    }
}

TEST_F(JsonUserDefaultsTest, readsAWholeNumberAsAnyKindOfNumber)
{
    open().setValue(u"speed"_s, 30.0);

    const QVariant speed = open().value(u"speed"_s);

    EXPECT_EQ(DefaultsValue::asNumber(speed), 30.0);
    EXPECT_EQ(DefaultsValue::asInteger(speed), 30);
}

TEST_F(JsonUserDefaultsTest, removesAKeyThatIsSetToNothing)
{
    JsonUserDefaults defaults = open();
    defaults.setValue(u"activeScriptID"_s, u"x"_s);

    defaults.setValue(u"activeScriptID"_s, QVariant());

    EXPECT_EQ(contents(path), "{\n}\n");
}

TEST_F(JsonUserDefaultsTest, readsAFileThatSomebodyElseWrote)
{
    putFile("\xEF\xBB\xBF{\r\n  \"speed\" : 4e1, \"other\": {\"deep\": [null]} }\r\n");

    JsonUserDefaults defaults = open();

    EXPECT_EQ(defaults.value(u"speed"_s), QVariant(40.0));
    defaults.setValue(u"fontSize"_s, 30.5);
    EXPECT_EQ(open().storedValues(),
        (QVariantMap { { u"fontSize"_s, 30.5 }, { u"speed"_s, 40.0 },
            { u"other"_s,
                QVariantMap { { u"deep"_s, QVariantList { QVariant::fromValue(nullptr) } } } } }));
}

/// Files of the first versions told doubles from integers by a point, and held what JSON has no
/// form for as an object with a dollar sign.
TEST_F(JsonUserDefaultsTest, losesNothingOfAFileOfTheFirstVersions)
{
    putFile("{\"activeScriptID\": \"E621E1F8-C36C-495A-93FC-0C247A3E6E5F\", \"fontSize\": 30.0, "
            "\"onboardingSeenVersion\": 2, \"opacity\": 0.72, \"stealthMode\": true, "
            "\"others\": {\"$date\": 721692800.123}, \"data\": {\"$data\": \"AP+A\"}}\n");

    JsonUserDefaults defaults = open();
    defaults.setValue(u"speed"_s, 45.5);

    EXPECT_EQ(open().storedValues(),
        (QVariantMap { { u"activeScriptID"_s, u"E621E1F8-C36C-495A-93FC-0C247A3E6E5F"_s },
            { u"data"_s, QVariantMap { { u"$data"_s, u"AP+A"_s } } }, { u"fontSize"_s, 30.0 },
            { u"onboardingSeenVersion"_s, Q_INT64_C(2) }, { u"opacity"_s, 0.72 },
            { u"others"_s, QVariantMap { { u"$date"_s, 721692800.123 } } }, { u"speed"_s, 45.5 },
            { u"stealthMode"_s, true } }));
}

TEST_F(JsonUserDefaultsTest, launchArgumentsShadowAKeyAndAreNeverStored)
{
    open().setValue(u"speed"_s, 40.0);

    JsonUserDefaults defaults = open({ u"-speed"_s, u"55"_s, u"-fontSize"_s, u"20"_s });

    EXPECT_EQ(defaults.value(u"speed"_s), QVariant(u"55"_s));
    EXPECT_EQ(defaults.value(u"fontSize"_s), QVariant(u"20"_s));
    EXPECT_EQ(defaults.storedValues(), (QVariantMap { { u"speed"_s, 40.0 } }));
    defaults.setValue(u"speed"_s, 60.0);
    EXPECT_EQ(defaults.value(u"speed"_s), QVariant(u"55"_s));
    EXPECT_EQ(open().storedValues(), (QVariantMap { { u"speed"_s, 60.0 } }));
}

TEST_F(JsonUserDefaultsTest, takesADamagedFileForEmpty)
{
    for (const QByteArray& damaged : { QByteArray(), QByteArray("{"), QByteArray("[]"),
             QByteArray("5"), QByteArray("\"text\""), QByteArray("null"), QByteArray("{\"a\":1}x"),
             QByteArray("{\"a\":1e400}"), QByteArray("{\"a\":\"\xFF\"}"), QByteArray("\0", 1),
             "{\"a\":" + QByteArray(2000, '[') + QByteArray(2000, ']') + '}',
             QByteArray(5'000'000, '[') }) {
        putFile(damaged);

        EXPECT_TRUE(open().storedValues().isEmpty()) << damaged.left(20).constData();

        EXPECT_EQ(contents(path), damaged);
    }
}

TEST_F(JsonUserDefaultsTest, movesADamagedFileAsideBeforeTheFirstWriteOnly)
{
    putFile("{\"speed\": 40.0,");
    JsonUserDefaults defaults = open();

    defaults.setValue(u"speed"_s, 50.0);
    defaults.setValue(u"speed"_s, 60.0);

    EXPECT_EQ(contents(path), "{\n    \"speed\": 60\n}\n");
    EXPECT_EQ(contents(path + u".damaged"_s), "{\"speed\": 40.0,");
    EXPECT_EQ(files(), (QStringList { u"app.orvello.json"_s, u"app.orvello.json.damaged"_s }));
}

TEST_F(JsonUserDefaultsTest, keepsEveryDamagedFile)
{
    for (const char* damaged : { "first", "second", "third" }) {
        putFile(damaged);
        open().setValue(u"speed"_s, 50.0);
    }

    EXPECT_EQ(contents(path + u".damaged"_s), "first");
    EXPECT_EQ(contents(path + u".damaged-2"_s), "second");
    EXPECT_EQ(contents(path + u".damaged-3"_s), "third");
}

TEST_F(JsonUserDefaultsTest, overwritesNoDamagedFileThatItCannotMoveAside)
{
    putFile("damaged");
    ASSERT_EQ(::chmod(QFile::encodeName(configuration.path()).constData(), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0555), 0);
    JsonUserDefaults defaults = open();

    {
        const Testing::OrdinaryUser user;
        defaults.setValue(u"speed"_s, 50.0);
    }

    ::chmod(QFile::encodeName(folder).constData(), 0755);
    EXPECT_EQ(contents(path), "damaged");
    EXPECT_EQ(defaults.value(u"speed"_s), QVariant(50.0));
    defaults.setValue(u"speed"_s, 60.0);
    EXPECT_EQ(contents(path), "{\n    \"speed\": 60\n}\n");
    EXPECT_EQ(contents(path + u".damaged"_s), "damaged");
}

TEST_F(JsonUserDefaultsTest, keepsTheOldFileAndTheNewValueWhenTheDiskIsFull)
{
    JsonUserDefaults defaults = open();
    defaults.setValue(u"speed"_s, 40.0);

    {
        const Testing::FullDisk disk(4);
        defaults.setValue(u"speed"_s, 50.0);
    }

    EXPECT_EQ(contents(path), "{\n    \"speed\": 40\n}\n");
    EXPECT_EQ(defaults.value(u"speed"_s), QVariant(50.0));
    defaults.setValue(u"fontSize"_s, 20.0);
    EXPECT_EQ(contents(path), "{\n    \"fontSize\": 20,\n    \"speed\": 50\n}\n");
}

TEST_F(JsonUserDefaultsTest, keepsWhatAnotherProcessChangedMeanwhile)
{
    open().setValue(u"speed"_s, 40.5);
    JsonUserDefaults first = open();
    JsonUserDefaults second = open();

    second.setValue(u"speed"_s, 60.5);
    second.setValue(u"fontSize"_s, 20.5);
    first.setValue(u"stealthMode"_s, false);
    EXPECT_EQ(open().storedValues(),
        (QVariantMap {
            { u"fontSize"_s, 20.5 }, { u"speed"_s, 60.5 }, { u"stealthMode"_s, false } }));

    second.setValue(u"stealthMode"_s, true);
    first.setValue(u"voiceFollow"_s, true); // What was set here before counts as it was set.
    EXPECT_EQ(open().value(u"stealthMode"_s), QVariant(false));

    first.remove(u"stealthMode"_s);
    second.setValue(u"speed"_s, 70.5);
    first.setValue(u"voiceFollow"_s, false);
    EXPECT_FALSE(open().value(u"stealthMode"_s).isValid());
    EXPECT_EQ(open().value(u"speed"_s), QVariant(70.5));
}

TEST_F(JsonUserDefaultsTest, keepsAFileThatAnotherProcessDamagedMeanwhile)
{
    JsonUserDefaults defaults = open();
    defaults.setValue(u"speed"_s, 40.5);
    putFile("{\"speed\":");

    defaults.setValue(u"fontSize"_s, 20.5);

    EXPECT_EQ(
        open().storedValues(), (QVariantMap { { u"fontSize"_s, 20.5 }, { u"speed"_s, 40.5 } }));
    EXPECT_EQ(contents(path + u".damaged"_s), "{\"speed\":");
}

TEST_F(JsonUserDefaultsTest, takesTheLastOfTheValuesOfOneKey)
{
    putFile("{\"speed\": 40.5, \"fontSize\": 20.5, \"speed\": 60.5, \"a\": 1, \"speed\": 80.5}");

    EXPECT_EQ(open().value(u"speed"_s), QVariant(80.5));
}

TEST_F(JsonUserDefaultsTest, namesTheFileThatItCouldNotRead)
{
    EXPECT_EQ(open().damagedFile(), u""_s);
    putFile("{");
    JsonUserDefaults defaults = open();
    EXPECT_EQ(defaults.damagedFile(), u"app.orvello.json"_s);

    defaults.setValue(u"speed"_s, 40.5);

    EXPECT_EQ(defaults.damagedFile(), u"app.orvello.json.damaged"_s);
}

TEST_F(JsonUserDefaultsTest, keepsPreferencesForTheUsersEyesAlone)
{
    const mode_t before = ::umask(0);
    open().setValue(u"speed"_s, 40.5);
    ::umask(before);

    struct stat status { };
    ASSERT_EQ(::stat(QFile::encodeName(path).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0600u);
    ASSERT_EQ(::stat(QFile::encodeName(folder).constData(), &status), 0);
    EXPECT_EQ(status.st_mode & 07777, 0700u);
}

TEST_F(JsonUserDefaultsTest, doesNotWaitForAPipeInTheFilesPlace)
{
    QDir().mkpath(folder);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);

    JsonUserDefaults defaults = open();
    defaults.setValue(u"speed"_s, 50.0);

    EXPECT_EQ(contents(path), "{\n    \"speed\": 50\n}\n");
}

} // namespace
} // namespace Orvello
