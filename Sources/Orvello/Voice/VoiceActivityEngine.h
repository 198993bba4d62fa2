#pragma once

#include "Orvello/Foundation/WakeUp.h"
#include "Orvello/Platform/Early/TimeSource.h"
#include "Orvello/Platform/Sound/Microphones.h"
#include "Orvello/Platform/Sound/SampleListener.h"
#include "Orvello/Voice/ReportQueue.h"
#include "Orvello/Voice/SensitivityTest.h"
#include "Orvello/Voice/VoiceActivityDetector.h"
#include "Orvello/Voice/VoiceProcessingCapture.h"

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariant>

#include <atomic>
#include <memory>
#include <optional>
#include <span>

namespace Orvello {

class MicActivity;
class MicrophonePermission;
class RawMicrophone;
class SettingsStore;
class VoiceProcessing;
class Workspace;

/// Owns the microphone while the prompter follows the voice. It prefers the voice-processing unit,
/// whose echo cancellation keeps what this computer plays from moving the prompter, and holds it
/// back for the raw microphone while another program needs the microphone too: the unit would spoil
/// that program's sound. Main thread, but for the samples.
class VoiceActivityEngine final : public QObject, private SampleListener {
    Q_OBJECT
    Q_PROPERTY(bool isSpeaking READ isSpeaking NOTIFY isSpeakingChanged FINAL)
    Q_PROPERTY(float level READ level NOTIFY levelChanged FINAL)
    // Null until the permission is known.
    Q_PROPERTY(QVariant micAuthorized READ micAuthorizedOrNull NOTIFY micAuthorizedChanged FINAL)
    Q_PROPERTY(bool isListening READ isListening NOTIFY isListeningChanged FINAL)
    Q_PROPERTY(bool aecActive READ aecActive NOTIFY aecActiveChanged FINAL)
    // In the user's language; empty while echo cancellation is not held.
    Q_PROPERTY(QString aecHoldReason READ aecHoldReasonForPeople NOTIFY aecHoldReasonChanged FINAL)

    // What is heard, or why nothing is.
    Q_PROPERTY(Trouble trouble READ trouble NOTIFY statusChanged FINAL)
    Q_PROPERTY(EchoCancellation echoCancellation READ echoCancellation NOTIFY statusChanged FINAL)
    Q_PROPERTY(QString microphoneName READ microphoneName NOTIFY statusChanged FINAL)
    // Which microphone is heard, or why none is, in the user's language, as a whole sentence; and
    // the same with a line about echo cancellation. Empty while nothing is wanted.
    Q_PROPERTY(QString hearing READ hearing NOTIFY statusChanged FINAL)
    Q_PROPERTY(QString status READ status NOTIFY statusChanged FINAL)
    // The choices of a microphone; the first is the system's own. Empty where there is no choice.
    Q_PROPERTY(QStringList microphoneChoices READ microphoneChoices NOTIFY choicesChanged FINAL)
    Q_PROPERTY(int microphoneIndex READ microphoneIndex NOTIFY choicesChanged FINAL)
    // Where the threshold stands among the levels.
    Q_PROPERTY(float thresholdLevel READ thresholdLevel NOTIFY thresholdLevelChanged FINAL)
    Q_PROPERTY(Orvello::SensitivityTest* sensitivityTest READ sensitivityTest CONSTANT FINAL)

public:
    /// Why nothing can be heard although it is wanted.
    enum class Trouble {
        None,
        PermissionDenied,
        NoAnswer,
        NoMicrophone,
        Muted,
        Withheld,
        NotStarted, ///< It began in vain, and is not tried again before the next start.
    };
    Q_ENUM(Trouble)

    enum class EchoCancellation {
        Off, ///< Nothing is captured.
        On,
        HeldForOtherProgram,
        HeldForMeeting,
        Unavailable, ///< The system could not begin it.
    };
    Q_ENUM(EchoCancellation)

    /// What the engine needs of the system. All must outlive it.
    struct Ports {
        TimeSource& time; ///< Its now() is also asked on the audio thread.
        MicrophonePermission& permission;
        VoiceProcessing& voiceProcessing;
        RawMicrophone& rawMicrophone;
        MicActivity& micActivity;
        Microphones& microphones;
        const Workspace& workspace;
    };

    /// Touches no audio. `settings` must outlive the engine.
    VoiceActivityEngine(SettingsStore& settings, const Ports& ports, QObject* parent = nullptr);
    ~VoiceActivityEngine() override;

    bool isSpeaking() const { return m_isSpeaking; } ///< The gate of the scrolling.
    float level() const { return m_level; } ///< Smoothed loudness, 0 to 1.
    std::optional<bool> micAuthorized() const { return m_micAuthorized; }
    bool isListening() const { return m_isListening; }
    /// It is wanted, and may be: it listens, waits for a microphone, or began in vain.
    bool isStarted() const { return m_patience || m_watchdog; }
    bool aecActive() const { return m_aecActive; } ///< Echo cancellation is on.
    /// Why echo cancellation is held, as the log says it; none when it is not.
    std::optional<QString> aecHoldReason() const;

    Trouble trouble() const;
    EchoCancellation echoCancellation() const;
    const QString& microphoneName() const { return m_sound.heard; }
    QString troubleForPeople() const; ///< A sentence in the user's language; empty without trouble.
    QString hearing() const;
    QString status() const;
    QStringList microphoneChoices() const;
    int microphoneIndex() const;
    Q_INVOKABLE void chooseMicrophone(int index); ///< Of the choices; ignores any other.
    float thresholdLevel() const;
    SensitivityTest* sensitivityTest() { return &m_sensitivityTest; }

    void requestPermissionAndStart();
    void stop();

Q_SIGNALS:
    void isSpeakingChanged();
    void levelChanged();
    void micAuthorizedChanged();
    void isListeningChanged();
    void aecActiveChanged();
    void aecHoldReasonChanged();
    void statusChanged();
    void choicesChanged();
    void thresholdLevelChanged();

private:
    QVariant micAuthorizedOrNull() const;
    /// Why echo cancellation is held: another program has the microphone, or a meeting application
    /// is open.
    struct HoldReason {
        QString meetingApp; ///< Empty when another program has the microphone.

        QString logText() const;
        friend bool operator==(const HoldReason&, const HoldReason&) = default;
    };

    QString aecHoldReasonForPeople() const;

    template <typename Value>
    void publish(Value& member, const Value& value, void (VoiceActivityEngine::*changed)());

    void requestPermission();
    void start();
    void awaitMicrophone();
    bool isDead() const; ///< Started in vain: nothing will be captured before the next start.
    void choosePath();
    void onMicrophonesChanged();
    QString echoCancellationForPeople() const;
    void startWatchdog();
    void watchdogTick();
    void reconsiderHold(const std::optional<HoldReason>& reason);
    std::optional<HoldReason> holdReason() const;
    std::optional<QString> runningMeetingAppName() const;

    enum class RawPathCause { EnvironmentHoldsAec, VoiceProcessingFailed };
    void startFallback(RawPathCause cause, const std::optional<HoldReason>& reason);
    void stopCurrentCapture();
    void fallSilent();
    void noticeSilence();

    void onSamples(std::span<const float> samples) noexcept override;
    void process(std::span<const float> samples) noexcept; ///< The audio thread.

    void applyPendingReports();
    void apply(const BlockReport& report);

    SettingsStore& m_settings;
    Ports m_ports;

    bool m_isSpeaking = false;
    float m_level = 0;
    std::optional<bool> m_micAuthorized;
    bool m_isListening = false;
    bool m_aecActive = false;
    std::optional<HoldReason> m_aecHoldReason;

    Microphones::State m_sound; ///< As last seen.

    VoiceProcessingCapture m_voiceProcessing;
    bool m_usingFallback = false;
    bool m_fallbackIsEnvironmental = false;
    int m_clearPolls = 0;
    std::unique_ptr<TimeSource::Ticket>
        m_patience; ///< While it waits for a microphone to start on.
    std::unique_ptr<TimeSource::Ticket> m_watchdog;
    bool m_hasHeard = false; ///< A block came since the watchdog last looked.

    VoiceActivityDetector m_detector; ///< The audio thread's, while one runs.
    std::atomic<bool> m_hasGap = false; ///< The next block continues nothing.
    std::atomic<double> m_sensitivity; ///< Mirrors the setting for the audio thread.
    ReportQueue m_reports;
    WakeUp m_reportsArrived;
    SensitivityTest m_sensitivityTest;
};

} // namespace Orvello
