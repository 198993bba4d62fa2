#include "Orvello/Settings/Window/SettingsForm.h"

#include "Orvello/Settings/Store/SettingsStore.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr std::array countdownChoices { 0.0, 3.0, 5.0, 10.0 }; // Seconds.

QStringList sortedColorNames()
{
    QStringList names;
    for (const SettingsStore::ColorPreset& preset : SettingsStore::colorPresets())
        names.append(preset.name);
    names.sort();
    return names;
}

QString percent(double fraction) { return SettingsForm::wholeNumber(fraction * 100) + u'%'; }

} // namespace

SettingsForm::SettingsForm(SettingsStore& settings, QObject* parent)
    : QObject(parent)
    , m_settings(settings)
    , m_colorNames(sortedColorNames())
{
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

QString SettingsForm::fontSizeLabel() const
{
    return tr("Font size — %1").arg(wholeNumber(m_settings.fontSize()));
}

QString SettingsForm::speedLabel() const
{
    return tr("Scroll speed — %1 pt/s").arg(wholeNumber(m_settings.speed()));
}

QString SettingsForm::opacityLabel() const
{
    return tr("Background opacity — %1").arg(percent(m_settings.backgroundOpacity()));
}

QString SettingsForm::sensitivityLabel() const
{
    return tr("Sensitivity — %1").arg(percent(m_settings.voiceSensitivity()));
}

int SettingsForm::colorIndex() const
{
    return static_cast<int>(m_colorNames.indexOf(m_settings.textColorName()));
}

void SettingsForm::setColorIndex(int index)
{
    if (index >= 0 && index < m_colorNames.size())
        m_settings.setTextColorName(m_colorNames[index]);
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
