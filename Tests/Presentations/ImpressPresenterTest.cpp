#include "Orvello/Presentations/ImpressPresenter.h"

#include "Tests/Support/FakeHelperProcess.h"
#include "Tests/Support/SlideshowStage.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <memory>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using State = SlideSyncService::State;

const QString refusal = u"LibreOffice does not let Orvello ask it. (-1743)"_s;

class ImpressPresenterTest : public ::testing::Test {
protected:
    ImpressPresenterTest()
    {
        stage.presenters.add(ImpressPresenter::row(helper));
        stage.monitor.start();
        sync.setActive(true);
    }

    void presentImpress()
    {
        stage.present(ImpressPresenter::row(helper));
        stage.time.advance(1.5);
    }

    Testing::FakeHelperProcess helper;
    Testing::SlideshowStage stage;
    SlideSyncService sync { stage.monitor, stage.presenters, stage.time };
    std::unique_ptr<ImpressAccess> access = std::make_unique<ImpressAccess>(sync, helper);
};

TEST_F(ImpressPresenterTest, isFollowedLikeTheOthers)
{
    presentImpress();
    ASSERT_EQ(helper.questions.size(), 1);
    EXPECT_EQ(helper.questions[0].text, u"slide"_s);

    helper.questions[0].completion({ 0, u"4\n"_s, {} });

    EXPECT_EQ(sync.state(), State::Live);
    EXPECT_EQ(sync.liveSlide(), 4);
    EXPECT_EQ(sync.app()->logName, u"Impress"_s);
}

TEST_F(ImpressPresenterTest, isAskedForItsDeck)
{
    ImpressPresenter::row(helper).askOpenDeck([](const ScriptResult&) {});

    EXPECT_EQ(helper.questions.last().text, u"deck"_s);
}

TEST_F(ImpressPresenterTest, isDeniedAndAdvisesOncePerRun)
{
    const QSignalSpy advices(access.get(), &ImpressAccess::adviceNeeded);

    presentImpress();
    helper.questions.last().completion({ 1, {}, refusal });
    EXPECT_EQ(sync.state(), State::Denied);
    ASSERT_EQ(advices.count(), 1);
    EXPECT_TRUE(advices[0][0].toString().contains(ImpressPresenter::allowTitle()));

    stage.endSlideshow();
    stage.time.advance(2.0);
    presentImpress();
    helper.questions.last().completion({ 1, {}, refusal });
    EXPECT_EQ(sync.state(), State::Denied);
    EXPECT_EQ(advices.count(), 1);
}

TEST_F(ImpressPresenterTest, doesNotAdviseForTheOthers)
{
    const QSignalSpy advices(access.get(), &ImpressAccess::adviceNeeded);

    stage.presentKeynote();
    stage.time.advance(1.5);
    stage.keynote.fail(u"-1743"_s);

    EXPECT_EQ(sync.state(), State::Denied);
    EXPECT_EQ(advices.count(), 0);
}

TEST_F(ImpressPresenterTest, isLetInAtTheUsersCommand)
{
    QString message;
    access->allow([&](const QString& text) { message = text; });
    EXPECT_EQ(helper.questions.last().text, u"allow"_s);
    helper.questions.last().completion({ 0, u"Orvello may now follow Impress.\n"_s, {} });
    EXPECT_EQ(message, u"Orvello may now follow Impress."_s);

    access->disallow([&](const QString& text) { message = text; });
    EXPECT_EQ(helper.questions.last().text, u"disallow"_s);
    helper.questions.last().completion({ 1, {}, u"LibreOffice isn't installed."_s });
    EXPECT_EQ(message, u"LibreOffice isn't installed."_s);
}

TEST_F(ImpressPresenterTest, mayBeGoneWhenLibreOfficeHasAnswered)
{
    bool isCalled = false;
    access->allow([&](const QString&) { isCalled = true; });
    access.reset();

    helper.questions.last().completion({ 0, {}, {} });

    EXPECT_FALSE(isCalled);
}

} // namespace
} // namespace Orvello
