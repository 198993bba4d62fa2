#pragma once

#include <QObject>

namespace Orvello {

class VoiceActivityEngine;

/// How many of the level beam's bars the voice lights: the level, no finer than it is shown, so
/// that nothing is redrawn for a change that nobody can see.
class LevelMeter final : public QObject {
    Q_OBJECT
    Q_PROPERTY(int litBars READ litBars NOTIFY litBarsChanged FINAL)
    Q_PROPERTY(int barCount READ barCount CONSTANT FINAL)

public:
    static constexpr int bars = 5;

    /// `voice` must outlive it.
    explicit LevelMeter(const VoiceActivityEngine& voice, QObject* parent = nullptr);

    int litBars() const { return m_litBars; } ///< From the left.
    static int barCount() { return bars; }

    /// Bar i is lit when i / 5 is less than the level.
    [[nodiscard]] static int litBarsAt(float level);

Q_SIGNALS:
    void litBarsChanged();

private:
    int m_litBars;
};

} // namespace Orvello
