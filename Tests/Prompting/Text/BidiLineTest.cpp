#include "Orvello/Prompting/Text/BidiLine.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

constexpr QChar leftToRightMark(0x200E);
constexpr QChar rightToLeftMark(0x200F);
constexpr QChar arabicLetterMark(0x061C);

enum Direction : bool { LeftToRight, RightToLeft };

QString cutOut(
    const QString& before, const QString& line, const QString& after, Direction paragraphDirection)
{
    return BidiLine::cutOut(before + line + after, before.size(), before.size() + line.size(),
        paragraphDirection == RightToLeft);
}

TEST(BidiLineTest, leavesLeftToRightLinesAlone)
{
    EXPECT_EQ(cutOut(u"one "_s, u"\"two\" 3"_s, u" four"_s, LeftToRight), u"\"two\" 3"_s);
    EXPECT_EQ(cutOut(u""_s, u""_s, u""_s, LeftToRight), QString());
}

TEST(BidiLineTest, leavesRightToLeftLinesAlone)
{
    EXPECT_EQ(cutOut(u"אבג "_s, u"דהו"_s, u" זחט"_s, RightToLeft), u"דהו"_s);
}

TEST(BidiLineTest, marksALineThatBeginsAgainstItsParagraph)
{
    EXPECT_EQ(
        cutOut(u"one "_s, u"אבג two"_s, u" three"_s, LeftToRight), leftToRightMark + u"אבג two"_s);
    EXPECT_EQ(
        cutOut(u"אבג "_s, u"two דהו"_s, u" זחט"_s, RightToLeft), rightToLeftMark + u"two דהו"_s);
}

TEST(BidiLineTest, marksALineThatHasNoDirectionOfItsOwn)
{
    EXPECT_EQ(cutOut(u"אבג "_s, u"42."_s, u""_s, RightToLeft), rightToLeftMark + u"42."_s);
}

TEST(BidiLineTest, marksWhatStandsAroundTheLine)
{
    EXPECT_EQ(cutOut(u"one אבג "_s, u"\"דהו\""_s, u" זחט"_s, LeftToRight),
        QString(leftToRightMark) + rightToLeftMark + u"\"דהו\""_s + rightToLeftMark);
    EXPECT_EQ(cutOut(u"אבג one "_s, u"(two)"_s, u" three"_s, RightToLeft),
        QString(rightToLeftMark) + leftToRightMark + u"(two)"_s + leftToRightMark);
}

TEST(BidiLineTest, tellsArabicFromOtherRightToLeftLetters)
{
    EXPECT_EQ(cutOut(u"one مرحبا "_s, u"42"_s, u" two"_s, LeftToRight),
        QString(leftToRightMark) + arabicLetterMark + u"42"_s);
}

TEST(BidiLineTest, looksNoFurtherThanTheParagraph)
{
    EXPECT_EQ(cutOut(u"אבג\n"_s, u"42"_s, u"\nאבג"_s, LeftToRight), u"42"_s);
}

TEST(BidiLineTest, readsSurrogatePairs)
{
    const QString adlam = QString::fromUcs4(U"\U0001E900");

    EXPECT_EQ(cutOut(u"one "_s + adlam + u" "_s, u"42"_s, u" two"_s, LeftToRight),
        QString(leftToRightMark) + rightToLeftMark + u"42"_s);
}

} // namespace
} // namespace Orvello
