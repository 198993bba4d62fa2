#include "Orvello/Prompting/Panel/PrompterPanelController.h"

#include "Orvello/Prompting/Engine/ScrollEngine.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeNativePanel.h"
#include "Tests/Support/FakeScreens.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/LogCapture.h"
#include "Tests/Support/SlideshowStage.h"
#include "Tests/Support/WindowServerStandIn.h"

#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using namespace Testing::WindowServerStandIn;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
constexpr bool capturable = false;
constexpr bool hidden = true;

class PrompterPanelControllerTest : public ::testing::Test {
protected:
    PrompterPanelControllerTest() { qunsetenv("ORVELLO_STEALTH"); }
    ~PrompterPanelControllerTest() override { qunsetenv("ORVELLO_STEALTH"); }

    void SetUp() override { state() = {}; }

    PrompterPanelController& build(bool forceCapturable = false)
    {
        controller = std::make_unique<PrompterPanelController>(
            PrompterPanelController::Services {
                panel, engine, settings, stage.monitor, stage.time, screens, folders },
            forceCapturable, CaptureExclusion(lookUp()));
        Testing::drainEvents();
        return *controller;
    }

    /// Builds and forgets what that recorded.
    PrompterPanelController& built(bool forceCapturable = false)
    {
        build(forceCapturable);
        forget();
        return *controller;
    }

    void forget()
    {
        log.clear();
        QFile::remove(stealthLogPath());
        panel.hiddenSet.clear();
        state() = {};
    }

    void setInCall(bool inCall)
    {
        stage.microphone.otherProcessCaptures = inCall;
        stage.monitor.start();
        stage.time.advance(1.0);
        Testing::drainEvents();
    }

    QString stealthLogPath() const { return folders.path + u"/Orvello/stealth.log"_s; }

    /// The stealth log's messages without their time stamps.
    std::vector<std::string> stealthMessages() const
    {
        QFile file(stealthLogPath());
        std::vector<std::string> messages;
        if (!file.open(QIODevice::ReadOnly))
            return messages;
        for (const QByteArray& line : file.readAll().split('\n')) {
            if (!line.isEmpty())
                messages.push_back(line.mid(line.indexOf(' ') + 1).toStdString());
        }
        return messages;
    }

    ShapeCall covering(std::uint32_t window, double width, double height) const
    {
        return { connection, window, true, { 0, 0, width + 200, height + 200 } };
    }
    ShapeCall clearing(std::uint32_t window) const { return { connection, window, false, {} }; }

    Testing::SlideshowStage stage;
    Testing::FakeUserDefaults defaults;
    SettingsStore settings { defaults };
    ScrollEngine engine { settings, stage.time };
    Testing::FakeNativePanel panel;
    Testing::FakeScreens screens;
    Testing::FakeFolders folders;
    Testing::LogCapture log;
    std::unique_ptr<PrompterPanelController> controller;
};

// Construction

TEST_F(PrompterPanelControllerTest, placesThePanelUnderTheCameraAndThenRestoresItsFrame)
{
    screens.connected = { { 0, 0, 2560, 1440 } };

    build();

    EXPECT_EQ(panel.calls, (QStringList { u"setFrame"_s, u"saveFrameAs PrompterPanel"_s }));
    EXPECT_EQ(panel.frameNow, QRectF(920, 6, 720, 200));
    EXPECT_FALSE(panel.visible);
}

TEST_F(PrompterPanelControllerTest, placesThePanelOnAnAssumedScreenWithoutAny)
{
    screens.connected.clear();

    build();

    EXPECT_EQ(panel.frameNow, QRectF(360, 6, 720, 200));
}

TEST_F(PrompterPanelControllerTest, putsThePanelUnderTheCameraOfTheScreenThatThePointerIsOn)
{
    screens.connected = { { 0, 0, 1440, 900 }, { 1440, 0, 2560, 1440 } };
    build();
    panel.frameNow = { 100, 500, 800, 300 };
    screens.pointerNow = { 1500, 1000 };

    controller->putUnderCamera();

    EXPECT_EQ(panel.frameNow, QRectF(2320, 6, 800, 300));
}

TEST_F(PrompterPanelControllerTest, logsWhatItBuiltLast)
{
    panel.savedFrame = { 10, 580, 800, 300 };

    build();

    EXPECT_THAT(log.lines(),
        ElementsAre("STEALTH ON wid=42 fresh=1 mode=both sckExcludeApplied=1",
            "PANEL_UP frame={{10, 20}, {800, 300}} sharing=0 sckExclude=1"));
}

TEST_F(PrompterPanelControllerTest, scrollsByThreeTimesTheWheelsDelta)
{
    build();
    engine.setContentHeight(1000);
    engine.setViewportHeight(200);

    Q_EMIT panel.scrolled(-12.5);
    EXPECT_EQ(engine.offset(), 37.5);

    Q_EMIT panel.scrolled(4.0);
    EXPECT_EQ(engine.offset(), 25.5);
}

// Applying

TEST_F(PrompterPanelControllerTest, hidesAFreshWindowByBothMechanisms)
{
    build();

    EXPECT_TRUE(controller->stealthOn());
    EXPECT_THAT(panel.hiddenSet, ElementsAre(hidden));
    EXPECT_THAT(state().shapeCalls, ElementsAre(covering(42, 720, 200)));
    EXPECT_THAT(stealthMessages(), ElementsAre("APPLY ON wid=42 fresh=true mode=both shape=1"));
}

TEST_F(PrompterPanelControllerTest, forcesAChangeOnAFreshWindowThatAlreadyHasTheType)
{
    panel.hidden = true;
    build();
    EXPECT_THAT(panel.hiddenSet, ElementsAre(capturable, hidden));

    forget();
    settings.setStealthMode(false);
    panel.number = 43;
    panel.hidden = false;
    controller->applyStealthMode(false);
    EXPECT_THAT(panel.hiddenSet, ElementsAre(hidden, capturable));
}

TEST_F(PrompterPanelControllerTest, makesThePanelAnOrdinaryWindowAgain)
{
    built();

    controller->applyStealthMode(false);

    EXPECT_FALSE(controller->stealthOn());
    EXPECT_THAT(panel.hiddenSet, ElementsAre(capturable));
    EXPECT_THAT(state().shapeCalls, ElementsAre(clearing(42)));
    EXPECT_THAT(stealthMessages(), ElementsAre("APPLY OFF wid=42 fresh=false mode=both shape=1"));
    EXPECT_THAT(
        log.lines(), ElementsAre("STEALTH OFF wid=42 fresh=0 mode=both sckExcludeApplied=1"));
}

TEST_F(PrompterPanelControllerTest, leavesTheTypeThatItAppliedToTheSameWindow)
{
    built();

    controller->applyStealthMode(true);

    EXPECT_THAT(panel.hiddenSet, IsEmpty());
    EXPECT_THAT(state().shapeCalls, ElementsAre(covering(42, 720, 200)));
}

TEST_F(PrompterPanelControllerTest, reportsARefusedShape)
{
    built();
    state().shapeError = 1001;

    controller->applyStealthMode(true);

    EXPECT_THAT(stealthMessages(), ElementsAre("APPLY ON wid=42 fresh=false mode=both shape=0"));
    EXPECT_THAT(
        log.lines(), ElementsAre("STEALTH ON wid=42 fresh=0 mode=both sckExcludeApplied=0"));
}

TEST_F(PrompterPanelControllerTest, reportsARegionThatCannotBeMade)
{
    built();
    state().refusesRegions = true;

    controller->applyStealthMode(true);

    EXPECT_THAT(state().shapeCalls, IsEmpty());
    EXPECT_THAT(stealthMessages(), ElementsAre("APPLY ON wid=42 fresh=false mode=both shape=0"));
    EXPECT_THAT(
        log.lines(), ElementsAre("STEALTH ON wid=42 fresh=0 mode=both sckExcludeApplied=0"));
}

TEST_F(PrompterPanelControllerTest, usesTheShapeAloneWhenToldSo)
{
    qputenv("ORVELLO_STEALTH", "shape");

    build();

    EXPECT_FALSE(panel.hidden);
    EXPECT_THAT(state().shapeCalls, ElementsAre(covering(42, 720, 200)));
    EXPECT_THAT(stealthMessages(), ElementsAre("APPLY ON wid=42 fresh=true mode=shape shape=1"));
}

TEST_F(PrompterPanelControllerTest, usesTheFlagAloneWhenToldSo)
{
    qputenv("ORVELLO_STEALTH", "flag");

    build();

    EXPECT_TRUE(panel.hidden);
    EXPECT_THAT(state().shapeCalls, ElementsAre(clearing(42)));
    EXPECT_THAT(stealthMessages(), ElementsAre("APPLY ON wid=42 fresh=true mode=flag shape=1"));
}

TEST_F(PrompterPanelControllerTest, takesAnyOtherWordForBothAndLogsItAsGiven)
{
    for (const char* word : { "Both", "", "FLAG", "%5 %@" }) {
        qputenv("ORVELLO_STEALTH", word);
        panel.hidden = false;
        built();

        controller->applyStealthMode(true);

        EXPECT_TRUE(panel.hidden);
        EXPECT_THAT(state().shapeCalls, ElementsAre(covering(42, 720, 200)));
        EXPECT_THAT(stealthMessages(),
            ElementsAre("APPLY ON wid=42 fresh=false mode=" + std::string(word) + " shape=1"));
    }
}

TEST_F(PrompterPanelControllerTest, neverHidesWhenForcedCapturable)
{
    build(true);
    controller->applyStealthMode(true);
    controller->reassertStealth();

    EXPECT_FALSE(controller->stealthOn());
    EXPECT_FALSE(panel.hidden);
    EXPECT_THAT(stealthMessages(),
        ElementsAre("APPLY OFF wid=42 fresh=true mode=both shape=1",
            "APPLY OFF wid=42 fresh=false mode=both shape=1",
            "APPLY OFF wid=42 fresh=false mode=both shape=1"));
}

TEST_F(PrompterPanelControllerTest, treatsTheFirstShowOfAWindowWithoutANumberAsFresh)
{
    panel.number = 0;
    build();
    EXPECT_TRUE(panel.hidden);
    EXPECT_THAT(stealthMessages(), ElementsAre("APPLY ON wid=0 fresh=false mode=both shape=0"));
    forget();

    panel.number = 57;
    controller->reassertStealth();

    EXPECT_THAT(panel.hiddenSet, ElementsAre(capturable, hidden));
    EXPECT_THAT(stealthMessages(), ElementsAre("APPLY ON wid=57 fresh=true mode=both shape=1"));
}

TEST_F(PrompterPanelControllerTest, triesOnceMoreShortlyAfterIfTheWindowHasNoNumberYet)
{
    panel.number = 0;
    built();

    controller->reassertStealth();
    panel.number = 57;
    stage.time.advance(0.1);

    EXPECT_THAT(stealthMessages(),
        ElementsAre("APPLY ON wid=0 fresh=false mode=both shape=0",
            "APPLY ON wid=57 fresh=true mode=both shape=1"));
}

TEST_F(PrompterPanelControllerTest, triesOnceMoreForEachTimeItWasAskedWithoutANumber)
{
    panel.number = 0;
    built();

    controller->reassertStealth();
    stage.time.advance(0.05);
    controller->reassertStealth();
    EXPECT_EQ(stealthMessages().size(), 2);

    stage.time.advance(0.05);
    EXPECT_EQ(stealthMessages().size(), 3);
    stage.time.advance(0.05);
    EXPECT_EQ(stealthMessages().size(), 4);
    stage.time.advance(1.0);
    EXPECT_EQ(stealthMessages().size(), 4);
}

TEST_F(PrompterPanelControllerTest, dropsTheSecondTryWhenStealthIsOffByThen)
{
    panel.number = 0;
    built();

    controller->reassertStealth();
    controller->applyStealthMode(false);
    forget();
    stage.time.advance(0.5);

    EXPECT_THAT(stealthMessages(), IsEmpty());
}

TEST_F(PrompterPanelControllerTest, takesItsSecondTryWithIt)
{
    panel.number = 0;
    built();
    controller->reassertStealth();
    forget();

    controller.reset();
    panel.number = 57;
    stage.time.advance(0.5);

    EXPECT_THAT(stealthMessages(), IsEmpty());
    EXPECT_THAT(panel.hiddenSet, IsEmpty());
    EXPECT_THAT(state().shapeCalls, IsEmpty());
}

// Resizing

TEST_F(PrompterPanelControllerTest, coversAResizedPanelAtOnce)
{
    built();

    panel.frameNow.setSize({ 1000, 400 });
    Q_EMIT panel.resized();

    EXPECT_THAT(state().shapeCalls, ElementsAre(covering(42, 1000, 400)));
    EXPECT_THAT(stealthMessages(), ElementsAre("SHAPE reapplied after resize"));
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(PrompterPanelControllerTest, coversAPanelDraggedLargerOnceAtTheEnd)
{
    built();

    panel.beingResized = true;
    Q_EMIT panel.resized();
    Q_EMIT panel.resized();
    EXPECT_THAT(state().shapeCalls, IsEmpty());
    panel.beingResized = false;
    Q_EMIT panel.resizeEnded();

    EXPECT_THAT(state().shapeCalls, ElementsAre(covering(42, 720, 200)));
}

TEST_F(PrompterPanelControllerTest, ignoresResizesWhileStealthIsOff)
{
    built();
    controller->applyStealthMode(false);
    forget();

    Q_EMIT panel.resized();
    Q_EMIT panel.resizeEnded();

    EXPECT_THAT(state().shapeCalls, IsEmpty());
    EXPECT_THAT(stealthMessages(), IsEmpty());
}

TEST_F(PrompterPanelControllerTest, coversAResizedPanelWhateverTheMechanismsInUse)
{
    qputenv("ORVELLO_STEALTH", "flag");
    built();

    Q_EMIT panel.resized();

    EXPECT_THAT(state().shapeCalls, ElementsAre(covering(42, 720, 200)));
    EXPECT_THAT(panel.hiddenSet, IsEmpty());
    EXPECT_THAT(stealthMessages(), ElementsAre("SHAPE reapplied after resize"));
}

TEST_F(PrompterPanelControllerTest, saysThatItReappliedEvenWithoutARegion)
{
    built();
    state().refusesRegions = true;

    Q_EMIT panel.resized();

    EXPECT_THAT(state().shapeCalls, IsEmpty());
    EXPECT_THAT(stealthMessages(), ElementsAre("SHAPE reapplied after resize"));
}

TEST_F(PrompterPanelControllerTest, saysThatItReappliedEvenWithoutAWindow)
{
    panel.number = 0;
    built();

    controller->reapplyShapeOrPostpone();

    EXPECT_THAT(state().shapeCalls, IsEmpty());
    EXPECT_THAT(stealthMessages(), ElementsAre("SHAPE reapplied after resize"));
}

TEST_F(PrompterPanelControllerTest, waitsForTheEndOfACallAndThenCoversSilently)
{
    built();
    setInCall(true);
    forget();

    panel.frameNow.setSize({ 800, 300 });
    Q_EMIT panel.resizeEnded();
    EXPECT_THAT(state().shapeCalls, IsEmpty());
    EXPECT_THAT(stealthMessages(), ElementsAre("SHAPE reapply postponed (in call)"));
    EXPECT_THAT(log.lines(), ElementsAre("SHAPE reapply postponed (in call)"));
    Q_EMIT panel.resizeEnded();
    EXPECT_THAT(state().shapeCalls, IsEmpty());

    forget();
    setInCall(false);
    EXPECT_THAT(state().shapeCalls, ElementsAre(covering(42, 800, 300)));
    EXPECT_THAT(stealthMessages(), IsEmpty());
}

TEST_F(PrompterPanelControllerTest, postponesADragOnceAtItsEndAndCoversItAfterTheCall)
{
    built();
    setInCall(true);
    forget();

    panel.beingResized = true;
    for (const double width : { 760.0, 800.0, 840.0 }) {
        panel.frameNow.setSize({ width, 300 });
        Q_EMIT panel.resized();
    }
    EXPECT_THAT(stealthMessages(), IsEmpty());
    panel.beingResized = false;
    Q_EMIT panel.resizeEnded();
    EXPECT_THAT(stealthMessages(), ElementsAre("SHAPE reapply postponed (in call)"));
    EXPECT_THAT(state().shapeCalls, IsEmpty());

    setInCall(false);
    EXPECT_THAT(state().shapeCalls, ElementsAre(covering(42, 840, 300)));
    setInCall(true);
    setInCall(false);
    EXPECT_EQ(state().shapeCalls.size(), 1) << "the call's end settles it";
}

TEST_F(PrompterPanelControllerTest, leavesADragThatOutlastsItsCallToItsEnd)
{
    built();
    setInCall(true);
    forget();

    panel.beingResized = true;
    panel.frameNow.setSize({ 800, 300 });
    Q_EMIT panel.resized();
    setInCall(false);
    EXPECT_THAT(state().shapeCalls, IsEmpty());
    panel.beingResized = false;
    Q_EMIT panel.resizeEnded();

    EXPECT_THAT(state().shapeCalls, ElementsAre(covering(42, 800, 300)));
    EXPECT_THAT(stealthMessages(), ElementsAre("SHAPE reapplied after resize"));
}

TEST_F(PrompterPanelControllerTest, takesWhatItPostponedWithIt)
{
    built();
    setInCall(true);
    Q_EMIT panel.resized();
    forget();

    controller.reset();
    setInCall(false);
    Q_EMIT panel.resized();
    Q_EMIT panel.resizeEnded();

    EXPECT_THAT(state().shapeCalls, IsEmpty());
    EXPECT_THAT(stealthMessages(), IsEmpty());
}

TEST_F(PrompterPanelControllerTest, coversNothingAfterACallWhenStealthWasTurnedOff)
{
    built();
    setInCall(true);
    Q_EMIT panel.resized();
    controller->applyStealthMode(false);
    forget();

    setInCall(false);

    EXPECT_THAT(state().shapeCalls, IsEmpty());
}

TEST_F(PrompterPanelControllerTest, doesNothingAfterACallWithoutAResize)
{
    built();
    setInCall(true);
    forget();

    setInCall(false);

    EXPECT_THAT(state().shapeCalls, IsEmpty());
}

// Watchdog

TEST_F(PrompterPanelControllerTest, healsAWindowThatWasRecreated)
{
    built();
    panel.visible = true;
    panel.number = 99;

    stage.time.advance(2.0);

    EXPECT_THAT(stealthMessages(),
        ElementsAre("HEAL window recreated 42 -> 99, re-applying",
            "APPLY ON wid=99 fresh=true mode=both shape=1"));
    EXPECT_THAT(log.lines(),
        ElementsAre("STEALTH HEAL wid 42 -> 99",
            "STEALTH ON wid=99 fresh=1 mode=both sckExcludeApplied=1"));
    forget();
    stage.time.advance(10.0);
    EXPECT_THAT(stealthMessages(), IsEmpty());
}

TEST_F(PrompterPanelControllerTest, leavesHiddenAndOrdinaryWindowsToThemselves)
{
    built();
    panel.number = 99;
    stage.time.advance(4.0);
    EXPECT_THAT(stealthMessages(), IsEmpty());

    panel.visible = true;
    controller->applyStealthMode(false);
    panel.number = 100;
    forget();
    stage.time.advance(4.0);
    EXPECT_THAT(stealthMessages(), IsEmpty());
}

TEST_F(PrompterPanelControllerTest, waitsForAVisibleWindowToGetItsNumber)
{
    built();
    panel.visible = true;
    panel.number = 0;

    stage.time.advance(4.0);

    EXPECT_THAT(stealthMessages(), IsEmpty());
}

TEST_F(PrompterPanelControllerTest, takesItsWatchdogWithIt)
{
    built();
    panel.visible = true;
    panel.number = 99;

    controller.reset();
    stage.time.advance(10.0);

    EXPECT_THAT(stealthMessages(), IsEmpty());
}

// Honesty

TEST_F(PrompterPanelControllerTest, saysThatThePanelIsVisibleInRecordingsWhereNothingHidesIt)
{
    panel.reachNow = CaptureHiding::Reach::NoCapture;
    build();
    EXPECT_TRUE(controller->isVisibleInRecordings());

    controller->applyStealthMode(false);
    EXPECT_FALSE(controller->isVisibleInRecordings());
}

TEST_F(PrompterPanelControllerTest, doesNotSaySoWhereThePlatformHidesIt)
{
    state().shapeError = 1000;
    build();

    EXPECT_FALSE(controller->isVisibleInRecordings());
}

TEST_F(PrompterPanelControllerTest, trustsTheShapeAloneWhereSomeCapturesIgnoreTheRest)
{
    panel.reachNow = CaptureHiding::Reach::SomeCaptures;
    state().shapeError = 1000;
    build();
    EXPECT_TRUE(controller->isVisibleInRecordings()) << "the window server refused it";

    state().shapeError = 0;
    int told = 0;
    QObject::connect(controller.get(), &PrompterPanelController::visibleInRecordingsChanged,
        controller.get(), [&] { ++told; });
    controller->reassertStealth();
    EXPECT_FALSE(controller->isVisibleInRecordings());
    EXPECT_EQ(told, 1);

    state().shapeError = 1000;
    controller->reapplyShapeOrPostpone();
    EXPECT_TRUE(controller->isVisibleInRecordings()) << "it outgrew the shape";
    EXPECT_EQ(told, 2);

    controller->applyStealthMode(false);
    EXPECT_FALSE(controller->isVisibleInRecordings()) << "nobody wants it hidden";
}

TEST_F(PrompterPanelControllerTest, trustsNoShapeThatIsNotInUse)
{
    panel.reachNow = CaptureHiding::Reach::SomeCaptures;
    qputenv("ORVELLO_STEALTH", "flag");
    build();

    EXPECT_TRUE(controller->isVisibleInRecordings());
}

TEST_F(PrompterPanelControllerTest, leavesItToTheDebugMarkToSayThatStealthModeIsForcedOff)
{
    panel.reachNow = CaptureHiding::Reach::SomeCaptures;
    build(true);

    EXPECT_FALSE(controller->isVisibleInRecordings());
}

} // namespace
} // namespace Orvello
