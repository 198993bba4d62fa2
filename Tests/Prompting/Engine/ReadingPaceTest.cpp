#include "Orvello/Prompting/Engine/ReadingPace.h"

#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/ManualTimeSource.h"

#include <gtest/gtest.h>

#include <limits>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

/// A text of 2,000 words that is 10,060 points high: its end is 10,000 points from its top.
class ReadingPaceTest : public ::testing::Test {
protected:
    ReadingPaceTest()
    {
        settings.setCountdownSeconds(0);
        engine.setViewportHeight(200);
        engine.setContentHeight(10060);
        pace.setText(words(2000));
    }

    static QString words(int count) { return u"word "_s.repeated(count); }

    /// In minutes, on virtual time.
    double timeToRead()
    {
        engine.setOffset(0);
        engine.start();
        const double begin = time.now();
        while (engine.isRunning() && time.now() - begin < 7200)
            time.advance(0.1);
        return (time.now() - begin) / 60;
    }

    Testing::FakeUserDefaults defaults;
    SettingsStore settings { defaults };
    Testing::ManualTimeSource time;
    ScrollEngine engine { settings, time };
    ReadingPace pace { settings, engine, time };
};

TEST_F(ReadingPaceTest, saysWhatTheSpeedMeans)
{
    settings.setSpeed(25);

    EXPECT_DOUBLE_EQ(pace.unitsPerMinute(), 300);
    EXPECT_EQ(pace.description(),
        u"25 pt/s · about 300 words a minute in this script: faster than speech"_s);
}

TEST_F(ReadingPaceTest, saysNothingOfWhatNobodyCouldSay)
{
    pace.setText({});
    EXPECT_EQ(pace.description(), u"The prompter has no text to scroll."_s);

    pace.setText(words(3));
    engine.setContentHeight(40);
    EXPECT_EQ(pace.description(), u"The prompter has no text to scroll."_s);
}

TEST_F(ReadingPaceTest, readsAScriptAtThePaceThatIsSet)
{
    for (const double wanted : { 95.0, 120.0, 140.0, 160.0 }) {
        pace.setUnitsPerMinute(wanted);

        EXPECT_NEAR(2000 / timeToRead(), wanted, wanted / 100) << wanted;
        EXPECT_DOUBLE_EQ(pace.unitsPerMinute(), wanted);
    }
}

TEST_F(ReadingPaceTest, countsCharactersWhereWordsAreNotWrittenApart)
{
    pace.setText(u"各位早上好,欢迎。"_s.repeated(100));
    settings.setSpeed(25);

    EXPECT_EQ(pace.length().characters, 700);
    EXPECT_EQ(pace.description(), u"25 pt/s · about 105 characters a minute in this script"_s);
}

TEST_F(ReadingPaceTest, keepsToTheBoundsOfTheSpeed)
{
    pace.setUnitsPerMinute(1e300);
    EXPECT_EQ(settings.speed(), 240);
    pace.setUnitsPerMinute(1);
    EXPECT_EQ(settings.speed(), 2);

    settings.setSpeed(25);
    for (const double none : { 0.0, -5.0, std::numeric_limits<double>::quiet_NaN() })
        pace.setUnitsPerMinute(none);
    pace.setText({});
    pace.setUnitsPerMinute(140);
    EXPECT_EQ(settings.speed(), 25);
}

TEST_F(ReadingPaceTest, changesThePaceWithTheTextUnlessItIsKept)
{
    settings.setSpeed(20);
    engine.setContentHeight(20060);
    time.advance(1);

    EXPECT_EQ(settings.speed(), 20);
    EXPECT_DOUBLE_EQ(pace.unitsPerMinute(), 120);
}

TEST_F(ReadingPaceTest, keepsThePaceOfATextOfAnotherSize)
{
    pace.setUnitsPerMinute(200);
    pace.setKept(true);
    const double before = settings.speed();

    engine.setContentHeight(20060);
    time.advance(1);

    EXPECT_DOUBLE_EQ(pace.unitsPerMinute(), 200);
    EXPECT_DOUBLE_EQ(settings.speed(), 2 * before);
}

TEST_F(ReadingPaceTest, keepsThePaceOfAnotherText)
{
    pace.setUnitsPerMinute(200);
    pace.setKept(true);

    pace.setText(words(1000));
    time.advance(1);

    EXPECT_DOUBLE_EQ(pace.unitsPerMinute(), 200);
}

TEST_F(ReadingPaceTest, waitsForALayoutThatGrows)
{
    pace.setUnitsPerMinute(200);
    pace.setKept(true);
    const double before = settings.speed();
    for (int height = 1000; height <= 10060; height += 906) {
        engine.setContentHeight(height);
        time.advance(0.1);
        EXPECT_EQ(settings.speed(), before);
    }
}

TEST_F(ReadingPaceTest, keepsTheOneThatTheUserChoosesLast)
{
    pace.setUnitsPerMinute(200);
    pace.setKept(true);
    settings.setSpeed(20);
    const double chosen = pace.unitsPerMinute();

    engine.setContentHeight(20060);
    time.advance(1);

    EXPECT_DOUBLE_EQ(pace.unitsPerMinute(), chosen);
    EXPECT_DOUBLE_EQ(settings.keptPace(), chosen);
}

TEST_F(ReadingPaceTest, lastsUntilTheNextLaunch)
{
    pace.setUnitsPerMinute(200);
    pace.setKept(true);

    SettingsStore later(defaults);
    later.setSpeed(60);
    ScrollEngine laterEngine(later, time);
    ReadingPace laterPace(later, laterEngine, time);
    EXPECT_TRUE(laterPace.isKept());
    laterEngine.setViewportHeight(200);
    laterPace.setText(words(2000));
    laterEngine.setContentHeight(10060);
    time.advance(1);

    EXPECT_DOUBLE_EQ(laterPace.unitsPerMinute(), 200);
}

TEST_F(ReadingPaceTest, estimatesALongText)
{
    pace.setText(words(100'000));

    EXPECT_NEAR(static_cast<double>(pace.length().words), 100'000, 10);
}

TEST(SpokenLengthTest, countsWordsAndTheCharactersOfScriptsWithoutSpaces)
{
    EXPECT_EQ(SpokenLength::of(u""), (SpokenLength { 0, 0 }));
    EXPECT_EQ(SpokenLength::of(u"  Good — morning, \n 2026! "), (SpokenLength { 3, 0 }));
    EXPECT_EQ(SpokenLength::of(u"مرحبا بكم جميعا"), (SpokenLength { 3, 0 }));
    EXPECT_EQ(SpokenLength::of(u"皆さん、おはよう。"), (SpokenLength { 0, 7 }));
    EXPECT_EQ(SpokenLength::of(u"用 Orvello 提词"), (SpokenLength { 1, 3 }));
    EXPECT_EQ(SpokenLength::of(u"𠮷野"), (SpokenLength { 0, 2 })) << "beyond the first plane";
    EXPECT_EQ(SpokenLength::of(QString(QChar(0xD842))), (SpokenLength { 0, 0 }));
    EXPECT_EQ(SpokenLength::of(u"don't well-known"), (SpokenLength { 2, 0 }));
}

} // namespace
} // namespace Orvello
