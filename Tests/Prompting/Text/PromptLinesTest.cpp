#include "Orvello/Prompting/Text/PromptLines.h"

#include "Orvello/Prompting/Text/LineImage.h"
#include "Orvello/Prompting/Text/PromptFont.h"
#include "Tests/Prompting/Text/ShownText.h"
#include "Tests/Support/ManualTimeSource.h"

#include <QFontInfo>
#include <QSignalSpy>

#include <gtest/gtest.h>

#include <limits>
#include <map>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

/// A clock that a millisecond passes on whenever somebody looks, as if each piece of work took one.
class LaboriousTimeSource final : public TimeSource {
public:
    double now() const override
    {
        m_worked += 0.001;
        return manual.now() + m_worked;
    }
    Date date() const override { return manual.date(); }
    std::unique_ptr<Ticket> callAfter(double seconds, Action action) override
    {
        return manual.callAfter(seconds, std::move(action));
    }
    std::unique_ptr<Ticket> callEvery(double seconds, Action action) override
    {
        return manual.callEvery(seconds, std::move(action));
    }

    /// Lets the waiting slice run, and no other.
    void runSlice() { manual.stall(0); }

    double worked() const { return m_worked; }

    Testing::ManualTimeSource manual;

private:
    mutable double m_worked = 0;
};

class PromptLinesTest : public ::testing::Test {
protected:
    static constexpr double height = 200;

    PromptLinesTest()
    {
        lines.setFontSize(30);
        lines.setTextWidth(600);
        lines.setVisibleHeight(height);
    }

    static QString numbered(int count, const QString& name = u"line"_s)
    {
        QStringList result;
        for (int i = 0; i < count; ++i)
            result.append(u"%1 %2"_s.arg(name).arg(i));
        return result.join(u'\n');
    }

    /// What a view shows: texts by their baselines below the top of the visible part.
    std::map<double, QString> shown() const
    {
        std::map<double, QString> result;
        for (const PromptLine& line : lines.visibleLines()) {
            const double y = line.baseline * lines.shownTypography().scale - lines.visibleTop();
            const QString text = Testing::shownText(line);
            if (!text.isEmpty() && y > 0 && y < height)
                result.emplace(y, text);
        }
        return result;
    }

    QStringList shownTexts() const
    {
        QStringList result;
        for (const auto& [y, text] : shown())
            result.append(text);
        return result;
    }

    void finish()
    {
        for (int slices = 0; !lines.isLaidOut() && slices < 100000; ++slices)
            time.runSlice();
    }

    LaboriousTimeSource time;
    PromptLines lines { time };
};

TEST_F(PromptLinesTest, showsNothingWithoutAText)
{
    EXPECT_TRUE(shown().empty());
    EXPECT_EQ(lines.contentHeight(), 0);
}

TEST_F(PromptLinesTest, showsAShortTextAtOnce)
{
    lines.setText(u"Hello\nworld"_s);

    EXPECT_EQ(shownTexts(), QStringList({ u"Hello"_s, u"world"_s }));
    EXPECT_TRUE(lines.isLaidOut());
    EXPECT_EQ(time.manual.pendingCalls(), 0u);
}

TEST_F(PromptLinesTest, waitsUntilFontAndFrameAreKnown)
{
    PromptLines bare(time);
    bare.setVisibleHeight(height);
    bare.setText(u"Hello"_s);
    EXPECT_EQ(bare.contentHeight(), 0);

    bare.setFontSize(30);
    bare.setTextWidth(600);
    EXPECT_GT(bare.contentHeight(), 0);
}

TEST_F(PromptLinesTest, setsLinesInSemibold)
{
    lines.setText(u"Hello"_s);

    const QFont font = lines.shownTypography().font;
    EXPECT_EQ(font.families().first(), PromptFont::family());
    EXPECT_EQ(font.weight(), QFont::DemiBold);
    EXPECT_EQ(QFontInfo(font).pixelSize(), 30);
}

TEST_F(PromptLinesTest, drawsSignsInTheTextsColorAndWhatAsksForColorInItsOwn)
{
    const QColor green(48, 209, 88);
    const auto hasOtherColors = [&](const QString& text) {
        lines.setText(text);
        finish();
        const QImage pixels
            = LineImage::of(lines.visibleLines().at(0), lines.shownTypography(), green, 1).pixels;
        for (int y = 0; y < pixels.height(); ++y) {
            for (int x = 0; x < pixels.width(); ++x) {
                if (const QColor color = pixels.pixelColor(x, y);
                    color.alpha() == 255 && color.rgb() != green.rgb())
                    return true;
            }
        }
        return false;
    };

    for (const QString& sign : { u"▪"_s, u"✔"_s, u"✖"_s, u"⚠"_s, u"♥"_s, u"▶"_s, u"➡"_s, u"©"_s })
        EXPECT_FALSE(hasOtherColors(sign)) << sign.toStdString();
    for (const QString& emoji : { u"❤\uFE0F"_s, u"😀"_s, u"🇩🇪"_s, u"⌚"_s })
        EXPECT_TRUE(hasOtherColors(emoji)) << emoji.toStdString();
}

TEST_F(PromptLinesTest, setsLinesInSizesBetweenWholeOnes)
{
    lines.setText(u"Hello"_s);
    for (const double size : { 29.25, 30.5, 41.75 }) {
        lines.setFontSize(size);
        const PromptTypography& typography = lines.shownTypography();

        EXPECT_DOUBLE_EQ(QFontInfo(typography.font).pixelSize() * typography.scale, size);
        EXPECT_DOUBLE_EQ(typography.width * typography.scale, 600);
        EXPECT_DOUBLE_EQ(typography.lineSpacing * typography.scale, 0.28 * size);
    }
}

TEST_F(PromptLinesTest, isAsHighAsItsSize)
{
    lines.setText(numbered(20));
    finish();
    const double heightForEachPoint = lines.contentHeight() / 30;

    for (double size = 28; size <= 32; size += 0.125) {
        lines.setFontSize(size);
        finish();
        EXPECT_NEAR(lines.contentHeight() / size, heightForEachPoint, 0.02 * heightForEachPoint);
    }
}

TEST_F(PromptLinesTest, showsTheLinesOfTheVisiblePartInAScaledSize)
{
    lines.setFontSize(30.5);
    lines.setText(numbered(1000));
    finish();
    const double pitch = (lines.contentHeight() + 0.28 * 30.5) / 1000;

    lines.setVisibleTop(500 * pitch);

    EXPECT_EQ(
        shownTexts(), QStringList({ u"line 500"_s, u"line 501"_s, u"line 502"_s, u"line 503"_s }));
}

TEST_F(PromptLinesTest, standsLinesAFontHeightAnd28PercentOfTheSizeApart)
{
    lines.setText(u"a\nb\nc"_s);
    const double three = lines.contentHeight();
    lines.setText(u"a"_s);
    const double one = lines.contentHeight();

    EXPECT_NEAR(three - 3 * one, 2 * 0.28 * 30, 1e-9);
}

TEST_F(PromptLinesTest, showsTheLinesOfTheVisiblePart)
{
    lines.setText(numbered(1000));
    finish();
    const double pitch = (lines.contentHeight() + 0.28 * 30) / 1000;

    lines.setVisibleTop(500 * pitch);

    EXPECT_EQ(
        shownTexts(), QStringList({ u"line 500"_s, u"line 501"_s, u"line 502"_s, u"line 503"_s }));
}

TEST_F(PromptLinesTest, standsAboveTheFirstLineWhenTheVisiblePartBeginsAboveIt)
{
    lines.setText(u"Hello"_s);
    const double atTop = shown().begin()->first;

    lines.setVisibleTop(-36);

    EXPECT_DOUBLE_EQ(shown().begin()->first, atTop + 36);
}

TEST_F(PromptLinesTest, movesLinesByFractions)
{
    lines.setText(numbered(10));
    finish();
    const double before = shown().begin()->first;

    lines.setVisibleTop(0.125);

    EXPECT_DOUBLE_EQ(shown().begin()->first, before - 0.125);
}

TEST_F(PromptLinesTest, announcesALineThatComes)
{
    lines.setText(numbered(1000));
    finish();
    const double pitch = (lines.contentHeight() + 0.28 * 30) / 1000;
    lines.setVisibleTop(100.5 * pitch);
    const QSignalSpy visibleLinesChanged(&lines, &PromptLines::visibleLinesChanged);

    lines.setVisibleTop(101.5 * pitch);

    EXPECT_EQ(visibleLinesChanged.count(), 1);
}

TEST_F(PromptLinesTest, announcesNothingWhileNoLineComesOrGoes)
{
    lines.setText(numbered(1000));
    finish();
    lines.setVisibleTop(20);
    const QSignalSpy visibleLinesChanged(&lines, &PromptLines::visibleLinesChanged);

    lines.setVisibleTop(20.4);

    EXPECT_EQ(visibleLinesChanged.count(), 0);
}

TEST_F(PromptLinesTest, holdsNoMoreLinesThanCanBeSeen)
{
    lines.setText(numbered(10000));
    finish();
    EXPECT_LT(lines.visibleLines().size(), 10U);

    lines.setVisibleHeight(900);
    EXPECT_GE(lines.visibleLines().size(), 19U);
    EXPECT_LT(lines.visibleLines().size(), 30U);
}

TEST_F(PromptLinesTest, showsEveryLineAtEveryHeight)
{
    lines.setText(numbered(100));
    finish();
    for (double visible = 130; visible <= 900; visible += 7) {
        lines.setVisibleHeight(visible);
        const double pitch = (lines.contentHeight() + 0.28 * 30) / 100;
        for (double top = 0; top < 2 * pitch; top += 3.7) {
            lines.setVisibleTop(top);
            QStringList texts;
            for (const PromptLine& line : lines.visibleLines())
                texts.append(Testing::shownText(line));
            for (int line = static_cast<int>(top / pitch); line * pitch < top + visible; ++line)
                ASSERT_TRUE(texts.contains(u"line %1"_s.arg(line))) << visible << ' ' << top;
        }
    }
}

TEST_F(PromptLinesTest, placesLinesExactlyAtAnyDepth)
{
    lines.setText(numbered(50000));
    finish();
    const double pitch = (lines.contentHeight() + 0.28 * 30) / 50000;

    for (const double line : { 40000.0, 40001.0, 49000.0, 3.0 }) {
        lines.setVisibleTop(line * pitch);
        EXPECT_EQ(shownTexts().first(), u"line %1"_s.arg(line));
        EXPECT_NEAR(shown().begin()->first, 30, 0.01);
    }
}

TEST_F(PromptLinesTest, showsNothingOfALongerTextBefore)
{
    lines.setText(numbered(1000));
    finish();

    lines.setText(u"short"_s);

    EXPECT_EQ(shownTexts(), QStringList({ u"short"_s }));
    lines.setText(QString());
    EXPECT_TRUE(shown().empty());
    EXPECT_EQ(lines.contentHeight(), 0);
}

TEST_F(PromptLinesTest, laysALongTextOutInSlices)
{
    const double before = time.worked();
    lines.setText(numbered(1000));
    EXPECT_LE(time.worked() - before, 0.0065);
    EXPECT_FALSE(lines.isLaidOut());
    EXPECT_EQ(time.manual.pendingCalls(), 1u);

    int slices = 0;
    for (; !lines.isLaidOut(); ++slices) {
        const double sliceStart = time.worked();
        time.runSlice();
        ASSERT_LE(time.worked() - sliceStart, 0.0065);
    }

    EXPECT_GT(slices, 100);
    EXPECT_EQ(time.manual.pendingCalls(), 0u);
}

TEST_F(PromptLinesTest, growsTheContentWhileItIsLaidOut)
{
    lines.setText(numbered(1000));
    const QSignalSpy contentHeightChanged(&lines, &PromptLines::contentHeightChanged);
    double last = lines.contentHeight();
    EXPECT_GT(last, 0);

    while (!lines.isLaidOut()) {
        time.runSlice();
        EXPECT_GT(lines.contentHeight(), last);
        last = lines.contentHeight();
    }

    EXPECT_GT(contentHeightChanged.count(), 100);
}

TEST_F(PromptLinesTest, keepsTheOldLinesUntilTheNewOnesReachTheVisiblePart)
{
    lines.setText(numbered(1000, u"old"_s));
    finish();
    lines.setVisibleTop(20000);
    const auto before = shown();

    lines.setText(numbered(1000, u"new"_s));
    while (!lines.isLaidOut() && shownTexts().first().startsWith(u"old"_s)) {
        ASSERT_EQ(shown(), before);
        ASSERT_FALSE(lines.isLaidOut());
        time.runSlice();
    }

    EXPECT_FALSE(lines.isLaidOut());
    EXPECT_EQ(shown().size(), before.size());
    EXPECT_TRUE(shownTexts().first().startsWith(u"new"_s));
}

TEST_F(PromptLinesTest, keepsTheOldFontWithTheOldLines)
{
    lines.setText(numbered(1000));
    finish();
    lines.setVisibleTop(20000);
    const QSignalSpy shownTypographyChanged(&lines, &PromptLines::shownTypographyChanged);

    lines.setFontSize(40);
    lines.setTextWidth(500);
    EXPECT_EQ(QFontInfo(lines.shownTypography().font).pixelSize(), 30);
    EXPECT_EQ(lines.shownTypography().width, 600);
    EXPECT_EQ(shownTypographyChanged.count(), 0);

    finish();
    EXPECT_EQ(QFontInfo(lines.shownTypography().font).pixelSize(), 40);
    EXPECT_EQ(lines.shownTypography().width, 500);
    EXPECT_EQ(shownTypographyChanged.count(), 1);
}

TEST_F(PromptLinesTest, keepsScrollingTheOldLinesMeanwhile)
{
    lines.setText(numbered(1000));
    finish();
    const double pitch = (lines.contentHeight() + 0.28 * 30) / 1000;
    lines.setVisibleTop(800 * pitch);

    lines.setFontSize(20);
    lines.setVisibleTop(810 * pitch);

    EXPECT_EQ(shownTexts().first(), u"line 810"_s);
}

TEST_F(PromptLinesTest, goesOnWhereTheReaderIsWhenTheNewLinesHaveGotThere)
{
    lines.setText(numbered(1000));
    finish();
    const double pitch = (lines.contentHeight() + 0.28 * 30) / 1000;
    lines.setReadingTop(800 * pitch);
    lines.setVisibleTop(800 * pitch - 36);
    const QSignalSpy readingTopMoved(&lines, &PromptLines::readingTopMoved);

    lines.setFontSize(60);
    EXPECT_EQ(shownTexts().value(1), u"line 800"_s);
    EXPECT_EQ(readingTopMoved.count(), 0);
    lines.setReadingTop(810 * pitch); // The reader goes on meanwhile.
    lines.setVisibleTop(810 * pitch - 36);
    finish();

    EXPECT_EQ(readingTopMoved.count(), 1);
    EXPECT_EQ(lines.visibleTop(), lines.readingTop() - 36);
    EXPECT_NEAR(lines.readingTop(), 810 * 2 * pitch, 0.02 * 810 * 2 * pitch);
    EXPECT_EQ(shownTexts().value(1), u"line 810"_s);
}

TEST_F(PromptLinesTest, leavesThePlaceOfAnotherText)
{
    lines.setText(numbered(1000));
    finish();
    lines.setReadingTop(20000);
    const QSignalSpy readingTopMoved(&lines, &PromptLines::readingTopMoved);

    lines.setText(numbered(500, u"other"_s));
    finish();

    EXPECT_EQ(readingTopMoved.count(), 0);
}

TEST_F(PromptLinesTest, neverPullsTheEndAboveTheReaderDuringALayout)
{
    lines.setText(numbered(1000));
    finish();
    const double before = lines.contentHeight();

    lines.setFontSize(20);
    while (!lines.isLaidOut()) {
        ASSERT_EQ(lines.contentHeight(), before);
        time.runSlice();
    }

    EXPECT_LT(lines.contentHeight(), before);
}

TEST_F(PromptLinesTest, showsWhatIsTypedIntoALongTextAtOnce)
{
    const QString text = numbered(5000);
    lines.setText(text);
    finish();
    const double pitch = (lines.contentHeight() + 0.28 * 30) / 5000;
    lines.setVisibleTop(4000 * pitch);

    const double before = time.worked();
    const qsizetype place = text.indexOf(u"line 4001\n"_s);
    lines.edit(QString(text).replace(place, 9, u"typed"_s), { place, 9, 5 });

    EXPECT_EQ(shownTexts()[1], u"typed"_s);
    EXPECT_TRUE(lines.isLaidOut());
    EXPECT_LE(time.worked() - before, 0.0065);
}

TEST_F(PromptLinesTest, announcesNoLineForAChangeElsewhere)
{
    const QString text = numbered(1000);
    lines.setText(text);
    finish();
    const QSignalSpy visibleLinesChanged(&lines, &PromptLines::visibleLinesChanged);

    lines.edit(text + u"!"_s, { text.size(), 0, 1 });

    EXPECT_TRUE(lines.isLaidOut());
    EXPECT_EQ(visibleLinesChanged.count(), 0);
}

TEST_F(PromptLinesTest, showsTheSameLinesWhenTheTextAboveThemGrows)
{
    const QString text = numbered(1000);
    lines.setText(text);
    finish();
    lines.setVisibleTop(20000);
    const QStringList before = shownTexts();
    const double wholeHeight = lines.contentHeight();

    lines.edit(u"new\n"_s + text, { 0, 0, 4 });
    lines.setVisibleTop(20000 + lines.contentHeight() - wholeHeight);
    EXPECT_EQ(shownTexts(), before);

    lines.edit(text, { 0, 4, 0 });
    lines.setVisibleTop(20000);
    EXPECT_EQ(shownTexts(), before);
}

TEST_F(PromptLinesTest, findsTheLineOfACharacterAtOnce)
{
    QSignalSpy found(&lines, &PromptLines::found);
    lines.setText(numbered(10));
    finish();

    lines.find(0);
    lines.find(6); // "line 0\n" is before it.
    lines.find(7);
    lines.find(13);
    lines.find(1000);

    const auto places = shown();
    const double pitch = std::next(places.begin())->first - places.begin()->first;
    ASSERT_EQ(found.count(), 5);
    EXPECT_EQ(found[0][0].toDouble(), 0);
    EXPECT_EQ(found[1][0].toDouble(), 0);
    EXPECT_DOUBLE_EQ(found[2][0].toDouble(), pitch);
    EXPECT_DOUBLE_EQ(found[3][0].toDouble(), pitch);
    EXPECT_DOUBLE_EQ(found[4][0].toDouble(), 9 * pitch);
}

TEST_F(PromptLinesTest, findsALineThatIsStillToBeLaidOut)
{
    const QString text = numbered(20'000);
    lines.setText(text);
    ASSERT_FALSE(lines.isLaidOut());
    QSignalSpy found(&lines, &PromptLines::found);

    lines.find(text.indexOf(u"line 9000"));
    EXPECT_EQ(found.count(), 0);
    lines.edit(u"line\n"_s + text, { 0, 0, 5 });
    while (found.isEmpty() && !lines.isLaidOut())
        time.runSlice();

    const auto places = shown();
    const double pitch = std::next(places.begin())->first - places.begin()->first;
    ASSERT_EQ(found.count(), 1);
    EXPECT_NEAR(found[0][0].toDouble(), 9001 * pitch, 0.001);
    EXPECT_FALSE(lines.isLaidOut());
    EXPECT_GE(lines.contentHeight(), 9001 * pitch + height);

    lines.find(text.size());
    lines.setText(u"Another"_s);
    EXPECT_EQ(found.count(), 1);
}

TEST_F(PromptLinesTest, takesAnEditBeforeItsSizeIsKnown)
{
    PromptLines bare(time);
    bare.setText(u"Hello"_s);
    bare.edit(u"Hello!"_s, { 5, 0, 1 });

    bare.setFontSize(30);
    bare.setTextWidth(600);
    bare.setVisibleHeight(height);

    ASSERT_EQ(bare.visibleLines().size(), 1U);
    EXPECT_EQ(Testing::shownText(bare.visibleLines().front()), u"Hello!"_s);
}

TEST_F(PromptLinesTest, survivesChangesOfEveryKindInTheMiddleOfALayout)
{
    lines.setText(numbered(3000));
    time.runSlice();
    lines.setTextWidth(100);
    time.runSlice();
    lines.setText(numbered(2000, u"other"_s));
    time.runSlice();
    lines.setFontSize(64);
    lines.setVisibleTop(900);
    time.runSlice();
    lines.setText(numbered(2001, u"other"_s));
    finish();

    PromptLines afresh(time);
    afresh.setFontSize(64);
    afresh.setTextWidth(100);
    afresh.setText(numbered(2001, u"other"_s));
    while (!afresh.isLaidOut())
        time.runSlice();
    EXPECT_DOUBLE_EQ(lines.contentHeight(), afresh.contentHeight());
}

TEST_F(PromptLinesTest, survivesSizesThatNobodyAsksFor)
{
    lines.setText(u"Hello world"_s);
    for (const double size : { -5.0, 0.0, 0.001, 1e9, std::numeric_limits<double>::infinity(),
             std::numeric_limits<double>::quiet_NaN(), 30.0 }) {
        lines.setFontSize(size);
        finish();
        const PromptTypography& typography = lines.shownTypography();
        const double shownSize = QFontInfo(typography.font).pixelSize() * typography.scale;
        EXPECT_GE(shownSize, 12) << size;
        EXPECT_LE(shownSize, 128) << size;
        EXPECT_FALSE(shownTexts().isEmpty()) << size;
    }

    EXPECT_EQ(shownTexts(), QStringList({ u"Hello world"_s }));
}

TEST_F(PromptLinesTest, announcesNothingThatDidNotChange)
{
    lines.setText(u"Hello"_s);
    const QSignalSpy textChanged(&lines, &PromptLines::textChanged);
    const QSignalSpy visibleLinesChanged(&lines, &PromptLines::visibleLinesChanged);
    const QSignalSpy contentHeightChanged(&lines, &PromptLines::contentHeightChanged);

    lines.setText(u"Hello"_s);
    lines.setFontSize(30);
    lines.setTextWidth(600);
    lines.setVisibleTop(0);
    lines.setVisibleHeight(height);

    EXPECT_EQ(textChanged.count(), 0);
    EXPECT_EQ(visibleLinesChanged.count(), 0);
    EXPECT_EQ(contentHeightChanged.count(), 0);
}

TEST_F(PromptLinesTest, leavesNoCallBehind)
{
    {
        PromptLines others(time);
        others.setFontSize(30);
        others.setTextWidth(600);
        others.setText(numbered(1000));
        EXPECT_EQ(time.manual.pendingCalls(), 1u);
    }

    EXPECT_EQ(time.manual.pendingCalls(), 0u);
}

TEST_F(PromptLinesTest, staysAtTheSameWordsWhenTheTextIsUpdated)
{
    const QString before = numbered(300);
    lines.setText(before);
    finish();
    const double pitch = lines.contentHeight() / 300;
    lines.setReadingTop(200 * pitch);
    lines.setVisibleTop(200 * pitch);
    ASSERT_EQ(shownTexts().first(), u"line 200"_s);
    const QSignalSpy moves(&lines, &PromptLines::readingTopMoved);

    // Above the reader's place, below it, and far above it again.
    QString after = before;
    after.replace(u"line 3\n"_s, u"line 3\nadded\nadded, too\n"_s);
    after.replace(u"line 250\n"_s, u"changed\n"_s);
    after.remove(u"line 100\n"_s);
    lines.update(after, differencesBetween(before, after));
    finish();

    EXPECT_EQ(shownTexts().first(), u"line 200"_s);
    EXPECT_NEAR(lines.readingTop(), 201 * pitch, 0.1);
    EXPECT_EQ(moves.count(), 1);
}

TEST_F(PromptLinesTest, staysAtTheTopWhenTheTextIsUpdated)
{
    lines.setText(u"One\nTwo"_s);
    lines.update(u"Once\nTwo"_s, differencesBetween(u"One\nTwo"_s, u"Once\nTwo"_s));

    EXPECT_EQ(lines.readingTop(), 0);
    EXPECT_EQ(shownTexts(), QStringList({ u"Once"_s, u"Two"_s }));
}

} // namespace
} // namespace Orvello
