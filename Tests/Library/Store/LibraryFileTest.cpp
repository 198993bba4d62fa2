#include "Orvello/Library/Store/LibraryFile.h"

#include "Orvello/Library/Records/ScriptCoding.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FileObstacles.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class LibraryFileTest : public ::testing::Test {
protected:
    static Script script(const QString& title) { return Script::create(title, u"Body"_s, { 1.5 }); }

    void put(const QByteArray& bytes) const
    {
        QDir().mkpath(folder);
        QFile stored(path);
        ASSERT_TRUE(stored.open(QIODevice::WriteOnly));
        stored.write(bytes);
    }
    QByteArray contents() const
    {
        QFile stored(path);
        return stored.open(QIODevice::ReadOnly) ? stored.readAll() : QByteArray("(unreadable)");
    }
    QList<Script> reread() const { return LibraryFile(folders).load(); }

    Testing::FakeFolders folders;
    QString folder = folders.path + u"/Orvello"_s;
    QString path = folder + u"/scripts.json"_s;
    LibraryFile file { folders };
};

TEST_F(LibraryFileTest, givesBackWhatWasSaved)
{
    const QList<Script> scripts { script(u"A"_s), script(u"B"_s), script(u"C"_s) };

    file.save(scripts);

    EXPECT_EQ(reread(), scripts);
}

TEST_F(LibraryFileTest, isOneJsonArray)
{
    const Script a = script(u"A"_s);
    const Script b = script(u"B"_s);

    file.save({});
    EXPECT_EQ(contents(), "[]");
    file.save({ a });
    EXPECT_EQ(contents(), '[' + ScriptCoding::encode(a) + ']');
    file.save({ a, b });
    EXPECT_EQ(contents(), '[' + ScriptCoding::encode(a) + ',' + ScriptCoding::encode(b) + ']');
    EXPECT_EQ(QJsonDocument::fromJson(contents()).array().size(), 2);
}

TEST_F(LibraryFileTest, writesEveryKindOfChange)
{
    using Kind = LibraryChange::Kind;
    QList<Script> scripts;
    const auto savedIs = [&](Kind kind, qsizetype row) {
        file.save(scripts, { .kind = kind, .row = row });
        return reread() == scripts;
    };

    for (const char16_t letter : u"ABCDEF"_s.toStdU16String()) {
        scripts.prepend(script(QChar(letter)));
        EXPECT_TRUE(savedIs(Kind::Inserted, 0));
    }
    for (qsizetype i = 0; i < scripts.size(); ++i) {
        scripts[i].body += u"!"_s;
        EXPECT_TRUE(savedIs(Kind::Edited, i));
    }
    scripts.insert(2, script(u"G"_s));
    EXPECT_TRUE(savedIs(Kind::Inserted, 2));
    for (const qsizetype row : { 3, 0, 4, 0, 0, 1, 0 }) {
        scripts.removeAt(row);
        EXPECT_TRUE(savedIs(Kind::Removed, row));
    }
    EXPECT_EQ(contents(), "[]");
}

TEST_F(LibraryFileTest, encodesOnlyTheScriptThatChanged)
{
    QList<Script> scripts { script(u"A"_s), script(u"B"_s), script(u"C"_s) };
    file.save(scripts);
    QList<Script> changed = scripts;
    for (Script& script : changed)
        script.body = u"edited"_s;

    file.save(changed, { .kind = LibraryChange::Kind::Edited, .row = 1 });

    EXPECT_EQ(reread(), (QList<Script> { scripts[0], changed[1], scripts[2] }));
}

TEST_F(LibraryFileTest, savesWhatItLoadedBeforeAndAfterAnEdit)
{
    QList<Script> scripts { script(u"A"_s), script(u"B"_s) };
    file.save(scripts);
    LibraryFile other(folders);
    scripts = other.load();

    other.save(scripts);
    EXPECT_EQ(reread(), scripts);

    scripts[1].body = u"edited"_s;
    other.save(scripts, { .kind = LibraryChange::Kind::Edited, .row = 1 });
    EXPECT_EQ(reread(), scripts);
}

TEST_F(LibraryFileTest, holdsNothingWhenThereIsNoFile) { EXPECT_TRUE(file.load().isEmpty()); }

TEST_F(LibraryFileTest, holdsNothingWhenTheFileMakesNoSense)
{
    const QByteArray good = ScriptCoding::encode(script(u"A"_s));
    for (const QByteArray& bytes : { QByteArray(), QByteArray("["), QByteArray("{}"),
             QByteArray("\0\0\0", 3), '[' + good + ",{}]", '[' + good + "]]", good,
             QByteArray(2'000'000, '['), QByteArray("[{\"a\":").repeated(200'000) }) {
        put(bytes);

        EXPECT_TRUE(reread().isEmpty()) << bytes.left(30).constData();

        EXPECT_EQ(contents(), bytes);
    }
}

TEST_F(LibraryFileTest, holdsNothingWhenSomethingElseIsInItsPlace)
{
    ASSERT_TRUE(QDir().mkpath(path));
    EXPECT_TRUE(reread().isEmpty());

    ASSERT_TRUE(QDir().rmdir(path));
    ASSERT_EQ(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_TRUE(reread().isEmpty());

    ASSERT_TRUE(QFile::remove(path));
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, path));
    EXPECT_TRUE(reread().isEmpty());
}

TEST_F(LibraryFileTest, holdsNothingWhenItMayNotBeRead)
{
    file.save({ script(u"A"_s) });
    ASSERT_EQ(::chmod(QFile::encodeName(folders.directory.path()).constData(), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0), 0);

    const Testing::OrdinaryUser user;
    EXPECT_TRUE(reread().isEmpty());
}

TEST_F(LibraryFileTest, makesItsFolderAtEachUse)
{
    folders.path = folders.directory.filePath(u"not/yet/there"_s);
    const QString newFolder = folders.path + u"/Orvello"_s;

    EXPECT_TRUE(file.load().isEmpty());
    EXPECT_TRUE(QFileInfo(newFolder).isDir());

    ASSERT_TRUE(QDir(folders.directory.filePath(u"not"_s)).removeRecursively());
    file.save({ script(u"A"_s) });
    EXPECT_EQ(reread().size(), 1);
}

TEST_F(LibraryFileTest, survivesAFolderThatCannotBeMade)
{
    const QList<Script> scripts { script(u"A"_s) };
    QFile inTheWay(folder);
    ASSERT_TRUE(inTheWay.open(QIODevice::WriteOnly));

    EXPECT_TRUE(file.load().isEmpty());
    file.save(scripts);
    EXPECT_TRUE(inTheWay.remove());

    file.save(scripts);
    EXPECT_EQ(reread(), scripts);
}

TEST_F(LibraryFileTest, leavesTheOldFileWhenTheDiskIsFullAndCatchesUpLater)
{
    QList<Script> scripts { script(u"A"_s) };
    file.save(scripts);
    const QByteArray before = contents();
    scripts.prepend(script(u"B"_s));

    {
        const Testing::FullDisk disk(20);
        file.save(scripts);
    }
    EXPECT_EQ(contents(), before);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList { u"scripts.json"_s });

    file.save(scripts);
    EXPECT_EQ(reread(), scripts);
}

TEST_F(LibraryFileTest, leavesTheOldFileInAReadOnlyFolder)
{
    file.save({ script(u"A"_s) });
    const QByteArray before = contents();
    ASSERT_EQ(::chmod(QFile::encodeName(folders.directory.path()).constData(), 0755), 0);
    ASSERT_EQ(::chmod(QFile::encodeName(folder).constData(), 0555), 0);

    {
        const Testing::OrdinaryUser user;
        file.save({ script(u"B"_s) });
    }

    EXPECT_EQ(contents(), before);
    EXPECT_EQ(QDir(folder).entryList(QDir::Files), QStringList { u"scripts.json"_s });
}

} // namespace
} // namespace Orvello
