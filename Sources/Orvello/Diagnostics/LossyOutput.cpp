#include "Orvello/Diagnostics/LossyOutput.h"

#include <fcntl.h>
#include <poll.h>
#include <string>
#include <sys/socket.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <climits>

namespace Orvello {

namespace {

/// Opens a pipe's end or a terminal once more. Not to block is a property of the opening, and the
/// one that the program was given is shared with the programs beside it in the terminal. Fails
/// where the system has no such names.
int openAnew(int descriptor)
{
    const std::string path = "/proc/self/fd/" + std::to_string(descriptor);
    return ::open(path.c_str(), O_WRONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
}

bool takesSomething(int descriptor)
{
    pollfd poll { descriptor, POLLOUT, 0 };
    return ::poll(&poll, 1, 0) > 0 && (poll.revents & POLLOUT) != 0;
}

} // namespace

LossyOutput::LossyOutput(int descriptor)
    : m_descriptor(descriptor)
{
    struct stat status { };
    if (::fstat(descriptor, &status) != 0)
        return;
    m_isSocket = S_ISSOCK(status.st_mode);
    if (!S_ISFIFO(status.st_mode) && !S_ISCHR(status.st_mode))
        return; // A file, which nobody has to read.
    if (const int own = openAnew(descriptor); own >= 0) {
        m_descriptor = own;
        m_isOwn = true;
    }
    m_mayWait = !m_isOwn;
}

LossyOutput::~LossyOutput()
{
    if (m_isOwn)
        ::close(m_descriptor);
}

void LossyOutput::write(std::string_view line) noexcept
{
    if (m_isSocket) {
        static_cast<void>(
            ::send(m_descriptor, line.data(), line.size(), MSG_DONTWAIT | MSG_NOSIGNAL));
        return;
    }
    if (!takesSomething(m_descriptor))
        return;
    if (m_mayWait && line.size() > PIPE_BUF) {
        // A pipe that takes something takes this much without waiting.
        std::array<char, PIPE_BUF> part {};
        std::copy_n(line.begin(), part.size() - 1, part.begin());
        part.back() = '\n';
        [[maybe_unused]] const ssize_t cut = ::write(m_descriptor, part.data(), part.size());
        return;
    }
    [[maybe_unused]] const ssize_t written = ::write(m_descriptor, line.data(), line.size());
}

void LossyOutput::fillStandardStreams() noexcept
{
    // The lowest free number is the one that open(2) gives.
    for (const int descriptor : { STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO })
        if (::fcntl(descriptor, F_GETFD) < 0)
            static_cast<void>(::open("/dev/null", O_RDWR));
}

} // namespace Orvello
