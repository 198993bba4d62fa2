#include "Orvello/Prompting/Text/PromptPiece.h"

#include "Orvello/Prompting/Text/PromptFont.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

enum Direction : bool { LeftToRight, RightToLeft };

/// The part of a paragraph after some words of it.
class PromptPieceTest : public ::testing::Test {
protected:
    PromptPieceTest()
    {
        typography.font = QFont(QStringList { PromptFont::family() });
        typography.font.setPixelSize(30);
        typography.emojiFont = typography.font;
        typography.width = 10000;
    }

    PromptLine line(const QString& before, const QString& text, Direction direction) const
    {
        return { std::make_shared<PromptPiece>(
                     before + text, before.size(), direction == RightToLeft, typography),
            0, 0 };
    }

    PromptTypography typography;
};

TEST_F(PromptPieceTest, putsWhatFollowsOtherWordsIntoTheirDirection)
{
    // In "one אבג (42)" the brackets belong to the Hebrew word, in "one (42)" they do not.
    const PromptLine afterHebrew = line(u"one אבג "_s, u"(42) דהו"_s, LeftToRight);
    const PromptLine afterEnglish = line(u"one "_s, u"(42) דהו"_s, LeftToRight);

    EXPECT_FALSE(afterHebrew.looksLike(afterEnglish));
    EXPECT_EQ(afterHebrew.inPiece().naturalTextWidth(), afterEnglish.inPiece().naturalTextWidth());
}

TEST_F(PromptPieceTest, readsSurrogatePairsBeforeIt)
{
    const QString adlam = QString::fromUcs4(U"\U0001E900");

    EXPECT_TRUE(line(u"one "_s + adlam + u" "_s, u"(42) דהו"_s, LeftToRight)
                    .looksLike(line(u"one אבג "_s, u"(42) דהו"_s, LeftToRight)));
}

TEST_F(PromptPieceTest, looksNoFurtherThanTheParagraph)
{
    EXPECT_TRUE(line(u"one אבג\n"_s, u"(42) דהו"_s, RightToLeft)
                    .looksLike(line(QString(), u"(42) דהו"_s, RightToLeft)));
}

TEST_F(PromptPieceTest, hasTheParagraphsDirection)
{
    EXPECT_TRUE(line(u"אבג "_s, u"42"_s, RightToLeft).piece->isRightToLeft());
    EXPECT_FALSE(line(u"one "_s, u"אבג"_s, LeftToRight).piece->isRightToLeft());
}

TEST_F(PromptPieceTest, findsTheDirectionWhereAParagraphBegins)
{
    EXPECT_TRUE(line(u"one\n"_s, u"אבג"_s, LeftToRight).piece->isRightToLeft());
}

TEST_F(PromptPieceTest, startsInTheTextWhereItStartsInTheText)
{
    typography.width = 100;
    const QString before = u"some words before "_s;
    const PromptPiece piece(before + u"many more words after"_s, before.size(), false, typography);

    ASSERT_GT(piece.lineCount(), 2);
    EXPECT_EQ(piece.lineStart(0), before.size());
    EXPECT_EQ(piece.lineText(0), u"many "_s);
    EXPECT_EQ(piece.lineStart(1), before.size() + 5);
}

TEST_F(PromptPieceTest, looksLikeAPieceWithTheSameGlyphs)
{
    EXPECT_TRUE(line(u"one "_s, u"two"_s, LeftToRight)
                    .looksLike(line(u"another "_s, u"two"_s, LeftToRight)));
    EXPECT_FALSE(
        line(u"one "_s, u"two"_s, LeftToRight).looksLike(line(u"one "_s, u"owt"_s, LeftToRight)));
    EXPECT_FALSE(
        line(u"one "_s, u"two"_s, LeftToRight).looksLike(line(u"one "_s, u"two!"_s, LeftToRight)));
}

} // namespace
} // namespace Orvello
