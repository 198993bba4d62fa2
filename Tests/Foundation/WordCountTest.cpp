#include "Orvello/Foundation/WordCount.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

TEST(WordCountTest, findsNoWordInNothing)
{
    EXPECT_EQ(WordCount::of(u""), 0);
    EXPECT_EQ(WordCount::of(u" \n\r\n\t \u2029\u00a0\u3000"), 0);
}

TEST(WordCountTest, splitsAtWhiteSpaceAndLineBreaks)
{
    EXPECT_EQ(WordCount::of(u"one"), 1);
    EXPECT_EQ(WordCount::of(u"  one two\nthree\r\nfour\tfive\u2028six\u00a0seven "), 7);
    EXPECT_EQ(WordCount::of(u"well-known: isn't — it"), 4);
}

TEST(WordCountTest, countsTheSameInPieces)
{
    const QStringView text = u" To be, or  not\nto be ";

    for (qsizetype cut = 0; cut <= text.size(); ++cut) {
        EXPECT_EQ(
            WordCount::beginningIn(text, 0, cut) + WordCount::beginningIn(text, cut, text.size()),
            6)
            << cut;
    }
}

TEST(WordCountTest, endsWithTheText) { EXPECT_EQ(WordCount::beginningIn(u"a b", 1, 99), 1); }

} // namespace
} // namespace Orvello
