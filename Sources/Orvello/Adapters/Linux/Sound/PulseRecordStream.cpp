#include "Orvello/Adapters/Linux/Sound/PulseRecordStream.h"

#include <array>
#include <utility>

namespace Orvello {

namespace {

constexpr pa_usec_t tickInterval = 100 * PA_USEC_PER_MSEC;
constexpr pa_usec_t stallTime = 250 * PA_USEC_PER_MSEC;
constexpr pa_usec_t reopenInterval = 1 * PA_USEC_PER_SEC;

/// From then on it is not a pause any longer: something keeps the microphone from us, if it is not
/// that the server itself is silent.
constexpr pa_usec_t withheldTime = 1 * PA_USEC_PER_SEC;

constexpr std::array<float, PulseRecordStream::sampleRate / 10> silenceOfATick {};

constexpr pa_sample_spec monoFloat { PA_SAMPLE_FLOAT32NE, PulseRecordStream::sampleRate, 1 };

/// A stream that the server is still creating has no name yet by which to end it there: whoever let
/// go of it now would leave it recording.
void endOnceCreated(pa_stream* stream)
{
    const pa_stream_state_t state = pa_stream_get_state(stream);
    if (state == PA_STREAM_CREATING)
        return;
    pa_stream_set_state_callback(stream, nullptr, nullptr);
    if (state == PA_STREAM_READY)
        pa_stream_disconnect(stream);
    pa_stream_unref(stream);
}

PulseRecordStream& streamOf(void* userData) { return *static_cast<PulseRecordStream*>(userData); }

} // namespace

PulseRecordStream::PulseRecordStream(PulseConnection& connection, Role role, std::size_t farEnd,
    std::uint32_t fragmentFrames, Listener listener)
    : m_connection(connection)
    , m_role(role)
    , m_farEnd(farEnd)
    , m_fragmentFrames(fragmentFrames)
    , m_listener(std::move(listener))
{
}

PulseRecordStream::~PulseRecordStream() { stop(); }

void PulseRecordStream::start()
{
    const PulseConnection::Lock lock(m_connection);
    if (m_timer)
        return;
    m_connection.addClient(*this);
    m_lastSamples = pa_rtclock_now();
    m_timer = pa_context_rttime_new(
        m_connection.context(), m_lastSamples + tickInterval,
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* stream) {
            streamOf(stream).tick();
        },
        this);
    if (m_connection.isReady())
        onFacts();
}

void PulseRecordStream::stop()
{
    const PulseConnection::Lock lock(m_connection);
    if (!m_timer)
        return;
    m_connection.removeClient(*this);
    m_connection.freeTimer(std::exchange(m_timer, nullptr));
    close();
}

void PulseRecordStream::onFacts()
{
    const std::optional<QByteArray> source
        = isMicrophone() ? m_connection.microphone() : m_connection.farEnd(m_farEnd);
    if (source == m_source)
        return; // Where the server takes the stream meanwhile is its business, and the user's.
    close();
    m_source = source;
    if (m_source)
        open();
}

void PulseRecordStream::onDisconnected()
{
    close();
    m_source.reset();
}

void PulseRecordStream::open()
{
    m_lastOpening = pa_rtclock_now();
    m_stream = pa_stream_new(m_connection.context(),
        isMicrophone() ? "Voice-Follow" : "Echo reference", &monoFloat, nullptr);
    if (!m_stream)
        return;
    pa_stream_set_state_callback(
        m_stream, [](pa_stream*, void* stream) { streamOf(stream).onStateChanged(); }, this);
    pa_stream_set_moved_callback(
        m_stream, [](pa_stream*, void* stream) { streamOf(stream).publish(); }, this);
    pa_stream_set_read_callback(
        m_stream, [](pa_stream*, std::size_t, void* stream) { streamOf(stream).onReadable(); },
        this);

    constexpr auto serversChoice = static_cast<std::uint32_t>(-1);
    const auto fragmentBytes = static_cast<std::uint32_t>(m_fragmentFrames * sizeof(float));
    const pa_buffer_attr buffer { serversChoice, serversChoice, serversChoice, serversChoice,
        fragmentBytes };
    // A sink that plays nothing may go to sleep although its monitor is heard.
    const int flags = isMicrophone()
        ? PA_STREAM_ADJUST_LATENCY
        : PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE | PA_STREAM_DONT_INHIBIT_AUTO_SUSPEND;
    // Without a name the server also remembers where the user moved this program's stream before.
    const char* const source = m_source->isEmpty() ? nullptr : m_source->constData();
    if (pa_stream_connect_record(m_stream, source, &buffer, static_cast<pa_stream_flags_t>(flags))
        < 0)
        onStateChanged();
}

void PulseRecordStream::close()
{
    if (!m_stream)
        return;
    pa_stream* const stream = std::exchange(m_stream, nullptr);
    pa_stream_set_state_callback(
        stream, [](pa_stream* closing, void*) { endOnceCreated(closing); }, nullptr);
    pa_stream_set_moved_callback(stream, nullptr, nullptr);
    pa_stream_set_read_callback(stream, nullptr, nullptr);
    endOnceCreated(stream);
    publish();
}

void PulseRecordStream::onStateChanged()
{
    if (!m_stream)
        return; // A stream that fails at once says so twice.
    const pa_stream_state_t state = pa_stream_get_state(m_stream);
    if (state == PA_STREAM_READY) {
        m_lastSamples = pa_rtclock_now();
        publish();
    } else if (state != PA_STREAM_CREATING) {
        if (isMicrophone() && pa_context_errno(m_connection.context()) == PA_ERR_ACCESS)
            m_connection.onRefused();
        close();
    }
}

void PulseRecordStream::onReadable()
{
    const void* data = nullptr;
    std::size_t bytes = 0;
    while (m_stream && pa_stream_peek(m_stream, &data, &bytes) == 0 && bytes > 0) {
        m_lastSamples = pa_rtclock_now();
        m_listener(data ? std::span(static_cast<const float*>(data), bytes / sizeof(float))
                        : std::span<const float>());
        pa_stream_drop(m_stream);
    }
}

/// What is heard, for those who want to know.
void PulseRecordStream::publish()
{
    if (!isMicrophone())
        return;
    if (m_stream && pa_stream_get_state(m_stream) == PA_STREAM_READY)
        m_connection.setHeard(
            { { pa_stream_get_device_name(m_stream), pa_stream_get_index(m_stream),
                m_connection.lastAnswer() < m_lastSamples + withheldTime } });
    else
        m_connection.setHeard(std::nullopt);
}

void PulseRecordStream::tick()
{
    const pa_usec_t now = pa_rtclock_now();
    if (!m_stream && m_source && m_connection.isReady() && now - m_lastOpening > reopenInterval)
        open();
    // Nothing may keep the voice gate open but somebody who speaks.
    if (isMicrophone() && now - m_lastSamples > stallTime)
        m_listener(silenceOfATick);
    publish();
    pa_context_rttime_restart(m_connection.context(), m_timer, now + tickInterval);
}

} // namespace Orvello
