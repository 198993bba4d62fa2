#pragma once

#include "Orvello/Platform/Desktop/Workspace.h"

#include <optional>
#include <string>
#include <unordered_map>

namespace Orvello {

/// The known applications among the user's processes, by the proc(5) file system. Main thread.
///
/// Opening a file of every process each second would cost a small machine a percent of its
/// processor, so names are remembered. A new process is looked at in its first scans, as it may
/// still be about to execute its program; an old one again every `scansPerRound` scans, and one of
/// the few known applications in every scan.
class ProcessTable {
public:
    static constexpr unsigned scansPerRound = 16;

    explicit ProcessTable(std::string path = "/proc");

    /// Each application once, in the order of the table.
    QList<RunningApplication> knownApplications();

private:
    struct Process {
        std::optional<RunningApplication> application;
        unsigned scans = 0; ///< How many scans have seen it.
        unsigned lastScan = 0;
    };

    void look(int table, const char* id, Process& process) const;

    std::string m_path;
    std::unordered_map<std::string, Process> m_processes;
    unsigned m_scan = 0;
};

} // namespace Orvello
