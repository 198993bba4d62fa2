#pragma once

#include <QColor>
#include <QObject>
#include <QString>

#include <array>

namespace Orvello {

class UserDefaults;

/// The user's preferences. Every property is read from the user defaults when the store is made and
/// written back, under the property's own name, on every assignment. Values are neither clamped nor
/// rounded here: callers keep them in range.
class SettingsStore final : public QObject {
    Q_OBJECT
    Q_PROPERTY(double fontSize READ fontSize WRITE setFontSize NOTIFY fontSizeChanged FINAL)
    Q_PROPERTY(QString textColorName READ textColorName WRITE setTextColorName NOTIFY
            textColorNameChanged FINAL)
    Q_PROPERTY(QColor textColor READ textColor NOTIFY textColorNameChanged FINAL)
    Q_PROPERTY(double backgroundOpacity READ backgroundOpacity WRITE setBackgroundOpacity NOTIFY
            backgroundOpacityChanged FINAL)
    Q_PROPERTY(double speed READ speed WRITE setSpeed NOTIFY speedChanged FINAL)
    Q_PROPERTY(
        bool stealthMode READ stealthMode WRITE setStealthMode NOTIFY stealthModeChanged FINAL)
    Q_PROPERTY(
        bool voiceFollow READ voiceFollow WRITE setVoiceFollow NOTIFY voiceFollowChanged FINAL)
    Q_PROPERTY(double voiceSensitivity READ voiceSensitivity WRITE setVoiceSensitivity NOTIFY
            voiceSensitivityChanged FINAL)
    Q_PROPERTY(QString microphone READ microphone NOTIFY microphoneChanged FINAL)
    Q_PROPERTY(double countdownSeconds READ countdownSeconds WRITE setCountdownSeconds NOTIFY
            countdownSecondsChanged FINAL)
    Q_PROPERTY(bool slideshowPauseKey READ slideshowPauseKey WRITE setSlideshowPauseKey NOTIFY
            slideshowPauseKeyChanged FINAL)
    Q_PROPERTY(bool slideSync READ slideSync WRITE setSlideSync NOTIFY slideSyncChanged FINAL)
    Q_PROPERTY(bool recordingBadgeFolded READ recordingBadgeFolded WRITE setRecordingBadgeFolded
            NOTIFY recordingBadgeFoldedChanged FINAL)
    Q_PROPERTY(double keptPace READ keptPace WRITE setKeptPace NOTIFY keptPaceChanged FINAL)
    Q_PROPERTY(QString cardTime READ cardTime WRITE setCardTime NOTIFY cardTimeChanged FINAL)
    Q_PROPERTY(qint64 onboardingSeenVersion READ onboardingSeenVersion WRITE
            setOnboardingSeenVersion NOTIFY onboardingSeenVersionChanged FINAL)

public:
    struct ColorPreset {
        QString name;
        QColor color;
    };

    /// `defaults` must outlive the store.
    explicit SettingsStore(UserDefaults& defaults, QObject* parent = nullptr);

    double fontSize() const { return m_fontSize; } ///< The size of the prompter's text, in points.
    void setFontSize(double points);

    const QString& textColorName() const { return m_textColorName; }
    void setTextColorName(const QString& name);
    QColor textColor() const; ///< The preset that `textColorName` names; white for an unknown name.
    static const std::array<ColorPreset, 6>& colorPresets(); ///< In the order of the choices.

    /// How opaque the card is, from 0 (clear) to 1.
    double backgroundOpacity() const { return m_backgroundOpacity; }
    void setBackgroundOpacity(double opacity);

    double speed() const { return m_speed; } ///< The scrolling speed, in points per second.
    void setSpeed(double pointsPerSecond);

    bool stealthMode() const { return m_stealthMode; }
    void setStealthMode(bool on);

    bool voiceFollow() const { return m_voiceFollow; }
    void setVoiceFollow(bool on);

    double voiceSensitivity() const { return m_voiceSensitivity; } ///< Higher hears quieter speech.
    void setVoiceSensitivity(double sensitivity);

    /// Which microphone is heard, by the identifier that the system gives it; empty for the
    /// system's choice.
    const QString& microphone() const { return m_microphone; }
    /// Its name for people, for the time when it is not connected.
    const QString& microphoneName() const { return m_microphoneName; }
    void setMicrophone(const QString& identifier, const QString& name);

    double countdownSeconds() const { return m_countdownSeconds; }
    void setCountdownSeconds(double seconds);

    bool slideshowPauseKey() const { return m_slideshowPauseKey; }
    void setSlideshowPauseKey(bool on);

    bool slideSync() const { return m_slideSync; }
    void setSlideSync(bool on);

    /// Whether what says that recordings show the prompter is only an eye.
    bool recordingBadgeFolded() const { return m_recordingBadgeFolded; }
    void setRecordingBadgeFolded(bool isFolded);

    /// The words a minute that every text keeps, whatever its speed then is; 0 for none.
    double keptPace() const { return m_keptPace; }
    void setKeptPace(double wordsPerMinute);

    /// Which times the card shows: "left", "elapsed", "both"; anything else is none.
    const QString& cardTime() const { return m_cardTime; }
    void setCardTime(const QString& times);

    qint64 onboardingSeenVersion() const { return m_onboardingSeenVersion; }
    void setOnboardingSeenVersion(qint64 version);

    /// The name of the file whose preferences could not be read at this start; empty for none.
    QString damagedFile() const;

Q_SIGNALS:
    void fontSizeChanged();
    void textColorNameChanged();
    void backgroundOpacityChanged();
    void speedChanged();
    void stealthModeChanged();
    void voiceFollowChanged();
    void voiceSensitivityChanged();
    void microphoneChanged();
    void countdownSecondsChanged();
    void slideshowPauseKeyChanged();
    void slideSyncChanged();
    void recordingBadgeFoldedChanged();
    void keptPaceChanged();
    void cardTimeChanged();
    void onboardingSeenVersionChanged();

private:
    /// Updates the value, stores it under the key, and announces it if it changed.
    template <typename Value, typename Signal>
    void assign(Value& member, const Value& value, const QString& key, Signal changed);

    UserDefaults& m_defaults;
    double m_fontSize;
    QString m_textColorName;
    double m_backgroundOpacity;
    double m_speed;
    bool m_stealthMode;
    bool m_voiceFollow;
    double m_voiceSensitivity;
    QString m_microphone;
    QString m_microphoneName;
    double m_countdownSeconds;
    bool m_slideshowPauseKey;
    bool m_slideSync;
    bool m_recordingBadgeFolded;
    double m_keptPace;
    QString m_cardTime;
    qint64 m_onboardingSeenVersion;
};

} // namespace Orvello
