#include "Orvello/Prompting/Engine/SmoothScroll.h"

#include "Orvello/Prompting/Engine/ScrollEngine.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace Orvello {

namespace {

/// How far a frame may seem to miss the display's beat and still count as on it, in intervals. The
/// moment a frame is prepared varies; the moment it is shown does not.
constexpr double offBeat = 0.35;

} // namespace

SmoothScroll::SmoothScroll(const ScrollEngine& engine)
    : m_engine(engine)
    , m_shown(engine.offset())
{
}

double SmoothScroll::offsetAt(double now, double frameInterval)
{
    const double speed = m_engine.speed();
    const double onward = m_shown + elapsedUntil(now, frameInterval) * speed;
    if (m_engine.isMoving()) {
        const double exact = m_engine.offsetAt(now);
        const double farthest = exact - std::max(tickInterval * speed - longestLead, 0.0);
        const double inBounds = std::max(std::min(onward, farthest), exact - longestLag * speed);
        // At the beginning of a run the text waits until it is within bounds; it never goes back.
        m_shown = std::max(inBounds, std::min(m_shown, exact));
    } else {
        const double offset = m_engine.offset();
        const double behind = offset - m_shown;
        m_shown = behind > 0 && behind <= longestLag * speed ? std::min(onward, offset) : offset;
    }
    return m_shown;
}

bool SmoothScroll::isMoving() const { return m_engine.isMoving() || m_shown != m_engine.offset(); }

double SmoothScroll::elapsedUntil(double now, double frameInterval)
{
    const double elapsed = now - std::exchange(m_lastFrame, now);
    if (frameInterval <= 0)
        return elapsed;
    const double frames = std::round(elapsed / frameInterval);
    const bool isOnBeat = frames >= 1 && std::abs(elapsed / frameInterval - frames) <= offBeat;
    return isOnBeat ? frames * frameInterval : elapsed;
}

} // namespace Orvello
