#pragma once

#include "Orvello/Platform/Sound/VoiceProcessing.h"

namespace Orvello {

/// The system's voice-processing input/output unit, as an audio component.
class VoiceProcessingIO final : public VoiceProcessing {
public:
    bool isAvailable() override;
    Instantiation instantiate(VoiceProcessingUnit::Listener& listener) override;
};

} // namespace Orvello
