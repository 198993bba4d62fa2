#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"

#include "Orvello/Presentations/Slideshow/SlideSyncService.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeHelperProcess.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/SlideshowStage.h"

#include <QCoreApplication>
#include <QSignalSpy>
#include <QTranslator>

#include <gtest/gtest.h>

#include <memory>
#include <optional>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using State = SlideSyncService::State;

const QString sandbox
    = u"This LibreOffice runs in a sandbox (Flatpak) that Orvello cannot reach. Import the "
      "presentation's file instead, and step through the slides by hand."_s;

class ImpressPresenterTest : public ::testing::Test {
protected:
    ImpressPresenterTest()
    {
        stage.presenters.add(impress->row());
        stage.monitor.start();
        sync.setActive(true);
    }

    void presentImpress()
    {
        stage.present(impress->row());
        waitForPolls();
    }
    void endSlideshow()
    {
        stage.endSlideshow();
        waitForPolls();
    }
    void waitForPolls()
    {
        stage.time.advance(1.5);
        Testing::drainEvents();
    }

    QStringList asked() const
    {
        QStringList texts;
        for (const auto& question : helper.questions)
            texts.append(question.text);
        return texts;
    }

    void answer(const ScriptResult& result)
    {
        // The answer may lead to another question.
        const ScriptCompletion completion = helper.questions.last().completion;
        completion(result);
    }
    void refuse() { answer({ 1, {}, sandbox + u" (-1743)"_s }); }

    void import()
    {
        imported.reset();
        impress->row().askOpenDeck([this](const ScriptResult& result) { imported = result; });
        Testing::drainEvents();
    }

    Testing::FakeHelperProcess helper;
    Testing::FakeUserDefaults defaults;
    Testing::SlideshowStage stage;
    std::unique_ptr<ImpressPresenter> impress
        = std::make_unique<ImpressPresenter>(helper, stage.monitor, defaults);
    SlideSyncService sync { stage.monitor, stage.presenters, stage.time };
    QSignalSpy advices { impress.get(), &ImpressPresenter::adviceNeeded };
    std::optional<ScriptResult> imported;
};

/// With the user's consent.
class AllowedImpressPresenterTest : public ImpressPresenterTest {
protected:
    AllowedImpressPresenterTest() { impress->setAllowed(true); }
};

TEST_F(ImpressPresenterTest, asksNothingWithoutTheUsersConsent)
{
    presentImpress();
    EXPECT_EQ(sync.state(), State::Denied);
    endSlideshow();
    import();

    EXPECT_EQ(imported->status, 1);
    EXPECT_TRUE(imported->standardError.contains(u"-1743"_s));
    EXPECT_EQ(asked(), QStringList());
    EXPECT_EQ(impress->obstacle(), QString());
}

TEST_F(ImpressPresenterTest, remembersTheConsent)
{
    EXPECT_FALSE(impress->isAllowed());
    impress->setAllowed(true);
    EXPECT_TRUE(ImpressPresenter(helper, stage.monitor, defaults).isAllowed());

    impress->setAllowed(false);
    EXPECT_FALSE(ImpressPresenter(helper, stage.monitor, defaults).isAllowed());
}

TEST_F(ImpressPresenterTest, asksForConsentAfterTheSlideshowAndOncePerRun)
{
    presentImpress();
    EXPECT_EQ(advices.count(), 0);
    endSlideshow();
    EXPECT_EQ(advices.count(), 1);

    presentImpress();
    endSlideshow();
    EXPECT_EQ(advices.count(), 1);
}

TEST_F(ImpressPresenterTest, asksForConsentAtEveryImport)
{
    import();
    EXPECT_EQ(advices.count(), 1);
    import();
    EXPECT_EQ(advices.count(), 2);

    presentImpress();
    endSlideshow();
    EXPECT_EQ(advices.count(), 2);
}

TEST_F(ImpressPresenterTest, showsNothingBeforeTheAudienceWhatIsInFront)
{
    presentImpress();
    stage.workspace.frontmost = Testing::FakeWorkspace::application(u"org.mozilla.firefox"_s);
    waitForPolls();
    EXPECT_FALSE(stage.monitor.isPresenting());
    EXPECT_EQ(advices.count(), 0);
    import();
    EXPECT_EQ(advices.count(), 0);

    endSlideshow();
    EXPECT_EQ(advices.count(), 1);
}

TEST_F(ImpressPresenterTest, doesNotAskForWhatTheUserHasFoundMeanwhile)
{
    presentImpress();
    impress->setAllowed(true);
    endSlideshow();

    EXPECT_EQ(advices.count(), 0);
}

TEST_F(AllowedImpressPresenterTest, isFollowedLikeTheOthers)
{
    presentImpress();
    EXPECT_EQ(asked(), QStringList { u"open"_s });
    answer({ 0, u"\n"_s, {} });
    EXPECT_EQ(asked(), QStringList({ u"open"_s, u"slide"_s }));
    answer({ 0, u"4\n"_s, {} });

    EXPECT_EQ(sync.state(), State::Live);
    EXPECT_EQ(sync.liveSlide(), 4);
    EXPECT_EQ(sync.app()->logName, u"Impress"_s);
    EXPECT_EQ(advices.count(), 0);

    EXPECT_EQ(asked(), QStringList({ u"open"_s, u"slide"_s, u"presented"_s }));
    answer({ 0, u"Talk\x1eWelcome\x1f\n"_s, {} });
    EXPECT_EQ(sync.presentedDeck(), (DeckOutline { u"Talk"_s, { u"Welcome"_s } }));

    stage.time.advance(0.5);
    EXPECT_EQ(asked(), QStringList({ u"open"_s, u"slide"_s, u"presented"_s, u"slide"_s }));
}

TEST_F(AllowedImpressPresenterTest, givesEveryQuestionItsTime)
{
    presentImpress();
    answer({ 0, {}, {} });
    import();

    ASSERT_EQ(asked(), QStringList({ u"open"_s, u"slide"_s, u"deck"_s }));
    EXPECT_EQ(helper.questions[0].seconds, 20.0);
    EXPECT_EQ(helper.questions[1].seconds, 2.0);
    EXPECT_EQ(helper.questions[2].seconds, 20.0);
}

TEST_F(AllowedImpressPresenterTest, opensAgainAfterAFailure)
{
    presentImpress();
    answer({ 0, {}, {} });
    answer({ ScriptResult::timedOut, {}, {} });
    stage.time.advance(0.5);

    EXPECT_EQ(asked(), QStringList({ u"open"_s, u"slide"_s, u"open"_s }));
    EXPECT_EQ(sync.state(), State::Manual);
}

TEST_F(AllowedImpressPresenterTest, saysThatNobodyAnswered)
{
    import();
    answer({ ScriptResult::timedOut, {}, {} });

    EXPECT_EQ(imported->standardError, u"LibreOffice did not answer."_s);
}

TEST_F(AllowedImpressPresenterTest, isAskedForItsDeckAndLetGo)
{
    import();
    answer({ 0, {}, {} });
    EXPECT_EQ(asked(), QStringList({ u"open"_s, u"deck"_s }));
    EXPECT_EQ(helper.ends, 0);
    answer({ 0, u"record"_s, {} });

    EXPECT_EQ(imported->standardOutput, u"record"_s);
    EXPECT_EQ(helper.ends, 1);
}

TEST_F(AllowedImpressPresenterTest, isLetGoOnlyAfterTheSlideshow)
{
    presentImpress();
    answer({ 0, {}, {} });
    answer({ 0, u"4\n"_s, {} });
    answer({ 0, u"Talk\n"_s, {} });
    import();
    answer({ 0, u"record"_s, {} });
    stage.workspace.frontmost = Testing::FakeWorkspace::application(u"org.mozilla.firefox"_s);
    waitForPolls();
    EXPECT_EQ(helper.ends, 0);

    endSlideshow();
    EXPECT_EQ(helper.ends, 1);
}

TEST_F(AllowedImpressPresenterTest, isLetGoWhenTheConsentIsTakenBack)
{
    presentImpress();
    answer({ 0, {}, {} });
    impress->setAllowed(false);
    EXPECT_EQ(helper.ends, 1);

    answer({ ScriptResult::notStarted, {}, {} });
    waitForPolls();
    EXPECT_EQ(asked(), QStringList({ u"open"_s, u"slide"_s }));
    EXPECT_EQ(sync.state(), State::Denied);
}

TEST_F(AllowedImpressPresenterTest, saysWhatIsInTheWay)
{
    presentImpress();
    refuse();
    EXPECT_EQ(sync.state(), State::Denied);
    EXPECT_EQ(impress->obstacle(), sandbox);
    endSlideshow();
    EXPECT_EQ(advices.count(), 1);

    import();
    refuse();
    EXPECT_EQ(advices.count(), 2);
    import();
    answer({ 0, {}, {} });
    answer({ 0, u"record"_s, {} });
    EXPECT_EQ(impress->obstacle(), QString());
}

TEST_F(AllowedImpressPresenterTest, doesNotAdviseAboutOtherFailures)
{
    presentImpress();
    answer({ 1, {}, u"LibreOffice isn't running. (-600)"_s });
    stage.time.advance(0.5);
    answer({ ScriptResult::notStarted, {}, u"/opt/-1743/python3: No such file"_s });
    endSlideshow();
    import();
    answer({ 1, {}, u"NO_DOCUMENT"_s });
    import();
    answer({ 0, u"-1743"_s, u"-1743"_s });

    EXPECT_EQ(sync.state(), State::Manual);
    EXPECT_EQ(advices.count(), 0);
}

TEST_F(ImpressPresenterTest, doesNotAdviseForTheOthers)
{
    stage.presentKeynote();
    stage.time.advance(1.5);
    stage.keynote.fail(u"-1743"_s);
    endSlideshow();

    EXPECT_EQ(sync.state(), State::Denied);
    EXPECT_EQ(advices.count(), 0);
}

/// A language in which every text stands in brackets.
class Bracketing final : public QTranslator {
public:
    QString translate(const char*, const char* source, const char*, int) const override
    {
        return u'<' + QString::fromUtf8(source) + u'>';
    }
    bool isEmpty() const override { return false; }
};

TEST_F(AllowedImpressPresenterTest, saysInTheUsersLanguageWhatTheHelperSays)
{
    Bracketing language;
    QCoreApplication::installTranslator(&language);
    QStringList messages;
    for (const QString& error : { u"LibreOffice isn't running. (-600)"_s, sandbox + u" (-1743)"_s,
             u"OSError: No space left on device"_s }) {
        import();
        answer({ 1, {}, error });
        messages.append(imported->standardError);
    }
    QCoreApplication::removeTranslator(&language);

    EXPECT_EQ(messages,
        QStringList({ u"<LibreOffice isn't running.> (-600)"_s, u'<' + sandbox + u"> (-1743)"_s,
            u"OSError: No space left on device"_s }));
}

TEST_F(AllowedImpressPresenterTest, mayBeGoneWhenLibreOfficeHasAnswered)
{
    import();
    impress.reset();

    answer({ 0, {}, {} });

    EXPECT_TRUE(imported.has_value());
    EXPECT_EQ(asked(), QStringList { u"open"_s });
}

} // namespace
} // namespace Orvello
