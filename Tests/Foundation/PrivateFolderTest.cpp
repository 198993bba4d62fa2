#include "Orvello/Foundation/PrivateFolder.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

mode_t permissions(const QString& path)
{
    struct stat status { };
    ::stat(QFile::encodeName(path).constData(), &status);
    return status.st_mode & 07777;
}

TEST(PrivateFolderTest, makesEachMissingFolderForTheUserAlone)
{
    const QTemporaryDir scratch;
    const QString outer = scratch.filePath(u"a"_s);
    const mode_t before = ::umask(0);

    const bool isMade = makePrivateFolder(outer + u"/b/"_s);

    ::umask(before);
    EXPECT_TRUE(isMade);
    EXPECT_EQ(permissions(outer), 0700u);
    EXPECT_EQ(permissions(outer + u"/b"_s), 0700u);
}

TEST(PrivateFolderTest, leavesAFolderThatExistsAsItIs)
{
    const QTemporaryDir scratch;
    ASSERT_EQ(::chmod(QFile::encodeName(scratch.path()).constData(), 0755), 0);

    EXPECT_TRUE(makePrivateFolder(scratch.path()));

    EXPECT_EQ(permissions(scratch.path()), 0755u);
}

TEST(PrivateFolderTest, failsWhereAFileIsInTheWay)
{
    const QTemporaryDir scratch;
    QFile file(scratch.filePath(u"file"_s));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));

    EXPECT_FALSE(makePrivateFolder(file.fileName()));
    EXPECT_FALSE(makePrivateFolder(file.fileName() + u"/folder"_s));
}

} // namespace
} // namespace Orvello
