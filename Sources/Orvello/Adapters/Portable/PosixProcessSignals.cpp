#include "Orvello/Adapters/Portable/PosixProcessSignals.h"

#include <QSocketNotifier>

#include <array>
#include <atomic>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace Orvello {

namespace {

constexpr int signalLimit = 65; // Signals are numbered 1 to 64 at most.

/// The write ends of the pipes, by signal number, plus one: 0 stands for none. Read by the handler.
std::array<std::atomic<int>, signalLimit> pipeOfSignal {};
static_assert(std::atomic<int>::is_always_lock_free);

void forwardSignal(int signal)
{
    const int savedError = errno;
    const int pipe = pipeOfSignal[static_cast<std::size_t>(signal)].load() - 1;
    if (pipe >= 0) {
        const char wake = 1;
        // A full pipe already holds as many wake-ups as anybody needs.
        [[maybe_unused]] const ssize_t written = ::write(pipe, &wake, 1);
    }
    errno = savedError;
}

void makeQuiet(int descriptor)
{
    ::fcntl(descriptor, F_SETFL, ::fcntl(descriptor, F_GETFL) | O_NONBLOCK);
    ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
}

class PipeSubscription final : public ProcessSignals::Subscription {
public:
    PipeSubscription(int signal, std::function<void()> handler)
        : m_signal(signal)
        , m_handler(std::move(handler))
    {
        if (::pipe(m_pipe.data()) != 0) {
            static_cast<void>(std::signal(signal, SIG_IGN));
            return;
        }
        makeQuiet(m_pipe[0]);
        makeQuiet(m_pipe[1]);
        m_notifier = std::make_unique<QSocketNotifier>(m_pipe[0], QSocketNotifier::Read);
        QObject::connect(
            m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { drain(); });

        pipeOfSignal[static_cast<std::size_t>(signal)] = m_pipe[1] + 1;
        struct sigaction action { };
        action.sa_handler = forwardSignal;
        action.sa_flags = SA_RESTART;
        ::sigemptyset(&action.sa_mask);
        ::sigaction(signal, &action, nullptr);
    }

    ~PipeSubscription() override
    {
        static_cast<void>(std::signal(m_signal, SIG_IGN));
        pipeOfSignal[static_cast<std::size_t>(m_signal)] = 0;
        m_notifier.reset();
        for (const int end : m_pipe) {
            if (end >= 0)
                ::close(end);
        }
    }

private:
    /// Every byte is one arrival; signals that the kernel merged are one.
    void drain()
    {
        const std::function<void()> handler = m_handler; // It may drop this subscription.
        std::array<char, 64> wakes;
        const ssize_t count = ::read(m_pipe[0], wakes.data(), wakes.size());
        for (ssize_t i = 0; i < count; ++i)
            handler();
    }

    int m_signal;
    std::function<void()> m_handler;
    std::array<int, 2> m_pipe { -1, -1 };
    std::unique_ptr<QSocketNotifier> m_notifier;
};

} // namespace

std::unique_ptr<ProcessSignals::Subscription> PosixProcessSignals::handle(
    int signal, std::function<void()> handler)
{
    return std::make_unique<PipeSubscription>(signal, std::move(handler));
}

} // namespace Orvello
