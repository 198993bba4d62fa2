#include "Orvello/Adapters/Linux/Sound/PulseSurvey.h"

#include <algorithm>
#include <unistd.h>
#include <utility>

namespace Orvello {

namespace {

PulseSurvey& surveyOf(void* userData) { return *static_cast<PulseSurvey*>(userData); }

void letGo(pa_operation* operation)
{
    if (operation)
        pa_operation_unref(operation);
}

/// Streams of programs on other machines or without the property count as a process that is not
/// known by number.
constexpr qint64 unknownProcess = -1;

/// What a program says of itself. In a sandbox its number is another one than outside, and perhaps
/// ours.
qint64 processOf(const pa_source_output_info& output)
{
    const char* const text = pa_proplist_gets(output.proplist, PA_PROP_APPLICATION_PROCESS_ID);
    bool isNumber = false;
    const qint64 process = QByteArray(text).toLongLong(&isNumber);
    return isNumber && process != ::getpid() ? process : unknownProcess;
}

bool contains(const std::vector<std::uint32_t>& indexes, std::uint32_t index)
{
    return std::find(indexes.begin(), indexes.end(), index) != indexes.end();
}

} // namespace

const PulseSource* PulseFacts::source(const QByteArray& name) const
{
    const auto found = std::find_if(sources.begin(), sources.end(),
        [&](const PulseSource& source) { return source.name == name; });
    return found == sources.end() ? nullptr : &*found;
}

bool PulseFacts::haveMicrophone() const
{
    return std::any_of(sources.begin(), sources.end(),
        [](const PulseSource& source) { return !source.isMonitor; });
}

PulseSurvey::PulseSurvey(Listener listener)
    : m_listener(std::move(listener))
{
}

void PulseSurvey::begin(pa_context* context)
{
    if (m_context) {
        m_isOutdated = true;
        return;
    }
    m_context = context;
    m_isOutdated = false;
    m_draft = {};
    m_sinks.clear();
    m_monitors.clear();
    m_cables.clear();
    m_playing.clear();
    askForServer();
}

void PulseSurvey::abandon() { m_context = nullptr; }

template <typename Info, void (PulseSurvey::*next)()>
void PulseSurvey::listed(pa_context*, const Info* info, int end, void* survey)
{
    if (end < 0)
        surveyOf(survey).fail();
    else if (end > 0)
        (surveyOf(survey).*next)();
    else
        surveyOf(survey).take(*info);
}

void PulseSurvey::askForServer()
{
    letGo(pa_context_get_server_info(
        m_context,
        [](pa_context*, const pa_server_info* server, void* survey) {
            if (!server)
                return surveyOf(survey).fail();
            surveyOf(survey).take(*server);
            surveyOf(survey).askForSources();
        },
        this));
}

void PulseSurvey::askForSources()
{
    letGo(pa_context_get_source_info_list(
        m_context, &listed<pa_source_info, &PulseSurvey::askForSinks>, this));
}

void PulseSurvey::askForSinks()
{
    letGo(pa_context_get_sink_info_list(
        m_context, &listed<pa_sink_info, &PulseSurvey::askForSourceOutputs>, this));
}

void PulseSurvey::askForSourceOutputs()
{
    letGo(pa_context_get_source_output_info_list(
        m_context, &listed<pa_source_output_info, &PulseSurvey::askForSinkInputs>, this));
}

void PulseSurvey::askForSinkInputs()
{
    letGo(pa_context_get_sink_input_info_list(
        m_context, &listed<pa_sink_input_info, &PulseSurvey::finish>, this));
}

void PulseSurvey::finish()
{
    pa_context* const context = std::exchange(m_context, nullptr);
    m_draft.farEnds = farEnds();
    m_listener.report(m_draft);
    if (m_isOutdated)
        begin(context);
}

/// What was heard until then is not the whole: it counts for nothing.
void PulseSurvey::fail()
{
    if (pa_context* const context = std::exchange(m_context, nullptr))
        m_listener.fail(pa_context_errno(context));
}

void PulseSurvey::take(const pa_server_info& server)
{
    m_draft.defaultSource = server.default_source_name;
    m_defaultSink = server.default_sink_name;
}

void PulseSurvey::take(const pa_source_info& source)
{
    const bool isMonitor = source.monitor_of_sink != PA_INVALID_INDEX;
    m_draft.sources.append(
        { source.name, QString::fromUtf8(source.description), source.sample_spec.rate, isMonitor,
            source.mute != 0 || pa_cvolume_is_muted(&source.volume) != 0 });
    // The user may have made a monitor their microphone.
    if (isMonitor && m_draft.defaultSource != source.name)
        m_monitors.push_back(source.index);
}

void PulseSurvey::take(const pa_sink_info& sink)
{
    m_sinks.push_back({ sink.name, sink.monitor_source_name, sink.index, sink.monitor_source });
}

void PulseSurvey::take(const pa_source_output_info& output)
{
    const bool isServersOwn = output.client == PA_INVALID_INDEX; // A loopback or a filter.
    const bool isOurs = output.client == pa_context_get_index(m_context);
    const bool isAtZero = output.has_volume != 0 && pa_cvolume_is_muted(&output.volume) != 0;
    if (isOurs && (output.mute != 0 || isAtZero))
        m_draft.mutedRecordings.append(output.index);
    if (isServersOwn)
        m_cables.push_back(output.source);
    else if (!output.corked && !contains(m_monitors, output.source))
        m_draft.capturingProcesses.append(isOurs ? ::getpid() : processOf(output));
}

void PulseSurvey::take(const pa_sink_input_info& input)
{
    if (!input.corked)
        m_playing.push_back(input.sink);
}

QList<QByteArray> PulseSurvey::farEnds() const
{
    QList<QByteArray> monitors;
    for (const Sink& sink : m_sinks) {
        if (sink.name == m_defaultSink)
            monitors.prepend(sink.monitor);
        else if (contains(m_playing, sink.index) && !contains(m_cables, sink.monitorIndex))
            monitors.append(sink.monitor);
    }
    return monitors;
}

} // namespace Orvello
