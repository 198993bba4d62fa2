#include "Orvello/Foundation/AtomicFile.h"
#include "Tests/Foundation/RecordedDisk.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <string>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using AtomicFile::Durability;

/// A file that is replaced by "version 1", "version 2" and so on.
class PowerCutTest : public ::testing::Test {
protected:
    PowerCutTest() { Testing::RecordedDisk::current = &disk; }
    ~PowerCutTest() override { Testing::RecordedDisk::current = nullptr; }

    void save(Durability durability = Durability::Written)
    {
        ASSERT_TRUE(AtomicFile::replace(path, "version " + std::to_string(++version), durability));
    }

    /// The version that a disk holds under the name; 0 for none that is whole.
    static int versionIn(const Testing::RecordedDisk::Files& files, const QString& name)
    {
        const auto file = files.find(name.toStdString());
        return file == files.end() || !file->second ? 0 : std::stoi(file->second->substr(8));
    }

    /// The oldest version that a power cut after that many requests may leave the user with.
    int worstAfter(std::size_t requests) const
    {
        int worst = version;
        disk.forEachStateAfter(requests, [&](const Testing::RecordedDisk::Files& files) {
            const int file = versionIn(files, path);
            const int found = file > 0 ? file : versionIn(files, AtomicFile::flushedName(path));
            worst = std::min(worst, found);
        });
        return worst;
    }

    QTemporaryDir folder;
    QString path = folder.filePath(u"file"_s);
    Testing::RecordedDisk disk;
    int version = 0;
};

/// Holds the model against what nobody doubts: a rename does not bring the bytes to the disk.
TEST_F(PowerCutTest, losesAFileThatIsReplacedAndNeverFlushed)
{
    save(Durability::Flushed);
    save();

    EXPECT_EQ(worstAfter(disk.requests()), 0);
}

TEST_F(PowerCutTest, neverTakesBackWhatWasFlushedAtOnce)
{
    for (int i = 0; i < 5; ++i) {
        save(Durability::Flushed);
        EXPECT_EQ(worstAfter(disk.requests()), version);
    }
}

TEST_F(PowerCutTest, leavesTheOldOrTheNewVersionInTheMiddleOfAFlushedReplacement)
{
    save(Durability::Flushed);
    const std::size_t begin = disk.requests();
    save(Durability::Flushed);

    for (std::size_t requests = begin; requests <= disk.requests(); ++requests)
        EXPECT_GE(worstAfter(requests), 1) << requests;
}

TEST_F(PowerCutTest, leavesNothingOlderThanTheLastFlushWhereverTheTypingStops)
{
    save(Durability::Flushed);
    ASSERT_TRUE(AtomicFile::flush(path));
    int flushed = version;
    std::size_t checked = disk.requests();
    // A flush after every first, second, … seventh key, two of them in a row, and so on.
    for (int step = 0; step < 28; ++step) {
        const bool isFlush = step % (1 + step % 7) == 0;
        if (isFlush)
            ASSERT_TRUE(AtomicFile::flush(path));
        else
            save();
        for (; checked <= disk.requests(); ++checked)
            ASSERT_GE(worstAfter(checked), flushed) << "after " << checked << " requests";
        if (isFlush)
            flushed = version;
        ASSERT_GE(worstAfter(disk.requests()), flushed);
    }
}

TEST_F(PowerCutTest, keepsTheBytesWhereThereAreNoPermissions)
{
    save();
    disk.failsPermissions = true;
    save();

    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), "version 2");
}

} // namespace
} // namespace Orvello
