#include "Orvello/Adapters/macOS/Sound/HalAudioProcesses.h"

#include "Orvello/Adapters/macOS/Sound/HalProperties.h"

#include <sys/types.h>

namespace Orvello {

using namespace HalProperties;

QList<qint64> HalAudioProcesses::capturingInput()
{
    QList<qint64> processes;
    for (const AudioObjectID object :
        objects(kAudioObjectSystemObject, address(kAudioHardwarePropertyProcessObjectList))) {
        const auto process = value<pid_t>(object, address(kAudioProcessPropertyPID));
        if (!process)
            continue;
        if (value<UInt32>(object, address(kAudioProcessPropertyIsRunningInput)).value_or(0) != 0)
            processes.append(*process);
    }
    return processes;
}

} // namespace Orvello
