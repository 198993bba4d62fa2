#include "Orvello/Foundation/WakeUp.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>
#include <utility>

namespace Orvello {

namespace {

void neverBlockNorInherit(int descriptor)
{
    ::fcntl(descriptor, F_SETFL, ::fcntl(descriptor, F_GETFL) | O_NONBLOCK);
    ::fcntl(descriptor, F_SETFD, FD_CLOEXEC);
}

} // namespace

WakeUp::WakeUp(std::function<void()> action)
    : m_action(std::move(action))
{
    if (::pipe(m_pipe.data()) != 0)
        return; // Out of descriptors: nothing in this process works any longer.
    for (const int end : m_pipe)
        neverBlockNorInherit(end);
    m_notifier = std::make_unique<QSocketNotifier>(m_pipe[0], QSocketNotifier::Read);
    QObject::connect(
        m_notifier.get(), &QSocketNotifier::activated, m_notifier.get(), [this] { receive(); });
}

WakeUp::~WakeUp()
{
    m_notifier.reset();
    for (const int end : m_pipe)
        if (end >= 0)
            ::close(end);
}

void WakeUp::signal() noexcept
{
    if (m_isPending.exchange(true, std::memory_order_acq_rel))
        return;
    const char byte = 0;
    while (::write(m_pipe[1], &byte, 1) < 0 && errno == EINTR) { }
}

void WakeUp::receive()
{
    char byte = 0;
    while (::read(m_pipe[0], &byte, 1) < 0 && errno == EINTR) { }
    // Ready for the next signal before the action runs, so that a signal during the action is not
    // lost.
    m_isPending.exchange(false, std::memory_order_acq_rel);
    const std::function<void()> action = m_action; // It may destroy this.
    action();
}

} // namespace Orvello
