#include "Orvello/Foundation/TextEdit.h"

#include <QString>

#include <gtest/gtest.h>

#include <random>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

TEST(TextEditTest, becomesOneWithTheLetterTypedNext)
{
    const TextEdit first { 5, 0, 1 };

    EXPECT_EQ(first.followedBy({ 6, 0, 1 }), (TextEdit { 5, 0, 2 }));
    EXPECT_EQ(first.followedBy({ 5, 1, 0 }), (TextEdit { 5, 0, 0 }));
}

TEST(TextEditTest, coversWhatLiesBetweenTwoPlaces)
{
    EXPECT_EQ((TextEdit { 2, 1, 3 }).followedBy({ 10, 2, 0 }), (TextEdit { 2, 8, 8 }));
    EXPECT_EQ((TextEdit { 10, 2, 0 }).followedBy({ 2, 1, 3 }), (TextEdit { 2, 10, 10 }));
}

TEST(TextEditTest, leadsFromTheFirstTextToTheLastHoweverManyFollow)
{
    std::mt19937 random(7);
    const auto below = [&](qsizetype end) {
        return static_cast<qsizetype>(random() % static_cast<std::size_t>(end));
    };
    for (int round = 0; round < 500; ++round) {
        const QString before = u"The quick brown fox"_s;
        QString after = before;
        std::optional<TextEdit> whole;
        for (int i = 0; i < 5; ++i) {
            const qsizetype position = below(after.size() + 1);
            const qsizetype removed = below(std::min<qsizetype>(after.size() - position, 4) + 1);
            const QString inserted(below(4), QChar(u'0' + i));
            after.replace(position, removed, inserted);
            const TextEdit edit { position, removed, inserted.size() };
            whole = whole ? whole->followedBy(edit) : edit;
        }

        QString patched = before;
        patched.replace(
            whole->position, whole->removed, after.sliced(whole->position, whole->inserted));
        ASSERT_EQ(patched, after) << round;
    }
}

} // namespace
} // namespace Orvello
