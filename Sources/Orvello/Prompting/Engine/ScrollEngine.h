#pragma once

#include "Orvello/Platform/Early/TimeSource.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>

namespace Orvello {

class SettingsStore;

/// Owns how far the prompter's text is moved up, and everything that moves it: the constant speed,
/// the start countdown, the hover and voice holds, and nudges by hand. Lengths are in points. Main
/// thread.
class ScrollEngine final : public QObject {
    Q_OBJECT
    Q_PROPERTY(
        bool hoverPaused READ hoverPaused WRITE setHoverPaused NOTIFY hoverPausedChanged FINAL)
    Q_PROPERTY(bool isCountingDown READ isCountingDown NOTIFY countdownChanged FINAL)
    Q_PROPERTY(QString countdownText READ countdownText NOTIFY countdownChanged FINAL)

public:
    /// Both must outlive the engine.
    ScrollEngine(SettingsStore& settings, TimeSource& time, QObject* parent = nullptr);
    ~ScrollEngine() override;

    double offset() const { return m_offset; }
    void setOffset(double points); ///< As given; the next tick or nudge brings it into range.

    /// True while the text scrolls, or would if not for the pointer or the voice gate.
    bool isRunning() const { return m_isRunning; }

    bool hoverPaused() const { return m_hoverPaused; }
    void setHoverPaused(bool paused);

    /// Seconds still to wait before scrolling starts; nothing when no countdown is in progress.
    std::optional<qint64> countdown() const { return m_countdown; }
    bool isCountingDown() const { return m_countdown.has_value(); }
    QString countdownText() const; ///< The number as it is shown; empty without a countdown.

    bool voiceFollowActive() const { return m_voiceFollowActive; }
    void setVoiceFollowActive(bool active);

    bool voiceGate() const { return m_voiceGate; }
    void setVoiceGate(bool open); ///< Open while the speaker speaks.

    bool isAtTop() const; ///< But for a point that nobody sees.

    double contentHeight() const { return m_contentHeight; }
    void setContentHeight(double points); ///< The height of the whole text, as laid out.

    double viewportHeight() const { return m_viewportHeight; }
    void setViewportHeight(double points); ///< The height of the visible text area.

    double speed() const; ///< The speed in the settings, in points per second.

    double now() const { return m_time.now(); } ///< The time on the clock that it scrolls by.

    /// Whether the next tick moves the text on.
    bool isMoving() const;

    /// Where the offset would stand at a moment of the clock after the last tick, if it moved on
    /// without a break: the line on which the ticks lie.
    double offsetAt(double moment) const;

    /// Where scrolling ends: the last line then stands 30 % of the viewport below its top.
    double endOffset() const;

    /// How much of the way is done, 0 to 1; 1 for a text too short to scroll.
    double progress() const;

    /// Begins to scroll, from the top after the countdown of the settings. A finished text starts
    /// again from the top.
    void start();

    /// Starts when idle; otherwise stops and cancels a countdown.
    void toggle();

    /// Moves the text back toward its start by `delta` points, onward when negative.
    void nudge(double delta);

Q_SIGNALS:
    void offsetChanged();
    void endOffsetChanged();
    void isRunningChanged();
    void hoverPausedChanged();
    void countdownChanged();
    void voiceFollowActiveChanged();
    void voiceGateChanged();

private:
    bool canScroll() const;
    bool isHeld() const;
    void startTimerIfNeeded();
    void tick();
    void beginCountdown(qint64 seconds);
    void countDown();

    /// Writes the three together and then announces those that changed, so that no observer sees
    /// one without the others.
    void publish(double offset, bool isRunning, std::optional<qint64> countdown);

    SettingsStore& m_settings;
    TimeSource& m_time;
    double m_offset = 0;
    bool m_isRunning = false;
    bool m_hoverPaused = false;
    std::optional<qint64> m_countdown;
    bool m_voiceFollowActive = false;
    bool m_voiceGate = false;
    double m_contentHeight = 0;
    double m_viewportHeight = 0;
    double m_lastTick = 0; ///< Monotonic seconds.
    std::unique_ptr<TimeSource::Ticket> m_timer;
    std::unique_ptr<TimeSource::Ticket> m_countdownTimer;
};

} // namespace Orvello
