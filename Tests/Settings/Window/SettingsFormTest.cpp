#include "Orvello/Settings/Window/SettingsForm.h"

#include "Orvello/Settings/Store/SettingsStore.h"
#include "Tests/Support/FakeUserDefaults.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class SettingsFormTest : public ::testing::Test {
protected:
    Testing::FakeUserDefaults defaults;
    SettingsStore settings { defaults };
    SettingsForm form { settings };
};

TEST_F(SettingsFormTest, labelsTheDefaults)
{
    EXPECT_EQ(form.fontSizeLabel(), u"Font size — 30"_s);
    EXPECT_EQ(form.speedLabel(), u"Scroll speed — 25 pt/s"_s);
    EXPECT_EQ(form.opacityLabel(), u"Background opacity — 72%"_s);
    EXPECT_EQ(form.sensitivityLabel(), u"Sensitivity — 60%"_s);
}

TEST_F(SettingsFormTest, showsWholeNumbersOnly)
{
    settings.setSpeed(25.7);
    settings.setFontSize(63.999);

    EXPECT_EQ(form.speedLabel(), u"Scroll speed — 25 pt/s"_s);
    EXPECT_EQ(form.fontSizeLabel(), u"Font size — 63"_s);
}

// 0.29 × 100 is a little less than 29 in binary, and the fraction is dropped, not rounded.
TEST_F(SettingsFormTest, dropsTheFractionOfThePercentage)
{
    settings.setBackgroundOpacity(0.29);
    settings.setVoiceSensitivity(0.999);

    EXPECT_EQ(form.opacityLabel(), u"Background opacity — 28%"_s);
    EXPECT_EQ(form.sensitivityLabel(), u"Sensitivity — 99%"_s);
}

TEST_F(SettingsFormTest, dropsTheFractionTowardZero)
{
    EXPECT_EQ(SettingsForm::wholeNumber(-0.9), u"0"_s);
    EXPECT_EQ(SettingsForm::wholeNumber(-25.7), u"-25"_s);
    EXPECT_EQ(SettingsForm::wholeNumber(1234567), u"1234567"_s);
}

TEST_F(SettingsFormTest, survivesNumbersThatNoSliderGives)
{
    constexpr double infinity = std::numeric_limits<double>::infinity();
    EXPECT_EQ(SettingsForm::wholeNumber(infinity), u"9223372036854775807"_s);
    EXPECT_EQ(SettingsForm::wholeNumber(-infinity), u"-9223372036854775808"_s);
    EXPECT_EQ(SettingsForm::wholeNumber(0x1p63), u"9223372036854775807"_s);
    EXPECT_EQ(SettingsForm::wholeNumber(-0x1p63), u"-9223372036854775808"_s);
    EXPECT_EQ(SettingsForm::wholeNumber(std::nextafter(0x1p63, 0)), u"9223372036854774784"_s);
    EXPECT_EQ(SettingsForm::wholeNumber(std::nan("")), u"0"_s);
}

TEST_F(SettingsFormTest, announcesEachLabelWithItsSetting)
{
    const QSignalSpy fontSize(&form, &SettingsForm::fontSizeLabelChanged);
    const QSignalSpy speed(&form, &SettingsForm::speedLabelChanged);
    const QSignalSpy opacity(&form, &SettingsForm::opacityLabelChanged);
    const QSignalSpy sensitivity(&form, &SettingsForm::sensitivityLabelChanged);

    settings.setFontSize(31);
    settings.setSpeed(31);
    settings.setBackgroundOpacity(0.5);
    settings.setVoiceSensitivity(0.5);

    EXPECT_EQ(fontSize.count(), 1);
    EXPECT_EQ(speed.count(), 1);
    EXPECT_EQ(opacity.count(), 1);
    EXPECT_EQ(sensitivity.count(), 1);
}

TEST_F(SettingsFormTest, listsTheColorsAlphabetically)
{
    EXPECT_EQ(form.colorNames(),
        QStringList({ u"Cyan"_s, u"Green"_s, u"Orange"_s, u"Pink"_s, u"White"_s, u"Yellow"_s }));
}

TEST_F(SettingsFormTest, picksAColorByItsName)
{
    EXPECT_EQ(form.colorIndex(), 4);
    const QSignalSpy changed(&form, &SettingsForm::colorIndexChanged);

    form.setColorIndex(3);

    EXPECT_EQ(settings.textColorName(), u"Pink"_s);
    EXPECT_EQ(defaults.stored.value(u"textColorName"_s), u"Pink"_s);
    EXPECT_EQ(form.colorIndex(), 3);
    EXPECT_EQ(changed.count(), 1);
}

TEST_F(SettingsFormTest, selectsNoColorForANameThatIsNotInTheTable)
{
    settings.setTextColorName(u"Purple"_s);

    EXPECT_EQ(form.colorIndex(), -1);
    EXPECT_EQ(settings.textColor(), QColor(Qt::white));
}

TEST_F(SettingsFormTest, offersTheCountdownsOfThePicker)
{
    EXPECT_EQ(SettingsForm::countdownNames(),
        QStringList({ u"Off"_s, u"3 seconds"_s, u"5 seconds"_s, u"10 seconds"_s }));
}

TEST_F(SettingsFormTest, storesTheSecondsOfThePickedCountdown)
{
    const QList<double> seconds { 0, 3, 5, 10 };
    for (int index = 0; index < seconds.size(); ++index) {
        form.setCountdownIndex(index);

        EXPECT_EQ(settings.countdownSeconds(), seconds[index]);
        EXPECT_EQ(form.countdownIndex(), index);
    }
}

TEST_F(SettingsFormTest, selectsNoCountdownForAnotherValueUntilOneIsPicked)
{
    settings.setCountdownSeconds(4);
    EXPECT_EQ(form.countdownIndex(), -1);

    form.setCountdownIndex(2);
    EXPECT_EQ(form.countdownIndex(), 2);
}

TEST_F(SettingsFormTest, keepsAForeignValueWhenNothingIsPicked)
{
    settings.setCountdownSeconds(4);
    settings.setTextColorName(u"Purple"_s);

    form.setCountdownIndex(-1);
    form.setCountdownIndex(4);
    form.setColorIndex(-1);
    form.setColorIndex(6);

    EXPECT_EQ(settings.countdownSeconds(), 4);
    EXPECT_EQ(settings.textColorName(), u"Purple"_s);
}

} // namespace
} // namespace Orvello
