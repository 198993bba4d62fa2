#include "Orvello/Settings/Window/SettingsForm.h"

#include "Orvello/Settings/Store/SettingsStore.h"

#include <QCoreApplication>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>
#include <vector>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array countdownChoices { 0.0, 3.0, 5.0, 10.0 }; // Seconds.

/// Each colour's name in the user's language, and its name in the preferences.
std::vector<std::pair<QString, QString>> sortedColors()
{
    std::vector<std::pair<QString, QString>> colors;
    for (const SettingsStore::ColorPreset& preset : SettingsStore::colorPresets())
        colors.emplace_back(
            QCoreApplication::translate("Orvello::SettingsForm", preset.name.toUtf8().constData()),
            preset.name);
    std::ranges::sort(colors, [](const auto& one, const auto& other) {
        return QString::localeAwareCompare(one.first, other.first) < 0;
    });
    return colors;
}

//: %1: a number. The sign stands where the language has it.
QString percent(double fraction)
{
    return QCoreApplication::translate("Orvello::SettingsForm", "%1%")
        .arg(SettingsForm::wholeNumber(fraction * 100));
}

} // namespace

SettingsForm::SettingsForm(SettingsStore& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
{
    for (const auto& [name, stored] : sortedColors()) {
        m_colorNames.append(name);
        m_storedColorNames.append(stored);
    }
    connect(&settings, &SettingsStore::fontSizeChanged, this, &SettingsForm::fontSizeLabelChanged);
    connect(&settings, &SettingsStore::speedChanged, this, &SettingsForm::speedLabelChanged);
    connect(&settings, &SettingsStore::backgroundOpacityChanged, this,
        &SettingsForm::opacityLabelChanged);
    connect(&settings, &SettingsStore::voiceSensitivityChanged, this,
        &SettingsForm::sensitivityLabelChanged);
    connect(
        &settings, &SettingsStore::textColorNameChanged, this, &SettingsForm::colorIndexChanged);
    connect(&settings, &SettingsStore::countdownSecondsChanged, this,
        &SettingsForm::countdownIndexChanged);
}

QString SettingsForm::wholeNumber(double value)
{
    if (std::isnan(value))
        return u"0"_s;
    // The smallest double above every 64-bit integer: 2 to the power of 63.
    constexpr double limit = 9223372036854775808.0;
    using Limits = std::numeric_limits<std::int64_t>;
    if (value >= limit)
        return QString::number(Limits::max());
    if (value < -limit)
        return QString::number(Limits::min());
    return QString::number(static_cast<std::int64_t>(value));
}

QString SettingsForm::damageText() const
{
    const QString file = m_settings.damagedFile();
    if (file.isEmpty())
        return {};
    //: %1: the name of a file.
    return tr("Your settings could not be read, so they are as new. The old file is kept: %1")
        .arg(file);
}

QString SettingsForm::fontSizeLabel() const
{
    //: %1: the size in points.
    return tr("Font size — %1").arg(wholeNumber(m_settings.fontSize()));
}

QString SettingsForm::speedLabel() const
{
    //: %1: points per second.
    return tr("Scroll speed — %1 pt/s").arg(wholeNumber(m_settings.speed()));
}

QString SettingsForm::opacityLabel() const
{
    //: %1: a percentage.
    return tr("Background opacity — %1").arg(percent(m_settings.backgroundOpacity()));
}

QString SettingsForm::sensitivityLabel() const
{
    //: Of the microphone's detector of speech. %1: a percentage.
    return tr("Sensitivity — %1").arg(percent(m_settings.voiceSensitivity()));
}

int SettingsForm::colorIndex() const
{
    return static_cast<int>(m_storedColorNames.indexOf(m_settings.textColorName()));
}

void SettingsForm::setColorIndex(int index)
{
    if (index >= 0 && index < m_storedColorNames.size())
        m_settings.setTextColorName(m_storedColorNames[index]);
}

QStringList SettingsForm::countdownNames()
{
    return { tr("Off"), tr("3 seconds"), tr("5 seconds"), tr("10 seconds") };
}

int SettingsForm::countdownIndex() const
{
    const auto choice = std::ranges::find(countdownChoices, m_settings.countdownSeconds());
    return choice == countdownChoices.end() ? -1
                                            : static_cast<int>(choice - countdownChoices.begin());
}

void SettingsForm::setCountdownIndex(int index)
{
    if (index >= 0 && index < static_cast<int>(countdownChoices.size()))
        m_settings.setCountdownSeconds(countdownChoices[static_cast<std::size_t>(index)]);
}

} // namespace Orvello
