#include "Orvello/Prompting/Engine/ScrollEngine.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Settings/Store/SettingsStore.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Orvello {

namespace {

constexpr double frameInterval = 1.0 / 60.0;
constexpr double countdownInterval = 1.0;

/// Where the last line comes to rest: the share of the viewport's height that is above it.
constexpr double restingPlace = 0.3;

/// A text moved by less than this still counts as standing at its top, in points.
constexpr double topTolerance = 1.0;

/// Truncated toward zero; no countdown for a number that no 64-bit integer can hold.
qint64 wholeSeconds(double seconds)
{
    constexpr double limit = 9223372036854775808.0; // 2^63
    const double whole = std::trunc(seconds);
    return whole >= -limit && whole < limit ? static_cast<qint64>(whole) : 0;
}

} // namespace

ScrollEngine::ScrollEngine(SettingsStore& settings, TimeSource& time, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_time(time)
{
}

ScrollEngine::~ScrollEngine() = default;

void ScrollEngine::setOffset(double points) { publish(points, m_isRunning, m_countdown); }

bool ScrollEngine::isAtTop() const { return m_offset < topTolerance; }

void ScrollEngine::setHoverPaused(bool paused)
{
    if (assign(m_hoverPaused, paused))
        Q_EMIT hoverPausedChanged();
}

QString ScrollEngine::countdownText() const
{
    return m_countdown ? QString::number(*m_countdown) : QString();
}

void ScrollEngine::setVoiceFollowActive(bool active)
{
    if (assign(m_voiceFollowActive, active))
        Q_EMIT voiceFollowActiveChanged();
}

void ScrollEngine::setVoiceGate(bool open)
{
    if (assign(m_voiceGate, open))
        Q_EMIT voiceGateChanged();
}

void ScrollEngine::setContentHeight(double points)
{
    if (assign(m_contentHeight, points))
        Q_EMIT endOffsetChanged();
}

void ScrollEngine::setViewportHeight(double points)
{
    if (assign(m_viewportHeight, points))
        Q_EMIT endOffsetChanged();
}

double ScrollEngine::endOffset() const
{
    return std::max(m_contentHeight - restingPlace * m_viewportHeight, 0.0);
}

bool ScrollEngine::canScroll() const { return m_contentHeight > restingPlace * m_viewportHeight; }

double ScrollEngine::progress() const
{
    return canScroll() ? std::min(m_offset / endOffset(), 1.0) : 1.0;
}

void ScrollEngine::start()
{
    startTimerIfNeeded();
    if (canScroll() && m_offset >= endOffset())
        setOffset(0);

    const qint64 seconds = wholeSeconds(m_settings.countdownSeconds());
    if (seconds >= 1 && isAtTop() && !isCountingDown() && !m_isRunning)
        beginCountdown(seconds);
    else
        publish(m_offset, true, m_countdown);
}

void ScrollEngine::toggle()
{
    if (!m_isRunning && !isCountingDown()) {
        start();
        return;
    }
    m_countdownTimer.reset();
    publish(m_offset, false, std::nullopt);
}

void ScrollEngine::nudge(double delta)
{
    setOffset(std::clamp(m_offset - delta, 0.0, endOffset()));
}

void ScrollEngine::startTimerIfNeeded()
{
    if (m_timer)
        return;
    m_lastTick = m_time.now();
    m_timer = m_time.callEvery(frameInterval, [this] { tick(); });
}

bool ScrollEngine::isHeld() const { return m_hoverPaused || (m_voiceFollowActive && !m_voiceGate); }

double ScrollEngine::speed() const { return m_settings.speed(); }

bool ScrollEngine::isMoving() const
{
    return m_isRunning && !isHeld() && m_contentHeight > 0 && canScroll();
}

double ScrollEngine::offsetAt(double moment) const
{
    return isMoving() ? std::min(endOffset(), m_offset + (moment - m_lastTick) * speed())
                      : m_offset;
}

void ScrollEngine::tick()
{
    // Time passes on every frame, moving or not, so that the text never jumps when a hold ends.
    const double now = m_time.now();
    const double elapsed = now - std::exchange(m_lastTick, now);
    if (!isMoving())
        return;

    const double offset = std::min(endOffset(), m_offset + elapsed * speed());
    publish(offset, offset < endOffset(), m_countdown);
}

void ScrollEngine::beginCountdown(qint64 seconds)
{
    m_countdownTimer = m_time.callEvery(countdownInterval, [this] { countDown(); });
    publish(m_offset, m_isRunning, seconds);
}

void ScrollEngine::countDown()
{
    if (m_countdown >= 2) {
        publish(m_offset, m_isRunning, *m_countdown - 1);
        return;
    }
    m_countdownTimer.reset();
    publish(m_offset, true, std::nullopt);
}

void ScrollEngine::publish(double offset, bool isRunning, std::optional<qint64> countdown)
{
    const bool offsetChanges = assign(m_offset, offset);
    const bool isRunningChanges = assign(m_isRunning, isRunning);
    const bool countdownChanges = assign(m_countdown, countdown);
    if (offsetChanges)
        Q_EMIT offsetChanged();
    if (isRunningChanges)
        Q_EMIT isRunningChanged();
    if (countdownChanges)
        Q_EMIT countdownChanged();
}

} // namespace Orvello
