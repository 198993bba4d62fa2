#include "Tests/Voice/VoiceFixture.h"

#include <QSignalSpy>

#include <algorithm>
#include <ostream>
#include <thread>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using Status = MicrophonePermission::Status;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class VoiceActivityEngineTest : public VoiceFixture { };

TEST_F(VoiceActivityEngineTest, touchesNoAudioWhenMade)
{
    EXPECT_THAT(journal, IsEmpty());
    EXPECT_THAT(permission.requests, IsEmpty());
    EXPECT_EQ(time.pendingCalls(), 0u);
    EXPECT_FALSE(engine->isSpeaking());
    EXPECT_EQ(engine->level(), 0.0f);
    EXPECT_EQ(engine->micAuthorized(), std::nullopt);
    EXPECT_FALSE(engine->isListening());
    EXPECT_FALSE(engine->aecActive());
    EXPECT_EQ(engine->aecHoldReason(), std::nullopt);
}

// Permission

TEST_F(VoiceActivityEngineTest, asksForAPermissionThatIsNotDetermined)
{
    permission.currentStatus = Status::NotDetermined;

    engine->requestPermissionAndStart();

    EXPECT_EQ(permission.requests.size(), 1u);
    EXPECT_EQ(engine->micAuthorized(), std::nullopt);
    EXPECT_FALSE(engine->isListening());
    EXPECT_THAT(log.lines(), ElementsAre("requesting mic permission"));
}

TEST_F(VoiceActivityEngineTest, startsOnTheMainLoopOncePermissionIsGrantedOnAnyThread)
{
    permission.currentStatus = Status::NotDetermined;
    engine->requestPermissionAndStart();

    std::thread([this] { permission.requests.front()(true); }).join();
    EXPECT_FALSE(engine->isListening());
    Testing::drainEvents();

    EXPECT_EQ(engine->micAuthorized(), true);
    EXPECT_TRUE(engine->isListening());
    EXPECT_THAT(log.lines(),
        ElementsAre("requesting mic permission", "mic permission granted=1",
            "VAD listening (VPIO, AEC on)"));
}

TEST_F(VoiceActivityEngineTest, staysIdleWhenTheUserRefuses)
{
    permission.currentStatus = Status::NotDetermined;
    engine->requestPermissionAndStart();

    permission.requests.front()(false);
    Testing::drainEvents();

    EXPECT_EQ(engine->micAuthorized(), false);
    EXPECT_FALSE(engine->isListening());
    EXPECT_EQ(time.pendingCalls(), 0u);
    EXPECT_THAT(journal, IsEmpty());
    EXPECT_THAT(log.lines(), ElementsAre("requesting mic permission", "mic permission granted=0"));
}

TEST_F(VoiceActivityEngineTest, anAnswerAfterItsEndIsOnlyLogged)
{
    permission.currentStatus = Status::NotDetermined;
    engine->requestPermissionAndStart();
    permission.requests.front()(true);

    engine.reset();
    Testing::drainEvents();

    EXPECT_THAT(journal, IsEmpty());
    EXPECT_THAT(log.lines(), ElementsAre("requesting mic permission", "mic permission granted=1"));
}

TEST_F(VoiceActivityEngineTest, startsOnAPermissionThatIsGrantedAfterStopping)
{
    permission.currentStatus = Status::NotDetermined;
    engine->requestPermissionAndStart();
    engine->stop();

    permission.requests.front()(true);
    Testing::drainEvents();

    EXPECT_EQ(engine->micAuthorized(), true);
    EXPECT_TRUE(engine->isListening());
    EXPECT_EQ(time.pendingCalls(), 1u);
}

TEST_F(VoiceActivityEngineTest, startsOnceHoweverManyAnswersCome)
{
    permission.currentStatus = Status::NotDetermined;
    engine->requestPermissionAndStart();
    engine->requestPermissionAndStart();
    ASSERT_EQ(permission.requests.size(), 2u);

    permission.requests[0](true);
    permission.requests[1](true);
    Testing::drainEvents();

    EXPECT_EQ(std::count(journal.begin(), journal.end(), "unit instantiate"), 1);
    EXPECT_THAT(log.lines(),
        ElementsAre("requesting mic permission", "requesting mic permission",
            "mic permission granted=1", "VAD listening (VPIO, AEC on)",
            "mic permission granted=1"));
}

TEST_F(VoiceActivityEngineTest, aRefusalWhileListeningIsOnlyPublished)
{
    permission.currentStatus = Status::NotDetermined;
    engine->requestPermissionAndStart();
    permission.currentStatus = Status::Authorized;
    engine->requestPermissionAndStart();

    permission.requests.front()(false);
    Testing::drainEvents();

    EXPECT_EQ(engine->micAuthorized(), false);
    EXPECT_TRUE(engine->isListening());
}

TEST_F(VoiceActivityEngineTest, startsAtOnceWhenAuthorized)
{
    engine->requestPermissionAndStart();

    EXPECT_EQ(engine->micAuthorized(), true);
    EXPECT_TRUE(engine->isListening());
    EXPECT_THAT(permission.requests, IsEmpty());
}

// A microphone that is not there yet

TEST_F(VoiceActivityEngineTest, choosesItsPathOnceTheSoundSystemHasAnswered)
{
    microphones.current.isReady = false;
    engine->requestPermissionAndStart();
    EXPECT_THAT(journal, IsEmpty());
    EXPECT_THAT(log.lines(), IsEmpty());

    micActivity.otherProcessCaptures = true;
    microphones.become({});

    EXPECT_TRUE(engine->isListening());
    EXPECT_EQ(
        log.lines().front(), "VAD: AEC held (another app is using the microphone) — raw mic tap");
    EXPECT_EQ(time.pendingCalls(), 1u);
}

TEST_F(VoiceActivityEngineTest, choosesNoPathWhileItCannotKnowWhoElseHasTheMicrophone)
{
    for (const auto trouble : { Microphones::Trouble::NoAnswer, Microphones::Trouble::Refused }) {
        const Testing::LogCapture ownLog;
        journal.clear();
        microphones.current.isReady = false;
        microphones.current.trouble = trouble;
        engine->requestPermissionAndStart();

        time.advance(600);
        EXPECT_THAT(journal, IsEmpty());
        EXPECT_THAT(ownLog.lines(), IsEmpty());
        runZoom();
        microphones.become({});

        EXPECT_TRUE(engine->isListening());
        EXPECT_EQ(ownLog.lines().front(), "VAD: AEC held (Zoom is open) — raw mic tap");
        engine->stop();
    }
}

TEST_F(VoiceActivityEngineTest, givesASessionThatComesUpAMomentToFindItsMicrophone)
{
    microphones.current.isReady = false;
    microphones.current.trouble = Microphones::Trouble::NoAnswer;
    microphone.rate = 0;
    voiceProcessing.available = false;
    engine->requestPermissionAndStart();
    time.advance(3.1);
    microphones.current.trouble = Microphones::Trouble::NoMicrophone;
    microphones.become(microphones.current);

    time.advance(2.8);
    EXPECT_THAT(log.lines(), IsEmpty());
    time.advance(0.2);

    EXPECT_THAT(
        log.lines(), ElementsAre("VPIO: component not found", "VAD: no usable input device"));
}

TEST_F(VoiceActivityEngineTest, startsOnceHoweverOftenItIsAskedWhileItWaits)
{
    microphones.current.isReady = false;
    engine->requestPermissionAndStart();
    engine->requestPermissionAndStart();
    microphones.become({});
    Microphones::State state;
    state.heard = u"Headset"_s;
    microphones.become(state);

    EXPECT_THAT(log.lines(), ElementsAre("VAD listening (VPIO, AEC on)"));
}

TEST_F(VoiceActivityEngineTest, doesNotStartAfterAStopThatCameWhileItWaited)
{
    microphones.current.isReady = false;
    engine->requestPermissionAndStart();
    engine->stop();

    microphones.become({});
    time.advance(10);

    EXPECT_FALSE(engine->isListening());
    EXPECT_THAT(journal, IsEmpty());
}

TEST_F(VoiceActivityEngineTest, staysIdleWhenDeniedOrRestricted)
{
    for (const Status status : { Status::Denied, Status::Restricted }) {
        const Testing::LogCapture ownLog;
        permission.currentStatus = status;

        engine->requestPermissionAndStart();

        EXPECT_EQ(engine->micAuthorized(), false);
        EXPECT_FALSE(engine->isListening());
        EXPECT_EQ(time.pendingCalls(), 0u);
        EXPECT_THAT(ownLog.lines(), ElementsAre("mic permission previously denied"));
    }
    EXPECT_THAT(journal, IsEmpty());
}

// Choosing a path

TEST_F(VoiceActivityEngineTest, prefersVoiceProcessingAndBuildsItInOrder)
{
    engine->requestPermissionAndStart();

    EXPECT_TRUE(engine->isListening());
    EXPECT_TRUE(engine->aecActive());
    EXPECT_EQ(engine->aecHoldReason(), std::nullopt);
    EXPECT_THAT(log.lines(), ElementsAre("VAD listening (VPIO, AEC on)"));
    EXPECT_THAT(journal,
        ElementsAre("unit instantiate", "unit enable input", "unit enable output",
            "unit mic format", "unit render format", "unit input callback", "unit render callback",
            "unit ducking config", "unit initialize", "unit start"));
}

TEST_F(VoiceActivityEngineTest, usesTheRawMicrophoneWhileAnotherAppCaptures)
{
    micActivity.otherProcessCaptures = true;

    engine->requestPermissionAndStart();

    EXPECT_TRUE(engine->isListening());
    EXPECT_FALSE(engine->aecActive());
    EXPECT_EQ(engine->aecHoldReason(), u"another app is using the microphone"_s);
    EXPECT_THAT(journal, ElementsAre("raw removeTap", "raw installTap 2048", "raw start"));
    EXPECT_THAT(log.lines(),
        ElementsAre("VAD: AEC held (another app is using the microphone) — raw mic tap",
            "VAD listening (raw mic, no AEC — another app is using the microphone)"));
}

TEST_F(VoiceActivityEngineTest, usesTheRawMicrophoneWhileAMeetingApplicationRuns)
{
    runZoom();

    engine->requestPermissionAndStart();

    EXPECT_EQ(engine->aecHoldReason(), u"Zoom is open"_s);
    EXPECT_THAT(log.lines(),
        ElementsAre("VAD: AEC held (Zoom is open) — raw mic tap",
            "VAD listening (raw mic, no AEC — Zoom is open)"));
}

TEST_F(VoiceActivityEngineTest, anotherAppOnTheMicrophoneComesBeforeAMeetingApplication)
{
    runZoom();
    micActivity.otherProcessCaptures = true;

    engine->requestPermissionAndStart();

    EXPECT_EQ(engine->aecHoldReason(), u"another app is using the microphone"_s);
}

TEST_F(VoiceActivityEngineTest, namesTheFirstMeetingApplicationThatTheSystemLists)
{
    workspace.running
        = { { std::nullopt, u"Nameless"_s }, { u"org.mozilla.firefox"_s, u"Firefox"_s },
              { u"com.hnc.Discord"_s, u"Discord Canary"_s }, zoom };

    engine->requestPermissionAndStart();

    EXPECT_EQ(engine->aecHoldReason(), u"Discord Canary is open"_s);
}

TEST_F(VoiceActivityEngineTest, namesAMeetingApplicationWithoutANameByItsIdentifier)
{
    workspace.running = { { u"Cisco-Systems.Spark"_s, std::nullopt } };

    engine->requestPermissionAndStart();

    EXPECT_EQ(engine->aecHoldReason(), u"Cisco-Systems.Spark is open"_s);
}

TEST_F(VoiceActivityEngineTest, knowsNineMeetingApplications)
{
    for (const QString& identifier :
        { u"us.zoom.xos"_s, u"com.microsoft.teams2"_s, u"com.microsoft.teams"_s,
            u"Cisco-Systems.Spark"_s, u"com.cisco.webexmeetingsapp"_s, u"com.apple.FaceTime"_s,
            u"com.tinyspeck.slackmacgap"_s, u"com.hnc.Discord"_s, u"com.skype.skype"_s }) {
        workspace.running = { { identifier, std::nullopt } };
        engine->requestPermissionAndStart();
        EXPECT_EQ(engine->aecHoldReason(), identifier + u" is open"_s);
        engine->stop();
    }
    workspace.running
        = { { u"US.ZOOM.XOS"_s, std::nullopt }, { u"us.zoom.xos.helper"_s, u"Zoom"_s } };
    engine->requestPermissionAndStart();
    EXPECT_EQ(engine->aecHoldReason(), std::nullopt);
}

TEST_F(VoiceActivityEngineTest, startingWhileListeningChangesNothing)
{
    engine->requestPermissionAndStart();
    const std::vector<std::string> before = journal;
    runZoom();
    const Testing::LogCapture later;
    time.advance(0.5);

    engine->requestPermissionAndStart();

    EXPECT_EQ(journal, before);
    EXPECT_TRUE(engine->aecActive());
    EXPECT_THAT(later.lines(), IsEmpty());
    time.advance(0.5);
    EXPECT_FALSE(engine->aecActive()) << "the watchdog kept its own second";
}

// Voice processing that fails

struct FailingStep {
    std::string name; ///< What the fake's journal calls it.
    std::string line;

    friend void PrintTo(const FailingStep& step, std::ostream* stream) { *stream << step.name; }
};

class VoiceProcessingFailureTest : public VoiceFixture,
                                   public ::testing::WithParamInterface<FailingStep> { };

TEST_P(VoiceProcessingFailureTest, leavesNoUnitAndFallsBackForGood)
{
    voiceProcessing.failures[GetParam().name] = -10875;

    engine->requestPermissionAndStart();

    EXPECT_FALSE(voiceProcessing.hasUnit());
    EXPECT_TRUE(engine->isListening());
    EXPECT_FALSE(engine->aecActive());
    EXPECT_EQ(engine->aecHoldReason(), std::nullopt);
    EXPECT_THAT(log.lines(), ElementsAre(GetParam().line, "VAD listening (raw mic, no AEC)"));
    const auto failed = std::find(journal.begin(), journal.end(), "unit " + GetParam().name);
    ASSERT_NE(failed, journal.end());
    EXPECT_THAT(std::vector<std::string>(failed + 1, journal.end()),
        ElementsAre("unit stop", "unit uninitialize", "unit dispose", "raw removeTap",
            "raw installTap 2048", "raw start"));
}

TEST_P(VoiceProcessingFailureTest, isNeverRetriedByTheWatchdog)
{
    voiceProcessing.failures[GetParam().name] = -1;
    engine->requestPermissionAndStart();
    voiceProcessing.failures.clear();
    const std::vector<std::string> before = journal;
    const Testing::LogCapture later;

    time.advance(10);
    micActivity.otherProcessCaptures = true;
    time.advance(10);
    micActivity.otherProcessCaptures = false;
    time.advance(10);

    EXPECT_EQ(journal, before);
    EXPECT_EQ(engine->aecHoldReason(), std::nullopt);
    EXPECT_THAT(later.lines(), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(EachStep, VoiceProcessingFailureTest,
    ::testing::Values(FailingStep { "enable input", "VPIO: enable input failed (-10875)" },
        FailingStep { "enable output", "VPIO: enable output failed (-10875)" },
        FailingStep { "mic format", "VPIO: mic format failed (-10875)" },
        FailingStep { "render format", "VPIO: render format failed (-10875)" },
        FailingStep { "input callback", "VPIO: input callback failed (-10875)" },
        FailingStep { "render callback", "VPIO: render callback failed (-10875)" },
        FailingStep { "initialize", "VPIO: initialize failed (-10875)" },
        FailingStep { "start", "VPIO: start failed (-10875)" }));

TEST_F(VoiceActivityEngineTest, fallsBackWithoutAVoiceProcessingComponent)
{
    voiceProcessing.available = false;

    engine->requestPermissionAndStart();

    EXPECT_THAT(journal, ElementsAre("raw removeTap", "raw installTap 2048", "raw start"));
    EXPECT_THAT(
        log.lines(), ElementsAre("VPIO: component not found", "VAD listening (raw mic, no AEC)"));
}

TEST_F(VoiceActivityEngineTest, fallsBackWhenInstantiationFails)
{
    voiceProcessing.failures["instantiate"] = -3000;

    engine->requestPermissionAndStart();

    EXPECT_THAT(journal,
        ElementsAre("unit instantiate", "raw removeTap", "raw installTap 2048", "raw start"));
    EXPECT_THAT(log.lines(),
        ElementsAre("VPIO: instantiate failed (-3000)", "VAD listening (raw mic, no AEC)"));
}

TEST_F(VoiceActivityEngineTest, fallsBackWhenInstantiationGivesNoUnit)
{
    voiceProcessing.givesNoUnit = true;

    engine->requestPermissionAndStart();

    EXPECT_FALSE(engine->aecActive());
    EXPECT_THAT(log.lines(),
        ElementsAre("VPIO: instantiate failed (0)", "VAD listening (raw mic, no AEC)"));
}

TEST_F(VoiceActivityEngineTest, doesWithoutDuckingConfiguration)
{
    voiceProcessing.failures["ducking config"] = -10879;

    engine->requestPermissionAndStart();

    EXPECT_TRUE(engine->aecActive());
    EXPECT_THAT(log.lines(),
        ElementsAre(
            "VPIO: ducking config failed (-10879) — continuing", "VAD listening (VPIO, AEC on)"));
}

// A raw microphone that fails

TEST_F(VoiceActivityEngineTest, isDeadWithoutAUsableInputDevice)
{
    runZoom();
    microphone.rate = 0;

    engine->requestPermissionAndStart();

    EXPECT_FALSE(engine->isListening());
    EXPECT_EQ(engine->aecHoldReason(), std::nullopt);
    EXPECT_THAT(journal, IsEmpty());
    EXPECT_THAT(log.lines(),
        ElementsAre("VAD: AEC held (Zoom is open) — raw mic tap", "VAD: no usable input device"));
}

TEST_F(VoiceActivityEngineTest, isDeadWhenTheRawMicrophoneDoesNotStart)
{
    runZoom();
    microphone.startError = u"The device is busy."_s;

    engine->requestPermissionAndStart();

    EXPECT_FALSE(engine->isListening());
    EXPECT_FALSE(microphone.hasTap());
    EXPECT_THAT(
        journal, ElementsAre("raw removeTap", "raw installTap 2048", "raw start", "raw removeTap"));
    EXPECT_THAT(log.lines(),
        ElementsAre("VAD: AEC held (Zoom is open) — raw mic tap",
            "VAD failed to start: The device is busy."));
}

TEST_F(VoiceActivityEngineTest, watchdogRunsButDoesNothingWhileDead)
{
    microphone.rate = 0;
    voiceProcessing.available = false;
    engine->requestPermissionAndStart();
    microphone.rate = 48000;
    voiceProcessing.available = true;
    const Testing::LogCapture later;

    time.advance(30);

    EXPECT_EQ(time.pendingCalls(), 1u);
    EXPECT_FALSE(engine->isListening());
    EXPECT_THAT(journal, IsEmpty());
    EXPECT_THAT(later.lines(), IsEmpty());
}

TEST_F(VoiceActivityEngineTest, togglingIsTheWayOutOfDead)
{
    microphone.rate = 0;
    voiceProcessing.available = false;
    engine->requestPermissionAndStart();
    voiceProcessing.available = true;

    engine->stop();
    EXPECT_EQ(time.pendingCalls(), 0u);
    engine->requestPermissionAndStart();

    EXPECT_TRUE(engine->aecActive());
}

TEST_F(VoiceActivityEngineTest, dyingInAHoldLeavesWhatWasPublished)
{
    engine->requestPermissionAndStart();
    microphone.rate = 0;
    runZoom();

    time.advance(1);

    EXPECT_FALSE(engine->isListening());
    EXPECT_TRUE(engine->aecActive());
    EXPECT_EQ(engine->aecHoldReason(), std::nullopt);
    EXPECT_FALSE(voiceProcessing.hasUnit());
}

// The watchdog

TEST_F(VoiceActivityEngineTest, dropsVoiceProcessingWithinASecondOfAReason)
{
    engine->requestPermissionAndStart();
    journal.clear();
    const Testing::LogCapture later;
    micActivity.otherProcessCaptures = true;

    time.advance(1);

    EXPECT_TRUE(engine->isListening());
    EXPECT_FALSE(engine->aecActive());
    EXPECT_EQ(engine->aecHoldReason(), u"another app is using the microphone"_s);
    EXPECT_THAT(journal,
        ElementsAre("unit stop", "unit uninitialize", "unit dispose", "raw removeTap",
            "raw installTap 2048", "raw start"));
    EXPECT_THAT(later.lines(),
        ElementsAre(
            "VAD: dropping AEC (another app is using the microphone) — switching to raw mic tap",
            "VAD listening (raw mic, no AEC — another app is using the microphone)"));
}

TEST_F(VoiceActivityEngineTest, doesNothingWhileVoiceProcessingRunsInAClearEnvironment)
{
    engine->requestPermissionAndStart();
    journal.clear();
    const Testing::LogCapture later;

    time.advance(60);

    EXPECT_THAT(journal, IsEmpty());
    EXPECT_THAT(later.lines(), IsEmpty());
}

TEST_F(VoiceActivityEngineTest, returnsToVoiceProcessingOnTheFifthClearTick)
{
    runZoom();
    engine->requestPermissionAndStart();
    const Testing::LogCapture later;
    workspace.running.clear();
    journal.clear();

    time.advance(4);
    EXPECT_FALSE(engine->aecActive());
    EXPECT_EQ(engine->aecHoldReason(), u"Zoom is open"_s);
    EXPECT_THAT(journal, IsEmpty());
    time.advance(1);

    EXPECT_TRUE(engine->isListening());
    EXPECT_TRUE(engine->aecActive());
    EXPECT_EQ(engine->aecHoldReason(), std::nullopt);
    EXPECT_THAT(std::vector<std::string>(journal.begin(), journal.begin() + 3),
        ElementsAre("raw removeTap", "raw stop", "unit instantiate"));
    EXPECT_THAT(later.lines(), ElementsAre("VAD: environment clear — re-engaging AEC"));
}

TEST_F(VoiceActivityEngineTest, aReasonInBetweenRestartsTheCount)
{
    runZoom();
    engine->requestPermissionAndStart();
    workspace.running.clear();
    time.advance(4);
    runZoom();
    time.advance(1);
    workspace.running.clear();

    time.advance(4);
    EXPECT_FALSE(engine->aecActive());
    time.advance(1);
    EXPECT_TRUE(engine->aecActive());
}

TEST_F(VoiceActivityEngineTest, aChangedReasonIsPublishedAndRestartsTheCount)
{
    runZoom();
    engine->requestPermissionAndStart();
    const QSignalSpy changes(engine.get(), &VoiceActivityEngine::aecHoldReasonChanged);
    const Testing::LogCapture later;
    workspace.running.clear();
    time.advance(4);
    workspace.running = { { u"com.skype.skype"_s, u"Skype"_s } };

    time.advance(3);

    EXPECT_EQ(engine->aecHoldReason(), u"Skype is open"_s);
    EXPECT_EQ(changes.count(), 1);
    EXPECT_THAT(later.lines(), IsEmpty());
    workspace.running.clear();
    time.advance(4);
    EXPECT_FALSE(engine->aecActive());
    time.advance(1);
    EXPECT_TRUE(engine->aecActive());
}

TEST_F(VoiceActivityEngineTest, anAppOnTheMicrophoneTakesOverTheHoldOfAMeetingApplication)
{
    runZoom();
    engine->requestPermissionAndStart();
    journal.clear();
    micActivity.otherProcessCaptures = true;

    time.advance(1);
    EXPECT_EQ(engine->aecHoldReason(), u"another app is using the microphone"_s);
    micActivity.otherProcessCaptures = false;
    time.advance(1);

    EXPECT_EQ(engine->aecHoldReason(), u"Zoom is open"_s);
    EXPECT_THAT(journal, IsEmpty());
}

TEST_F(VoiceActivityEngineTest, theCountOfClearTicksOutlivesStopping)
{
    runZoom();
    engine->requestPermissionAndStart();
    workspace.running.clear();
    time.advance(3);
    engine->stop();
    runZoom();
    engine->requestPermissionAndStart();
    workspace.running.clear();

    time.advance(1);
    EXPECT_FALSE(engine->aecActive());
    time.advance(1);
    EXPECT_TRUE(engine->aecActive());
}

TEST_F(VoiceActivityEngineTest, theCountStartsAnewAtEachHold)
{
    for (int hold = 0; hold < 3; ++hold) {
        runZoom();
        hold == 0 ? engine->requestPermissionAndStart() : time.advance(1);
        workspace.running.clear();
        time.advance(4);
        EXPECT_FALSE(engine->aecActive()) << hold;
        time.advance(1);
        EXPECT_TRUE(engine->aecActive()) << hold;
    }
}

TEST_F(VoiceActivityEngineTest, fallsBackForGoodWhenVoiceProcessingDoesNotReturn)
{
    runZoom();
    engine->requestPermissionAndStart();
    workspace.running.clear();
    voiceProcessing.failures["start"] = 560;
    const Testing::LogCapture later;
    journal.clear();

    time.advance(30);

    EXPECT_TRUE(engine->isListening());
    EXPECT_FALSE(engine->aecActive());
    EXPECT_EQ(engine->aecHoldReason(), std::nullopt);
    EXPECT_FALSE(voiceProcessing.hasUnit());
    EXPECT_TRUE(microphone.hasTap());
    EXPECT_EQ(std::count(journal.begin(), journal.end(), "unit instantiate"), 1);
    EXPECT_THAT(later.lines(),
        ElementsAre("VAD: environment clear — re-engaging AEC", "VPIO: start failed (560)",
            "VAD listening (raw mic, no AEC)"));
}

TEST_F(VoiceActivityEngineTest, diesWhenNeitherPathReturns)
{
    runZoom();
    engine->requestPermissionAndStart();
    workspace.running.clear();
    voiceProcessing.available = false;
    microphone.rate = 0;

    time.advance(5);

    EXPECT_FALSE(engine->isListening());
    EXPECT_FALSE(microphone.hasTap());
    EXPECT_EQ(engine->aecHoldReason(), u"Zoom is open"_s);
}

// Stopping

TEST_F(VoiceActivityEngineTest, stoppingTearsVoiceProcessingDown)
{
    engine->requestPermissionAndStart();
    journal.clear();

    engine->stop();

    EXPECT_FALSE(engine->isListening());
    EXPECT_FALSE(engine->aecActive());
    EXPECT_EQ(time.pendingCalls(), 0u);
    EXPECT_THAT(journal, ElementsAre("unit stop", "unit uninitialize", "unit dispose"));
}

TEST_F(VoiceActivityEngineTest, stoppingTearsTheRawPathDown)
{
    runZoom();
    engine->requestPermissionAndStart();
    journal.clear();

    engine->stop();

    EXPECT_FALSE(engine->isListening());
    EXPECT_EQ(engine->aecHoldReason(), std::nullopt);
    EXPECT_THAT(journal, ElementsAre("raw removeTap", "raw stop"));
}

TEST_F(VoiceActivityEngineTest, stoppingWhileIdleDoesNothing)
{
    const QSignalSpy listening(engine.get(), &VoiceActivityEngine::isListeningChanged);

    engine->stop();
    engine->stop();

    EXPECT_EQ(listening.count(), 0);
    EXPECT_THAT(journal, IsEmpty());
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(VoiceActivityEngineTest, endsItsCaptureWithItself)
{
    engine->requestPermissionAndStart();

    engine.reset();

    EXPECT_FALSE(voiceProcessing.hasUnit());
    EXPECT_EQ(time.pendingCalls(), 0u);
    hear(loud);
}

TEST_F(VoiceActivityEngineTest, announcesOnlyWhatChanges)
{
    const QSignalSpy listening(engine.get(), &VoiceActivityEngine::isListeningChanged);
    const QSignalSpy aec(engine.get(), &VoiceActivityEngine::aecActiveChanged);
    const QSignalSpy reason(engine.get(), &VoiceActivityEngine::aecHoldReasonChanged);
    const QSignalSpy authorized(engine.get(), &VoiceActivityEngine::micAuthorizedChanged);

    engine->requestPermissionAndStart();
    engine->stop();
    engine->requestPermissionAndStart();

    EXPECT_EQ(listening.count(), 3);
    EXPECT_EQ(aec.count(), 3);
    EXPECT_EQ(reason.count(), 0);
    EXPECT_EQ(authorized.count(), 1);
}

TEST_F(VoiceActivityEngineTest, offersItsStateToViews)
{
    EXPECT_TRUE(engine->property("micAuthorized").isNull());
    EXPECT_EQ(engine->property("aecHoldReason").toString(), QString());
    runZoom();

    engine->requestPermissionAndStart();

    EXPECT_EQ(engine->property("micAuthorized"), QVariant(true));
    EXPECT_EQ(engine->property("aecHoldReason"), QVariant(u"Zoom is open"_s));
    EXPECT_EQ(engine->property("isListening"), QVariant(true));
    EXPECT_EQ(engine->property("aecActive"), QVariant(false));
}

} // namespace
} // namespace Orvello
