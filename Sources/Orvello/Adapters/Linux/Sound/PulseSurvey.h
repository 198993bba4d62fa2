#pragma once

#include <QByteArray>
#include <QList>

#include <pulse/pulseaudio.h>

#include <cstdint>
#include <functional>
#include <vector>

namespace Orvello {

/// What this program wants to know about a sound server.
struct PulseFacts {
    QByteArray defaultSource; ///< Names; empty when there is none.
    QByteArray defaultSink;
    std::uint32_t defaultSourceRate = 0; ///< Hertz.
    QList<qint64> capturingProcesses; ///< Identifiers of the processes that record a microphone.

    friend bool operator==(const PulseFacts&, const PulseFacts&) = default;
};

/// Collects the facts from a server, one question after the other. Sound thread.
class PulseSurvey {
public:
    explicit PulseSurvey(std::function<void(const PulseFacts&)> report);

    /// Asks everything; during a survey, once more after it.
    void begin(pa_context* context);

    /// Forgets the questions under way: their connection is gone.
    void abandon();

private:
    void askForServer();
    void askForSources();
    void askForSourceOutputs();
    void finish();
    void take(const pa_server_info& server);
    void take(const pa_source_info& source);
    void take(const pa_source_output_info& output);

    std::function<void(const PulseFacts&)> m_report;
    pa_context* m_context = nullptr; ///< While a survey is under way.
    bool m_isOutdated = false;
    PulseFacts m_draft;
    std::vector<std::uint32_t> m_monitors; ///< Sources that hear a sink, not a microphone.
};

} // namespace Orvello
