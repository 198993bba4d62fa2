#pragma once

#include "Orvello/Adapters/Linux/Sound/AwaitableState.h"
#include "Orvello/Adapters/Linux/Sound/PulseSurvey.h"

#include <pulse/pulseaudio.h>

#include <memory>
#include <vector>

namespace Orvello {

/// This program's one connection to the sound server, PulseAudio or PipeWire, with a thread of its
/// own, the sound thread. It reconnects by itself when the server goes and comes back.
class PulseConnection final {
public:
    /// Hears of the connection, on the sound thread.
    class Client {
    public:
        virtual void onConnected() = 0;
        virtual void onDisconnected() = 0; ///< What was made on the connection is dead.
        virtual void onDefaultsChanged() = 0; ///< Another default source or sink.

    protected:
        ~Client() = default;
    };

    /// Keeps the sound thread out while it exists. Never taken on the sound thread, which holds the
    /// lock during every callback.
    class Lock {
    public:
        explicit Lock(const PulseConnection& connection)
            : m_loop(connection.m_loop.get())
        {
            pa_threaded_mainloop_lock(m_loop);
        }
        ~Lock() { pa_threaded_mainloop_unlock(m_loop); }
        Lock(const Lock&) = delete;
        Lock& operator=(const Lock&) = delete;

    private:
        pa_threaded_mainloop* m_loop;
    };

    PulseConnection(); ///< Begins to connect; does not wait.
    ~PulseConnection();
    PulseConnection(const PulseConnection&) = delete;
    PulseConnection& operator=(const PulseConnection&) = delete;

    /// What the server said last; nothing while there is no server. Any thread; never waits.
    PulseFacts facts() const { return m_state.get().facts; }

    /// The same, but gives a missing connection a moment to come up. Main thread.
    PulseFacts factsOnceConnected();

    /// Asks the server again; the answer changes facts() later. Main thread; does not wait.
    void refreshFacts();

    /// With the lock, or on the sound thread.
    void addClient(Client& client) { m_clients.push_back(&client); }
    void removeClient(Client& client) { std::erase(m_clients, &client); }
    bool isConnected() const { return pa_context_get_state(m_context) == PA_CONTEXT_READY; }
    pa_context* context() const { return m_context; }
    void freeTimer(pa_time_event* timer) const;

private:
    struct LoopDeleter {
        void operator()(pa_threaded_mainloop* loop) const { pa_threaded_mainloop_free(loop); }
    };
    enum class Phase { Connecting, Connected, Disconnected };
    struct State {
        Phase phase = Phase::Connecting;
        PulseFacts facts;
    };

    void connect();
    void disconnect();
    void connectAnew();
    void onStateChanged();
    void onReady();
    void onLost();
    void onFacts(const PulseFacts& facts);

    std::unique_ptr<pa_threaded_mainloop, LoopDeleter> m_loop;
    pa_context* m_context = nullptr; ///< Always one, connected or not.
    pa_time_event* m_reconnectTimer = nullptr;
    PulseSurvey m_survey;
    std::vector<Client*> m_clients;
    AwaitableState<State> m_state;
};

} // namespace Orvello
