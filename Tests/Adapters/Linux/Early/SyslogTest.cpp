#include "Orvello/Adapters/Linux/Early/Syslog.h"

#include "Orvello/Platform/Early/EarlyPlatform.h"
#include "Tests/Diagnostics/TextFile.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstdlib>
#include <fcntl.h>
#include <string>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Orvello {
namespace {

/// Where standard error goes to a file, that of one test.
class SyslogTest : public ::testing::Test {
protected:
    SyslogTest()
    {
        ::dup2(
            ::open(path.c_str(), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600), STDERR_FILENO);
    }
    ~SyslogTest() override
    {
        ::unsetenv("JOURNAL_STREAM");
        ::dup2(realStandardError, STDERR_FILENO);
        ::close(realStandardError);
    }

    /// Says, as the service manager does, which stream the journal reads.
    static void letTheJournalRead(const struct stat& stream)
    {
        const std::string name
            = std::to_string(stream.st_dev) + ':' + std::to_string(stream.st_ino);
        ::setenv("JOURNAL_STREAM", name.c_str(), 1);
    }

    std::string standardError() const { return Testing::readFile(path); }

    QTemporaryDir folder;
    std::string path = folder.filePath(QStringLiteral("errors")).toStdString();
    int realStandardError = ::dup(STDERR_FILENO);
};

TEST_F(SyslogTest, writesToStandardErrorAsWell)
{
    Syslog log;

    log.write("PANEL_UP");

    EXPECT_EQ(standardError(), "PANEL_UP\n");
}

TEST_F(SyslogTest, saysEachLineToTheJournalOnce)
{
    struct stat stream { };
    ASSERT_EQ(::fstat(STDERR_FILENO, &stream), 0);
    letTheJournalRead(stream);
    Syslog log;

    log.write("PANEL_UP");

    EXPECT_EQ(standardError(), "") << "syslog(3) goes to the journal, too";
}

TEST_F(SyslogTest, writesToWhatStandardErrorWasRedirectedTo)
{
    struct stat other { };
    ASSERT_EQ(::stat(folder.path().toStdString().c_str(), &other), 0);
    letTheJournalRead(other);
    Syslog log;

    log.write("PANEL_UP");

    EXPECT_EQ(standardError(), "PANEL_UP\n");
}

TEST_F(SyslogTest, isThereForWhoeverLogsLast)
{
    std::array<int, 2> ends { -1, -1 };
    ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
    ::dup2(ends[1], STDERR_FILENO); // A pipe is what an object that ends would close.
    static SystemLog* last = nullptr;
    const pid_t child = ::fork();
    if (child == 0) {
        // Runs after everything that is made below has been destroyed.
        std::atexit([] { last->write("the last line"); });
        last = &EarlyPlatform::create({})->systemLog();
        std::exit(EXIT_SUCCESS);
    }
    int status = -1;
    ::waitpid(child, &status, 0);

    EXPECT_EQ(status, 0);

    ::fcntl(ends[0], F_SETFL, O_NONBLOCK);
    std::array<char, 64> bytes {};
    const ssize_t count = ::read(ends[0], bytes.data(), bytes.size());
    EXPECT_EQ(std::string(bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0))),
        "the last line\n");
    for (const int end : ends)
        ::close(end);
}

} // namespace
} // namespace Orvello
