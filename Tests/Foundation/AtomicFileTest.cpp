#include "Orvello/Foundation/AtomicFile.h"

#include "Tests/Support/FileObstacles.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <thread>
#include <vector>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class AtomicFileTest : public ::testing::Test {
protected:
    QString inFolder(const QString& name) const { return folder.filePath(name); }

    static QByteArray contents(const QString& path)
    {
        QFile file(path);
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("(unreadable)");
    }
    static void put(const QString& path, const QByteArray& bytes)
    {
        QFile file(path);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }
    static mode_t permissions(const QString& path)
    {
        struct stat status { };
        ::stat(QFile::encodeName(path).constData(), &status);
        return status.st_mode & 07777;
    }
    QStringList names() const
    {
        return QDir(folder.path())
            .entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot);
    }

    /// How many files are open that have no name any more, and so take room that nobody sees.
    static int openFilesWithoutName()
    {
        int count = 0;
        for (int descriptor = 0; descriptor < 64; ++descriptor) {
            // By name, because fstat(2) would use what another thread may be closing.
            const std::string name = "/dev/fd/" + std::to_string(descriptor);
            struct stat status { };
            if (::stat(name.c_str(), &status) == 0 && S_ISREG(status.st_mode)
                && status.st_nlink == 0)
                ++count;
        }
        return count;
    }

    QTemporaryDir folder;
    QString path = inFolder(u"file"_s);
};

TEST_F(AtomicFileTest, makesANewFile)
{
    EXPECT_TRUE(AtomicFile::replace(path, "new"));

    EXPECT_EQ(contents(path), "new");
    EXPECT_EQ(names(), QStringList { u"file"_s });
}

TEST_F(AtomicFileTest, replacesAnOldFile)
{
    put(path, "something old and long");

    EXPECT_TRUE(AtomicFile::replace(path, "new"));

    EXPECT_EQ(contents(path), "new");
    EXPECT_EQ(names(), QStringList { u"file"_s });
}

TEST_F(AtomicFileTest, writesPiecesOneAfterTheOther)
{
    const std::vector<std::string_view> pieces { "", "one ", "", "two ", "three", "" };

    EXPECT_TRUE(AtomicFile::replace(path, pieces));

    EXPECT_EQ(contents(path), "one two three");
}

TEST_F(AtomicFileTest, writesMorePiecesThanOneSystemCallTakes)
{
    std::vector<std::string> numbers;
    for (int i = 0; i < 5000; ++i)
        numbers.push_back(std::to_string(i) + '\n');
    const std::vector<std::string_view> pieces(numbers.begin(), numbers.end());

    EXPECT_TRUE(AtomicFile::replace(path, pieces));

    QByteArray expected;
    for (const std::string& number : numbers)
        expected += QByteArray::fromStdString(number);
    EXPECT_EQ(contents(path), expected);
}

TEST_F(AtomicFileTest, writesAnEmptyFile)
{
    put(path, "old");

    EXPECT_TRUE(AtomicFile::replace(path, std::vector<std::string_view> {}));

    EXPECT_EQ(contents(path), "");
}

TEST_F(AtomicFileTest, makesANewFileForTheUsersEyesAlone)
{
    const mode_t before = ::umask(0);
    const bool isReplaced = AtomicFile::replace(path, "new");
    ::umask(before);

    EXPECT_TRUE(isReplaced);
    EXPECT_EQ(permissions(path), 0600u);
}

TEST_F(AtomicFileTest, saysWhyItFailed)
{
    std::error_code reason;

    EXPECT_FALSE(AtomicFile::replace(
        inFolder(u"missing/file"_s), "new", AtomicFile::Durability::Written, &reason));
    EXPECT_EQ(reason, std::errc::no_such_file_or_directory);

    const Testing::FullDisk disk(10);
    EXPECT_FALSE(
        AtomicFile::replace(path, std::string(100, 'x'), AtomicFile::Durability::Written, &reason));
    EXPECT_EQ(reason, std::errc::file_too_large);
}

TEST_F(AtomicFileTest, keepsWhatItFlushedWhileTheFileGoesOn)
{
    ASSERT_TRUE(AtomicFile::replace(path, "one"));
    EXPECT_TRUE(AtomicFile::flush(path));
    EXPECT_TRUE(AtomicFile::flush(path)); // The same bytes once more.
    ASSERT_TRUE(AtomicFile::replace(path, "two"));

    EXPECT_EQ(contents(path), "two");
    EXPECT_EQ(contents(AtomicFile::flushedName(path)), "one");
    EXPECT_EQ(names(), (QStringList { u"file"_s, u"file.flushed"_s }));

    EXPECT_TRUE(AtomicFile::flush(path));
    EXPECT_EQ(contents(AtomicFile::flushedName(path)), "two");
}

TEST_F(AtomicFileTest, removesTheTemporaryFilesOfKilledProcessesAlone)
{
    put(path, "old");
    put(inFolder(u"file.tmp-3w5e11264sg"_s), "half");
    put(inFolder(u"file.last"_s), "copy");
    put(inFolder(u"other.tmp-1"_s), "another's");

    AtomicFile::removeLeftovers(path);

    EXPECT_EQ(names(), (QStringList { u"file"_s, u"file.last"_s, u"other.tmp-1"_s }));
}

TEST_F(AtomicFileTest, keepsThePermissionsOfTheOldFile)
{
    for (const mode_t mode : { 0600u, 0644u, 0664u, 0400u, 0666u }) {
        put(path, "old");
        ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), mode), 0);

        EXPECT_TRUE(AtomicFile::replace(path, "new"));

        EXPECT_EQ(permissions(path), mode);
        QFile::remove(path);
    }
}

TEST_F(AtomicFileTest, replacesTheFileThatASymbolicLinkNames)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"elsewhere"_s));
    const QString target = inFolder(u"elsewhere/target"_s);
    put(target, "old");
    ASSERT_TRUE(QFile::link(u"elsewhere/target"_s, path)); // Relative to the link's folder.

    EXPECT_TRUE(AtomicFile::replace(path, "new"));

    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_FALSE(QFileInfo(target).isSymLink());
    EXPECT_EQ(contents(target), "new");
}

TEST_F(AtomicFileTest, followsAChainOfLinks)
{
    put(inFolder(u"target"_s), "old");
    ASSERT_TRUE(QFile::link(inFolder(u"target"_s), inFolder(u"second"_s)));
    ASSERT_TRUE(QFile::link(u"second"_s, path));

    EXPECT_TRUE(AtomicFile::replace(path, "new"));

    EXPECT_TRUE(QFileInfo(inFolder(u"second"_s)).isSymLink());
    EXPECT_EQ(contents(inFolder(u"target"_s)), "new");
}

TEST_F(AtomicFileTest, makesTheFileThatADanglingLinkNames)
{
    ASSERT_TRUE(QFile::link(u"target"_s, path));

    EXPECT_TRUE(AtomicFile::replace(path, "new"));

    EXPECT_TRUE(QFileInfo(path).isSymLink());
    EXPECT_EQ(contents(inFolder(u"target"_s)), "new");
}

TEST_F(AtomicFileTest, refusesLinksThatGoRoundInACircle)
{
    ASSERT_TRUE(QFile::link(u"other"_s, path));
    ASSERT_TRUE(QFile::link(u"file"_s, inFolder(u"other"_s)));

    EXPECT_FALSE(AtomicFile::replace(path, "new"));

    EXPECT_EQ(names(), (QStringList { u"file"_s, u"other"_s }));
}

TEST_F(AtomicFileTest, failsWithoutAFolder)
{
    put(path, "a file where the folder should be");

    EXPECT_FALSE(AtomicFile::replace(inFolder(u"missing/file"_s), "new"));
    EXPECT_FALSE(AtomicFile::replace(inFolder(u"file/file"_s), "new"));

    EXPECT_EQ(names(), QStringList { u"file"_s });
}

TEST_F(AtomicFileTest, leavesAnythingThatIsNoFileAlone)
{
    ASSERT_TRUE(QDir(folder.path()).mkpath(u"file"_s));
    ASSERT_EQ(::mkfifo(QFile::encodeName(inFolder(u"pipe"_s)).constData(), 0600), 0);
    ASSERT_TRUE(QFile::link(inFolder(u"pipe"_s), inFolder(u"link"_s)));

    EXPECT_FALSE(AtomicFile::replace(path, "new"));
    EXPECT_FALSE(AtomicFile::replace(inFolder(u"pipe"_s), "new"));
    EXPECT_FALSE(AtomicFile::replace(inFolder(u"link"_s), "new"));

    EXPECT_EQ(names(), (QStringList { u"file"_s, u"link"_s, u"pipe"_s }));
}

TEST_F(AtomicFileTest, leavesTheOldFileWhenTheDiskIsFull)
{
    put(path, "old");
    const std::string large(100'000, 'x');

    const bool isReplaced = [&] {
        const Testing::FullDisk disk(4096);
        return AtomicFile::replace(path, large);
    }();

    EXPECT_FALSE(isReplaced);
    EXPECT_EQ(contents(path), "old");
    EXPECT_EQ(names(), QStringList { u"file"_s });
}

TEST_F(AtomicFileTest, leavesTheOldFileInAReadOnlyFolder)
{
    put(path, "old");
    ASSERT_EQ(::chmod(QFile::encodeName(folder.path()).constData(), 0555), 0);

    const bool isReplaced = [&] {
        const Testing::OrdinaryUser user;
        return AtomicFile::replace(path, "new");
    }();

    ::chmod(QFile::encodeName(folder.path()).constData(), 0755);
    EXPECT_FALSE(isReplaced);
    EXPECT_EQ(contents(path), "old");
    EXPECT_EQ(names(), QStringList { u"file"_s });
}

/// Replaces the file for ever, each time by as many bytes of another letter. Never returns.
[[noreturn]] void keepReplacing(const QString& path, std::size_t size, int firstIsWritten)
{
    for (char letter = 'b';; letter = letter == 'z' ? 'a' : static_cast<char>(letter + 1)) {
        const std::string quarter(size / 4, letter);
        const std::vector<std::string_view> pieces(4, quarter);
        if (!AtomicFile::replace(path, pieces))
            std::_Exit(1);
        static_cast<void>(::write(firstIsWritten, "!", 1));
    }
}

TEST_F(AtomicFileTest, holdsTheOldOrTheNewBytesWholeWheneverItsWriterIsKilled)
{
    constexpr qsizetype size = 400'000;
    put(path, QByteArray(size, 'a'));

    for (int round = 0; round < 30; ++round) {
        int ends[2];
        ASSERT_EQ(::pipe(ends), 0);
        const pid_t writer = ::fork();
        if (writer == 0)
            keepReplacing(path, size, ends[1]);
        char written = 0;
        ASSERT_EQ(::read(ends[0], &written, 1), 1);
        // Any moment will do: what is expected does not depend on it.
        ::usleep(QRandomGenerator::global()->bounded(2000u));
        ASSERT_EQ(::kill(writer, SIGKILL), 0);
        int status = 0;
        ASSERT_EQ(::waitpid(writer, &status, 0), writer);
        ::close(ends[0]);
        ::close(ends[1]);

        ASSERT_TRUE(WIFSIGNALED(status));
        const QByteArray bytes = contents(path);
        ASSERT_EQ(bytes.size(), size);
        ASSERT_EQ(bytes.count(bytes.front()), size);
    }
}

TEST_F(AtomicFileTest, servesThreadsThatReplaceTheSameFile)
{
    constexpr qsizetype size = 10'000;
    {
        std::vector<std::thread> threads;
        for (const char letter : { 'a', 'b', 'c' })
            threads.emplace_back([this, letter] {
                for (int i = 0; i < 50; ++i)
                    EXPECT_TRUE(AtomicFile::replace(path, std::string(size, letter)));
            });
        for (std::thread& thread : threads)
            thread.join();
    }

    const QByteArray bytes = contents(path);
    ASSERT_EQ(bytes.size(), size);
    EXPECT_EQ(bytes.count(bytes.front()), size);
    EXPECT_EQ(names(), QStringList { u"file"_s });
}

TEST_F(AtomicFileTest, keepsOnlyAFewOldFilesForFreeingThemLater)
{
    // Long enough that a disk takes longer to free one than the kernel to take the next.
    const std::string bytes(4'000'000, 'a');
    for (int i = 0; i < 40; ++i) {
        ASSERT_TRUE(AtomicFile::replace(path, bytes));
        ASSERT_LE(openFilesWithoutName(), 5);
    }
}

TEST_F(AtomicFileTest, freesEveryOldFile)
{
    for (int i = 0; i < 20; ++i)
        ASSERT_TRUE(AtomicFile::replace(path, "new"));

    // Other threads are at it, and wait for the disk when other programs keep that busy.
    for (int i = 0; i < 15'000 && openFilesWithoutName() > 0; ++i)
        ::usleep(1000);
    EXPECT_EQ(openFilesWithoutName(), 0);
}

TEST_F(AtomicFileTest, replacesAFileThatItMayNotRead)
{
    put(path, "old");
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0200), 0);

    EXPECT_TRUE(AtomicFile::replace(path, "new"));

    EXPECT_EQ(permissions(path), 0200u);
    ASSERT_EQ(::chmod(QFile::encodeName(path).constData(), 0600), 0);
    EXPECT_EQ(contents(path), "new");
}

} // namespace
} // namespace Orvello
