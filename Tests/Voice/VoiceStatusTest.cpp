#include "Tests/Voice/VoiceFixture.h"

#include <QSignalSpy>

#include <tuple>
#include <vector>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using Sound = Microphones::Trouble;
using Trouble = VoiceActivityEngine::Trouble;
using EchoCancellation = VoiceActivityEngine::EchoCancellation;

/// What the engine says of itself.
class VoiceStatusTest : public VoiceFixture {
protected:
    VoiceStatusTest() { settings.setVoiceFollow(true); }

    void become(Sound trouble, const QString& heard = u"Headset"_s)
    {
        Microphones::State state = microphones.current;
        state.heard = heard;
        state.trouble = trouble;
        microphones.become(state);
    }
};

TEST_F(VoiceStatusTest, isEmptyWhileNothingIsWanted)
{
    settings.setVoiceFollow(false);
    become(Sound::Muted);

    EXPECT_EQ(engine->status(), QString());
    EXPECT_EQ(engine->echoCancellation(), EchoCancellation::Off);
}

TEST_F(VoiceStatusTest, namesTheMicrophoneAndSaysWhetherEchoIsCancelled)
{
    become(Sound::None);
    engine->requestPermissionAndStart();

    EXPECT_EQ(engine->trouble(), Trouble::None);
    EXPECT_EQ(engine->echoCancellation(), EchoCancellation::On);
    EXPECT_EQ(engine->status(), u"Listening to “Headset”.\nEcho cancellation is on."_s);

    runZoom();
    time.advance(1);
    EXPECT_EQ(engine->echoCancellation(), EchoCancellation::HeldForMeeting);
    EXPECT_EQ(
        engine->status(), u"Listening to “Headset”.\nEcho cancellation is paused: Zoom is open."_s);

    micActivity.otherProcessCaptures = true;
    time.advance(1);
    EXPECT_EQ(engine->echoCancellation(), EchoCancellation::HeldForOtherProgram);
}

TEST_F(VoiceStatusTest, saysWhenEchoCannotBeCancelled)
{
    become(Sound::None);
    voiceProcessing.available = false;
    engine->requestPermissionAndStart();

    EXPECT_EQ(engine->echoCancellation(), EchoCancellation::Unavailable);
    EXPECT_EQ(engine->status(), u"Listening to “Headset”.\nEcho cancellation is not available."_s);
}

TEST_F(VoiceStatusTest, saysWhyNothingIsHeard)
{
    engine->requestPermissionAndStart();
    const std::vector<std::tuple<Sound, Trouble, QString>> cases {
        { Sound::NoAnswer, Trouble::NoAnswer, u"The sound system does not answer."_s },
        { Sound::Refused, Trouble::PermissionDenied, u"The microphone may not be used."_s },
        { Sound::NoMicrophone, Trouble::NoMicrophone, u"No microphone is connected."_s },
        { Sound::Muted, Trouble::Muted, u"The microphone “Headset” is muted."_s },
        { Sound::Withheld, Trouble::Withheld,
            u"Nothing comes from the microphone “Headset”. Another program may keep it to itself."_s },
    };
    const QSignalSpy changes(engine.get(), &VoiceActivityEngine::statusChanged);
    for (const auto& [sound, trouble, text] : cases) {
        become(sound);

        EXPECT_EQ(engine->trouble(), trouble);
        EXPECT_EQ(engine->status(), text);
    }
    EXPECT_EQ(changes.count(), 5);
}

TEST_F(VoiceStatusTest, aRefusedPermissionIsTheTrouble)
{
    permission.currentStatus = MicrophonePermission::Status::Denied;
    engine->requestPermissionAndStart();

    EXPECT_EQ(engine->trouble(), Trouble::PermissionDenied);
}

// Only turning it off and on is a way out of these.

const QString howToGoOnWithoutAMicrophone
    = u"No microphone is connected. Connect one, then turn Voice-Follow off and on."_s;
const QString howToGoOn
    = u"The microphone could not be started. Turn Voice-Follow off and on to try again."_s;

class DeadVoiceStatusTest : public VoiceStatusTest {
protected:
    DeadVoiceStatusTest()
    {
        connect(engine.get());
        voiceProcessing.available = false;
    }

    void connect(VoiceActivityEngine* voice)
    {
        QObject::connect(voice, &VoiceActivityEngine::statusChanged, voice,
            [this, voice] { shown = voice->status(); });
    }

    void dieWithoutAMicrophone()
    {
        microphone.rate = 0;
        microphones.current.isReady = false;
        become(Sound::NoMicrophone, {});
        engine->requestPermissionAndStart();
        time.advance(3.1);
        ASSERT_FALSE(engine->isListening());
    }

    QString shown; ///< By a view that follows the signal.
};

TEST_F(DeadVoiceStatusTest, saysHowToGoOnOnceItNoLongerWaitsForAMicrophone)
{
    microphone.rate = 0;
    microphones.current.isReady = false;
    become(Sound::NoMicrophone, {});
    engine->requestPermissionAndStart();
    EXPECT_EQ(shown, u"No microphone is connected."_s);

    time.advance(3.1);

    EXPECT_EQ(shown, howToGoOnWithoutAMicrophone);
}

TEST_F(DeadVoiceStatusTest, goesOnSayingSoWhenOneIsConnected)
{
    dieWithoutAMicrophone();

    microphones.current.isReady = true;
    become(Sound::None);

    EXPECT_EQ(engine->trouble(), Trouble::NotStarted);
    EXPECT_EQ(shown, howToGoOn);
    EXPECT_EQ(engine->hearing(), howToGoOn);
}

TEST_F(DeadVoiceStatusTest, saysSoOfAMicrophoneThatDoesNotStart)
{
    become(Sound::None);
    microphone.startError = u"Busy"_s;

    engine->requestPermissionAndStart();

    EXPECT_EQ(engine->trouble(), Trouble::NotStarted);
    EXPECT_EQ(shown, howToGoOn);
}

TEST_F(DeadVoiceStatusTest, saysSoOfAMicrophoneThatIsLostInAChangeOfPath)
{
    become(Sound::None);
    voiceProcessing.available = true;
    engine->requestPermissionAndStart();
    ASSERT_EQ(engine->trouble(), Trouble::None);
    microphone.startError = u"Busy"_s;

    runZoom();
    time.advance(1);

    EXPECT_EQ(shown, howToGoOn);
}

TEST_F(DeadVoiceStatusTest, isOverOnceItIsTurnedOffAndOn)
{
    dieWithoutAMicrophone();
    microphone.rate = 48000;
    microphones.current.isReady = true;
    become(Sound::None);

    settings.setVoiceFollow(false);
    engine->stop();
    EXPECT_EQ(shown, QString());
    settings.setVoiceFollow(true);
    engine->requestPermissionAndStart();

    EXPECT_EQ(engine->trouble(), Trouble::None);
    EXPECT_EQ(shown, u"Listening to “Headset”.\nEcho cancellation is not available."_s);
}

// The choice of a microphone

class MicrophoneChoiceTest : public VoiceStatusTest {
protected:
    void connectMicrophones(const QList<Microphones::Microphone>& choices)
    {
        Microphones::State state = microphones.current;
        state.choices = choices;
        microphones.become(state);
    }

    const Microphones::Microphone builtIn { u"alsa.built-in"_s, u"Built-in"_s };
    const Microphones::Microphone headset { u"bluez.headset"_s, u"Headset"_s };
};

TEST_F(MicrophoneChoiceTest, isNoneWhereTheSystemAloneChooses)
{
    EXPECT_EQ(engine->microphoneChoices(), QStringList());
}

TEST_F(MicrophoneChoiceTest, beginsWithTheSystemsOwn)
{
    connectMicrophones({ builtIn, headset });

    EXPECT_EQ(engine->microphoneChoices(),
        QStringList({ u"System default"_s, u"Built-in"_s, u"Headset"_s }));
    EXPECT_EQ(engine->microphoneIndex(), 0);
    EXPECT_EQ(microphones.chosen, QString());
}

TEST_F(MicrophoneChoiceTest, isStoredAndTakesEffectAtOnce)
{
    connectMicrophones({ builtIn, headset });
    const QSignalSpy changes(engine.get(), &VoiceActivityEngine::choicesChanged);

    engine->chooseMicrophone(2);

    EXPECT_EQ(microphones.chosen, u"bluez.headset"_s);
    EXPECT_EQ(engine->microphoneIndex(), 2);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_EQ(SettingsStore(defaults).microphone(), u"bluez.headset"_s);

    engine->chooseMicrophone(0);
    EXPECT_EQ(microphones.chosen, QString());
    engine->chooseMicrophone(3);
    EXPECT_EQ(engine->microphoneIndex(), 0);
}

TEST_F(MicrophoneChoiceTest, keepsItsPlaceInTheListWhileItIsNotConnected)
{
    connectMicrophones({ builtIn, headset });
    engine->chooseMicrophone(2);

    connectMicrophones({ builtIn });

    EXPECT_EQ(engine->microphoneChoices(),
        QStringList({ u"System default"_s, u"Built-in"_s, u"Headset (not connected)"_s }));
    EXPECT_EQ(engine->microphoneIndex(), 2);
    connectMicrophones({ headset, builtIn });
    EXPECT_EQ(engine->microphoneIndex(), 1);
}

TEST_F(MicrophoneChoiceTest, isKnownToTheSystemFromTheLaunchOn)
{
    settings.setMicrophone(u"bluez.headset"_s, u"Headset"_s);
    Testing::FakeMicrophones others;
    const VoiceActivityEngine next(settings,
        VoiceActivityEngine::Ports {
            time, permission, voiceProcessing, microphone, micActivity, others, workspace });

    EXPECT_EQ(others.chosen, u"bluez.headset"_s);
}

TEST_F(MicrophoneChoiceTest, theThresholdStandsAmongTheLevels)
{
    settings.setVoiceSensitivity(0.6);
    EXPECT_NEAR(engine->thresholdLevel(), 0.1577, 0.0001);
    settings.setVoiceSensitivity(0.0);
    EXPECT_EQ(engine->thresholdLevel(), 1.0f);
}

} // namespace
} // namespace Orvello
