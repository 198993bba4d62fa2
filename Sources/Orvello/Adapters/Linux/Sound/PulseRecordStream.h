#pragma once

#include "Orvello/Adapters/Linux/Sound/AwaitableState.h"
#include "Orvello/Adapters/Linux/Sound/PulseConnection.h"

#include <cstdint>
#include <functional>
#include <span>

namespace Orvello {

/// Records 48 kHz mono from the default source, or from what the default sink plays, and keeps
/// recording: it follows the user to another default and resumes when a lost device or server
/// returns.
class PulseRecordStream final : private PulseConnection::Client {
public:
    enum class Source { Microphone, DefaultSinkMonitor };

    /// Sound thread. Without samples where the recording has a hole.
    using Listener = std::function<void(std::span<const float>)>;

    static constexpr std::uint32_t sampleRate = 48000;

    /// `connection` must outlive the stream. `fragmentFrames` samples come at a time, more or less.
    PulseRecordStream(PulseConnection& connection, Source source, std::uint32_t fragmentFrames,
        Listener listener);
    ~PulseRecordStream();
    PulseRecordStream(const PulseRecordStream&) = delete;
    PulseRecordStream& operator=(const PulseRecordStream&) = delete;

    /// Begins to record without waiting for it. Main thread.
    void start();

    /// After start(): gives the recording a moment to begin and tells whether it has; 0, or why not
    /// as a pa_error_code. Main thread.
    int awaitStart() const;

    /// When it returns, the listener is not running and will not be called. Main thread.
    void stop();

private:
    void onConnected() override;
    void onDisconnected() override;
    void onDefaultsChanged() override;

    void open();
    void close();
    void followDefaultSource();
    void onStateChanged();
    void onReadable();
    void tick();

    PulseConnection& m_connection;
    Source m_source;
    std::uint32_t m_fragmentFrames;
    Listener m_listener;

    // With the connection's lock.
    pa_stream* m_stream = nullptr;
    pa_time_event* m_timer = nullptr; ///< Exists between start() and stop().
    pa_usec_t m_lastOpening = 0; ///< By pa_rtclock_now(), like the next.
    pa_usec_t m_lastSamples = 0;

    static constexpr int pending = -1;
    AwaitableState<int> m_outcome; ///< How the latest opening went: pending, 0 or a pa_error_code.
};

} // namespace Orvello
