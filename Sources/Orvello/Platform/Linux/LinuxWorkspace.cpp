#include "Orvello/Platform/Linux/LinuxWorkspace.h"

#include "Orvello/Platform/Linux/KnownApplications.h"
#include "Orvello/Platform/Linux/X11Windows.h"

#include <utility>

namespace Orvello {

LinuxWorkspace::LinuxWorkspace(const X11Windows& windows, std::string processTable)
    : m_windows(windows)
    , m_processes(std::move(processTable))
{
}

QList<RunningApplication> LinuxWorkspace::runningApplications() const
{
    return m_processes.knownApplications();
}

std::optional<RunningApplication> LinuxWorkspace::frontmostApplication() const
{
    const auto windowClass = m_windows.activeWindowClass();
    return windowClass ? std::optional(KnownApplications::frontmost(*windowClass)) : std::nullopt;
}

} // namespace Orvello
