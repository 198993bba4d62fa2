#include "Orvello/Diagnostics/LogFile.h"

#include <cstdio>
#include <fcntl.h>
#include <optional>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace Orvello {

namespace {

std::optional<std::int64_t> sizeOfFile(const std::string& path)
{
    struct stat status { };
    if (::stat(path.c_str(), &status) != 0 || !S_ISREG(status.st_mode))
        return std::nullopt;
    return status.st_size;
}

/// The old generation goes in any case, even when there is nothing to take its place. What is in
/// the way and no file, such as somebody's folder, is put aside.
void moveReplacing(const std::string& from, const std::string& to)
{
    if (::unlink(to.c_str()) != 0)
        static_cast<void>(::rename(to.c_str(), (to + ".aside").c_str()));
    if (::rename(from.c_str(), to.c_str()) != 0)
        static_cast<void>(::unlink(from.c_str())); // Rather lost than without a limit.
}

} // namespace

LogFile::LogFile(std::atomic<int>& descriptor)
    : m_descriptor(descriptor)
{
}

LogFile::~LogFile() { close(); }

void LogFile::open(std::string path)
{
    const std::scoped_lock lock(m_lock);
    close();
    m_path = std::move(path);
    rotateIfNeeded();
    reopen();
}

void LogFile::append(std::string_view line)
{
    const std::scoped_lock lock(m_lock);
    if (m_descriptor < 0)
        return;
    // One call, whatever it returns: a line that did not fit on a full disk is lost, and the file
    // counts as if it had grown, so that rotation can still free some of the space.
    [[maybe_unused]] const ssize_t written = ::write(m_descriptor, line.data(), line.size());
    m_bytesWritten += static_cast<std::int64_t>(line.size());
    if (m_bytesWritten > sizeLimit) {
        close();
        rotateIfNeeded();
        reopen();
    }
}

/// The descriptor is withdrawn before it is closed: a crash meanwhile must not write to whatever
/// file takes over its number.
void LogFile::close()
{
    const int descriptor = m_descriptor.exchange(-1);
    if (descriptor >= 0)
        ::close(descriptor);
}

void LogFile::reopen()
{
    const int descriptor = ::open(m_path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0644);
    // The names of decks are in it. Some file systems have no permissions, which is no failure.
    if (descriptor >= 0)
        static_cast<void>(::fchmod(descriptor, 0600));
    struct stat status { };
    m_bytesWritten = descriptor >= 0 && ::fstat(descriptor, &status) == 0 ? status.st_size : 0;
    m_descriptor = descriptor;
}

void LogFile::rotateIfNeeded() const
{
    const std::optional<std::int64_t> size = sizeOfFile(m_path);
    if (!size || *size <= sizeLimit)
        return;
    moveReplacing(m_path + ".1", m_path + ".2");
    moveReplacing(m_path, m_path + ".1");
}

} // namespace Orvello
