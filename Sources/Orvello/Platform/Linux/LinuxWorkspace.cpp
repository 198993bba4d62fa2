#include "Orvello/Platform/Linux/LinuxWorkspace.h"

#include "Orvello/Platform/Linux/KnownApplications.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <memory>
#include <string_view>
#include <sys/stat.h>
#include <unistd.h>
#include <utility>

namespace Orvello {

namespace {

struct DirectoryCloser {
    void operator()(DIR* directory) const { ::closedir(directory); }
};
using Directory = std::unique_ptr<DIR, DirectoryCloser>;

bool isProcess(std::string_view name)
{
    return !name.empty()
        && std::all_of(name.begin(), name.end(), [](char c) { return c >= '0' && c <= '9'; });
}

/// The name of a process in the table; empty when it is gone.
QByteArray processName(int table, const char* process)
{
    std::array<char, 32> path {};
    const std::string_view id(process);
    if (id.size() > 20)
        return {};
    constexpr std::string_view file = "/comm";
    std::copy(file.begin(), file.end(), std::copy(id.begin(), id.end(), path.begin()));

    const int descriptor = ::openat(table, path.data(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return {};
    std::array<char, 64> bytes; // The kernel writes at most 16.
    const ssize_t size = ::read(descriptor, bytes.data(), bytes.size());
    ::close(descriptor);
    const QByteArrayView text(bytes.data(), std::max<ssize_t>(size, 0));
    return (text.endsWith('\n') ? text.chopped(1) : text).toByteArray();
}

bool isOwn(int table, const char* process)
{
    struct stat status { };
    return ::fstatat(table, process, &status, 0) == 0 && status.st_uid == ::geteuid();
}

} // namespace

LinuxWorkspace::LinuxWorkspace(const X11Windows& windows, std::string processTable)
    : m_windows(windows)
    , m_processTable(std::move(processTable))
{
}

QList<RunningApplication> LinuxWorkspace::runningApplications() const
{
    QList<RunningApplication> running;
    const Directory directory(::opendir(m_processTable.c_str()));
    if (!directory)
        return running;
    const int table = ::dirfd(directory.get());
    while (const dirent* entry = ::readdir(directory.get())) {
        if (!isProcess(entry->d_name))
            continue;
        const auto known = KnownApplications::withProcessName(processName(table, entry->d_name));
        // One application is often many processes, and another user's is none of ours.
        if (known && !running.contains(*known) && isOwn(table, entry->d_name))
            running.append(*known);
    }
    return running;
}

std::optional<RunningApplication> LinuxWorkspace::frontmostApplication() const
{
    const auto windowClass = m_windows.activeWindowClass();
    return windowClass ? std::optional(KnownApplications::frontmost(*windowClass)) : std::nullopt;
}

} // namespace Orvello
