#pragma once

#include "Orvello/Voice/MicActivity.h"

#include <QtGlobal>

namespace Orvello {

class AudioProcesses;

/// Tells the other processes on the microphone from this one.
class ProcessMicActivity final : public MicActivity {
public:
    /// `processes` must outlive this.
    ProcessMicActivity(AudioProcesses& processes, qint64 ownProcessId);

    bool otherProcessCapturingInput() override;

private:
    AudioProcesses& m_processes;
    qint64 m_ownProcessId;
};

} // namespace Orvello
