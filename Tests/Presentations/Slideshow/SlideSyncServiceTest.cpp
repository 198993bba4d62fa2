#include "Orvello/Presentations/Slideshow/SlideSyncService.h"

#include "Tests/Support/LogCapture.h"
#include "Tests/Support/SlideshowStage.h"

#include <QSignalSpy>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using State = SlideSyncService::State;

class SlideSyncServiceTest : public ::testing::Test {
protected:
    SlideSyncServiceTest() { stage.monitor.start(); }

    /// Starts tracking with Keynote presenting, up to the first question.
    void followKeynote()
    {
        stage.presentKeynote();
        stage.time.advance(1.0);
        sync->setActive(true);
        stage.time.advance(0.5);
        log.clear();
    }

    Testing::SlideshowStage stage;
    Testing::FakePresenter& keynote = stage.keynote;
    Testing::FakePresenter& powerPoint = stage.powerPoint;
    std::unique_ptr<SlideSyncService> sync
        = std::make_unique<SlideSyncService>(stage.monitor, stage.presenters, stage.time);
    Testing::LogCapture log;
};

TEST_F(SlideSyncServiceTest, isIdleAtFirst)
{
    stage.presentKeynote();
    stage.time.advance(5.0);

    EXPECT_EQ(sync->state(), State::Idle);
    EXPECT_EQ(sync->liveSlide(), std::nullopt);
    EXPECT_EQ(sync->app(), nullptr);
    EXPECT_TRUE(keynote.questions.empty());
}

TEST_F(SlideSyncServiceTest, logsEachSwitchOnce)
{
    log.clear();
    sync->setActive(false);
    sync->setActive(true);
    sync->setActive(true);
    sync->setActive(false);

    EXPECT_THAT(log.lines(), ElementsAre("SYNC active=1", "SYNC active=0"));
}

TEST_F(SlideSyncServiceTest, isManualWithoutASlideshow)
{
    sync->setActive(true);
    EXPECT_EQ(sync->state(), State::Manual);
    log.clear();

    stage.time.advance(5.0);

    EXPECT_EQ(sync->state(), State::Manual);
    EXPECT_EQ(sync->app(), nullptr);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(SlideSyncServiceTest, asksEveryHalfSecond)
{
    stage.presentKeynote();
    stage.time.advance(1.0);
    sync->setActive(true);

    stage.time.advance(0.49);
    EXPECT_EQ(keynote.questions.size(), 0u);
    stage.time.advance(0.01);
    EXPECT_EQ(keynote.questions.size(), 1u);
    keynote.answer(u"1\n"_s);
    stage.time.advance(0.5);
    EXPECT_EQ(keynote.questions.size(), 2u);
}

TEST_F(SlideSyncServiceTest, followsASlideshow)
{
    stage.presentKeynote();
    stage.time.advance(1.0);
    log.clear();

    sync->setActive(true);
    stage.time.advance(0.5);
    EXPECT_EQ(sync->app(), stage.presenters.named(u"Keynote"_s));
    EXPECT_EQ(sync->state(), State::Manual);
    keynote.answer(u"3\n"_s);

    EXPECT_EQ(sync->state(), State::Live);
    EXPECT_EQ(sync->liveSlide(), 3);
    EXPECT_THAT(
        log.lines(), ElementsAre("SYNC active=1", "SYNC following Keynote", "SYNC slide=3"));
}

TEST_F(SlideSyncServiceTest, namesPowerPointShortlyInItsLog)
{
    stage.presentPowerPoint();
    stage.time.advance(1.0);
    sync->setActive(true);
    log.clear();

    stage.time.advance(0.5);
    powerPoint.fail(u"Not authorized to send Apple events. (-1743)"_s);

    EXPECT_THAT(log.lines(),
        ElementsAre(
            "SYNC following PowerPoint", "SYNC denied (Automation permission for PowerPoint)"));
}

TEST_F(SlideSyncServiceTest, publishesASlideOnlyWhenItChanges)
{
    followKeynote();
    const QSignalSpy slideChanged(sync.get(), &SlideSyncService::liveSlideChanged);
    const QSignalSpy stateChanged(sync.get(), &SlideSyncService::stateChanged);

    for (const QString& slide : { u"3"_s, u"3"_s, u"4"_s, u"4"_s }) {
        keynote.answer(slide);
        stage.time.advance(0.5);
    }

    EXPECT_EQ(slideChanged.count(), 2);
    EXPECT_EQ(stateChanged.count(), 1);
    EXPECT_THAT(log.lines(), ElementsAre("SYNC slide=3", "SYNC slide=4"));
}

TEST_F(SlideSyncServiceTest, keepsOneQuestionOpenAtATime)
{
    followKeynote();

    stage.time.advance(10.0);
    EXPECT_EQ(keynote.questions.size(), 1u);

    keynote.answer(u"1"_s);
    stage.time.advance(0.5);
    EXPECT_EQ(keynote.questions.size(), 2u);
}

TEST_F(SlideSyncServiceTest, readsOnlyWholeNumbersFromOne)
{
    followKeynote();

    for (const QString& output :
        { u"0"_s, u"-3"_s, u"3.0"_s, u"slide 3"_s, u""_s, u" \n"_s, u"3 4"_s, u"1,000"_s, u"+"_s,
            u"++3"_s, u"0x3"_s, u"3e0"_s, u"٣"_s, u"99999999999999999999"_s }) {
        keynote.answer(output);
        EXPECT_EQ(sync->liveSlide(), std::nullopt) << output.toStdString();
        EXPECT_EQ(sync->state(), State::Manual) << output.toStdString();
        stage.time.advance(0.5);
    }
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(SlideSyncServiceTest, readsNumbersBetweenWhiteSpace)
{
    followKeynote();

    keynote.answer(u"\n\t 3 \r\n"_s);
    EXPECT_EQ(sync->liveSlide(), 3);
    stage.time.advance(0.5);
    keynote.answer(u"+4\n"_s);
    EXPECT_EQ(sync->liveSlide(), 4);
    stage.time.advance(0.5);
    keynote.answer(u"007"_s);
    EXPECT_EQ(sync->liveSlide(), 7);
}

TEST_F(SlideSyncServiceTest, keepsEverythingAfterATransientFailure)
{
    followKeynote();
    keynote.answer(u"3"_s);
    stage.time.advance(0.5);
    log.clear();

    keynote.fail(u"Keynote got an error: Invalid index. (-1719)"_s);
    stage.time.advance(0.5);
    keynote.answer(u"0"_s);
    stage.time.advance(0.5);
    keynote.questions.back()({ 1, u"9"_s, {} });
    stage.time.advance(0.5);

    EXPECT_EQ(sync->liveSlide(), 3);
    EXPECT_EQ(sync->state(), State::Live);
    EXPECT_EQ(keynote.questions.size(), 5u);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(SlideSyncServiceTest, asksAgainAfterAFailedLaunch)
{
    followKeynote();
    keynote.questions.back()({ -1, {}, u"No such file"_s });

    stage.time.advance(0.5);

    EXPECT_EQ(keynote.questions.size(), 2u);
    EXPECT_EQ(sync->state(), State::Manual);
}

TEST_F(SlideSyncServiceTest, isNotDeniedByAFailedLaunchWhateverItSays)
{
    followKeynote();
    keynote.answer(u"3"_s);
    stage.time.advance(0.5);
    log.clear();

    keynote.questions.back()({ -1, {}, u"/opt/build-1743/osascript: No such file"_s });

    EXPECT_EQ(sync->state(), State::Live);
    EXPECT_EQ(sync->liveSlide(), 3);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(SlideSyncServiceTest, isDeniedOnceAndStopsAsking)
{
    followKeynote();
    keynote.answer(u"3"_s);
    stage.time.advance(0.5);
    log.clear();

    keynote.fail(u"execution error: Not authorized to send Apple events to Keynote. (-1743)"_s);
    EXPECT_EQ(sync->state(), State::Denied);
    EXPECT_EQ(sync->liveSlide(), std::nullopt);
    stage.time.advance(10.0);

    EXPECT_EQ(keynote.questions.size(), 2u);
    EXPECT_EQ(sync->state(), State::Denied);
    EXPECT_THAT(log.lines(), ElementsAre("SYNC denied (Automation permission for Keynote)"));
}

TEST_F(SlideSyncServiceTest, isDeniedAlsoWhenTheScriptEndsWell)
{
    followKeynote();

    keynote.questions.back()({ 0, u"no number"_s, u"-1743"_s });

    EXPECT_EQ(sync->state(), State::Denied);
}

TEST_F(SlideSyncServiceTest, believesASlideNumberWhateverTheErrorOutput)
{
    followKeynote();

    keynote.questions.back()({ 0, u"2"_s, u"-1743"_s });

    EXPECT_EQ(sync->state(), State::Live);
    EXPECT_EQ(sync->liveSlide(), 2);
}

TEST_F(SlideSyncServiceTest, staysDeniedWithoutASlideshowAndAsksTheNextOne)
{
    followKeynote();
    keynote.fail(u"-1743"_s);

    stage.endSlideshow();
    stage.time.advance(2.0);
    EXPECT_EQ(sync->state(), State::Denied);
    EXPECT_EQ(sync->app(), nullptr);

    stage.presentKeynote();
    stage.time.advance(1.0);
    EXPECT_EQ(sync->state(), State::Manual);
    EXPECT_EQ(keynote.questions.size(), 2u);
}

TEST_F(SlideSyncServiceTest, givesAnotherApplicationAFreshChanceInTheSameTick)
{
    followKeynote();
    keynote.fail(u"-1743"_s);
    log.clear();

    stage.presentPowerPoint();
    stage.time.advance(1.0);

    EXPECT_EQ(sync->state(), State::Manual);
    EXPECT_EQ(powerPoint.questions.size(), 1u);
    EXPECT_THAT(log.lines(), ElementsAre("SYNC following PowerPoint"));
}

TEST_F(SlideSyncServiceTest, keepsTheSlideWhileTheApplicationChanges)
{
    followKeynote();
    keynote.answer(u"3"_s);
    log.clear();

    stage.presentPowerPoint();
    stage.time.advance(1.0);
    EXPECT_EQ(sync->liveSlide(), 3);
    EXPECT_EQ(sync->state(), State::Live);
    EXPECT_EQ(sync->app(), stage.presenters.named(u"Microsoft PowerPoint"_s));
    EXPECT_THAT(log.lines(), ElementsAre("SYNC following PowerPoint"));

    powerPoint.fail(u"Invalid index. (-1719)"_s);
    stage.time.advance(0.5);
    EXPECT_EQ(sync->liveSlide(), 3);
    powerPoint.answer(u"5\n"_s);
    EXPECT_EQ(sync->liveSlide(), 5);
    EXPECT_THAT(log.lines(), ElementsAre("SYNC following PowerPoint", "SYNC slide=5"));
}

TEST_F(SlideSyncServiceTest, asksTheNextApplicationOnlyAfterTheOldOneHasAnswered)
{
    followKeynote();

    stage.presentPowerPoint();
    stage.time.advance(2.0);
    EXPECT_TRUE(powerPoint.questions.empty());

    keynote.answer(u"3"_s);
    EXPECT_EQ(sync->liveSlide(), 3);
    stage.time.advance(0.5);
    EXPECT_EQ(powerPoint.questions.size(), 1u);
}

TEST_F(SlideSyncServiceTest, namesTheApplicationThatRefusedAlsoWhenAnotherOneIsFollowed)
{
    followKeynote();
    stage.presentPowerPoint();
    stage.time.advance(2.0);
    log.clear();

    keynote.fail(u"-1743"_s);
    stage.time.advance(2.0);

    EXPECT_EQ(sync->state(), State::Denied);
    EXPECT_TRUE(powerPoint.questions.empty());
    EXPECT_THAT(log.lines(), ElementsAre("SYNC denied (Automation permission for Keynote)"));
}

TEST_F(SlideSyncServiceTest, dropsAnAnswerThatComesAfterTheSlideshowAtTheNextTick)
{
    followKeynote();
    stage.endSlideshow();
    stage.time.advance(1.5);

    keynote.answer(u"3"_s);
    EXPECT_EQ(sync->liveSlide(), 3);
    stage.time.advance(0.5);

    EXPECT_EQ(sync->liveSlide(), std::nullopt);
    EXPECT_EQ(sync->state(), State::Manual);
}

TEST_F(SlideSyncServiceTest, turnsManualWhenTheSlideshowEnds)
{
    followKeynote();
    keynote.answer(u"3"_s);

    stage.endSlideshow();
    stage.time.advance(1.5);

    EXPECT_EQ(sync->state(), State::Manual);
    EXPECT_EQ(sync->liveSlide(), std::nullopt);
    EXPECT_EQ(sync->app(), nullptr);
}

TEST_F(SlideSyncServiceTest, forgetsEverythingWhenSwitchedOff)
{
    followKeynote();
    keynote.answer(u"3"_s);

    sync->setActive(false);
    EXPECT_EQ(sync->state(), State::Idle);
    EXPECT_EQ(sync->liveSlide(), std::nullopt);
    EXPECT_EQ(sync->app(), nullptr);

    stage.time.advance(5.0);
    EXPECT_EQ(keynote.questions.size(), 1u);
}

TEST_F(SlideSyncServiceTest, ignoresAnAnswerThatComesAfterSwitchingOff)
{
    followKeynote();
    sync->setActive(false);
    log.clear();

    keynote.answer(u"3"_s);
    EXPECT_EQ(sync->state(), State::Idle);
    EXPECT_EQ(sync->liveSlide(), std::nullopt);
    EXPECT_THAT(log.lines(), IsEmpty());

    sync->setActive(true);
    stage.time.advance(0.5);
    EXPECT_EQ(keynote.questions.size(), 2u);
}

TEST_F(SlideSyncServiceTest, asksAfreshWhenSwitchedOnAgainDuringAPoll)
{
    followKeynote();
    sync->setActive(false);
    sync->setActive(true);
    stage.time.advance(0.49);
    EXPECT_EQ(keynote.questions.size(), 1u);
    stage.time.advance(0.01);

    EXPECT_EQ(keynote.questions.size(), 2u);
}

TEST_F(SlideSyncServiceTest, leavesDeniedWhenSwitchedOffAndOn)
{
    followKeynote();
    keynote.fail(u"-1743"_s);

    sync->setActive(false);
    sync->setActive(true);
    stage.time.advance(0.5);

    EXPECT_EQ(sync->state(), State::Manual);
    EXPECT_EQ(keynote.questions.size(), 2u);
}

TEST_F(SlideSyncServiceTest, mayBeGoneWhenTheAnswerComes)
{
    followKeynote();
    sync.reset();

    keynote.answer(u"3"_s);

    EXPECT_EQ(stage.time.pendingCalls(), 1u); // The monitor's timer alone.
}

} // namespace
} // namespace Orvello
