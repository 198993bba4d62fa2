#pragma once

#include "Orvello/Platform/Sound/AudioProcesses.h"

namespace Orvello {

class PulseConnection;

/// The processes with a record stream on the sound server that runs and hears a microphone. Answers
/// from the newest list, however old where the server is away, and asks for the next one.
class PulseAudioProcesses final : public AudioProcesses {
public:
    explicit PulseAudioProcesses(PulseConnection& connection); ///< Must outlive this.

    QList<qint64> capturingInput() override;

private:
    PulseConnection& m_connection;
};

} // namespace Orvello
