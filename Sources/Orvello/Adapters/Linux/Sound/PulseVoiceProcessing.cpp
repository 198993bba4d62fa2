#include "Orvello/Adapters/Linux/Sound/PulseVoiceProcessing.h"

#include "Orvello/Adapters/Linux/Sound/EchoCanceller.h"
#include "Orvello/Adapters/Linux/Sound/PulseRecordStream.h"
#include "Orvello/Adapters/Linux/Sound/SampleBlocks.h"

#include <algorithm>

namespace Orvello {

namespace {

/// Two frames of the canceller: half the wake-ups of a single frame, and still fast.
constexpr std::size_t blockSamples = 2 * EchoCanceller::frameSamples;

class PulseVoiceProcessingUnit final : public VoiceProcessingUnit {
public:
    PulseVoiceProcessingUnit(PulseConnection& connection, Listener& listener)
        : m_connection(connection)
        , m_listener(listener)
        , m_farEnd(connection, PulseRecordStream::Source::DefaultSinkMonitor, blockSamples,
              [this](std::span<const float> samples) { m_canceller.hearFarEnd(samples); })
        , m_microphone(connection, PulseRecordStream::Source::Microphone, blockSamples,
              [this](std::span<const float> samples) { hear(samples); })
    {
    }

    Status configure(Setting setting) override
    {
        const bool needsSource = setting == Setting::EnableInput;
        return needsSource && m_connection.facts().defaultSource.isEmpty() ? PA_ERR_NOENTITY
                                                                           : PA_OK;
    }

    Status initialize() override { return m_canceller.initialize(); }

    Status start() override
    {
        // Without a sink there is no far end and nothing to cancel: only the microphone must start.
        m_farEnd.start();
        m_microphone.start();
        return m_microphone.awaitStart();
    }

    Status render(std::span<float> samples) noexcept override
    {
        std::copy_n(m_waiting.begin(), std::min(samples.size(), m_waiting.size()), samples.begin());
        return samples.size() == m_waiting.size() ? PA_OK : PA_ERR_INVALID;
    }

    void stop() override
    {
        m_microphone.stop();
        m_farEnd.stop();
    }

    void uninitialize() override { }

private:
    /// Sound thread, like all that touches the canceller while the streams run.
    void hear(std::span<const float> samples)
    {
        m_blocks.add(samples, [this](std::span<float> block) {
            for (std::size_t frame = 0; frame < block.size(); frame += EchoCanceller::frameSamples)
                m_canceller.process(block.subspan(frame, EchoCanceller::frameSamples));
            m_waiting = block;
            m_listener.onInput(*this, static_cast<std::uint32_t>(block.size()));
        });
    }

    PulseConnection& m_connection;
    Listener& m_listener;
    EchoCanceller m_canceller;
    SampleBlocks m_blocks { blockSamples };
    std::span<const float> m_waiting;
    PulseRecordStream m_farEnd;
    PulseRecordStream m_microphone;
};

} // namespace

PulseVoiceProcessing::PulseVoiceProcessing(PulseConnection& connection)
    : m_connection(connection)
{
}

bool PulseVoiceProcessing::isAvailable() { return true; }

VoiceProcessing::Instantiation PulseVoiceProcessing::instantiate(
    VoiceProcessingUnit::Listener& listener)
{
    if (m_connection.factsOnceConnected() == PulseFacts {})
        return { PA_ERR_CONNECTIONREFUSED, nullptr };
    return { PA_OK, std::make_unique<PulseVoiceProcessingUnit>(m_connection, listener) };
}

} // namespace Orvello
