#pragma once

#include <QByteArray>
#include <QList>
#include <QString>

#include <pulse/pulseaudio.h>

#include <cstdint>
#include <functional>
#include <vector>

namespace Orvello {

struct PulseSource {
    QByteArray name; ///< The server's, and the same whenever the device is there.
    QString description; ///< For people.
    std::uint32_t rate = 0; ///< Hertz.
    bool isMonitor = false; ///< Hears what a sink plays.
    bool isMuted = false;

    friend bool operator==(const PulseSource&, const PulseSource&) = default;
};

/// What this program wants to know about a sound server.
struct PulseFacts {
    QByteArray defaultSource; ///< A name; empty when there is none.
    QList<PulseSource> sources;
    QList<qint64> capturingProcesses; ///< Identifiers of the processes that record a microphone.
    QList<std::uint32_t> mutedRecordings; ///< Those of this program, as the server numbers them.

    /// The monitors of the sinks that people may hear: first the default sink's, then those of the
    /// sinks on which something plays. A sink that the server itself records is a cable to
    /// somewhere else, and no loudspeaker.
    QList<QByteArray> farEnds;

    /// Null when there is none of this name.
    const PulseSource* source(const QByteArray& name) const;

    /// Whether anything but sinks can be heard. A server without microphones offers the monitor of
    /// a sink as its default.
    bool haveMicrophone() const;

    friend bool operator==(const PulseFacts&, const PulseFacts&) = default;
};

/// Collects the facts from a server, one question after the other. Sound thread.
class PulseSurvey {
public:
    struct Listener {
        std::function<void(const PulseFacts&)> report;
        std::function<void(int error)> fail; ///< A pa_error_code.
    };

    explicit PulseSurvey(Listener listener);

    /// Asks everything; during a survey, once more after it.
    void begin(pa_context* context);

    /// Forgets the questions under way: their connection is gone.
    void abandon();

    bool isUnderWay() const { return m_context != nullptr; }

private:
    struct Sink {
        QByteArray name;
        QByteArray monitor;
        std::uint32_t index = 0;
        std::uint32_t monitorIndex = 0;
    };

    void askForServer();
    void askForSources();
    void askForSinks();
    void askForSourceOutputs();
    void askForSinkInputs();
    void finish();
    void fail();
    void take(const pa_server_info& server);
    void take(const pa_source_info& source);
    void take(const pa_sink_info& sink);
    void take(const pa_source_output_info& output);
    void take(const pa_sink_input_info& input);
    QList<QByteArray> farEnds() const;

    /// Hands what the server lists to take(), and goes on with the next question.
    template <typename Info, void (PulseSurvey::*next)()>
    static void listed(pa_context* context, const Info* info, int end, void* survey);

    Listener m_listener;
    pa_context* m_context = nullptr; ///< While a survey is under way.
    bool m_isOutdated = false;
    PulseFacts m_draft;
    QByteArray m_defaultSink;
    std::vector<Sink> m_sinks;
    std::vector<std::uint32_t> m_monitors; ///< Sources that hear a sink, not a microphone.
    std::vector<std::uint32_t> m_cables; ///< Sources that the server itself records.
    std::vector<std::uint32_t> m_playing; ///< Sinks on which something plays.
};

} // namespace Orvello
