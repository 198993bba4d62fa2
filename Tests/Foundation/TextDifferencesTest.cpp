#include "Orvello/Foundation/TextDifferences.h"

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

TEST(TextDifferencesTest, findsNoneInEqualTexts)
{
    EXPECT_EQ(differencesBetween(u"One\nTwo"_s, u"One\nTwo"_s), TextDifferences());
    EXPECT_EQ(differencesBetween({}, {}), TextDifferences());
}

TEST(TextDifferencesTest, findsEachPlace)
{
    EXPECT_EQ(differencesBetween(u"One\nTwo\nThree\nFour"_s, u"Once\nTwo\nThree\nFo"_s),
        (TextDifferences { { 2, 0, 1 }, { 16, 2, 0 } }));
    EXPECT_EQ(differencesBetween(u"One\nTwo\n"_s, u"One\nand a half\nTwo\n"_s),
        (TextDifferences { { 4, 0, 11 } }));
    EXPECT_EQ(differencesBetween(u"One\nTwo\n"_s, u"Two\n"_s), (TextDifferences { { 0, 4, 0 } }));
    EXPECT_EQ(differencesBetween({}, u"One"_s), (TextDifferences { { 0, 0, 3 } }));
    EXPECT_EQ(differencesBetween(u"One"_s, {}), (TextDifferences { { 0, 3, 0 } }));
}

TEST(TextDifferencesTest, takesLinesThatOccurOftenForNoLandmarks)
{
    EXPECT_EQ(differencesBetween(u"-\n-\nA\n-\n"_s, u"-\nA\n-\n-\n"_s),
        (TextDifferences { { 2, 2, 0 }, { 8, 0, 2 } }));
}

TEST(TextDifferencesTest, countsAMovedLineOnce)
{
    const QString before = u"A\nB\nC\nD\n"_s;
    const QString after = u"D\nA\nB\nC\n"_s;
    const TextDifferences differences = differencesBetween(before, after);

    EXPECT_EQ(placeAfter(differences, 2), 4); // B.
    EXPECT_EQ(placeAfter(differences, 5), 7); // The end of C.
}

TEST(TextDifferencesTest, followsACharacterToItsPlace)
{
    // "One\nTwo\nThree" becomes "Zero\nOne\n2\nThree".
    const TextDifferences differences { { 0, 0, 5 }, { 4, 3, 1 } };

    EXPECT_EQ(placeAfter(differences, 0), 5);
    EXPECT_EQ(placeAfter(differences, 2.5), 7.5);
    EXPECT_EQ(placeAfter(differences, 4), 9);
    EXPECT_EQ(placeAfter(differences, 6), 10); // It was replaced.
    EXPECT_EQ(placeAfter(differences, 7), 10);
    EXPECT_EQ(placeAfter(differences, 8), 11);
}

TEST(TextDifferencesTest, takesALongTextInItsStride)
{
    QString before;
    QString after;
    for (int line = 0; line < 100'000; ++line) {
        before += u"Line %1\n"_s.arg(line);
        after += (line % 10 == 0 ? u"New line %1\n"_s : u"Line %1\n"_s).arg(line);
    }
    const TextDifferences differences = differencesBetween(before, after);

    EXPECT_EQ(differences.size(), 10'000u);
    const qsizetype lastLine = before.lastIndexOf(u"Line 99999"_s);
    EXPECT_EQ(placeAfter(differences, static_cast<double>(lastLine)),
        static_cast<double>(after.lastIndexOf(u"Line 99999"_s)));
}

} // namespace
} // namespace Orvello
