#include "Orvello/Voice/SensitivityTest.h"
#include "Tests/Voice/VoiceFixture.h"

#include <QSignalSpy>

#include <algorithm>
#include <limits>
#include <vector>

namespace Orvello {
namespace {

/// Blocks of a room and, for two thirds of the time, of somebody who speaks in it.
std::vector<float> talk(float room, float speech)
{
    std::vector<float> loudness;
    for (int block = 0; block < 300; ++block)
        loudness.push_back(block % 3 == 0 ? room : speech);
    return loudness;
}

TEST(SensitivityProposalTest, liesTwelveDecibelsBelowTheVoiceInAQuietRoom)
{
    // 0.02524 / 4 is the threshold of the sensitivity 0.6: see LoudnessTest.
    EXPECT_EQ(SensitivityTest::proposalFor(talk(0.0002f, 0.02524f)), 0.6);
}

TEST(SensitivityProposalTest, liesSixDecibelsAboveALoudRoom)
{
    // 2 * 0.010568 is the threshold of the sensitivity 0.25, and the voice stands out by 14 dB.
    EXPECT_EQ(SensitivityTest::proposalFor(talk(0.010568f, 0.053f)), 0.25);
}

TEST(SensitivityProposalTest, staysWithinWhatTheSettingsOffer)
{
    EXPECT_EQ(SensitivityTest::proposalFor(talk(0.0f, 0.9f)), 0.1);
    EXPECT_EQ(SensitivityTest::proposalFor(talk(0.0f, 0.0017f)), 1.0);
}

TEST(SensitivityProposalTest, isNoneWhereNoVoiceStandsOut)
{
    EXPECT_EQ(SensitivityTest::proposalFor({}), std::nullopt);
    EXPECT_EQ(SensitivityTest::proposalFor(talk(0.0f, 0.0f)), std::nullopt);
    EXPECT_EQ(SensitivityTest::proposalFor(talk(0.02f, 0.03f)), std::nullopt);
    EXPECT_EQ(SensitivityTest::proposalFor(talk(0.0f, 0.001f)), std::nullopt);
}

TEST(SensitivityProposalTest, passesOverWhatIsNoLoudness)
{
    std::vector<float> loudness = talk(0.0002f, 0.02524f);
    loudness.push_back(std::numeric_limits<float>::infinity());
    loudness.push_back(std::numeric_limits<float>::quiet_NaN());

    EXPECT_EQ(SensitivityTest::proposalFor(loudness), 0.6);
}

class SensitivityTestTest : public VoiceFixture {
protected:
    void speakForFiveSeconds()
    {
        for (int block = 0; block < 50; ++block) {
            hear(block % 3 == 0 ? 0.0002f : 0.02524f);
            time.advance(0.1);
        }
        time.advance(0.1);
    }

    void become(Microphones::Trouble trouble)
    {
        Microphones::State state = microphones.current;
        state.heard = QStringLiteral("Headset");
        state.trouble = trouble;
        microphones.become(state);
    }

    SensitivityTest& test = *engine->sensitivityTest();
};

TEST_F(SensitivityTestTest, capturesForFiveSecondsWhereNothingIsCaptured)
{
    QSignalSpy changes(&test, &SensitivityTest::changed);
    test.begin();
    EXPECT_GE(changes.count(), 1);
    changes.clear();
    EXPECT_TRUE(test.isRunning());
    EXPECT_TRUE(engine->isListening());
    EXPECT_EQ(test.message(), QStringLiteral("Speak normally for five seconds."));

    speakForFiveSeconds();

    EXPECT_FALSE(test.isRunning());
    EXPECT_FALSE(engine->isListening());
    EXPECT_EQ(test.proposal(), 0.6);
    EXPECT_EQ(test.message(), QStringLiteral("A sensitivity of 60% suits your voice here."));
    EXPECT_GE(changes.count(), 1);
}

TEST_F(SensitivityTestTest, leavesAVoiceFollowAlone)
{
    settings.setVoiceFollow(true);
    engine->requestPermissionAndStart();
    test.begin();

    speakForFiveSeconds();

    EXPECT_TRUE(engine->isListening());
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "unit instantiate"), 1);
}

TEST_F(SensitivityTestTest, goesOnCapturingWhereVoiceFollowWasTurnedOnMeanwhile)
{
    test.begin();
    settings.setVoiceFollow(true);

    speakForFiveSeconds();

    EXPECT_TRUE(engine->isListening());
}

TEST_F(SensitivityTestTest, changesTheSettingOnlyWhenAsked)
{
    settings.setVoiceSensitivity(0.9);
    test.useProposal();
    test.begin();
    speakForFiveSeconds();
    EXPECT_EQ(settings.voiceSensitivity(), 0.9);

    test.useProposal();

    EXPECT_EQ(settings.voiceSensitivity(), 0.6);
}

TEST_F(SensitivityTestTest, saysSoWhenItHeardNobody)
{
    EXPECT_EQ(test.message(), QString());
    test.begin();
    time.advance(5.1);

    EXPECT_FALSE(test.hasProposal());
    EXPECT_TRUE(test.message().startsWith(QStringLiteral("No voice stood out")));
}

// Before it listens

TEST_F(SensitivityTestTest, takesItsFiveSecondsFromWhenTheUserLetsItListen)
{
    permission.currentStatus = MicrophonePermission::Status::NotDetermined;
    test.begin();
    time.advance(60);
    EXPECT_TRUE(test.isRunning());
    EXPECT_EQ(test.message(), QStringLiteral("Waiting for the microphone…"));
    const QSignalSpy changes(&test, &SensitivityTest::changed);

    permission.requests.front()(true);
    Testing::drainEvents();
    EXPECT_GE(changes.count(), 1);
    EXPECT_EQ(test.message(), QStringLiteral("Speak normally for five seconds."));
    speakForFiveSeconds();

    EXPECT_EQ(test.proposal(), 0.6);
    EXPECT_FALSE(engine->isListening());
}

TEST_F(SensitivityTestTest, isOverWhenTheUserRefuses)
{
    permission.currentStatus = MicrophonePermission::Status::NotDetermined;
    test.begin();

    permission.requests.front()(false);
    Testing::drainEvents();

    EXPECT_FALSE(test.isRunning());
    EXPECT_EQ(test.message(), QStringLiteral("The microphone may not be used."));
}

TEST_F(SensitivityTestTest, isOverWhereTheUserHasRefused)
{
    permission.currentStatus = MicrophonePermission::Status::Denied;

    test.begin();

    EXPECT_FALSE(test.isRunning());
    EXPECT_EQ(test.message(), QStringLiteral("The microphone may not be used."));
}

TEST_F(SensitivityTestTest, doesNotWaitForAMicrophoneToBeConnected)
{
    microphones.current.isReady = false;
    become(Microphones::Trouble::NoMicrophone);

    test.begin();

    EXPECT_FALSE(test.isRunning());
    EXPECT_EQ(test.message(), QStringLiteral("No microphone is connected."));
    microphones.become({});
    time.advance(10);
    EXPECT_FALSE(engine->isListening());
}

TEST_F(SensitivityTestTest, leavesNothingCapturingWhereTheUserLetsItListenToNothing)
{
    permission.currentStatus = MicrophonePermission::Status::NotDetermined;
    microphones.current.isReady = false;
    become(Microphones::Trouble::NoMicrophone);
    test.begin();

    permission.requests.front()(true);
    Testing::drainEvents();
    EXPECT_FALSE(test.isRunning());
    microphones.become({});
    time.advance(10);

    EXPECT_FALSE(engine->isListening());
    EXPECT_EQ(time.pendingCalls(), 0u);
}

TEST_F(SensitivityTestTest, saysSoWhenTheMicrophoneDoesNotStart)
{
    voiceProcessing.available = false;
    microphone.startError = QStringLiteral("Busy");

    test.begin();

    EXPECT_FALSE(test.isRunning());
    EXPECT_EQ(test.message(), QStringLiteral("The microphone could not be started."));
    EXPECT_EQ(time.pendingCalls(), 0u);
}

// While it listens

TEST_F(SensitivityTestTest, saysWhatKeepsItFromHearingAnybody)
{
    test.begin();

    become(Microphones::Trouble::Muted);
    EXPECT_EQ(test.message(), QStringLiteral("The microphone “Headset” is muted."));
    time.advance(5.1);
    EXPECT_FALSE(test.isRunning());
    EXPECT_EQ(test.message(), QStringLiteral("The microphone “Headset” is muted."));

    become(Microphones::Trouble::None);
    test.begin();
    EXPECT_EQ(test.message(), QStringLiteral("Speak normally for five seconds."));
}

TEST_F(SensitivityTestTest, endsWithoutAWordWhenTheUserTurnsVoiceFollowOff)
{
    settings.setVoiceFollow(true);
    engine->requestPermissionAndStart();
    test.begin();
    const QSignalSpy changes(&test, &SensitivityTest::changed);

    settings.setVoiceFollow(false);
    engine->stop();

    EXPECT_FALSE(test.isRunning());
    EXPECT_EQ(test.message(), QString());
    EXPECT_GE(changes.count(), 1);
    EXPECT_EQ(time.pendingCalls(), 0u);
}

TEST_F(SensitivityTestTest, takesAGapForNoSilentRoom)
{
    constexpr float room = 0.010568f;
    constexpr float voice = 0.053f;
    test.begin();
    hear(voice);
    time.advance(0.125);
    hear(voice);
    ASSERT_TRUE(engine->isSpeaking());
    time.advance(2);
    ASSERT_FALSE(engine->isSpeaking()) << "nothing came";

    for (const float loudness : { room, voice, room, voice, room, voice })
        hear(loudness);
    time.advance(3);

    EXPECT_EQ(test.proposal(), 0.25);
}

} // namespace
} // namespace Orvello
