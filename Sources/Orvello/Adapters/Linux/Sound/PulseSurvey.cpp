#include "Orvello/Adapters/Linux/Sound/PulseSurvey.h"

#include <algorithm>
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

qint64 processOf(const pa_source_output_info& output)
{
    const char* const text = pa_proplist_gets(output.proplist, PA_PROP_APPLICATION_PROCESS_ID);
    bool isNumber = false;
    const qint64 process = QByteArray(text).toLongLong(&isNumber);
    return isNumber ? process : unknownProcess;
}

} // namespace

PulseSurvey::PulseSurvey(std::function<void(const PulseFacts&)> report)
    : m_report(std::move(report))
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
    m_monitors.clear();
    askForServer();
}

void PulseSurvey::abandon() { m_context = nullptr; }

void PulseSurvey::askForServer()
{
    letGo(pa_context_get_server_info(
        m_context,
        [](pa_context*, const pa_server_info* server, void* survey) {
            if (server)
                surveyOf(survey).take(*server);
            surveyOf(survey).askForSources();
        },
        this));
}

void PulseSurvey::askForSources()
{
    letGo(pa_context_get_source_info_list(
        m_context,
        [](pa_context*, const pa_source_info* source, int end, void* survey) {
            if (end)
                surveyOf(survey).askForSourceOutputs();
            else
                surveyOf(survey).take(*source);
        },
        this));
}

void PulseSurvey::askForSourceOutputs()
{
    letGo(pa_context_get_source_output_info_list(
        m_context,
        [](pa_context*, const pa_source_output_info* output, int end, void* survey) {
            if (end)
                surveyOf(survey).finish();
            else
                surveyOf(survey).take(*output);
        },
        this));
}

void PulseSurvey::finish()
{
    pa_context* const context = std::exchange(m_context, nullptr);
    m_report(m_draft);
    if (m_isOutdated)
        begin(context);
}

void PulseSurvey::take(const pa_server_info& server)
{
    m_draft.defaultSource = server.default_source_name;
    m_draft.defaultSink = server.default_sink_name;
}

void PulseSurvey::take(const pa_source_info& source)
{
    // The user may have made a monitor their microphone.
    const bool isMicrophone = m_draft.defaultSource == source.name;
    if (isMicrophone)
        m_draft.defaultSourceRate = source.sample_spec.rate;
    else if (source.monitor_of_sink != PA_INVALID_INDEX)
        m_monitors.push_back(source.index);
}

void PulseSurvey::take(const pa_source_output_info& output)
{
    const bool isServersOwn = output.client == PA_INVALID_INDEX; // A loopback or a filter.
    const bool hearsSink
        = std::find(m_monitors.begin(), m_monitors.end(), output.source) != m_monitors.end();
    if (!output.corked && !isServersOwn && !hearsSink)
        m_draft.capturingProcesses.append(processOf(output));
}

} // namespace Orvello
