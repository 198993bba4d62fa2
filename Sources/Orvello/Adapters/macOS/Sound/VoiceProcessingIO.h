#pragma once

#include "Orvello/Platform/Sound/VoiceProcessing.h"

namespace Orvello {

class HalMicrophones;

/// The system's voice-processing input/output unit, as an audio component.
class VoiceProcessingIO final : public VoiceProcessing {
public:
    explicit VoiceProcessingIO(const HalMicrophones& microphones); ///< Must outlive this.

    bool isAvailable() override;
    Instantiation instantiate(VoiceProcessingUnit::Listener& listener) override;

    /// A microphone was chosen, came or went: the unit that runs hears the right one from now on.
    void onDeviceChanged();

private:
    class Unit;

    const HalMicrophones& m_microphones;
    Unit* m_unit = nullptr; ///< The one that exists.
};

} // namespace Orvello
