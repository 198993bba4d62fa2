// What the engine publishes of the blocks it hears.

#include "Tests/Voice/VoiceFixture.h"

#include <QSignalSpy>

#include <limits>

namespace Orvello {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VoiceGateTest : public VoiceFixture {
protected:
    VoiceGateTest()
    {
        engine->requestPermissionAndStart();
        ownLog.clear();
    }

    void restart()
    {
        engine->stop();
        engine->requestPermissionAndStart();
    }

    Testing::LogCapture ownLog;
};

TEST_F(VoiceGateTest, opensForSpeechAndClosesAfterIt)
{
    speak();
    EXPECT_TRUE(engine->isSpeaking());
    time.advance(0.75);
    hear(quiet);

    EXPECT_FALSE(engine->isSpeaking());
    EXPECT_THAT(ownLog.lines(),
        ElementsAre(
            "VAD speaking=1 rms=0.1000 thr=0.0063", "VAD speaking=0 rms=0.0000 thr=0.0063"));
}

TEST_F(VoiceGateTest, isPublishedOnlyWhenItChanges)
{
    const QSignalSpy changes(engine.get(), &VoiceActivityEngine::isSpeakingChanged);
    for (int block = 0; block < 100; ++block) {
        hear(loud);
        time.advance(0.0625);
    }

    EXPECT_EQ(changes.count(), 1);
    EXPECT_THAT(ownLog.lines(), ElementsAre("VAD speaking=1 rms=0.1000 thr=0.0063"));
}

TEST_F(VoiceGateTest, isPublishedByTheMainLoopOnly)
{
    hearUnnoticed(loud);
    time.advance(0.125);
    hearUnnoticed(loud);

    EXPECT_FALSE(engine->isSpeaking());
    EXPECT_EQ(engine->level(), 0.0f);
    Testing::drainEvents();
    EXPECT_TRUE(engine->isSpeaking());
    EXPECT_FLOAT_EQ(engine->level(), 0.51f);
}

TEST_F(VoiceGateTest, levelIsSmoothedBlockByBlock)
{
    for (const float expected : { 0.3f, 0.51f, 0.657f }) {
        hear(0.04f);
        EXPECT_FLOAT_EQ(engine->level(), expected);
    }
}

TEST_F(VoiceGateTest, levelSignalComesOnlyWithAChange)
{
    const QSignalSpy changes(engine.get(), &VoiceActivityEngine::levelChanged);

    hear(quiet);
    EXPECT_EQ(changes.count(), 0);
    hear(loud);
    EXPECT_EQ(changes.count(), 1);
}

TEST_F(VoiceGateTest, aNewSensitivityHoldsForTheNextBlock)
{
    settings.setVoiceSensitivity(0.0);
    hear(0.04f);
    time.advance(0.125);
    hear(0.04f);
    EXPECT_FALSE(engine->isSpeaking());

    settings.setVoiceSensitivity(1.0);
    hear(0.04f);
    time.advance(0.125);
    hear(0.04f);

    EXPECT_TRUE(engine->isSpeaking());
    EXPECT_THAT(ownLog.lines(), ElementsAre("VAD speaking=1 rms=0.0400 thr=0.0016"));
}

TEST_F(VoiceGateTest, hearsTheRawMicrophoneToo)
{
    runZoom();
    time.advance(1);

    speak();

    EXPECT_TRUE(engine->isSpeaking());
}

TEST_F(VoiceGateTest, staysOpenAcrossAChangeOfPath)
{
    speak();
    runZoom();
    time.advance(0.875);
    ASSERT_FALSE(engine->aecActive());
    Testing::drainEvents();

    EXPECT_TRUE(engine->isSpeaking());
}

TEST_F(VoiceGateTest, skipsBlocksThatTheUnitCannotRender)
{
    voiceProcessing.renders = false;

    speak();

    EXPECT_FALSE(engine->isSpeaking());
    EXPECT_EQ(engine->level(), 0.0f);
}

TEST_F(VoiceGateTest, skipsEmptyAndOversizedBlocksOfTheUnit)
{
    hear(loud, 0);
    hear(loud, 16385);
    EXPECT_EQ(engine->level(), 0.0f);

    hear(loud, 16384);
    EXPECT_FLOAT_EQ(engine->level(), 0.3f);
    hear(loud, 1);
    EXPECT_FLOAT_EQ(engine->level(), 0.51f);
}

TEST_F(VoiceGateTest, skipsOnlyEmptyBuffersOfTheRawMicrophone)
{
    runZoom();
    time.advance(1);

    hear(loud, 0);
    EXPECT_EQ(engine->level(), 0.0f);
    hear(loud, 100000);
    EXPECT_FLOAT_EQ(engine->level(), 0.3f);
}

TEST_F(VoiceGateTest, brokenSamplesDoNotPoisonIt)
{
    for (const float broken :
        { std::numeric_limits<float>::quiet_NaN(), std::numeric_limits<float>::infinity() }) {
        hear(broken);
        EXPECT_GE(engine->level(), 0.0f);
        EXPECT_LE(engine->level(), 1.0f);
    }
    time.advance(1);
    hear(quiet);
    EXPECT_FALSE(engine->isSpeaking());

    speak();

    EXPECT_TRUE(engine->isSpeaking());
}

TEST_F(VoiceGateTest, stoppingClosesTheGateOnTheMainLoop)
{
    speak();

    engine->stop();
    EXPECT_TRUE(engine->isSpeaking());
    Testing::drainEvents();

    EXPECT_FALSE(engine->isSpeaking());
    EXPECT_EQ(engine->level(), 0.0f);
    EXPECT_THAT(ownLog.lines(), ElementsAre("VAD speaking=1 rms=0.1000 thr=0.0063"));
}

TEST_F(VoiceGateTest, blocksHeardBeforeStoppingTakeEffectBeforeTheReset)
{
    hearUnnoticed(loud);
    time.advance(0.125);
    hearUnnoticed(loud);

    engine->stop();
    Testing::drainEvents();

    EXPECT_THAT(ownLog.lines(), ElementsAre("VAD speaking=1 rms=0.1000 thr=0.0063"));
    EXPECT_FALSE(engine->isSpeaking());
    EXPECT_EQ(engine->level(), 0.0f);
}

TEST_F(VoiceGateTest, blocksHeardAfterARestartTakeEffectAfterTheReset)
{
    speak();

    restart();
    hearUnnoticed(0.04f);
    Testing::drainEvents();
    Testing::drainEvents();

    EXPECT_FLOAT_EQ(engine->level(), 0.3f);
}

TEST_F(VoiceGateTest, stoppingWhileDeadOnlyEndsTheWatchdog)
{
    microphone.rate = 0;
    runZoom();
    time.advance(1);
    ASSERT_FALSE(engine->isListening());
    ASSERT_EQ(time.pendingCalls(), 1u);
    journal.clear();

    engine->stop();
    Testing::drainEvents();

    EXPECT_EQ(time.pendingCalls(), 0u);
    EXPECT_TRUE(engine->aecActive());
    EXPECT_THAT(journal, IsEmpty());
}

TEST_F(VoiceGateTest, shutsWhenNothingIsCapturedAnyLonger)
{
    speak();
    microphone.rate = 0;
    runZoom();

    time.advance(1);
    Testing::drainEvents();

    ASSERT_FALSE(engine->isListening());
    EXPECT_FALSE(engine->isSpeaking());
    EXPECT_EQ(engine->level(), 0.0f);
}

TEST_F(VoiceGateTest, shutsWhenTheMicrophoneFallsSilentInMidSentenceWithoutAWord)
{
    speak();

    time.advance(1);
    EXPECT_TRUE(engine->isSpeaking());
    time.advance(1);

    EXPECT_FALSE(engine->isSpeaking());
    EXPECT_EQ(engine->level(), 0.0f);
    EXPECT_EQ(log.lines().back(), "VAD speaking=0 rms=0.0000 thr=0.0063");
}

TEST_F(VoiceGateTest, takesWhatIsLoudAfterSuchASilenceForANewSound)
{
    speak();
    time.advance(2);
    ASSERT_FALSE(engine->isSpeaking());

    hear(loud);
    EXPECT_FALSE(engine->isSpeaking());
    time.advance(0.125);
    hear(loud);

    EXPECT_TRUE(engine->isSpeaking());
}

TEST_F(VoiceGateTest, staysOpenThroughAStallOfTheMainLoop)
{
    speak();
    time.advance(1);
    const std::vector<std::string> before = log.lines();

    hearUnnoticed(loud);
    time.advance(1);

    EXPECT_TRUE(engine->isSpeaking());
    EXPECT_EQ(log.lines(), before);
}

TEST_F(VoiceGateTest, aRestartWithinALoudRunSpeaksAtItsFirstBlock)
{
    speak();
    engine->stop();
    Testing::drainEvents();
    ASSERT_FALSE(engine->isSpeaking());
    engine->requestPermissionAndStart();

    hear(loud);

    EXPECT_TRUE(engine->isSpeaking());
}

TEST_F(VoiceGateTest, aStalledMainLoopLosesNothing)
{
    // Ten minutes of speech and silence in turn, two seconds each, while the main loop is busy.
    for (int block = 0; block < 600 * 64; ++block) {
        hearUnnoticed(block / 128 % 2 == 0 ? loud : quiet, 128);
        time.advance(1.0 / 64);
    }

    Testing::drainEvents();
    hear(quiet);

    EXPECT_EQ(ownLog.lines().size(), 300u);
    EXPECT_FALSE(engine->isSpeaking());
    EXPECT_NEAR(engine->level(), 0.0f, 1e-6f);
}

TEST_F(VoiceGateTest, hearsNothingAfterStopping)
{
    engine->stop();

    speak();

    EXPECT_FALSE(engine->isSpeaking());
    EXPECT_EQ(engine->level(), 0.0f);
    EXPECT_THAT(ownLog.lines(), IsEmpty());
}

} // namespace
} // namespace Orvello
