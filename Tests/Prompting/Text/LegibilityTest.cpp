#include "Orvello/Prompting/Text/Legibility.h"

#include "Orvello/Prompting/Text/LineImage.h"
#include "Orvello/Prompting/Text/PromptFont.h"
#include "Orvello/Settings/Store/SettingsStore.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

const QColor pink(255, 55, 95);

TEST(LegibilityTest, measuresContrastAsTheGuidelinesDo)
{
    EXPECT_NEAR(Legibility::contrast(Qt::white, Qt::black), 21, 0.001);
    EXPECT_NEAR(Legibility::contrast(Qt::black, Qt::white), 21, 0.001);
    EXPECT_NEAR(Legibility::contrast(Qt::white, QColor(118, 118, 118)), 4.54, 0.01);
    EXPECT_NEAR(Legibility::contrast(pink, pink), 1, 0.001);
}

TEST(LegibilityTest, seesWhatLiesUnderTheCardAsFarAsTheCardLetsIt)
{
    EXPECT_EQ(Legibility::throughCard(Qt::white, 0.72).red(), 71);
    EXPECT_EQ(Legibility::throughCard(Qt::white, 1.0).red(), 0);
    EXPECT_EQ(Legibility::throughCard(Qt::white, 7.0).red(), 0);
    EXPECT_EQ(Legibility::throughCard(Qt::white, -1.0).red(), 255);
}

TEST(LegibilityTest, outlinesNothingThatCanBeReadAnyway)
{
    EXPECT_EQ(Legibility::outlineOf(Qt::white, 0.72), QColor(Qt::transparent));
    EXPECT_EQ(Legibility::outlineOf(pink, 1.0), QColor(Qt::transparent));
}

TEST(LegibilityTest, outlinesPinkLettersOnTheUsualCard)
{
    const QColor outline = Legibility::outlineOf(pink, 0.72);

    EXPECT_EQ(outline.rgb(), QColor(Qt::black).rgb());
    EXPECT_GT(outline.alpha(), 90);
    EXPECT_LT(outline.alpha(), 200) << "no darker than it must be";
}

/// The least contrast of the text's colour with the pixels beside the letters of the outlined
/// picture, which stands on a card of that colour.
double worstContrastBeside(
    const QImage& letters, const QImage& outlined, const QColor& text, const QColor& card)
{
    const int border = (outlined.width() - letters.width()) / 2;
    double worst = 21;
    for (int y = 0; y < letters.height(); ++y) {
        for (int x = 1; x < letters.width(); ++x) {
            const bool isLetter = qAlpha(letters.pixel(x, y)) > 0;
            const bool wasLetter = qAlpha(letters.pixel(x - 1, y)) > 0;
            if (isLetter == wasLetter)
                continue;
            const int clear = isLetter ? x - 1 : x;
            const int outline
                = qAlpha(outlined.pixel(border + clear, LineImage::rowsPerPixel * border + y));
            const double share = 1 - outline / 255.0;
            const QColor seen(static_cast<int>(card.red() * share),
                static_cast<int>(card.green() * share), static_cast<int>(card.blue() * share));
            worst = std::min(worst, Legibility::contrast(text, seen));
        }
    }
    return worst;
}

TEST(LegibilityTest, setsEveryPresetApartFromWhateverLiesUnderTheCard)
{
    PromptTypography typography;
    typography.font = QFont(PromptFont::family());
    typography.font.setPixelSize(30);
    typography.font.setWeight(QFont::DemiBold);
    typography.emojiFont = typography.font;
    typography.width = 600;
    const PromptLine line { std::make_shared<PromptPiece>(u"Hi, \u00E9?"_s, 0, false, typography),
        0, 0 };
    int outlined = 0;

    for (const SettingsStore::ColorPreset& preset : SettingsStore::colorPresets()) {
        const QImage letters = LineImage::of(line, typography, preset.color, 1).pixels;
        for (const double opacity : { 0.15, 0.3, 0.45, 0.6, 0.72, 0.85, 1.0 }) {
            const QColor outline = Legibility::outlineOf(preset.color, opacity);
            const QImage picture = LineImage::of(line, typography, preset.color, 1, outline).pixels;
            outlined += picture == letters ? 0 : 1;

            for (const int under : { 255, 128, 0 }) {
                const QColor card = Legibility::throughCard(QColor(under, under, under), opacity);
                EXPECT_GE(worstContrastBeside(letters, picture, preset.color, card), 4.5)
                    << preset.name.toStdString() << " at " << opacity << " over " << under;
            }
        }
    }
    EXPECT_GE(outlined, 20) << "of 42";
    EXPECT_LE(outlined, 30) << "of 42";
}

} // namespace
} // namespace Orvello
