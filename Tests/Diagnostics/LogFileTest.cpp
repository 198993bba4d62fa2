#include "Orvello/Diagnostics/LogFile.h"

#include "Tests/Diagnostics/TextFile.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace Orvello {
namespace {

using Testing::linesOf;
using Testing::readFile;
using Testing::writeFile;

namespace fs = std::filesystem;

std::string textOfSize(std::size_t size) { return std::string(size - 1, 'x') + '\n'; }

class LogFileTest : public ::testing::Test {
protected:
    QTemporaryDir folder;
    std::string path = folder.filePath(QStringLiteral("test.log")).toStdString();
    std::atomic<int> descriptor { -1 };
    LogFile file { descriptor };
};

TEST_F(LogFileTest, isClosedUntilItIsOpened)
{
    file.append("lost\n");

    EXPECT_EQ(descriptor, -1);
    EXPECT_FALSE(fs::exists(path));
}

TEST_F(LogFileTest, opensForAppendingAndForItsOwnerAlone)
{
    const mode_t mask = ::umask(0);
    file.open(path);
    ::umask(mask);

    EXPECT_EQ(fs::status(path).permissions(), fs::perms(0600));
    const int flags = ::fcntl(descriptor, F_GETFL);
    EXPECT_EQ(flags & O_ACCMODE, O_WRONLY);
    EXPECT_TRUE(flags & O_APPEND);
}

TEST_F(LogFileTest, isNotInheritedByChildPrograms)
{
    file.open(path);
    EXPECT_TRUE(::fcntl(descriptor, F_GETFD) & FD_CLOEXEC);
}

TEST_F(LogFileTest, closesWithItsObject)
{
    std::atomic<int> other { -1 };
    {
        LogFile another(other);
        another.open(path);
        EXPECT_GE(other, 0);
    }
    EXPECT_EQ(other, -1);
}

TEST_F(LogFileTest, continuesAnExistingFile)
{
    writeFile(path, "before\n");

    file.open(path);
    file.append("after\n");

    EXPECT_EQ(readFile(path), "before\nafter\n");
}

TEST_F(LogFileTest, keepsAFileOfExactlyTheLimitWhenOpened)
{
    writeFile(path, textOfSize(1'000'000));

    file.open(path);

    EXPECT_EQ(fs::file_size(path), 1'000'000u);
    EXPECT_FALSE(fs::exists(path + ".1"));
}

TEST_F(LogFileTest, rotatesAFileAboveTheLimitWhenOpened)
{
    writeFile(path, textOfSize(1'000'001));

    file.open(path);

    EXPECT_EQ(fs::file_size(path), 0u);
    EXPECT_EQ(fs::file_size(path + ".1"), 1'000'001u);
}

TEST_F(LogFileTest, staysWhileALineReachesTheLimitExactly)
{
    writeFile(path, textOfSize(999'990));
    file.open(path);

    file.append(textOfSize(10));

    EXPECT_EQ(fs::file_size(path), 1'000'000u);
    EXPECT_FALSE(fs::exists(path + ".1"));
}

TEST_F(LogFileTest, rotatesRightAfterTheLineThatPassesTheLimit)
{
    writeFile(path, textOfSize(1'000'000));
    file.open(path);

    file.append("the last line, in full\n");

    const std::string rotated = readFile(path + ".1");
    EXPECT_EQ(rotated, textOfSize(1'000'000) + "the last line, in full\n");
    EXPECT_EQ(readFile(path), "");
    EXPECT_GE(descriptor, 0);

    file.append("fresh\n");

    EXPECT_EQ(readFile(path), "fresh\n");
    EXPECT_EQ(readFile(path + ".1"), rotated);
}

TEST_F(LogFileTest, rotatesAfterOneByteTooMany)
{
    writeFile(path, textOfSize(1'000'000));
    file.open(path);

    file.append("\n");

    EXPECT_EQ(fs::file_size(path + ".1"), 1'000'001u);
    EXPECT_EQ(fs::file_size(path), 0u);
}

TEST_F(LogFileTest, countsFromZeroAgainAfterARotation)
{
    file.open(path);
    file.append(textOfSize(1'000'001));

    file.append(textOfSize(1'000'000));
    EXPECT_EQ(fs::file_size(path), 1'000'000u);

    file.append("\n");
    EXPECT_EQ(fs::file_size(path), 0u);
    EXPECT_EQ(fs::file_size(path + ".1"), 1'000'001u);
    EXPECT_EQ(fs::file_size(path + ".2"), 1'000'001u);
}

TEST_F(LogFileTest, keepsTwoEarlierGenerations)
{
    writeFile(path, textOfSize(1'000'001));
    writeFile(path + ".1", "one\n");
    writeFile(path + ".2", "two\n");

    file.open(path);

    EXPECT_EQ(readFile(path + ".2"), "one\n");
    EXPECT_EQ(fs::file_size(path + ".1"), 1'000'001u);
    EXPECT_EQ(readFile(path), "");
    EXPECT_EQ(std::distance(fs::directory_iterator(fs::path(path).parent_path()), {}), 3);
}

TEST_F(LogFileTest, rotatesWithoutAnEarlierGeneration)
{
    writeFile(path, textOfSize(1'000'001));
    writeFile(path + ".2", "two\n");

    file.open(path);

    EXPECT_EQ(fs::file_size(path + ".1"), 1'000'001u);
    EXPECT_FALSE(fs::exists(path + ".2")) << "The oldest generation goes at every rotation.";
}

TEST_F(LogFileTest, dropsLinesWhereThereIsNoFolder)
{
    writeFile(path, "a file where a folder should be");
    file.open(path + "/test.log");

    file.append("lost\n");

    EXPECT_EQ(descriptor, -1);
}

TEST_F(LogFileTest, dropsLinesWhereTheFileIsAFolder)
{
    fs::create_directory(path);
    file.open(path);

    file.append("lost\n");

    EXPECT_EQ(descriptor, -1);
    EXPECT_TRUE(fs::is_directory(path));
}

TEST_F(LogFileTest, opensAFreshFileWhereTheOldOneWasTakenAway)
{
    file.open(path);
    fs::remove(path);

    file.append(textOfSize(1'000'001)); // To the file that has no name any more.
    file.append("fresh\n");

    EXPECT_EQ(readFile(path), "fresh\n");
    EXPECT_FALSE(fs::exists(path + ".1"));
}

// Only single appending writes keep the lines of two open files whole.
TEST_F(LogFileTest, writesEachLineWithOneCall)
{
    std::atomic<int> otherDescriptor { -1 };
    LogFile other(otherDescriptor);
    file.open(path);
    other.open(path);
    const auto appendLines = [](LogFile& target, char letter) {
        for (int i = 0; i < 1'000; ++i)
            target.append(std::string(400, letter) + '\n');
    };

    std::thread thread(appendLines, std::ref(other), 'b');
    appendLines(file, 'a');
    thread.join();

    const std::vector<std::string> lines = linesOf(readFile(path));
    EXPECT_EQ(std::ranges::count(lines, std::string(400, 'a')), 1'000);
    EXPECT_EQ(std::ranges::count(lines, std::string(400, 'b')), 1'000);
    EXPECT_EQ(lines.size(), 2'000u);
}

TEST_F(LogFileTest, putsAFolderAsideThatIsInTheWayOfAnEarlierGeneration)
{
    fs::create_directory(path + ".1");
    writeFile(path + ".1/kept", "kept");
    file.open(path);

    file.append(textOfSize(1'000'001));
    file.append("next\n");

    EXPECT_EQ(readFile(path), "next\n");
    EXPECT_EQ(fs::file_size(path + ".1"), 1'000'001u);
    EXPECT_EQ(readFile(path + ".2/kept"), "kept");
}

TEST_F(LogFileTest, staysWithinItsLimitWhateverIsInTheWay)
{
    for (const char* const inTheWay : { ".1", ".1.aside", ".2", ".2.aside" }) {
        fs::create_directory(path + inTheWay);
        writeFile(path + inTheWay + "/kept", "kept");
    }
    file.open(path);

    file.append(textOfSize(1'000'001));
    file.append("next\n");

    EXPECT_EQ(readFile(path), "next\n");
    EXPECT_EQ(readFile(path + ".1/kept"), "kept");
}

} // namespace
} // namespace Orvello
