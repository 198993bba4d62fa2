#pragma once

#include "Orvello/Adapters/Linux/Sound/PulseConnection.h"

#include <QByteArray>

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <span>

namespace Orvello {

/// Records 48 kHz mono from a microphone, or from what a sink plays, and keeps recording: it
/// follows the user to another one and resumes when a lost device or server returns. A microphone
/// that is away, or delivers nothing for whatever reason, is heard as silence.
class PulseRecordStream final : private PulseConnection::Client {
public:
    enum class Role { Microphone, EchoReference };

    /// Sound thread. Without samples where the recording has a hole.
    using Listener = std::function<void(std::span<const float>)>;

    static constexpr std::uint32_t sampleRate = 48000;

    /// `connection` must outlive the stream. `fragmentFrames` samples come at a time, more or less.
    /// `farEnd` says which of the connection's far ends an echo reference is.
    PulseRecordStream(PulseConnection& connection, Role role, std::size_t farEnd,
        std::uint32_t fragmentFrames, Listener listener);
    ~PulseRecordStream();
    PulseRecordStream(const PulseRecordStream&) = delete;
    PulseRecordStream& operator=(const PulseRecordStream&) = delete;

    /// Begins to record without waiting for it. Main thread.
    void start();

    /// When it returns, the listener is not running and will not be called. Main thread.
    void stop();

private:
    void onFacts() override;
    void onDisconnected() override;

    bool isMicrophone() const { return m_role == Role::Microphone; }
    void open();
    void close();
    void onStateChanged();
    void onReadable();
    void publish();
    void tick();

    PulseConnection& m_connection;
    Role m_role;
    std::size_t m_farEnd;
    std::uint32_t m_fragmentFrames;
    Listener m_listener;

    // With the connection's lock.
    std::optional<QByteArray> m_source; ///< What was asked for; empty is the server's choice.
    pa_stream* m_stream = nullptr;
    pa_time_event* m_timer = nullptr; ///< Exists between start() and stop().
    pa_usec_t m_lastOpening = 0; ///< By pa_rtclock_now(), like the next.
    pa_usec_t m_lastSamples = 0;
};

} // namespace Orvello
