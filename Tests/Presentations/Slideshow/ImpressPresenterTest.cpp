#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"

#include "Orvello/Presentations/Slideshow/SlideSyncService.h"
#include "Tests/Support/FakeHelperProcess.h"
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

const QString refusal = u"LibreOffice does not let Orvello ask it. (-1743)"_s;

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
        stage.time.advance(1.5);
    }
    void endSlideshow()
    {
        stage.endSlideshow();
        stage.time.advance(1.5);
    }

    void answer(const ScriptResult& result) { helper.questions.last().completion(result); }
    void refuse() { answer({ 1, {}, refusal }); }

    void import()
    {
        impress->row().askOpenDeck([this](const ScriptResult& result) { imported = result; });
    }

    Testing::FakeHelperProcess helper;
    Testing::SlideshowStage stage;
    std::unique_ptr<ImpressPresenter> impress
        = std::make_unique<ImpressPresenter>(helper, stage.monitor);
    SlideSyncService sync { stage.monitor, stage.presenters, stage.time };
    QSignalSpy advices { impress.get(), &ImpressPresenter::adviceNeeded };
    std::optional<ScriptResult> imported;
};

TEST_F(ImpressPresenterTest, isFollowedLikeTheOthers)
{
    presentImpress();
    ASSERT_EQ(helper.questions.size(), 1);
    EXPECT_EQ(helper.questions[0].text, u"slide"_s);

    answer({ 0, u"4\n"_s, {} });

    EXPECT_EQ(sync.state(), State::Live);
    EXPECT_EQ(sync.liveSlide(), 4);
    EXPECT_EQ(sync.app()->logName, u"Impress"_s);
    EXPECT_EQ(advices.count(), 0);
}

TEST_F(ImpressPresenterTest, isAskedForItsDeck)
{
    import();
    EXPECT_EQ(helper.questions.last().text, u"deck"_s);

    answer({ 0, u"record"_s, {} });

    EXPECT_EQ(imported->standardOutput, u"record"_s);
}

TEST_F(ImpressPresenterTest, advisesAfterTheSlideshowAndOncePerRun)
{
    presentImpress();
    refuse();
    EXPECT_EQ(sync.state(), State::Denied);
    EXPECT_EQ(advices.count(), 0);

    endSlideshow();
    EXPECT_EQ(advices.count(), 1);

    presentImpress();
    refuse();
    endSlideshow();
    EXPECT_EQ(advices.count(), 1);
}

TEST_F(ImpressPresenterTest, advisesAtOnceWhenTheSlideshowIsOverBeforeTheRefusal)
{
    presentImpress();
    endSlideshow();

    refuse();

    EXPECT_EQ(advices.count(), 1);
}

TEST_F(ImpressPresenterTest, advisesAtEveryImport)
{
    import();
    refuse();
    EXPECT_EQ(imported->status, 1);
    EXPECT_EQ(advices.count(), 1);

    import();
    refuse();
    EXPECT_EQ(advices.count(), 2);

    presentImpress();
    refuse();
    endSlideshow();
    EXPECT_EQ(advices.count(), 2);
}

TEST_F(ImpressPresenterTest, doesNotAdviseAboutOtherFailures)
{
    presentImpress();
    answer({ 1, {}, u"LibreOffice isn't running. (-600)"_s });
    stage.time.advance(0.5);
    answer({ ScriptResult::notStarted, {}, u"/opt/-1743/python3: No such file"_s });
    import();
    answer({ 1, {}, u"NO_DOCUMENT"_s });
    import();
    answer({ 0, u"-1743"_s, u"-1743"_s });
    endSlideshow();

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

TEST_F(ImpressPresenterTest, doesNotAdviseWhatTheUserHasFoundMeanwhile)
{
    presentImpress();
    refuse();
    impress->allow([](const ImpressPresenter::Change&) {});
    answer({ 0, u"Done."_s, {} });
    endSlideshow();

    EXPECT_EQ(advices.count(), 0);
}

TEST_F(ImpressPresenterTest, isLetInAtTheUsersCommand)
{
    std::optional<ImpressPresenter::Change> change;
    const auto receive = [&](const ImpressPresenter::Change& result) { change = result; };

    impress->allow(receive);
    EXPECT_EQ(helper.questions.last().text, u"allow"_s);
    EXPECT_TRUE(impress->isChanging());
    answer({ 0, u"Orvello may now follow Impress.\n"_s, {} });
    EXPECT_TRUE(change->isDone);
    EXPECT_EQ(change->message, u"Orvello may now follow Impress."_s);
    EXPECT_FALSE(impress->isChanging());

    impress->disallow(receive);
    EXPECT_EQ(helper.questions.last().text, u"disallow"_s);
    answer({ 1, {}, u"LibreOffice isn't installed."_s });
    EXPECT_FALSE(change->isDone);
    EXPECT_EQ(change->message, u"LibreOffice isn't installed."_s);
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

TEST_F(ImpressPresenterTest, saysInTheUsersLanguageWhatTheHelperSays)
{
    Bracketing language;
    QCoreApplication::installTranslator(&language);
    QStringList messages;
    for (const ScriptResult& result :
        { ScriptResult { 0, u"Orvello may no longer follow Impress.\n"_s, {} },
            ScriptResult { 0,
                u"Orvello may now follow Impress. Start the slideshow or the import again.\n\nTo take this back later: /opt/helper disallow\n"_s,
                {} },
            ScriptResult { 1, {}, u"LibreOffice already listens to another program (socket)."_s },
            ScriptResult { 1, {}, u"OSError: No space left on device"_s } }) {
        impress->allow([&messages](const ImpressPresenter::Change& change) {
            messages.append(change.message);
        });
        answer(result);
    }
    QCoreApplication::removeTranslator(&language);

    EXPECT_EQ(messages,
        QStringList({ u"<Orvello may no longer follow Impress.>"_s,
            u"<Orvello may now follow Impress. Start the slideshow or the import again.\n\nTo take this back later: /opt/helper disallow>"_s,
            u"<LibreOffice already listens to another program (socket).>"_s,
            u"OSError: No space left on device"_s }));
}

TEST_F(ImpressPresenterTest, mayBeGoneWhenLibreOfficeHasAnswered)
{
    bool isCalled = false;
    impress->allow([&](const ImpressPresenter::Change&) { isCalled = true; });
    import();
    impress.reset();

    helper.questions[0].completion({ 0, {}, {} });
    refuse();

    EXPECT_FALSE(isCalled);
    EXPECT_TRUE(imported.has_value());
}

} // namespace
} // namespace Orvello
