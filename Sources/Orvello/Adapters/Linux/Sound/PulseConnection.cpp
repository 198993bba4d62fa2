#include "Orvello/Adapters/Linux/Sound/PulseConnection.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace Orvello {

namespace {

using namespace std::chrono_literals;

constexpr pa_usec_t reconnectInterval = 1 * PA_USEC_PER_SEC;

// A local server answers within milliseconds; one that hangs must not take the window with it.
constexpr auto connectionPatience = 500ms;

PulseConnection& connectionOf(void* userData) { return *static_cast<PulseConnection*>(userData); }

pa_context* makeContext(pa_threaded_mainloop* loop)
{
    pa_proplist* const properties = pa_proplist_new();
    pa_proplist_sets(properties, PA_PROP_APPLICATION_NAME, "Orvello");
    pa_proplist_sets(properties, PA_PROP_APPLICATION_ID, "app.orvello");
    pa_context* const context
        = pa_context_new_with_proplist(pa_threaded_mainloop_get_api(loop), "Orvello", properties);
    pa_proplist_free(properties);
    return context;
}

} // namespace

PulseConnection::PulseConnection()
    : m_loop(pa_threaded_mainloop_new())
    , m_survey([this](const PulseFacts& facts) { onFacts(facts); })
{
    pa_threaded_mainloop_set_name(m_loop.get(), "orvello-sound");
    connect();
    pa_threaded_mainloop_start(m_loop.get());
}

PulseConnection::~PulseConnection()
{
    pa_threaded_mainloop_stop(m_loop.get());
    disconnect();
}

PulseFacts PulseConnection::factsOnceConnected()
{
    if (m_state.get().phase == Phase::Disconnected) {
        const Lock lock(*this);
        connectAnew();
    }
    const auto isSettled = [](const State& state) { return state.phase != Phase::Connecting; };
    return m_state.await(connectionPatience, isSettled).facts;
}

void PulseConnection::refreshFacts()
{
    const Lock lock(*this);
    if (isConnected())
        m_survey.begin(m_context);
}

void PulseConnection::freeTimer(pa_time_event* timer) const
{
    pa_threaded_mainloop_get_api(m_loop.get())->time_free(timer);
}

void PulseConnection::connect()
{
    m_state.set({ Phase::Connecting, {} });
    m_context = makeContext(m_loop.get());
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
    if (m_reconnectTimer)
        freeTimer(std::exchange(m_reconnectTimer, nullptr));
    pa_context_set_state_callback(m_context, nullptr, nullptr);
    pa_context_set_subscribe_callback(m_context, nullptr, nullptr);
    pa_context_disconnect(m_context);
    pa_context_unref(m_context);
}

void PulseConnection::connectAnew()
{
    disconnect();
    connect();
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
        [](pa_context* context, pa_subscription_event_type_t, uint32_t, void* connection) {
            connectionOf(connection).m_survey.begin(context);
        },
        this);
    constexpr auto interests = static_cast<pa_subscription_mask_t>(PA_SUBSCRIPTION_MASK_SERVER
        | PA_SUBSCRIPTION_MASK_SOURCE | PA_SUBSCRIPTION_MASK_SOURCE_OUTPUT);
    if (pa_operation* const operation
        = pa_context_subscribe(m_context, interests, nullptr, nullptr))
        pa_operation_unref(operation);
    m_survey.begin(m_context);
    for (Client* const client : m_clients)
        client->onConnected();
}

void PulseConnection::onLost()
{
    if (m_reconnectTimer)
        return; // A connection that fails at once says so twice.
    m_survey.abandon();
    m_state.set({ Phase::Disconnected, {} });
    for (Client* const client : m_clients)
        client->onDisconnected();
    m_reconnectTimer = pa_context_rttime_new(
        m_context, pa_rtclock_now() + reconnectInterval,
        [](pa_mainloop_api*, pa_time_event*, const timeval*, void* connection) {
            connectionOf(connection).connectAnew();
        },
        this);
}

void PulseConnection::onFacts(const PulseFacts& facts)
{
    const State before = m_state.get();
    m_state.set({ Phase::Connected, facts });
    const bool defaultsChanged = before.facts.defaultSource != facts.defaultSource
        || before.facts.defaultSink != facts.defaultSink;
    if (before.phase == Phase::Connected && defaultsChanged)
        for (Client* const client : m_clients)
            client->onDefaultsChanged();
}

} // namespace Orvello
