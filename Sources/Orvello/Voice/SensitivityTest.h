#pragma once

#include "Orvello/Platform/Early/TimeSource.h"

#include <QObject>
#include <QString>

#include <memory>
#include <optional>
#include <span>
#include <vector>

namespace Orvello {

class SettingsStore;
class VoiceActivityEngine;

/// Listens to the user for five seconds and proposes a sensitivity that lets this voice through on
/// this microphone, and not the room. Captures meanwhile even where Voice-Follow is off. The
/// seconds begin once something is captured: the user may have to allow it first.
class SensitivityTest final : public QObject {
    Q_OBJECT
    Q_PROPERTY(bool isRunning READ isRunning NOTIFY changed FINAL)
    Q_PROPERTY(bool hasProposal READ hasProposal NOTIFY changed FINAL)
    // What to do, or what came of it, in the user's language. Empty before the first test.
    Q_PROPERTY(QString message READ message NOTIFY changed FINAL)

public:
    static constexpr double seconds = 5.0;

    /// What the settings offer.
    static constexpr double leastSensitivity = 0.1;
    static constexpr double mostSensitivity = 1.0;

    /// The sensitivity for a voice that was heard in blocks of this loudness (RMS, full scale 1).
    /// None when no voice stands out from the room.
    [[nodiscard]] static std::optional<double> proposalFor(std::span<const float> loudness);

    /// All must outlive the test.
    SensitivityTest(VoiceActivityEngine& voice, SettingsStore& settings, TimeSource& time);
    ~SensitivityTest() override;

    bool isRunning() const { return m_isRunning; }
    bool hasProposal() const { return m_proposal.has_value(); }
    std::optional<double> proposal() const { return m_proposal; }
    QString message() const;

    Q_INVOKABLE void begin(); ///< Does nothing while it runs.
    Q_INVOKABLE void useProposal(); ///< Makes it the setting.
    void hear(float rootMeanSquare); ///< One block.

Q_SIGNALS:
    void changed();

private:
    void onVoiceChanged();
    bool isInVain() const;
    void finish();
    void end();

    VoiceActivityEngine& m_voice;
    SettingsStore& m_settings;
    TimeSource& m_time;
    bool m_isRunning = false;
    std::unique_ptr<TimeSource::Ticket> m_timer; ///< While it listens.
    std::vector<float> m_loudness;
    bool m_isStarter = false; ///< Nothing was captured before it began.
    std::optional<double> m_proposal;
    QString m_failure; ///< Why there is no proposal.
};

} // namespace Orvello
