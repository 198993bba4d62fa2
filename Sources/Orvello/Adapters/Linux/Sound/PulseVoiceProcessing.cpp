#include "Orvello/Adapters/Linux/Sound/PulseVoiceProcessing.h"

#include "Orvello/Adapters/Linux/Sound/EchoCanceller.h"
#include "Orvello/Adapters/Linux/Sound/PulseRecordStream.h"
#include "Orvello/Adapters/Linux/Sound/SampleBlocks.h"

#include <algorithm>
#include <array>

namespace Orvello {

namespace {

/// Two frames of the canceller: half the wake-ups of a single frame, and still fast.
constexpr std::size_t blockSamples = 2 * EchoCanceller::frameSamples;

class PulseVoiceProcessingUnit final : public VoiceProcessingUnit {
public:
    PulseVoiceProcessingUnit(PulseConnection& connection, Listener& listener)
        : m_connection(connection)
        , m_listener(listener)
        , m_farEnds { FarEnd(connection, 0), FarEnd(connection, 1), FarEnd(connection, 2) }
        , m_microphone(connection, PulseRecordStream::Role::Microphone, 0, blockSamples,
              [this](std::span<const float> samples) { hear(samples); })
    {
    }

    Status configure(Setting setting) override
    {
        const PulseConnection::Condition condition = m_connection.condition();
        const bool isMissing = condition.isKnown && !condition.hadMicrophone;
        return setting == Setting::EnableInput && isMissing ? PA_ERR_NOENTITY : PA_OK;
    }

    Status initialize() override
    {
        for (FarEnd& farEnd : m_farEnds)
            if (const int error = farEnd.canceller.initialize())
                return error;
        return PA_OK;
    }

    Status start() override
    {
        for (FarEnd& farEnd : m_farEnds)
            farEnd.stream.start();
        m_microphone.start();
        return PA_OK;
    }

    Status render(std::span<float> samples) noexcept override
    {
        std::copy_n(m_waiting.begin(), std::min(samples.size(), m_waiting.size()), samples.begin());
        return samples.size() == m_waiting.size() ? PA_OK : PA_ERR_INVALID;
    }

    void stop() override
    {
        m_microphone.stop();
        for (FarEnd& farEnd : m_farEnds)
            farEnd.stream.stop();
    }

    void uninitialize() override { }

private:
    /// One canceller for each: what two loudspeakers play has two ways through the room.
    struct FarEnd {
        FarEnd(PulseConnection& connection, std::size_t index)
            : stream(connection, PulseRecordStream::Role::EchoReference, index, blockSamples,
                [this](std::span<const float> samples) { canceller.hearFarEnd(samples); })
        {
        }

        EchoCanceller canceller;
        PulseRecordStream stream;
    };

    /// Sound thread, like all that touches the canceller while the streams run.
    void hear(std::span<const float> samples)
    {
        m_blocks.add(samples, [this](std::span<float> block) {
            for (std::size_t frame = 0; frame < block.size(); frame += EchoCanceller::frameSamples)
                for (FarEnd& farEnd : m_farEnds)
                    farEnd.canceller.process(block.subspan(frame, EchoCanceller::frameSamples));
            m_waiting = block;
            m_listener.onInput(*this, static_cast<std::uint32_t>(block.size()));
        });
    }

    PulseConnection& m_connection;
    Listener& m_listener;
    SampleBlocks m_blocks { blockSamples };
    std::span<const float> m_waiting;
    std::array<FarEnd, 3> m_farEnds;
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
    return { PA_OK, std::make_unique<PulseVoiceProcessingUnit>(m_connection, listener) };
}

} // namespace Orvello
