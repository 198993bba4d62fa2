#pragma once

#include "Orvello/Platform/Sound/VoiceProcessing.h"

namespace Orvello {

class PulseConnection;

/// The microphone, from which this process removes what the default sink plays, and up to two other
/// sinks on which something plays. The server sees nothing but record streams.
class PulseVoiceProcessing final : public VoiceProcessing {
public:
    /// `connection` must outlive this and its units.
    explicit PulseVoiceProcessing(PulseConnection& connection);

    bool isAvailable() override;
    Instantiation instantiate(VoiceProcessingUnit::Listener& listener) override;

private:
    PulseConnection& m_connection;
};

} // namespace Orvello
