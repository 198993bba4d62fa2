#include "Tests/Foundation/RecordedDisk.h"

#include <cerrno>
#include <cstdarg>
#include <fcntl.h>
#include <span>
#include <sys/stat.h>
#include <sys/uio.h>
#include <unistd.h>

namespace Orvello::Testing {

RecordedDisk* RecordedDisk::current = nullptr;

void RecordedDisk::open(int descriptor, const std::string& path, bool isNew)
{
    struct stat status { };
    if (::fstat(descriptor, &status) == 0 && S_ISDIR(status.st_mode)) {
        m_files[descriptor] = 0;
        return;
    }
    if (isNew) {
        m_names[path] = ++m_lastFile;
        m_requests.push_back({ .kind = Kind::Name, .name = path, .file = m_lastFile });
    }
    m_files[descriptor] = m_names[path];
}

void RecordedDisk::write(int descriptor, const std::string& bytes)
{
    m_requests.push_back({ .kind = Kind::Write, .file = m_files.at(descriptor), .bytes = bytes });
}

void RecordedDisk::flush(int descriptor)
{
    const int file = m_files.at(descriptor);
    m_requests.push_back({ .kind = file == 0 ? Kind::FlushFolder : Kind::FlushFile, .file = file });
}

void RecordedDisk::rename(const std::string& from, const std::string& to)
{
    if (m_names.at(from) == m_names[to])
        return; // Two names of one file stay as they are.
    m_names[to] = m_names.at(from);
    m_names.erase(from);
    m_requests.push_back({ .kind = Kind::Rename, .name = from, .newName = to });
}

void RecordedDisk::link(const std::string& from, const std::string& to)
{
    m_names[to] = m_names.at(from);
    m_requests.push_back({ .kind = Kind::Name, .name = to, .file = m_names.at(from) });
}

void RecordedDisk::unlink(const std::string& path)
{
    if (m_names.erase(path) > 0)
        m_requests.push_back({ .kind = Kind::Unname, .name = path });
}

void RecordedDisk::forEachStateAfter(
    std::size_t count, const std::function<void(const Files&)>& check) const
{
    std::map<int, std::string> written;
    std::map<int, std::string> flushed;
    std::size_t certain = 0; // So many of the requests are on the disk, as far as names go.
    for (std::size_t i = 0; i < count; ++i) {
        const Request& request = m_requests[i];
        if (request.kind == Kind::Write)
            written[request.file] += request.bytes;
        else if (request.kind == Kind::FlushFile)
            flushed[request.file] = written[request.file];
        else if (request.kind == Kind::FlushFolder)
            certain = i;
    }
    for (std::size_t last = certain; last <= count; ++last) {
        std::map<std::string, int> names;
        for (std::size_t i = 0; i < last; ++i) {
            const Request& request = m_requests[i];
            if (request.kind == Kind::Name)
                names[request.name] = request.file;
            else if (request.kind == Kind::Unname)
                names.erase(request.name);
            else if (request.kind == Kind::Rename) {
                names[request.newName] = names.at(request.name);
                names.erase(request.name);
            }
        }
        Files files;
        for (const auto& [name, file] : names) {
            const auto bytes = flushed.find(file);
            files[name] = bytes == flushed.end() ? std::nullopt : std::optional(bytes->second);
        }
        check(files);
    }
}

} // namespace Orvello::Testing

using Orvello::Testing::RecordedDisk;

// The linker leads the calls of the libraries under test here (--wrap).
extern "C" {
// NOLINTBEGIN(bugprone-reserved-identifier): the linker's names.
int __real_open(const char* path, int flags, ...);
ssize_t __real_writev(int descriptor, const iovec* pieces, int count);
int __real_fsync(int descriptor);
int __real_fchmod(int descriptor, mode_t mode);
int __real_rename(const char* from, const char* to);
int __real_link(const char* from, const char* to);
int __real_unlink(const char* path);

int __wrap_open(const char* path, int flags, ...)
{
    std::va_list arguments;
    va_start(arguments, flags);
    const mode_t mode = (flags & O_CREAT) != 0 ? va_arg(arguments, mode_t) : 0;
    va_end(arguments);
    const int descriptor = __real_open(path, flags, mode);
    if (RecordedDisk::current && descriptor >= 0)
        RecordedDisk::current->open(descriptor, path, (flags & O_EXCL) != 0);
    return descriptor;
}

ssize_t __wrap_writev(int descriptor, const iovec* pieces, int count)
{
    const ssize_t size = __real_writev(descriptor, pieces, count);
    if (RecordedDisk::current) {
        std::string bytes;
        for (const iovec& piece : std::span(pieces, static_cast<std::size_t>(count)))
            bytes.append(static_cast<const char*>(piece.iov_base), piece.iov_len);
        RecordedDisk::current->write(descriptor, bytes);
    }
    return size;
}

int __wrap_fsync(int descriptor)
{
    if (RecordedDisk::current)
        RecordedDisk::current->flush(descriptor);
    return 0; // The disk need not be kept busy.
}

int __wrap_fchmod(int descriptor, mode_t mode)
{
    if (RecordedDisk::current && RecordedDisk::current->failsPermissions) {
        errno = EPERM;
        return -1;
    }
    return __real_fchmod(descriptor, mode);
}

int __wrap_rename(const char* from, const char* to)
{
    const int result = __real_rename(from, to);
    if (RecordedDisk::current && result == 0)
        RecordedDisk::current->rename(from, to);
    return result;
}

int __wrap_link(const char* from, const char* to)
{
    const int result = __real_link(from, to);
    if (RecordedDisk::current && result == 0)
        RecordedDisk::current->link(from, to);
    return result;
}

int __wrap_unlink(const char* path)
{
    const int result = __real_unlink(path);
    if (RecordedDisk::current && result == 0)
        RecordedDisk::current->unlink(path);
    return result;
}
// NOLINTEND(bugprone-reserved-identifier)
}
