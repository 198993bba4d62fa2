// A full disk, which the device /dev/full plays: it opens, and refuses every write.

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Diagnostics/LogFile.h"
#include "Tests/Diagnostics/TextFile.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeSystemLog.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

using ::testing::ElementsAre;
using ::testing::StartsWith;

namespace Orvello {
namespace {

using Testing::readFile;

namespace fs = std::filesystem;

std::string lineOfSize(std::size_t size) { return std::string(size - 1, 'x') + '\n'; }

class FullDiskTest : public ::testing::Test {
protected:
    FullDiskTest() { fs::create_directories(fs::path(path).parent_path()); }

    Testing::FakeFolders folders;
    std::string path = folders.path.toStdString() + "/Orvello/logs/orvello.log";
    std::atomic<int> descriptor { -1 };
    LogFile file { descriptor };
};

TEST_F(FullDiskTest, countsTheLinesThatItRefuses)
{
    fs::create_symlink("/dev/full", path);
    file.open(path);
    file.append(lineOfSize(500'000));
    file.append(lineOfSize(500'000));
    fs::remove(path);

    file.append("\n"); // The 1,000,001st byte: the path is opened again.
    file.append("accepted\n");

    EXPECT_EQ(readFile(path), "accepted\n");
}

TEST_F(FullDiskTest, doesNotRotateWhatIsNoFile)
{
    fs::create_symlink("/dev/full", path);
    file.open(path);

    for (int i = 0; i < 5; ++i)
        file.append(lineOfSize(600'000));

    EXPECT_GE(descriptor, 0);
    EXPECT_TRUE(fs::is_symlink(path));
    EXPECT_FALSE(fs::exists(path + ".1"));
}

TEST_F(FullDiskTest, leavesTheSystemLogAtWork)
{
    fs::create_symlink("/dev/full", path);
    Testing::FakeSystemLog systemLog;
    AppLog::Session session;
    session.applicationSupport = folders.path.toStdString();
    session.systemLog = &systemLog;

    AppLog::start(session);
    AppLog::write("TAG text");

    EXPECT_THAT(systemLog.messages(), ElementsAre(StartsWith("LAUNCH "), "TAG text"));
    EXPECT_GE(AppLog::fd(), 0);
}

} // namespace
} // namespace Orvello
