#include "Orvello/Diagnostics/LossyOutput.h"

#include "Tests/Diagnostics/TextFile.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <future>
#include <string>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace Orvello {
namespace {

using namespace std::chrono_literals;

/// Two ends, of which one is written and the other read, or not.
class LossyOutputTest : public ::testing::Test {
protected:
    ~LossyOutputTest() override
    {
        for (const int end : ends)
            if (end >= 0)
                ::close(end);
    }

    void openPipe() { ASSERT_EQ(::pipe(ends.data()), 0); }
    void openSockets() { ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM, 0, ends.data()), 0); }

    /// Until not one more byte goes in.
    void fill()
    {
        ::fcntl(ends[1], F_SETFL, O_NONBLOCK);
        const std::string page(4096, 'x');
        while (::write(ends[1], page.data(), page.size()) > 0) { }
        while (::write(ends[1], "x", 1) > 0) { }
        ::fcntl(ends[1], F_SETFL, 0);
    }

    std::string readOnce()
    {
        std::array<char, 64> bytes {};
        const ssize_t count = ::read(ends[0], bytes.data(), bytes.size());
        return { bytes.data(), static_cast<std::size_t>(std::max<ssize_t>(count, 0)) };
    }

    /// Whether a line is written, or lost, in no time.
    bool returnsAtOnce(LossyOutput& output)
    {
        const auto written = std::async(std::launch::async, [&] { output.write("line\n"); });
        const bool isDone = written.wait_for(2s) == std::future_status::ready;
        while (written.wait_for(0s) != std::future_status::ready)
            readOnce(); // Else the program would stand here for good.
        return isDone;
    }

    std::array<int, 2> ends { -1, -1 };
};

TEST_F(LossyOutputTest, reachesTheReader)
{
    openPipe();
    LossyOutput output(ends[1]);

    output.write("line\n");

    EXPECT_EQ(readOnce(), "line\n");
}

TEST_F(LossyOutputTest, appendsToAFile)
{
    const QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("errors")).toStdString();
    ends[1] = ::open(path.c_str(), O_WRONLY | O_CREAT, 0644);
    LossyOutput output(ends[1]);

    output.write("one\n");
    output.write("two\n");

    EXPECT_EQ(Testing::readFile(path), "one\ntwo\n");
}

TEST_F(LossyOutputTest, keepsALongLineInAFileWhole)
{
    const QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("errors")).toStdString();
    ends[1] = ::open(path.c_str(), O_WRONLY | O_CREAT, 0644);
    LossyOutput output(ends[1]);
    const std::string line = std::string(10000, 'x') + '\n';

    output.write(line);
    output.write("two\n");

    EXPECT_EQ(Testing::readFile(path), line + "two\n");
}

TEST_F(LossyOutputTest, doesNotWaitForAPipeThatNobodyReads)
{
    openPipe();
    LossyOutput output(ends[1]);
    fill();

    EXPECT_TRUE(returnsAtOnce(output));
}

TEST_F(LossyOutputTest, doesNotWaitForASocketThatNobodyReads)
{
    openSockets();
    LossyOutput output(ends[1]);
    fill();

    EXPECT_TRUE(returnsAtOnce(output));
}

TEST_F(LossyOutputTest, doesNotWaitForAPausedTerminal)
{
    ends[0] = ::posix_openpt(O_RDWR | O_NOCTTY);
    ASSERT_EQ(::grantpt(ends[0]), 0);
    ASSERT_EQ(::unlockpt(ends[0]), 0);
    ends[1] = ::open(::ptsname(ends[0]), O_RDWR | O_NOCTTY);
    ASSERT_GE(ends[1], 0);
    LossyOutput output(ends[1]);
    fill();

    EXPECT_TRUE(returnsAtOnce(output));
}

TEST_F(LossyOutputTest, leavesTheDescriptorThatItWasGivenAsItWas)
{
    openPipe();
    const int before = ::fcntl(ends[1], F_GETFL);
    LossyOutput output(ends[1]);
    output.write("line\n");

    EXPECT_EQ(::fcntl(ends[1], F_GETFL), before);
}

TEST_F(LossyOutputTest, standardStreamsThatAreClosedStandForNoOtherFile)
{
    const QTemporaryDir folder;
    const std::string path = folder.filePath(QStringLiteral("library")).toStdString();
    const pid_t child = ::fork();
    if (child == 0) {
        ::close(STDIN_FILENO);
        ::close(STDERR_FILENO);
        LossyOutput::fillStandardStreams();
        const int file = ::open(path.c_str(), O_WRONLY | O_CREAT, 0644);
        LossyOutput output(STDERR_FILENO);
        output.write("line\n");
        ::_exit(file > STDERR_FILENO ? EXIT_SUCCESS : EXIT_FAILURE);
    }
    int status = -1;
    ::waitpid(child, &status, 0);

    EXPECT_EQ(status, EXIT_SUCCESS);
    EXPECT_EQ(Testing::readFile(path), "");
}

} // namespace
} // namespace Orvello
