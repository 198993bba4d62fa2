#include "Orvello/Adapters/Linux/Early/JsonUserDefaults.h"

#include "Tests/Support/FileObstacles.h"

#include <QDateTime>
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

    defaults.setValue(u"speed"_s, 40.0);
    EXPECT_EQ(contents(path), "{\"speed\": 40.0}\n");

    defaults.setValue(u"stealthMode"_s, false);
    EXPECT_EQ(contents(path), "{\"speed\": 40.0, \"stealthMode\": false}\n");

    defaults.remove(u"speed"_s);
    EXPECT_EQ(contents(path), "{\"stealthMode\": false}\n");
    EXPECT_EQ(files(), QStringList { u"app.orvello.json"_s });
}

TEST_F(JsonUserDefaultsTest, givesEveryTypeBackAsItself)
{
    const QDateTime date = QDateTime::fromMSecsSinceEpoch(1'700'000'000'123, Qt::UTC);
    const QVariantMap values {
        { u"yes"_s, true },
        { u"no"_s, false },
        { u"integer"_s, Q_INT64_C(30) },
        { u"greatest"_s, std::numeric_limits<qint64>::max() },
        { u"least"_s, std::numeric_limits<qint64>::min() },
        { u"unsigned"_s, std::numeric_limits<quint64>::max() },
        { u"double"_s, 0.72 },
        { u"wholeDouble"_s, 30.0 },
        { u"largeDouble"_s, 1e300 },
        { u"infinite"_s, -std::numeric_limits<double>::infinity() },
        { u"string"_s, u"30 “quoted” \n \\ \"😀\""_s },
        { u"empty"_s, u""_s },
        { u"data"_s, QByteArray("\0\xFF\x80", 3) },
        { u"date"_s, date },
        { u"past"_s, QDateTime::fromMSecsSinceEpoch(-1, Qt::UTC) },
        { u"list"_s, QVariantList { Q_INT64_C(1), 1.0, u"1"_s, QVariantList {}, true } },
        { u"map"_s, QVariantMap { { u"a"_s, 1.5 }, { u"b"_s, QVariantMap {} } } },
        { u"$data"_s, u"a key like a tag"_s },
        { u"tagLike"_s, QVariantMap { { u"$date"_s, 5.0 } } },
        { u"twiceTagLike"_s, QVariantMap { { u"$$date"_s, 5.0 } } },
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

TEST_F(JsonUserDefaultsTest, storesWhatIsNotANumber)
{
    open().setValue(u"speed"_s, std::numeric_limits<double>::quiet_NaN());

    EXPECT_TRUE(qIsNaN(open().value(u"speed"_s).toDouble()));
}

TEST_F(JsonUserDefaultsTest, widensTheSmallerNumberTypesAndListsOfStrings)
{
    {
        JsonUserDefaults defaults = open();
        defaults.setValue(u"int"_s, -3);
        defaults.setValue(u"uint"_s, 3u);
        defaults.setValue(u"float"_s, 0.5f);
        defaults.setValue(u"strings"_s, QStringList { u"a"_s, u"b"_s });
    }

    EXPECT_EQ(open().storedValues(),
        (QVariantMap { { u"int"_s, Q_INT64_C(-3) }, { u"uint"_s, Q_INT64_C(3) },
            { u"float"_s, 0.5 }, { u"strings"_s, QVariantList { u"a"_s, u"b"_s } } }));
}

TEST_F(JsonUserDefaultsTest, removesAKeyThatIsSetToNothing)
{
    JsonUserDefaults defaults = open();
    defaults.setValue(u"activeScriptID"_s, u"x"_s);

    defaults.setValue(u"activeScriptID"_s, QVariant());

    EXPECT_EQ(contents(path), "{}\n");
}

TEST_F(JsonUserDefaultsTest, readsAFileThatSomebodyElseWrote)
{
    putFile("\xEF\xBB\xBF{\r\n  \"speed\" : 4e1, \"speed\": 50, \"other\": {\"deep\": [null]},"
            " \"$tag\": {\"$data\": \"no base64!\"} }\r\n");

    JsonUserDefaults defaults = open();

    EXPECT_EQ(defaults.value(u"speed"_s), QVariant(40.0));
    EXPECT_EQ(defaults.value(u"$tag"_s).toMap(), (QVariantMap { { u"$data"_s, u"no base64!"_s } }));
    defaults.setValue(u"fontSize"_s, 30.0);
    EXPECT_EQ(contents(path),
        "{\"$$tag\": {\"$$data\": \"no base64!\"}, \"fontSize\": 30.0, "
        "\"other\": {\"deep\": [null]}, \"speed\": 40.0}\n");
    EXPECT_EQ(open().storedValues(), defaults.storedValues());
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

    EXPECT_EQ(contents(path), "{\"speed\": 60.0}\n");
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
    EXPECT_EQ(contents(path), "{\"speed\": 60.0}\n");
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

    EXPECT_EQ(contents(path), "{\"speed\": 40.0}\n");
    EXPECT_EQ(defaults.value(u"speed"_s), QVariant(50.0));
    defaults.setValue(u"fontSize"_s, 20.0);
    EXPECT_EQ(contents(path), "{\"fontSize\": 20.0, \"speed\": 50.0}\n");
}

TEST_F(JsonUserDefaultsTest, doesNotWaitForAPipeInTheFilesPlace)
{
    QDir().mkpath(folder);
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);

    JsonUserDefaults defaults = open();
    defaults.setValue(u"speed"_s, 50.0);

    EXPECT_EQ(contents(path), "{\"speed\": 50.0}\n");
}

} // namespace
} // namespace Orvello
