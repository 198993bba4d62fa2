#include "Orvello/Prompting/Text/TextOutline.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

/// A single white pixel in the middle.
QImage dot(int side)
{
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    image.setPixelColor(side / 2, side / 2, Qt::white);
    return image;
}

TEST(TextOutlineTest, isOpaqueWithinItsReachAndFadesBeyond)
{
    const QImage image = TextOutline::around(dot(21), Qt::black, { 2, 1 }, { 2, 1 });

    const auto opacityAt = [&](int distance) { return qAlpha(image.pixel(10 + distance, 10)); };
    EXPECT_EQ(opacityAt(1), 255);
    EXPECT_EQ(opacityAt(2), 255);
    EXPECT_EQ(opacityAt(3), 170);
    EXPECT_EQ(opacityAt(4), 85);
    EXPECT_EQ(opacityAt(5), 0);
}

TEST(TextOutlineTest, reachesAsFarInEachDirectionAsItIsTold)
{
    const QImage image = TextOutline::around(dot(21), Qt::black, { 1, 0 }, { 3, 0 });

    EXPECT_EQ(qAlpha(image.pixel(9, 10)), 255);
    EXPECT_EQ(qAlpha(image.pixel(8, 10)), 0);
    EXPECT_EQ(qAlpha(image.pixel(10, 7)), 255);
    EXPECT_EQ(qAlpha(image.pixel(10, 13)), 255);
    EXPECT_EQ(qAlpha(image.pixel(10, 14)), 0);
}

TEST(TextOutlineTest, liesUnderTheLetters)
{
    QImage half = dot(9);
    half.setPixelColor(4, 4, QColor(255, 0, 0, 128));

    const QImage image = TextOutline::around(half, QColor(0, 0, 0, 200), { 1, 0 }, { 1, 0 });

    EXPECT_EQ(qRed(image.pixel(4, 4)), 128) << "premultiplied";
    EXPECT_GT(qAlpha(image.pixel(4, 4)), 128);
    EXPECT_EQ(image.pixelColor(3, 4).alpha(), 200 * 128 / 255);
}

TEST(TextOutlineTest, endsAtThePicturesEdge)
{
    const QImage image = TextOutline::around(dot(3), Qt::black, { 9, 4 }, { 9, 4 });

    EXPECT_EQ(image.size(), QSize(3, 3));
    EXPECT_GT(qAlpha(image.pixel(0, 0)), 0);
}

} // namespace
} // namespace Orvello
