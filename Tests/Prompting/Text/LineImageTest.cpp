#include "Orvello/Prompting/Text/LineImage.h"

#include "Orvello/Prompting/Text/PromptFont.h"
#include "Orvello/Prompting/Text/PromptPiece.h"

#include <gtest/gtest.h>

#include <cmath>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class LineImageTest : public ::testing::Test {
protected:
    LineImageTest()
    {
        typography.font = QFont(PromptFont::family());
        typography.font.setPixelSize(40);
        typography.emojiFont = typography.font;
        typography.width = 600;
    }

    LineImage imageOf(const QString& text, double scale = 1, const QColor& color = Qt::white) const
    {
        return LineImage::of(firstLine(text), typography, color, scale);
    }

    PromptLine firstLine(const QString& text) const
    {
        return { std::make_shared<PromptPiece>(text, 0, false, typography), 0, 0 };
    }

    /// The part of the picture that has marks, in its own pixels.
    static QRect inkOf(const QImage& image)
    {
        QRect ink;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x) {
                if (qAlpha(image.pixel(x, y)) > 0)
                    ink |= QRect(x, y, 1, 1);
            }
        }
        return ink;
    }

    PromptTypography typography;
};

TEST_F(LineImageTest, isNothingForALineWithoutAMark)
{
    EXPECT_TRUE(imageOf(QString()).pixels.isNull());
    EXPECT_TRUE(imageOf(u"   "_s).pixels.isNull());
}

TEST_F(LineImageTest, standsAtTheFramesLeftEdgeOnTheBaseline)
{
    const LineImage image = imageOf(u"Hl"_s);

    EXPECT_GE(image.place.left(), -2);
    EXPECT_LT(image.place.left(), 6);
    EXPECT_LT(image.place.top(), -20);
    EXPECT_GE(image.place.bottom(), 0);
    EXPECT_LT(image.place.bottom(), 4);
}

TEST_F(LineImageTest, standsAtTheFramesRightEdgeFromRightToLeft)
{
    const LineImage image = imageOf(u"שלום"_s);

    EXPECT_GT(image.place.left(), 400);
    EXPECT_GT(image.place.right(), 580);
    EXPECT_LE(image.place.right(), 604);
}

TEST_F(LineImageTest, setsALineFromRightToLeftInItsOrder)
{
    const auto right = [&](const QString& text) { return imageOf(text).place.right(); };

    // A sentence's end is at the left, so the mark does not push the word away from the right edge.
    EXPECT_NEAR(right(u"שלום"_s), right(u"שלום!"_s), 1);
    EXPECT_NEAR(right(u"שלום"_s), right(u"שלום Orvello 1.0"_s), 1);
}

TEST_F(LineImageTest, showsTheHyphenWhereASoftOneDividesAWord)
{
    typography.width = 200;
    const QRectF divided = imageOf(u"aaaaaaa\u00ADaaaaaa"_s).place;

    EXPECT_NEAR(divided.right(), imageOf(u"aaaaaaa-"_s).place.right(), 1);
    EXPECT_GT(divided.right(), imageOf(u"aaaaaaa"_s).place.right() + 3);
}

TEST_F(LineImageTest, showsTheHyphenInBidirectionalTextWhereTheLineBreaksAtIt)
{
    const QString leftToRightMark = u"\u200E"_s;
    const auto ink = [this](const QString& text) {
        const QImage pixels = imageOf(text).pixels;
        double sum = 0;
        for (int y = 0; y < pixels.height(); ++y) {
            for (int x = 0; x < pixels.width(); ++x)
                sum += qAlpha(pixels.pixel(x, y)) / 255.0;
        }
        return sum;
    };
    const auto expectHyphen
        = [&](const QString& divided, const QString& line, const QString& mark) {
              EXPECT_NEAR(ink(divided), ink(line + u'-' + mark), 8) << line.toStdString();
              EXPECT_GT(ink(divided), ink(line) + 40) << line.toStdString();
          };

    typography.width = 260;
    expectHyphen(u"x אבג aaaa\u00ADaaaa"_s, u"x אבג aaaa"_s, {});
    expectHyphen(u"אבג aaaa\u00ADaaaa"_s, u"אבג aaaa"_s, leftToRightMark);
    expectHyphen(u"سلامسلام\u00ADسلامسلام"_s, u"سلامسلام"_s, {});
    typography.width = 300;
    expectHyphen(u"אב aaaa\u00ADaaaa\u00ADaaaa"_s, u"אב aaaaaaaa"_s, leftToRightMark);
}

TEST_F(LineImageTest, showsNoHyphenWhereTheLineDoesNotBreakAtIt)
{
    for (const auto& [hyphenated, plain] : { std::pair(u"aa\u00ADaa bb"_s, u"aaaa bb"_s),
             std::pair(u"x אבג aa\u00ADaa bb"_s, u"x אבג aaaa bb"_s),
             std::pair(u"אבג aa\u00ADaa bb"_s, u"אבג aaaa bb"_s),
             std::pair(u"aaaa\u00ADאבג aaaa"_s, u"aaaaאבג aaaa"_s),
             std::pair(u"אב\u00ADגד x"_s, u"אבגד x"_s) })
        EXPECT_EQ(imageOf(hyphenated).pixels, imageOf(plain).pixels) << plain.toStdString();
}

TEST_F(LineImageTest, hasTwoRowsForEachDevicePixelAtAnyScale)
{
    for (const double scale : { 1.0, 1.25, 1.5, 2.0 }) {
        const LineImage image = imageOf(u"Hamburg"_s, scale);

        EXPECT_NEAR(image.pixels.width(), image.place.width() * scale, 1e-6) << scale;
        EXPECT_NEAR(image.pixels.height(), image.place.height() * scale * 2, 1e-6) << scale;
        const QPointF corner = image.place.topLeft() * scale;
        EXPECT_NEAR(corner.x(), std::round(corner.x()), 1e-6) << scale;
    }
}

TEST_F(LineImageTest, isAsLargeAtEveryScale)
{
    const QRectF once = imageOf(u"Hamburg"_s, 1).place;
    const QRectF twice = imageOf(u"Hamburg"_s, 2).place;

    EXPECT_NEAR(once.width(), twice.width(), 2);
    EXPECT_NEAR(once.height(), twice.height(), 2);
}

TEST_F(LineImageTest, cutsNothingOffAndLeavesRoomToFilterInto)
{
    for (const QString& text : { u"Hamburg"_s, u"Ågjy|"_s, u"ỗ"_s, u"f"_s, u"שָׁלוֹם"_s }) {
        const LineImage image = imageOf(text);
        const QRect ink = inkOf(image.pixels);

        ASSERT_FALSE(ink.isEmpty()) << text.toStdString();
        EXPECT_GE(ink.left(), 1) << text.toStdString();
        EXPECT_GE(ink.top(), 1) << text.toStdString();
        EXPECT_LE(ink.right(), image.pixels.width() - 2) << text.toStdString();
        EXPECT_LE(ink.bottom(), image.pixels.height() - 2) << text.toStdString();
    }
}

TEST_F(LineImageTest, hasTheTextsColour)
{
    const QColor green(48, 209, 88);
    const QImage pixels = imageOf(u"I"_s, 2, green).pixels;
    const QRect ink = inkOf(pixels);

    EXPECT_EQ(pixels.pixelColor(ink.center()), green);
}

TEST_F(LineImageTest, isNoLargerThanATextureMayBe)
{
    typography.font.setPixelSize(1000);
    typography.width = 100000;

    const LineImage image = imageOf(u"Incomprehensibility"_s, 3);

    EXPECT_LE(image.pixels.width(), 4096);
    EXPECT_LE(image.pixels.height(), 4096);
    EXPECT_FALSE(image.pixels.isNull());
}

} // namespace
} // namespace Orvello
