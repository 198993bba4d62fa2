#pragma once

#include "Orvello/Platform/Sound/VoiceProcessing.h"

namespace Orvello {

class PulseConnection;

/// The default source of the sound server, from which this process removes what the default sink
/// plays. The server sees nothing but two record streams.
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
