#pragma once

namespace Orvello {

class ScrollEngine;

/// Where the text stands at the moment a frame is drawn. The engine's offset advances by the tick
/// of a timer; shown as it is, sixty ticks a second beat against the frames of any display. Between
/// two ticks the text moves on at the engine's speed, in steps as even as the frames, and stays so
/// close to the tick that stopping never shows: the text never runs ahead of the offset by more
/// than half a point, and rests exactly at it.
class SmoothScroll {
public:
    static constexpr double tickInterval = 1.0 / 60.0; ///< The engine's, in seconds.

    /// How far the text may be behind the moment, in seconds.
    static constexpr double longestLag = tickInterval + 0.003;

    /// How far the text may be ahead of the offset, in points. At slow speeds that is a whole tick,
    /// so that the text is where it should be at every moment.
    static constexpr double longestLead = 0.5;

    explicit SmoothScroll(const ScrollEngine& engine); ///< `engine` must outlive it.

    /// The offset to draw in a frame at this moment of the engine's clock, on a display with that
    /// many seconds between two frames; 0 where that is not known. Moments never go back.
    double offsetAt(double now, double frameInterval);

    /// Whether a frame drawn now would, or the next one might, look different from the last.
    bool isMoving() const;

private:
    double elapsedUntil(double now, double frameInterval);

    const ScrollEngine& m_engine;
    double m_lastFrame = 0;
    double m_shown = 0;
};

} // namespace Orvello
