#include "Orvello/Adapters/Linux/Sound/PulseRecordStream.h"

#include <array>
#include <chrono>
#include <utility>

namespace Orvello {

namespace {

using namespace std::chrono_literals;

constexpr auto startPatience = 500ms;
constexpr pa_usec_t tickInterval = 100 * PA_USEC_PER_MSEC;
constexpr pa_usec_t stallTime = 250 * PA_USEC_PER_MSEC;
constexpr pa_usec_t reopenInterval = 1 * PA_USEC_PER_SEC;

constexpr std::array<float, PulseRecordStream::sampleRate / 10> silenceOfATick {};

constexpr pa_sample_spec monoFloat { PA_SAMPLE_FLOAT32NE, PulseRecordStream::sampleRate, 1 };

PulseRecordStream& streamOf(void* userData) { return *static_cast<PulseRecordStream*>(userData); }

} // namespace

PulseRecordStream::PulseRecordStream(
    PulseConnection& connection, Source source, std::uint32_t fragmentFrames, Listener listener)
    : m_connection(connection)
    , m_source(source)
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
    if (m_connection.isConnected())
        open();
    else
        m_outcome.set(PA_ERR_CONNECTIONREFUSED);
}

int PulseRecordStream::awaitStart() const
{
    const int outcome
        = m_outcome.await(startPatience, [](int current) { return current != pending; });
    return outcome == pending ? int { PA_ERR_TIMEOUT } : outcome;
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

void PulseRecordStream::onConnected() { open(); }

void PulseRecordStream::onDisconnected() { close(); }

void PulseRecordStream::onDefaultsChanged()
{
    if (!m_stream) {
        open();
    } else if (m_source == Source::Microphone) {
        followDefaultSource();
    } else {
        // The monitor of another sink is another source; the server does not follow there.
        close();
        open();
    }
}

void PulseRecordStream::followDefaultSource()
{
    const QByteArray source = m_connection.facts().defaultSource;
    if (source.isEmpty() || pa_stream_get_state(m_stream) != PA_STREAM_READY
        || source == pa_stream_get_device_name(m_stream))
        return;
    if (pa_operation* const operation
        = pa_context_move_source_output_by_name(m_connection.context(),
            pa_stream_get_index(m_stream), source.constData(), nullptr, nullptr))
        pa_operation_unref(operation);
}

void PulseRecordStream::open()
{
    const bool isMicrophone = m_source == Source::Microphone;
    m_outcome.set(pending);
    m_lastOpening = pa_rtclock_now();
    m_stream = pa_stream_new(m_connection.context(),
        isMicrophone ? "Voice-Follow" : "Echo reference", &monoFloat, nullptr);
    pa_stream_set_state_callback(
        m_stream, [](pa_stream*, void* stream) { streamOf(stream).onStateChanged(); }, this);
    pa_stream_set_read_callback(
        m_stream, [](pa_stream*, std::size_t, void* stream) { streamOf(stream).onReadable(); },
        this);

    constexpr auto serversChoice = static_cast<std::uint32_t>(-1);
    const auto fragmentBytes = static_cast<std::uint32_t>(m_fragmentFrames * sizeof(float));
    const pa_buffer_attr buffer { serversChoice, serversChoice, serversChoice, serversChoice,
        fragmentBytes };
    // A sink that plays nothing may go to sleep although its monitor is heard.
    const int flags = isMicrophone
        ? PA_STREAM_ADJUST_LATENCY
        : PA_STREAM_ADJUST_LATENCY | PA_STREAM_DONT_MOVE | PA_STREAM_DONT_INHIBIT_AUTO_SUSPEND;
    if (pa_stream_connect_record(m_stream, isMicrophone ? nullptr : "@DEFAULT_MONITOR@", &buffer,
            static_cast<pa_stream_flags_t>(flags))
        < 0)
        onStateChanged();
}

void PulseRecordStream::close()
{
    if (!m_stream)
        return;
    pa_stream* const stream = std::exchange(m_stream, nullptr);
    pa_stream_set_state_callback(stream, nullptr, nullptr);
    pa_stream_set_read_callback(stream, nullptr, nullptr);
    pa_stream_disconnect(stream);
    pa_stream_unref(stream);
}

void PulseRecordStream::onStateChanged()
{
    if (!m_stream)
        return; // A stream that fails at once says so twice.
    const pa_stream_state_t state = pa_stream_get_state(m_stream);
    if (state == PA_STREAM_READY) {
        m_outcome.set(0);
    } else if (state != PA_STREAM_CREATING) {
        const int error = pa_context_errno(m_connection.context());
        m_outcome.set(error == 0 ? int { PA_ERR_KILLED } : error);
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

void PulseRecordStream::tick()
{
    const pa_usec_t now = pa_rtclock_now();
    if (!m_stream && m_connection.isConnected() && now - m_lastOpening > reopenInterval)
        open();
    // A microphone that is away or delivers nothing is silent: whoever spoke last has stopped.
    if (m_source == Source::Microphone && now - m_lastSamples > stallTime)
        m_listener(silenceOfATick);
    pa_context_rttime_restart(m_connection.context(), m_timer, now + tickInterval);
}

} // namespace Orvello
