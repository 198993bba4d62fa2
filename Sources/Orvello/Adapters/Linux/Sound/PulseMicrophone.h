#pragma once

#include "Orvello/Adapters/Linux/Sound/PulseRecordStream.h"
#include "Orvello/Adapters/Linux/Sound/SampleBlocks.h"
#include "Orvello/Platform/Sound/RawMicrophone.h"

#include <optional>

namespace Orvello {

/// The microphone as the sound server delivers it.
class PulseMicrophone final : public RawMicrophone {
public:
    explicit PulseMicrophone(PulseConnection& connection); ///< Must outlive the microphone.

    double sampleRate() override;
    void installTap(int blockFrames, SampleListener& listener) override;
    void removeTap() override;
    Result<std::monostate, QString> start() override;
    void stop() override;

private:
    void onSamples(std::span<const float> samples);

    static constexpr std::uint32_t fragmentFrames = 2048;

    PulseConnection& m_connection;
    SampleListener* m_listener = nullptr; ///< With the connection's lock, like the next.
    SampleBlocks m_blocks;
    std::optional<PulseRecordStream> m_stream;
};

} // namespace Orvello
