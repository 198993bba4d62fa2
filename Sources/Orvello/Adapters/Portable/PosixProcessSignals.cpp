#include "Orvello/Adapters/Portable/PosixProcessSignals.h"

#include "Orvello/Foundation/WakeUp.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <utility>

namespace Orvello {

namespace {

/// What the handler of a signal may touch: atomics, and write(2) on a wake-up's pipe.
struct Arrivals {
    std::atomic<int> count = 0; ///< How many came since the main loop last looked.
    std::atomic<WakeUp*> wakeUp = nullptr; ///< Null while nobody handles the signal.
};
static_assert(std::atomic<WakeUp*>::is_always_lock_free && std::atomic<int>::is_always_lock_free);

Arrivals& arrivalsOf(int signal)
{
    constexpr int signalLimit = 65; // Signals are numbered 1 to 64 at most.
    constinit static std::array<Arrivals, signalLimit> all {};
    return all[static_cast<std::size_t>(signal)];
}

void noteSignal(int signal)
{
    const int savedError = errno;
    Arrivals& arrivals = arrivalsOf(signal);
    ++arrivals.count;
    if (WakeUp* const wakeUp = arrivals.wakeUp)
        wakeUp->signal();
    errno = savedError;
}

class SignalSubscription final : public ProcessSignals::Subscription {
public:
    SignalSubscription(int signal, std::function<void()> handler)
        : m_signal(signal)
        , m_handler(std::move(handler))
    {
        arrivalsOf(signal).count = 0;
        arrivalsOf(signal).wakeUp = &m_wakeUp;
        struct sigaction action { };
        action.sa_handler = noteSignal;
        action.sa_flags = SA_RESTART;
        sigemptyset(&action.sa_mask); // Unqualified: some systems have a macro of this name.
        ::sigaction(signal, &action, nullptr);
    }

    ~SignalSubscription() override
    {
        static_cast<void>(std::signal(m_signal, SIG_IGN));
        arrivalsOf(m_signal).wakeUp = nullptr;
    }

private:
    /// Signals that the kernel merged count as one.
    void handleArrivals()
    {
        const std::function<void()> handler = m_handler; // It may drop this subscription.
        for (int left = arrivalsOf(m_signal).count.exchange(0); left > 0; --left)
            handler();
    }

    int m_signal;
    std::function<void()> m_handler;
    WakeUp m_wakeUp { [this] { handleArrivals(); } };
};

} // namespace

bool PosixProcessSignals::isIgnored(int signal) const
{
    struct sigaction action { };
    return ::sigaction(signal, nullptr, &action) == 0 && action.sa_handler == SIG_IGN;
}

std::unique_ptr<ProcessSignals::Subscription> PosixProcessSignals::handle(
    int signal, std::function<void()> handler)
{
    return std::make_unique<SignalSubscription>(signal, std::move(handler));
}

} // namespace Orvello
