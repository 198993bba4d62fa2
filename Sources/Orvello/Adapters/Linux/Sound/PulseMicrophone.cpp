#include "Orvello/Adapters/Linux/Sound/PulseMicrophone.h"

namespace Orvello {

PulseMicrophone::PulseMicrophone(PulseConnection& connection)
    : m_connection(connection)
    , m_blocks(1)
{
}

double PulseMicrophone::sampleRate()
{
    // A server that is not there yet is a microphone that is silent, and so is one that was there
    // and is unplugged. Missing is what a server never had.
    const PulseConnection::Condition condition = m_connection.condition();
    return condition.isKnown && !condition.hadMicrophone ? 0 : PulseRecordStream::sampleRate;
}

void PulseMicrophone::installTap(int blockFrames, SampleListener& listener)
{
    const PulseConnection::Lock lock(m_connection);
    m_blocks = SampleBlocks(static_cast<std::size_t>(blockFrames));
    m_listener = &listener;
}

void PulseMicrophone::removeTap()
{
    const PulseConnection::Lock lock(m_connection);
    m_listener = nullptr;
}

Result<std::monostate, QString> PulseMicrophone::start()
{
    m_stream.emplace(m_connection, PulseRecordStream::Role::Microphone, 0, fragmentFrames,
        [this](std::span<const float> samples) { onSamples(samples); });
    m_stream->start();
    return std::monostate {};
}

void PulseMicrophone::stop() { m_stream.reset(); }

void PulseMicrophone::onSamples(std::span<const float> samples)
{
    if (m_listener)
        m_blocks.add(
            samples, [this](std::span<const float> block) { m_listener->onSamples(block); });
}

} // namespace Orvello
