#include "Orvello/Adapters/Linux/Desktop/ProcessTable.h"

#include "Orvello/Adapters/Linux/Desktop/KnownApplications.h"

#include <algorithm>
#include <array>
#include <dirent.h>
#include <fcntl.h>
#include <functional>
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

/// The beginning of one of the table's files about a process; empty when the process is gone.
QByteArray factsFrom(std::string_view file, int table, std::string_view process)
{
    std::array<char, 32> path {};
    if (process.size() > 20)
        return {};
    std::copy(file.begin(), file.end(), std::copy(process.begin(), process.end(), path.begin()));

    const int descriptor = ::openat(table, path.data(), O_RDONLY | O_CLOEXEC);
    if (descriptor < 0)
        return {};
    std::array<char, 64> bytes; // More than a number and a name of 16 bytes.
    const ssize_t size = ::read(descriptor, bytes.data(), bytes.size());
    ::close(descriptor);
    return { bytes.data(), static_cast<qsizetype>(std::max<ssize_t>(size, 0)) };
}

QByteArray processName(int table, const char* process)
{
    const QByteArray name = factsFrom("/comm", table, process);
    return name.endsWith('\n') ? name.chopped(1) : name;
}

/// Whether a process has ended and only waits for its parent to hear of it. Its state follows the
/// name, which may have any character in it.
bool isZombie(int table, const char* process)
{
    const QByteArray status = factsFrom("/stat", table, process);
    return status.sliced(status.lastIndexOf(')') + 1).startsWith(" Z");
}

bool isOwn(int table, const char* process)
{
    struct stat status { };
    return ::fstatat(table, process, &status, 0) == 0 && status.st_uid == ::geteuid();
}

/// A new process is looked at again in this many scans.
constexpr unsigned youngScans = 3;

} // namespace

ProcessTable::ProcessTable(std::string path)
    : m_path(std::move(path))
{
}

QList<RunningApplication> ProcessTable::knownApplications()
{
    QList<RunningApplication> running;
    const Directory directory(::opendir(m_path.c_str()));
    if (!directory)
        return running;
    ++m_scan;
    while (const dirent* entry = ::readdir(directory.get())) {
        if (!isProcess(entry->d_name))
            continue;
        Process& process = m_processes[entry->d_name];
        look(::dirfd(directory.get()), entry->d_name, process);
        // One application is often many processes.
        if (process.application && !running.contains(*process.application))
            running.append(*process.application);
    }
    std::erase_if(
        m_processes, [this](const auto& entry) { return entry.second.lastScan != m_scan; });
    return running;
}

/// Finds out which application a process is, unless that is already certain.
void ProcessTable::look(int table, const char* id, Process& process) const
{
    process.lastScan = m_scan;
    ++process.scans;
    const bool isTurn = (std::hash<std::string_view> {}(id) + m_scan) % scansPerRound == 0;
    if (process.scans > youngScans && !isTurn && !process.application)
        return;
    process.application = KnownApplications::withProcessName(processName(table, id));
    // Another user's programs do not count.
    if (process.application && (!isOwn(table, id) || isZombie(table, id)))
        process.application.reset();
}

} // namespace Orvello
