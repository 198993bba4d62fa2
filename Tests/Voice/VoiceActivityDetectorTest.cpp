#include "Orvello/Voice/VoiceActivityDetector.h"

#include "Orvello/Voice/Loudness.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace Orvello {
namespace {

constexpr double sensitivity = 0.6;

// A tick is 1/64 s, which binary time counts exactly: seven of them are the first past the attack
// time, and the hangover ends between the 44th and the 45th.
constexpr double tick = 1.0 / 64;
constexpr int ticksOfAttack = 7;
constexpr int ticksOfHangover = 44;

class VoiceActivityDetectorTest : public ::testing::Test {
protected:
    BlockReport hear(float sample)
    {
        const std::vector<float> samples(128, sample);
        return detector.process(samples, sensitivity, now);
    }

    /// One block, then the time until the next.
    bool isSpeakingAfter(float sample)
    {
        const bool speaking = hear(sample).isSpeaking;
        now += tick;
        return speaking;
    }

    void hearFor(int ticks, float sample)
    {
        for (int count = 0; count < ticks; ++count)
            (void)isSpeakingAfter(sample);
    }

    void startSpeaking()
    {
        hearFor(ticksOfAttack, loud);
        ASSERT_TRUE(isSpeakingAfter(loud));
    }

    static constexpr float loud = 0.1f;
    static constexpr float quiet = 0.001f;
    VoiceActivityDetector detector;
    double now = 512.0;
};

TEST_F(VoiceActivityDetectorTest, silenceStaysSilent)
{
    for (int count = 0; count < 100; ++count)
        EXPECT_FALSE(isSpeakingAfter(quiet));
}

TEST_F(VoiceActivityDetectorTest, constantSoundJustAboveTheThresholdSpeaksAfterTheAttackTime)
{
    const float justAbove = Loudness::speechThreshold(sensitivity) * 1.001f;

    for (int count = 0; count < ticksOfAttack; ++count)
        EXPECT_FALSE(isSpeakingAfter(justAbove)) << count;
    EXPECT_TRUE(isSpeakingAfter(justAbove));
}

TEST_F(VoiceActivityDetectorTest, attackTimeIsReachedAtExactlyATenth)
{
    now = 0;
    EXPECT_FALSE(hear(loud).isSpeaking);
    now = 0.09999;
    EXPECT_FALSE(hear(loud).isSpeaking);
    now = 0.1;
    EXPECT_TRUE(hear(loud).isSpeaking);
}

TEST_F(VoiceActivityDetectorTest, firstLoudBlockNeverSpeaksByItself)
{
    now = 100000;

    EXPECT_FALSE(hear(loud).isSpeaking);
}

TEST_F(VoiceActivityDetectorTest, loudBlocksFarApartAreOneRun)
{
    EXPECT_FALSE(hear(loud).isSpeaking);
    now += 30;
    EXPECT_TRUE(hear(loud).isSpeaking);
}

TEST_F(VoiceActivityDetectorTest, quietBlockBeginsTheAttackAnew)
{
    hearFor(ticksOfAttack, loud);
    EXPECT_FALSE(isSpeakingAfter(quiet));

    for (int count = 0; count < ticksOfAttack; ++count)
        EXPECT_FALSE(isSpeakingAfter(loud)) << count;
    EXPECT_TRUE(isSpeakingAfter(loud));
}

TEST_F(VoiceActivityDetectorTest, pausesWithinTheHangoverAreBridged)
{
    startSpeaking();
    for (int sentence = 0; sentence < 5; ++sentence) {
        for (int count = 0; count < ticksOfHangover - 1; ++count)
            EXPECT_TRUE(isSpeakingAfter(quiet)) << count;
        for (int count = 0; count < ticksOfAttack + 1; ++count)
            EXPECT_TRUE(isSpeakingAfter(loud)) << count;
    }
}

TEST_F(VoiceActivityDetectorTest, speakingEndsAtTheFirstQuietBlockPastTheDeadline)
{
    startSpeaking();

    for (int count = 1; count <= ticksOfHangover; ++count)
        EXPECT_TRUE(isSpeakingAfter(quiet)) << count;
    EXPECT_FALSE(isSpeakingAfter(quiet));
}

TEST_F(VoiceActivityDetectorTest, quietBlockAtTheDeadlineItselfStillSpeaks)
{
    hear(loud);
    now += 0.1;
    ASSERT_TRUE(hear(loud).isSpeaking);
    const double deadline = now + 0.7;

    now = deadline;
    EXPECT_TRUE(hear(quiet).isSpeaking);
    now = std::nextafter(deadline, deadline + 1);
    EXPECT_FALSE(hear(quiet).isSpeaking);
}

TEST_F(VoiceActivityDetectorTest, longSilenceWithoutBlocksEndsSpeakingAtTheNextQuietOne)
{
    startSpeaking();
    now += 60;

    EXPECT_FALSE(isSpeakingAfter(quiet));
}

TEST_F(VoiceActivityDetectorTest, loudBlocksPastTheDeadlineCannotEndSpeaking)
{
    startSpeaking();
    EXPECT_TRUE(isSpeakingAfter(quiet));
    now += 60;

    EXPECT_TRUE(isSpeakingAfter(loud));
}

TEST_F(VoiceActivityDetectorTest, shortRunWhileSpeakingDoesNotExtendTheHangover)
{
    startSpeaking();
    const double deadline = now - tick + 0.7;
    while (now + 4 * tick <= deadline)
        ASSERT_TRUE(isSpeakingAfter(quiet));

    while (now <= deadline)
        EXPECT_TRUE(isSpeakingAfter(loud));

    EXPECT_FALSE(isSpeakingAfter(quiet));
}

TEST_F(VoiceActivityDetectorTest, runOfTheAttackTimeWhileSpeakingExtendsTheHangover)
{
    startSpeaking();
    EXPECT_TRUE(isSpeakingAfter(quiet));
    hearFor(ticksOfAttack + 1, loud);

    for (int count = 1; count <= ticksOfHangover; ++count)
        EXPECT_TRUE(isSpeakingAfter(quiet)) << count;
    EXPECT_FALSE(isSpeakingAfter(quiet));
}

TEST_F(VoiceActivityDetectorTest, loudnessEqualToTheThresholdIsQuiet)
{
    // One sample, so that the root gives back exactly what was squared.
    float threshold = Loudness::speechThreshold(sensitivity);
    const std::vector<float> one { threshold };
    ASSERT_EQ(Loudness::rootMeanSquare(one), threshold);

    (void)detector.process(one, sensitivity, 0.0);

    EXPECT_FALSE(detector.process(one, sensitivity, 1.0).isSpeaking);
    EXPECT_FALSE(detector.process(one, sensitivity, 2.0).isSpeaking);
}

TEST_F(VoiceActivityDetectorTest, sensitivityIsTakenFreshForEveryBlock)
{
    const std::vector<float> soft(128, 0.01f);
    (void)detector.process(soft, 0.0, 0.0);
    EXPECT_FALSE(detector.process(soft, 0.0, 1.0).isSpeaking);

    (void)detector.process(soft, 1.0, 2.0);
    const BlockReport sensitive = detector.process(soft, 1.0, 3.0);
    const BlockReport deaf = detector.process(soft, 0.0, 4.0);

    EXPECT_TRUE(sensitive.isSpeaking);
    EXPECT_EQ(sensitive.threshold, Loudness::speechThreshold(1.0));
    EXPECT_FALSE(deaf.isSpeaking);
    EXPECT_EQ(deaf.threshold, Loudness::speechThreshold(0.0));
}

TEST_F(VoiceActivityDetectorTest, reportCarriesTheBlocksLoudness)
{
    const BlockReport report = hear(0.02f);

    EXPECT_FLOAT_EQ(report.rootMeanSquare, 0.02f);
    EXPECT_EQ(report.threshold, Loudness::speechThreshold(sensitivity));
}

TEST_F(VoiceActivityDetectorTest, levelApproachesItsTargetGeometrically)
{
    float level = 0;
    for (const float expected : { 0.3f, 0.51f, 0.657f, 0.7599f }) {
        level = hear(0.04f).smoothed(level);
        EXPECT_FLOAT_EQ(level, expected);
    }
    level = hear(0.0f).smoothed(level);
    EXPECT_FLOAT_EQ(level, 0.7599f * 0.7f);
}

TEST_F(VoiceActivityDetectorTest, stoppingForgetsTheSpeechButNotTheRun)
{
    startSpeaking();

    detector.stopSpeaking();

    EXPECT_TRUE(isSpeakingAfter(loud));
}

TEST_F(VoiceActivityDetectorTest, afterStoppingAQuietBlockIsSilenceWithinTheHangover)
{
    startSpeaking();

    detector.stopSpeaking();

    EXPECT_FALSE(isSpeakingAfter(quiet));
}

TEST_F(VoiceActivityDetectorTest, brokenSamplesNeitherStopItNorPoisonTheLevel)
{
    float level = 0;
    for (const float broken : { std::numeric_limits<float>::quiet_NaN(),
             std::numeric_limits<float>::infinity(), -std::numeric_limits<float>::infinity(),
             std::numeric_limits<float>::max(), std::numeric_limits<float>::denorm_min() }) {
        level = hear(broken).smoothed(level);
        EXPECT_GE(level, 0.0f);
        EXPECT_LE(level, 1.0f);
        now += tick;
    }
    now += 10;
    EXPECT_FALSE(isSpeakingAfter(quiet));
    hearFor(ticksOfAttack, loud);
    EXPECT_TRUE(isSpeakingAfter(loud));
}

} // namespace
} // namespace Orvello
