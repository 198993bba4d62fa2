#include "Orvello/Adapters/Linux/Sound/PulseConnection.h"

#include <utility>

namespace Orvello {

namespace {

constexpr pa_usec_t reconnectInterval = 1 * PA_USEC_PER_SEC;

/// A local server answers within milliseconds.
constexpr pa_usec_t answerPatience = 2 * PA_USEC_PER_SEC;

PulseConnection& connectionOf(void* userData) { return *static_cast<PulseConnection*>(userData); }

pa_context* makeContext(pa_mainloop_api* api)
{
    pa_proplist* const properties = pa_proplist_new();
    pa_proplist_sets(properties, PA_PROP_APPLICATION_NAME, "Orvello");
    pa_proplist_sets(properties, PA_PROP_APPLICATION_ID, "app.orvello");
    pa_context* const context = pa_context_new_with_proplist(api, "Orvello", properties);
    pa_proplist_free(properties);
    return context;
}

} // namespace

PulseConnection::PulseConnection()
    : m_loop(pa_threaded_mainloop_new())
    , m_context(makeContext(api()))
    , m_survey({ .report = [this](const PulseFacts& facts) { onFacts(facts); },
          .fail =
              [this](int error) {
                  m_unansweredSince.reset();
                  if (error == PA_ERR_ACCESS)
                      onRefused();
              } })
{
    pa_threaded_mainloop_set_name(m_loop.get(), "orvello-sound");
    // On the sound thread: to look for a server can take its time.
    pa_mainloop_api_once(
        api(), [](pa_mainloop_api*, void* connection) { connectionOf(connection).connect(); },
        this);
    pa_threaded_mainloop_start(m_loop.get());
}

PulseConnection::~PulseConnection()
{
    pa_threaded_mainloop_stop(m_loop.get());
    disconnect();
}

template <typename Change>
void PulseConnection::change(Change change)
{
    {
        const std::scoped_lock lock(m_conditionLock);
        change(m_condition);
    }
    m_changed.signal();
}

PulseConnection::Condition PulseConnection::condition() const
{
    const std::scoped_lock lock(m_conditionLock);
    return m_condition;
}

void PulseConnection::refreshFacts()
{
    const Lock lock(*this);
    if (pa_context_get_state(m_context) != PA_CONTEXT_READY)
        return;
    const bool isStalled
        = m_unansweredSince && pa_rtclock_now() - *m_unansweredSince > answerPatience;
    if (isStalled && m_condition.isAnswering)
        change([](Condition& condition) { condition.isAnswering = false; });
    beginSurvey();
}

void PulseConnection::chooseMicrophone(const QByteArray& source)
{
    const Lock lock(*this);
    if (m_condition.chosenMicrophone == source)
        return;
    change([&](Condition& condition) { condition.chosenMicrophone = source; });
    if (isReady())
        tellClients();
}

std::optional<QByteArray> PulseConnection::microphone() const
{
    const PulseFacts& facts = m_condition.facts;
    if (!m_condition.chosenMicrophone.isEmpty() && facts.source(m_condition.chosenMicrophone))
        return m_condition.chosenMicrophone;
    if (facts.haveMicrophone())
        return QByteArray();
    return std::nullopt;
}

void PulseConnection::setHeard(const std::optional<Heard>& heard)
{
    if (m_condition.heard == heard)
        return;
    change([&](Condition& condition) {
        condition.heard = heard;
        condition.isRefused = condition.isRefused && !heard;
    });
}

void PulseConnection::onRefused()
{
    change([](Condition& condition) { condition.isRefused = true; });
}

void PulseConnection::connect()
{
    pa_context_set_state_callback(
        m_context, [](pa_context*, void* connection) { connectionOf(connection).onStateChanged(); },
        this);
    // Starting a server is up to the session, not to us.
    if (pa_context_connect(m_context, nullptr, PA_CONTEXT_NOAUTOSPAWN, nullptr) < 0)
        onLost();
}

void PulseConnection::disconnect()
{
    m_survey.abandon();
    m_unansweredSince.reset();
    if (m_reconnectTimer)
        freeTimer(std::exchange(m_reconnectTimer, nullptr));
    pa_context_set_state_callback(m_context, nullptr, nullptr);
    pa_context_set_subscribe_callback(m_context, nullptr, nullptr);
    pa_context_disconnect(m_context);
    pa_context_unref(m_context);
}

void PulseConnection::onStateChanged()
{
    const pa_context_state_t state = pa_context_get_state(m_context);
    if (state == PA_CONTEXT_READY)
        onReady();
    else if (!PA_CONTEXT_IS_GOOD(state))
        onLost();
}

void PulseConnection::onReady()
{
    pa_context_set_subscribe_callback(
        m_context,
        [](pa_context*, pa_subscription_event_type_t, uint32_t, void* connection) {
            connectionOf(connection).beginSurvey();
        },
        this);
    change([](Condition& condition) { condition.isRefused = false; });
    constexpr auto interests = static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_SERVER
        | PA_SUBSCRIPTION_MASK_SOURCE | PA_SUBSCRIPTION_MASK_SOURCE_OUTPUT
        | PA_SUBSCRIPTION_MASK_SINK | PA_SUBSCRIPTION_MASK_SINK_INPUT);
    if (pa_operation* const operation
        = pa_context_subscribe(m_context, interests, nullptr, nullptr))
        pa_operation_unref(operation);
    beginSurvey();
}

void PulseConnection::onLost()
{
    if (m_reconnectTimer)
        return; // A connection that fails at once says so twice.
    m_survey.abandon();
    m_unansweredSince.reset();
    const bool isRefused = pa_context_errno(m_context) == PA_ERR_ACCESS;
    // The facts stay: nobody has said that they changed.
    change([&](Condition& condition) {
        condition.isAnswering = false;
        condition.isRefused = isRefused;
        condition.heard.reset();
    });
    for (Client* const client : m_clients)
        client->onDisconnected();
    m_reconnectTimer = pa_context_rttime_new(
        m_context, pa_rtclock_now() + reconnectInterval,
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* userData) {
            PulseConnection& connection = connectionOf(userData);
            connection.disconnect();
            connection.m_context = makeContext(connection.api());
            connection.connect();
        },
        this);
}

void PulseConnection::beginSurvey()
{
    if (!m_unansweredSince)
        m_unansweredSince = pa_rtclock_now();
    m_survey.begin(m_context);
}

void PulseConnection::onFacts(const PulseFacts& facts)
{
    m_unansweredSince.reset();
    m_lastAnswer = pa_rtclock_now();
    const bool isNews = !m_condition.isAnswering || m_condition.facts != facts;
    if (isNews)
        change([&](Condition& condition) {
            condition.facts = facts;
            condition.isKnown = true;
            condition.isAnswering = true;
            condition.hadMicrophone = condition.hadMicrophone || facts.haveMicrophone();
        });
    tellClients();
}

void PulseConnection::tellClients()
{
    QList<QByteArray> farEnds = m_condition.facts.farEnds;
    // What the user made their microphone is no echo of it.
    farEnds.removeAll(
        m_condition.heard ? m_condition.heard->source : m_condition.facts.defaultSource);
    m_farEnds.assign(farEnds);
    for (Client* const client : m_clients)
        client->onFacts();
}

} // namespace Orvello
