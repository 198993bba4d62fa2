#include "Orvello/Foundation/FileKeeper.h"

#include "Orvello/Foundation/AtomicFile.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class FileKeeperTest : public ::testing::Test {
protected:
    static QByteArray contents(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"file"_s);
};

TEST_F(FileKeeperTest, flushesTheNewestOfManyReplacements)
{
    FileKeeper keeper;
    for (const char* bytes : { "one", "two", "three" }) {
        ASSERT_TRUE(AtomicFile::replace(path, bytes));
        keeper.flushSoon(path);
    }

    keeper.finish();

    EXPECT_EQ(contents(AtomicFile::flushedName(path)), "three");
}

TEST_F(FileKeeperTest, flushesWithoutBeingWaitedFor)
{
    FileKeeper keeper;
    ASSERT_TRUE(AtomicFile::replace(path, "one"));
    keeper.flushSoon(path);

    for (int i = 0; i < 1000 && !QFile::exists(AtomicFile::flushedName(path)); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10)); // The disk is another's, too.

    EXPECT_EQ(contents(AtomicFile::flushedName(path)), "one");
}

TEST_F(FileKeeperTest, doesWhatItWasAskedForBeforeItEnds)
{
    ASSERT_TRUE(AtomicFile::replace(path, "one"));
    {
        FileKeeper keeper;
        keeper.flushSoon(path);
        keeper.copySoon(
            path, path + u".last"_s, [](const QByteArray& bytes) { return bytes == "one"; });
    }
    FileKeeper().copySoon(path, path + u".bad"_s, [](const QByteArray&) { return false; });

    EXPECT_EQ(contents(AtomicFile::flushedName(path)), "one");
    EXPECT_EQ(contents(path + u".last"_s), "one");
    EXPECT_FALSE(QFile::exists(path + u".bad"_s));
}

TEST_F(FileKeeperTest, finishesAtOnceWithoutWork) { FileKeeper().finish(); }

} // namespace
} // namespace Orvello
