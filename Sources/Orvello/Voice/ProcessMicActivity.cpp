#include "Orvello/Voice/ProcessMicActivity.h"

#include "Orvello/Platform/Sound/AudioProcesses.h"

#include <algorithm>

namespace Orvello {

ProcessMicActivity::ProcessMicActivity(AudioProcesses& processes, qint64 ownProcessId)
    : m_processes(processes)
    , m_ownProcessId(ownProcessId)
{
}

bool ProcessMicActivity::otherProcessCapturingInput()
{
    const QList<qint64> capturing = m_processes.capturingInput();
    return std::any_of(capturing.begin(), capturing.end(),
        [this](qint64 process) { return process != m_ownProcessId; });
}

} // namespace Orvello
