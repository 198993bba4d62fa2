#include "Orvello/Settings/Store/SettingsStore.h"

#include "Orvello/Foundation/DefaultsValue.h"
#include "Orvello/Platform/Early/UserDefaults.h"

#include <algorithm>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

double numberOr(double fallback, const UserDefaults& defaults, const QString& key)
{
    return DefaultsValue::asNumber(defaults.value(key)).value_or(fallback);
}

bool booleanOr(bool fallback, const UserDefaults& defaults, const QString& key)
{
    return DefaultsValue::asBoolean(defaults.value(key)).value_or(fallback);
}

} // namespace

SettingsStore::SettingsStore(UserDefaults& defaults, QObject* parent)
    : QObject(parent)
    , m_defaults(defaults)
    , m_fontSize(numberOr(30.0, defaults, u"fontSize"_s))
    , m_textColorName(
          DefaultsValue::asString(defaults.value(u"textColorName"_s)).value_or(u"White"_s))
    , m_backgroundOpacity(numberOr(0.72, defaults, u"backgroundOpacity"_s))
    , m_speed(numberOr(25.0, defaults, u"speed"_s))
    , m_stealthMode(booleanOr(true, defaults, u"stealthMode"_s))
    , m_voiceFollow(booleanOr(false, defaults, u"voiceFollow"_s))
    , m_voiceSensitivity(numberOr(0.6, defaults, u"voiceSensitivity"_s))
    , m_microphone(DefaultsValue::asString(defaults.value(u"microphone"_s)).value_or(QString()))
    , m_microphoneName(
          DefaultsValue::asString(defaults.value(u"microphoneName"_s)).value_or(QString()))
    , m_countdownSeconds(numberOr(3.0, defaults, u"countdownSeconds"_s))
    , m_slideshowPauseKey(booleanOr(true, defaults, u"slideshowPauseKey"_s))
    , m_slideSync(booleanOr(true, defaults, u"slideSync"_s))
    , m_recordingBadgeFolded(booleanOr(false, defaults, u"recordingBadgeFolded"_s))
    , m_keptPace(numberOr(0.0, defaults, u"keptPace"_s))
    , m_cardTime(DefaultsValue::asString(defaults.value(u"cardTime"_s)).value_or(QString()))
    , m_onboardingSeenVersion(DefaultsValue::asInteger(defaults.value(u"onboardingSeenVersion"_s)))
{
}

template <typename Value, typename Signal>
void SettingsStore::assign(Value& member, const Value& value, const QString& key, Signal changed)
{
    const bool isChange = member != value;
    member = value;
    m_defaults.setValue(key, QVariant::fromValue(value));
    if (isChange)
        Q_EMIT(this->*changed)();
}

void SettingsStore::setFontSize(double points)
{
    assign(m_fontSize, points, u"fontSize"_s, &SettingsStore::fontSizeChanged);
}

void SettingsStore::setTextColorName(const QString& name)
{
    assign(m_textColorName, name, u"textColorName"_s, &SettingsStore::textColorNameChanged);
}

QColor SettingsStore::textColor() const
{
    const auto& presets = colorPresets();
    const auto preset = std::ranges::find(presets, m_textColorName, &ColorPreset::name);
    return preset != presets.end() ? preset->color : QColor(Qt::white);
}

const std::array<SettingsStore::ColorPreset, 6>& SettingsStore::colorPresets()
{
    // The system colours of the macOS dark appearance, which suits the dark card on every desktop.
    static const std::array<ColorPreset, 6> presets { {
        { QStringLiteral(QT_TRANSLATE_NOOP("Orvello::SettingsForm", "White")),
            QColor(255, 255, 255) },
        { QStringLiteral(QT_TRANSLATE_NOOP("Orvello::SettingsForm", "Yellow")),
            QColor(255, 214, 10) },
        { QStringLiteral(QT_TRANSLATE_NOOP("Orvello::SettingsForm", "Green")),
            QColor(48, 209, 88) },
        { QStringLiteral(QT_TRANSLATE_NOOP("Orvello::SettingsForm", "Cyan")),
            QColor(64, 200, 224) },
        { QStringLiteral(QT_TRANSLATE_NOOP("Orvello::SettingsForm", "Orange")),
            QColor(255, 159, 10) },
        { QStringLiteral(QT_TRANSLATE_NOOP("Orvello::SettingsForm", "Pink")), QColor(255, 55, 95) },
    } };
    return presets;
}

void SettingsStore::setBackgroundOpacity(double opacity)
{
    assign(m_backgroundOpacity, opacity, u"backgroundOpacity"_s,
        &SettingsStore::backgroundOpacityChanged);
}

void SettingsStore::setSpeed(double pointsPerSecond)
{
    assign(m_speed, pointsPerSecond, u"speed"_s, &SettingsStore::speedChanged);
}

void SettingsStore::setStealthMode(bool on)
{
    assign(m_stealthMode, on, u"stealthMode"_s, &SettingsStore::stealthModeChanged);
}

void SettingsStore::setVoiceFollow(bool on)
{
    assign(m_voiceFollow, on, u"voiceFollow"_s, &SettingsStore::voiceFollowChanged);
}

void SettingsStore::setVoiceSensitivity(double sensitivity)
{
    assign(m_voiceSensitivity, sensitivity, u"voiceSensitivity"_s,
        &SettingsStore::voiceSensitivityChanged);
}

void SettingsStore::setMicrophone(const QString& identifier, const QString& name)
{
    m_microphoneName = name;
    m_defaults.setValue(u"microphoneName"_s, name);
    assign(m_microphone, identifier, u"microphone"_s, &SettingsStore::microphoneChanged);
}

void SettingsStore::setCountdownSeconds(double seconds)
{
    assign(m_countdownSeconds, seconds, u"countdownSeconds"_s,
        &SettingsStore::countdownSecondsChanged);
}

void SettingsStore::setSlideshowPauseKey(bool on)
{
    assign(
        m_slideshowPauseKey, on, u"slideshowPauseKey"_s, &SettingsStore::slideshowPauseKeyChanged);
}

void SettingsStore::setSlideSync(bool on)
{
    assign(m_slideSync, on, u"slideSync"_s, &SettingsStore::slideSyncChanged);
}

void SettingsStore::setRecordingBadgeFolded(bool isFolded)
{
    assign(m_recordingBadgeFolded, isFolded, u"recordingBadgeFolded"_s,
        &SettingsStore::recordingBadgeFoldedChanged);
}

void SettingsStore::setKeptPace(double wordsPerMinute)
{
    assign(m_keptPace, wordsPerMinute, u"keptPace"_s, &SettingsStore::keptPaceChanged);
}

void SettingsStore::setCardTime(const QString& times)
{
    assign(m_cardTime, times, u"cardTime"_s, &SettingsStore::cardTimeChanged);
}

void SettingsStore::setOnboardingSeenVersion(qint64 version)
{
    assign(m_onboardingSeenVersion, version, u"onboardingSeenVersion"_s,
        &SettingsStore::onboardingSeenVersionChanged);
}

QString SettingsStore::damagedFile() const { return m_defaults.damagedFile(); }

} // namespace Orvello
