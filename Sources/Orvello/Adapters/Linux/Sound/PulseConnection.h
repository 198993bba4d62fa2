#pragma once

#include "Orvello/Adapters/Linux/Sound/FarEndPlaces.h"
#include "Orvello/Adapters/Linux/Sound/PulseSurvey.h"
#include "Orvello/Foundation/WakeUp.h"

#include <pulse/pulseaudio.h>

#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <vector>

namespace Orvello {

/// This program's one connection to the sound server, PulseAudio or PipeWire, with a thread of its
/// own, the sound thread. It reconnects by itself when the server goes and comes back. Nothing here
/// waits for the server.
class PulseConnection final {
public:
    /// Hears of the connection, on the sound thread.
    class Client {
    public:
        /// How things are, for the first time after a connection and whenever they may differ.
        virtual void onFacts() = 0;
        virtual void onDisconnected() = 0; ///< What was made on the connection is dead.

    protected:
        ~Client() = default;
    };

    /// The microphone that is being recorded.
    struct Heard {
        QByteArray source;
        std::uint32_t recording = 0; ///< As the server numbers it.
        bool isDelivering = true;

        friend bool operator==(const Heard&, const Heard&) = default;
    };

    /// How things are, for the main thread.
    struct Condition {
        PulseFacts facts; ///< What the server said last, also while it is away.
        bool isKnown = false; ///< Whether it ever said anything.
        bool isAnswering = false;
        bool isRefused = false; ///< It does not let this program in.
        bool hadMicrophone = false; ///< There has been a microphone since the program began.
        std::optional<Heard> heard;
        QByteArray chosenMicrophone;
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

    PulseConnection(); ///< Begins to connect. Main thread.
    ~PulseConnection();
    PulseConnection(const PulseConnection&) = delete;
    PulseConnection& operator=(const PulseConnection&) = delete;

    /// Any thread.
    Condition condition() const;

    /// Asks the server again; the answer changes condition() later. Main thread.
    void refreshFacts();

    /// Empty for the server's default. Main thread.
    void chooseMicrophone(const QByteArray& source);

    /// `changed` runs on the main loop after condition() has changed. Main thread.
    void setObserver(std::function<void()> changed) { m_observer = std::move(changed); }

    // With the lock, or on the sound thread.

    void addClient(Client& client) { m_clients.push_back(&client); }
    void removeClient(Client& client) { std::erase(m_clients, &client); }
    /// Connected, and it has said how things are.
    bool isReady() const { return m_condition.isAnswering; }
    /// The source to ask for: a name, or empty for the server's choice. None when nothing is to be
    /// recorded.
    std::optional<QByteArray> microphone() const;
    /// What the echo reference in one of the places hears.
    std::optional<QByteArray> farEnd(std::size_t place) const { return m_farEnds.at(place); }
    void setHeard(const std::optional<Heard>& heard);
    pa_usec_t lastAnswer() const { return m_lastAnswer; } ///< By pa_rtclock_now().
    void onRefused();
    pa_context* context() const { return m_context; }
    void freeTimer(pa_time_event* timer) const { api()->time_free(timer); }

private:
    struct LoopDeleter {
        void operator()(pa_threaded_mainloop* loop) const { pa_threaded_mainloop_free(loop); }
    };

    pa_mainloop_api* api() const { return pa_threaded_mainloop_get_api(m_loop.get()); }
    void connect();
    void disconnect();
    void onStateChanged();
    void onReady();
    void onLost();
    void onFacts(const PulseFacts& facts);
    void beginSurvey();
    void tellClients();
    template <typename Change>
    void change(Change change);

    std::unique_ptr<pa_threaded_mainloop, LoopDeleter> m_loop;
    pa_context* m_context; ///< Always one, connected or not.
    pa_time_event* m_reconnectTimer = nullptr;
    PulseSurvey m_survey;
    std::optional<pa_usec_t> m_unansweredSince; ///< By pa_rtclock_now(), while a survey runs.
    pa_usec_t m_lastAnswer = 0;
    FarEndPlaces m_farEnds;
    std::vector<Client*> m_clients;

    /// Written with the loop's lock and this one, so that either is enough to read it.
    mutable std::mutex m_conditionLock;
    Condition m_condition;

    std::function<void()> m_observer;
    WakeUp m_changed { [this] {
        if (m_observer)
            m_observer();
    } };
};

} // namespace Orvello
