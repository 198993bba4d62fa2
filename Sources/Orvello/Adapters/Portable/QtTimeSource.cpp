#include "Orvello/Adapters/Portable/QtTimeSource.h"

#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cmath>
#include <cstdint>
#include <utility>

namespace Orvello {

namespace {

double secondsOf(auto timePoint)
{
    return std::chrono::duration<double>(timePoint.time_since_epoch()).count();
}

/// A Qt timer that serves one call or a series. Qt counts in whole milliseconds, so a series aims
/// each call at a multiple of its exact period: single calls are up to a millisecond off, their
/// average is not.
class QtTicket final : public TimeSource::Ticket {
public:
    enum class Kind { Once, Series };

    QtTicket(const TimeSource& time, Kind kind, double seconds, TimeSource::Action action)
        : m_time(time)
        , m_kind(kind)
        , m_period(seconds)
        , m_due(time.now() + seconds)
        , m_action(std::make_shared<TimeSource::Action>(std::move(action)))
    {
        m_timer.setSingleShot(true);
        m_timer.setTimerType(Qt::PreciseTimer);
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { fire(); });
        arm();
    }

private:
    void arm()
    {
        const double wait = std::max(m_due - m_time.now(), 0.0) * 1000.0;
        const double rounded = m_kind == Kind::Series ? std::round(wait) : std::ceil(wait);
        m_timer.start(std::chrono::milliseconds(static_cast<std::int64_t>(rounded)));
    }

    void fire()
    {
        if (m_kind == Kind::Series) {
            const double missed = std::floor(std::max(m_time.now() - m_due, 0.0) / m_period);
            m_due += (missed + 1) * m_period;
            arm();
        }
        // The action may drop this ticket: hold what it needs on the stack and touch no member
        // afterwards.
        const std::shared_ptr<TimeSource::Action> action = m_action;
        (*action)();
    }

    const TimeSource& m_time;
    Kind m_kind;
    double m_period;
    double m_due;
    std::shared_ptr<TimeSource::Action> m_action;
    QTimer m_timer;
};

} // namespace

double QtTimeSource::now() const { return secondsOf(std::chrono::steady_clock::now()); }

Date QtTimeSource::date() const
{
    return Date::fromUnixSeconds(secondsOf(std::chrono::system_clock::now()));
}

std::unique_ptr<TimeSource::Ticket> QtTimeSource::callAfter(double seconds, Action action)
{
    return std::make_unique<QtTicket>(*this, QtTicket::Kind::Once, seconds, std::move(action));
}

std::unique_ptr<TimeSource::Ticket> QtTimeSource::callEvery(double seconds, Action action)
{
    return std::make_unique<QtTicket>(*this, QtTicket::Kind::Series, seconds, std::move(action));
}

} // namespace Orvello
