#include "Orvello/Prompting/Text/PromptLayout.h"

#include "Orvello/Prompting/Text/PromptFont.h"
#include "Tests/Prompting/Text/ShownText.h"

#include <QTextLayout>

#include <gtest/gtest.h>

#include <random>
#include <vector>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

constexpr double width = 300;
constexpr double spacing = 8.4;

PromptTypography typography(double frameWidth = width)
{
    QFont font(QStringList { PromptFont::family() });
    font.setPixelSize(30);
    font.setWeight(QFont::DemiBold);
    return { font, font, frameWidth, spacing };
}

PromptLayout complete(PromptLayout layout)
{
    while (!layout.isComplete())
        layout.step();
    return layout;
}

PromptLayout fresh(const QString& text, double frameWidth = width)
{
    return complete(PromptLayout(text, typography(frameWidth)));
}

void layOutInOneGo(QTextLayout& layout, bool isRightToLeft, double frameWidth = width)
{
    QTextOption option(isRightToLeft ? Qt::AlignRight : Qt::AlignLeft);
    option.setTextDirection(isRightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    option.setUseDesignMetrics(true);
    layout.setTextOption(option);
    layout.setCacheEnabled(true);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine())
        line.setLineWidth(frameWidth);
    layout.endLayout();
}

/// The line starts of one paragraph when it is laid out in one go.
std::vector<qsizetype> startsInOneGo(const QString& paragraph, double frameWidth = width)
{
    QTextLayout layout(paragraph, typography().font);
    layOutInOneGo(layout, paragraph.isRightToLeft(), frameWidth);
    std::vector<qsizetype> starts;
    for (int i = 0; i < layout.lineCount(); ++i)
        starts.push_back(layout.lineAt(i).textStart());
    return starts;
}

std::vector<qsizetype> starts(const PromptLayout& layout)
{
    std::vector<qsizetype> result;
    for (PromptLayout::Index i = 0; i < layout.lineCount(); ++i)
        result.push_back(layout.lineStart(i));
    return result;
}

QStringList texts(const PromptLayout& layout)
{
    QStringList result;
    for (const PromptLine& line : layout.lines(0, layout.lineCount()))
        result.append(Testing::shownText(line));
    return result;
}

std::vector<double> baselines(const PromptLayout& layout)
{
    std::vector<double> result;
    for (const PromptLine& line : layout.lines(0, layout.lineCount()))
        result.push_back(line.baseline);
    return result;
}

QString words(std::mt19937& random, int count)
{
    static const QStringList vocabulary { u"a"_s, u"of"_s, u"the"_s, u"reader"_s, u"prompter,"_s,
        u"incomprehensibilities"_s, u"שלום"_s, u"ünïcödé"_s, u"42"_s, u"你好世界"_s };
    QStringList result;
    for (int i = 0; i < count; ++i)
        result.append(vocabulary[static_cast<qsizetype>(random() % 10)]);
    return result.join(u' ');
}

TEST(PromptLayoutTest, hasNoLinesAndNoHeightForTheEmptyText)
{
    const PromptLayout layout(QString(), typography());

    EXPECT_TRUE(layout.isComplete());
    EXPECT_EQ(layout.lineCount(), 0);
    EXPECT_EQ(layout.height(), 0);
}

TEST(PromptLayoutTest, wrapsAtWords)
{
    EXPECT_EQ(texts(fresh(u"The quick brown fox jumps over"_s)),
        QStringList({ u"The quick brown fox"_s, u"jumps over"_s }));
}

TEST(PromptLayoutTest, wrapsAnywhereInsideAWordThatIsTooLong)
{
    const PromptLayout layout = fresh(QString(200, u'x'));

    EXPECT_GT(layout.lineCount(), 5);
    EXPECT_EQ(texts(layout).join(QString()), QString(200, u'x'));
}

TEST(PromptLayoutTest, beginsALineAfterEveryKindOfParagraphEnd)
{
    const PromptLayout layout = fresh(u"a\nb\r\nc\rd\u2028e\u2029f\vg\fh\u0085i"_s);

    EXPECT_EQ(texts(layout).join(u'|'), u"a|b|c|d|e|f|g|h|i"_s);
}

TEST(PromptLayoutTest, keepsEmptyLinesAlsoAtBothEnds)
{
    EXPECT_EQ(texts(fresh(u"\n\na\r\n\r\nb\n"_s)).join(u'|'), u"||a||b|"_s);
}

TEST(PromptLayoutTest, putsTheSpacingBetweenLinesOnly)
{
    const double one = fresh(u"a"_s).height();
    const double three = fresh(u"a\nb\nc"_s).height();

    EXPECT_GE(one, 30);
    EXPECT_DOUBLE_EQ(three, 3 * one + 2 * spacing);
}

TEST(PromptLayoutTest, standsLinesAPitchApart)
{
    const PromptLayout layout = fresh(u"a\nb\n\nc"_s);

    const std::vector<double> found = baselines(layout);
    for (std::size_t i = 1; i < found.size(); ++i)
        EXPECT_DOUBLE_EQ(found[i] - found[i - 1], layout.smallestPitch());
}

TEST(PromptLayoutTest, neverStandsLinesCloserThanThePitch)
{
    std::mt19937 random(3);
    const PromptLayout layout = fresh(words(random, 200));

    const std::vector<double> found = baselines(layout);
    for (std::size_t i = 1; i < found.size(); ++i)
        EXPECT_GE(found[i] - found[i - 1], layout.smallestPitch() - 1e-9);
}

TEST(PromptLayoutTest, trimsWhatEndsALine)
{
    EXPECT_EQ(texts(fresh(u"one  \t \n  two"_s)), QStringList({ u"one"_s, u"  two"_s }));
}

TEST(PromptLayoutTest, makesNoLineOfSpacesThatHangOverALinesEnd)
{
    const auto between
        = [](const QString& spaces) { return texts(fresh(u"a"_s + spaces + u"b"_s)); };
    const QStringList twoLines { u"a"_s, u"b"_s };

    for (const qsizetype count : { 60, 999, 1000, 1500, 2500 })
        EXPECT_EQ(between(QString(count, u' ')), twoLines) << count;
    EXPECT_EQ(between(QString(40, u'\t')), twoLines);
    EXPECT_EQ(between(QString(1500, u'\t')), twoLines);
    EXPECT_EQ(texts(fresh(QString(500, u' ') + u"b"_s)), QStringList { u"b"_s });
    EXPECT_EQ(texts(fresh(u"a"_s + QString(2500, u' '))), QStringList { u"a"_s });
}

TEST(PromptLayoutTest, makesOneLineOfAParagraphOfSpaces)
{
    for (const QString& spaces : { u" "_s, QString(2500, u' '), QString(100, u'\t') })
        EXPECT_EQ(
            texts(fresh(u"a\n"_s + spaces + u"\nb"_s)), QStringList({ u"a"_s, u""_s, u"b"_s }))
            << spaces.size();
}

TEST(PromptLayoutTest, seesAnEditInSpacesThatHangOverALinesEnd)
{
    const QString text = u"one\ntwo"_s + QString(4000, u' ') + u"three\nfour"_s;
    const PromptLayout layout = fresh(text);
    for (const qsizetype at : { 7, 8, 900, 2500, 3999, 4006, 4007, 4010 }) {
        const QString edited = QString(text).insert(at, u'x');
        const PromptLayout result = complete(layout.edited(edited, { at, 0, 1 }));

        EXPECT_EQ(texts(result), texts(fresh(edited))) << at;
        EXPECT_EQ(starts(result), starts(fresh(edited))) << at;
    }
}

TEST(PromptLayoutTest, dividesAWordAtASoftHyphen)
{
    const QString text = u"aaaaaaaaaaaaa\u00ADaaaaaaaaaaaa"_s;

    EXPECT_EQ(texts(fresh(text)), QStringList({ u"aaaaaaaaaaaaa\u00AD"_s, u"aaaaaaaaaaaa"_s }));
}

TEST(PromptLayoutTest, breaksALongParagraphAsIfInOneGo)
{
    std::mt19937 random(1);
    for (const double frameWidth : { 100.0, 300.0, 1500.0 }) {
        const QString text = words(random, 6000);

        EXPECT_EQ(starts(fresh(text, frameWidth)), startsInOneGo(text, frameWidth));
    }
}

TEST(PromptLayoutTest, breaksAParagraphWithoutASpaceAsIfInOneGo)
{
    QString text(20000, u'm');
    for (qsizetype i = 0; i < text.size(); i += 3)
        text[i] = u'i';

    EXPECT_EQ(starts(fresh(text)), startsInOneGo(text));
}

TEST(PromptLayoutTest, losesNothingOfAHundredThousandCharactersWithoutASpace)
{
    const QString text(100000, u'm');

    const PromptLayout layout = fresh(text);

    EXPECT_EQ(texts(layout).join(QString()), text);
    EXPECT_GT(layout.lineCount(), 5000);
}

TEST(PromptLayoutTest, neverDividesASurrogatePair)
{
    QString text;
    for (int i = 0; i < 10000; ++i)
        text += u"😀"_s;

    for (const qsizetype start : starts(fresh(u"x"_s + text)))
        EXPECT_TRUE(start == 0 || (u"x"_s + text)[start].isHighSurrogate()) << start;
}

TEST(PromptLayoutTest, goesOnInBoundedSteps)
{
    PromptLayout layout(QString(100000, u'm'), typography());

    qsizetype reached = 0;
    while (!layout.isComplete()) {
        layout.step();
        const qsizetype last = layout.lineStart(layout.lineCount() - 1);
        EXPECT_LE(last - reached, PromptPiece::longest);
        reached = last;
    }
}

TEST(PromptLayoutTest, getsPastCharactersWithoutWidth)
{
    const QString text = u"a"_s + QString(30000, QChar(0x0301)) + u"b"_s;
    PromptLayout layout(text, typography());

    int steps = 0;
    for (; !layout.isComplete() && steps < 1000; ++steps)
        layout.step();

    EXPECT_LE(steps, 32);
    EXPECT_LE(layout.lineCount(), 32);
}

TEST(PromptLayoutTest, survivesTextThatIsNoText)
{
    QString text;
    std::mt19937 random(7);
    for (int i = 0; i < 20000; ++i)
        text += QChar(static_cast<char16_t>(random()));

    const PromptLayout layout = fresh(text);

    EXPECT_GT(layout.lineCount(), 0);
    EXPECT_GT(texts(layout).join(QString()).size(), 10000);
}

TEST(PromptLayoutTest, givesEachParagraphItsDirection)
{
    const PromptLayout layout = fresh(u"abc שלום\nשלום abc\n(42) مرحبا\n42"_s);
    const std::vector<PromptLine> lines = layout.lines(0, 4);

    EXPECT_FALSE(lines[0].piece->isRightToLeft());
    EXPECT_TRUE(lines[1].piece->isRightToLeft());
    EXPECT_TRUE(lines[2].piece->isRightToLeft());
    EXPECT_FALSE(lines[3].piece->isRightToLeft());
}

TEST(PromptLayoutTest, keepsTheDirectionAllThroughALongParagraph)
{
    const PromptLayout layout = fresh(u"שלום "_s + u"latin words "_s.repeated(2000));

    for (const PromptLine& line : layout.lines(0, layout.lineCount()))
        ASSERT_TRUE(line.piece->isRightToLeft());
}

/// Every line of a text of several paragraphs, with the lines of each paragraph laid out in one go.
void expectToLookAsInOneGo(const QString& text)
{
    const PromptLayout layout = fresh(text);
    const std::vector<PromptLine> lines = layout.lines(0, layout.lineCount());
    std::size_t next = 0;
    for (const QString& paragraph : text.split(u'\n')) {
        QTextLayout inOneGo(paragraph, typography().font);
        layOutInOneGo(inOneGo, paragraph.isRightToLeft());
        for (int i = 0; i < inOneGo.lineCount(); ++i, ++next) {
            ASSERT_LT(next, lines.size());
            ASSERT_EQ(lines[next].inPiece().glyphRuns(), inOneGo.lineAt(i).glyphRuns())
                << Testing::shownText(lines[next]).toStdString();
        }
    }
    EXPECT_EQ(next, lines.size());
}

TEST(PromptLayoutTest, drawsBidirectionalParagraphsAsIfInOneGo)
{
    std::mt19937 random(17);
    static const QStringList vocabulary { u"one"_s, u"(two)"_s, u"אבג"_s, u"\"דהו\""_s, u"مرحبا"_s,
        u"42"_s, u"(3.5%)"_s, u"-"_s, u"زحط!"_s };
    for (const int length : { 1, 2, 3, 5, 8, 20, 200, 2000 }) {
        QStringList paragraphs;
        for (int paragraph = 0; paragraph < 10; ++paragraph) {
            QStringList words;
            for (int i = 0; i < length; ++i)
                words.append(vocabulary[static_cast<qsizetype>(random()) % vocabulary.size()]);
            paragraphs.append(words.join(u' '));
        }
        ASSERT_NO_FATAL_FAILURE(expectToLookAsInOneGo(paragraphs.join(u'\n'))) << length;
    }
}

TEST(PromptLayoutTest, sharesAPieceBetweenItsLines)
{
    const PromptLayout layout = fresh(u"one two three four five six seven eight\nnine"_s);
    const std::vector<PromptLine> all = layout.lines(0, layout.lineCount());
    ASSERT_GE(all.size(), 3U);
    EXPECT_EQ(all[0].piece, all[1].piece);
    EXPECT_NE(all.front().piece, all.back().piece);

    const std::vector<PromptLine> later = layout.lines(1, layout.lineCount(), all);
    EXPECT_EQ(later.front().piece, all[1].piece);
    EXPECT_EQ(later.back().piece, all.back().piece);
}

TEST(PromptLayoutTest, findsTheLinesBetweenTwoHeights)
{
    const PromptLayout layout = fresh(u"a\nb\nc\nd"_s);
    const double pitch = layout.smallestPitch();
    using Range = std::pair<PromptLayout::Index, PromptLayout::Index>;

    EXPECT_EQ(layout.linesBetween(-100, -50), Range(0, 0));
    EXPECT_EQ(layout.linesBetween(-100, 1), Range(0, 1));
    EXPECT_EQ(layout.linesBetween(0, pitch), Range(0, 1));
    EXPECT_EQ(layout.linesBetween(0.5 * pitch, 1.5 * pitch), Range(0, 2));
    EXPECT_EQ(layout.linesBetween(pitch, 10 * pitch), Range(1, 4));
    EXPECT_EQ(layout.linesBetween(50 * pitch, 60 * pitch).second, 4);
}

TEST(PromptLayoutTest, takesOverAnUnchangedBeginning)
{
    const PromptLayout before = fresh(u"one\ntwo\nthree"_s);

    const PromptLayout after = before.edited(u"one\ntwo\nthree!"_s, { 13, 0, 1 });

    EXPECT_EQ(after.lineCount(), 2);
    EXPECT_EQ(texts(complete(after)), QStringList({ u"one"_s, u"two"_s, u"three!"_s }));
}

TEST(PromptLayoutTest, takesOverAnUnchangedRestInTwoSteps)
{
    const QString rest = u"\nmany words in each of many paragraphs"_s.repeated(5000);
    const PromptLayout before = fresh(u"title"_s + rest);

    PromptLayout after = before.edited(u"a better title"_s + rest, { 0, 0, 9 });
    after.step();
    after.step();

    EXPECT_TRUE(after.isComplete());
    EXPECT_EQ(starts(after), starts(fresh(u"a better title"_s + rest)));
}

TEST(PromptLayoutTest, laysOutLittleWhenALongParagraphGrowsAtItsEnd)
{
    std::mt19937 random(5);
    const QString text = words(random, 5000);
    const PromptLayout before = fresh(text);

    PromptLayout after = before.edited(text + u" more"_s, { text.size(), 0, 5 });
    EXPECT_GT(after.lineStart(after.lineCount() - 1), text.size() - 2 * PromptPiece::longest);
    for (int step = 0; step < 3; ++step)
        after.step();

    EXPECT_TRUE(after.isComplete());
    EXPECT_EQ(starts(after), starts(fresh(text + u" more"_s)));
}

TEST(PromptLayoutTest, seesThatAPieceNoLongerEndsTheText)
{
    const QString text(PromptPiece::longest, u'm');

    const PromptLayout after = fresh(text).edited(text + u"mm"_s, { text.size(), 0, 2 });

    EXPECT_EQ(texts(complete(after)).join(QString()), text + u"mm"_s);
}

TEST(PromptLayoutTest, takesNothingOverFromATextOfAnotherLength)
{
    const PromptLayout after = fresh(u"one\ntwo"_s).edited(u"something else"_s, { 5, 1, 1 });

    EXPECT_EQ(texts(complete(after)), QStringList({ u"something else"_s }));
}

TEST(PromptLayoutTest, seesALineFeedThatJoinsACarriageReturn)
{
    const PromptLayout before = fresh(u"a\rb"_s);
    const PromptLayout joined = complete(before.edited(u"a\r\nb"_s, { 2, 0, 1 }));
    EXPECT_EQ(texts(joined).join(u'|'), u"a|b"_s);

    const PromptLayout parted = complete(joined.edited(u"a\r-\nb"_s, { 2, 0, 1 }));
    EXPECT_EQ(texts(parted).join(u'|'), u"a|-|b"_s);
}

/// Whatever a text changes to, taking over lines gives the layout that starting afresh gives, also
/// when the change comes before the layout is complete.
TEST(PromptLayoutTest, takesOverLinesWithoutADifference)
{
    std::mt19937 random(11);
    const QStringList scraps { u"\n"_s, u"\r\n"_s, u"\r"_s, u"x"_s, u" "_s, u"שלום "_s,
        u"one two three four five six\n"_s };
    QString text
        = words(random, 400) + u"\n"_s + words(random, 900) + u"\r\n\r\n"_s + words(random, 50);
    PromptLayout layout = fresh(text);

    for (int edit = 0; edit < 400; ++edit) {
        const qsizetype at = static_cast<qsizetype>(random()) % (text.size() + 1);
        const qsizetype removed = std::min<qsizetype>(random() % 8, text.size() - at);
        const QString inserted = random() % 4 == 0
            ? QString()
            : scraps[static_cast<qsizetype>(random()) % scraps.size()];
        text.replace(at, removed, inserted);
        layout = layout.edited(text, { at, removed, inserted.size() });
        for (auto steps = random() % 6; steps > 0; --steps)
            layout.step();
        if (edit % 8 != 0)
            continue;

        layout = complete(layout);
        const PromptLayout afresh = fresh(text);
        ASSERT_EQ(starts(layout), starts(afresh)) << edit;
        ASSERT_EQ(texts(layout), texts(afresh)) << edit;
        ASSERT_NEAR(layout.height(), afresh.height(), 1e-6) << edit;
    }
}

} // namespace
} // namespace Orvello
