#pragma once

#include "Orvello/Platform/Sound/VoiceProcessing.h"

#include <cstdint>
#include <memory>
#include <vector>

namespace Orvello {

class SampleListener;

/// Captures through a voice-processing unit: brings one up step by step and hands its samples on.
/// Main thread, but for the samples.
class VoiceProcessingCapture final : private VoiceProcessingUnit::Listener {
public:
    /// Longer blocks are skipped: the audio thread must not grow its buffer.
    static constexpr std::uint32_t maximumBlockFrames = 16384;

    /// Both must outlive the capture.
    VoiceProcessingCapture(VoiceProcessing& voiceProcessing, SampleListener& listener);
    ~VoiceProcessingCapture();
    VoiceProcessingCapture(const VoiceProcessingCapture&) = delete;
    VoiceProcessingCapture& operator=(const VoiceProcessingCapture&) = delete;

    /// Logs the step that fails and then leaves the half-built unit to dispose().
    [[nodiscard]] bool start();

    /// Stops and destroys the unit, if there is one. When it returns, the listener hears no more.
    void dispose();

private:
    bool createUnit();
    bool configureUnit();
    bool runUnit();
    void onInput(VoiceProcessingUnit& unit, std::uint32_t frames) noexcept override;

    VoiceProcessing& m_voiceProcessing;
    SampleListener& m_listener;
    std::unique_ptr<VoiceProcessingUnit> m_vpUnit;
    std::vector<float> m_renderScratch; ///< Sized once, before the first unit runs.
};

} // namespace Orvello
