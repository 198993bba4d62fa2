#include "Orvello/Presentations/Slideshow/PresentedDeck.h"

#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Presentations/Slideshow/DeckController.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/SlideshowStage.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

const QString talkRecord = u"Talk\x1eWelcome\x1f\x1eResults\x1f\n"_s;
const QString budgetRecord = u"Budget\x1e"
                             "Costs\x1f\x1eIncome\x1f\n"_s;

class PresentedDeckTest : public ::testing::Test {
protected:
    PresentedDeckTest()
    {
        impress.tellsDeck = true;
        stage.presenters.add(impress.row());
        talk = library.addDeck(u"Talk"_s,
            { { 1, u"Welcome"_s, u"Hello"_s }, { 2, u"Results"_s, u"Numbers"_s } }, u"Impress"_s);
        stage.monitor.start();
        sync.setActive(true);
        Testing::drainEvents();
    }

    /// A slideshow of this deck is on its first slide.
    void present(const QString& record)
    {
        stage.present(impress.row());
        stage.time.advance(1.5);
        impress.answer(u"1\n"_s);
        impress.answerDeck(record);
        Testing::drainEvents();
    }
    void endSlideshow()
    {
        stage.endSlideshow();
        stage.time.advance(1.5);
        Testing::drainEvents();
    }
    QUuid addBudget()
    {
        return library.addDeck(u"Budget"_s,
            { { 1, u"Costs"_s, u"Money"_s }, { 2, u"Income"_s, u"More money"_s } }, u"Impress"_s);
    }

    Testing::SlideshowStage stage;
    Testing::FakePresenter impress { u"LibreOffice Impress"_s, u"Impress"_s,
        u"libreoffice-impress"_s };
    Testing::FakeUserDefaults defaults;
    Testing::FakeFolders folders;
    SettingsStore settings { defaults };
    LibraryStore library { defaults, folders, stage.time, {} };
    SlideSyncService sync { stage.monitor, stage.presenters, stage.time };
    DeckController controller { library, settings, sync };
    PresentedDeck& deck = controller.presentedDeck();
    QUuid talk;
};

TEST_F(PresentedDeckTest, showsTheNotesOfTheDeckThatIsPresented)
{
    present(talkRecord);

    EXPECT_FALSE(deck.isOther());
    EXPECT_EQ(deck.name(), u"Talk"_s);
    EXPECT_EQ(controller.promptText(), u"Hello"_s);
    EXPECT_FALSE(controller.isOtherDeck());
}

TEST_F(PresentedDeckTest, showsNoNotesOfAnotherTalk)
{
    const QSignalSpy news(&controller, &DeckController::otherDeckChanged);
    const qint64 token = controller.slideChangeToken();
    present(budgetRecord);

    EXPECT_TRUE(deck.isOther());
    EXPECT_EQ(deck.name(), u"Budget"_s);
    EXPECT_EQ(deck.fittingScript(), std::nullopt);
    EXPECT_TRUE(controller.isOtherDeck());
    EXPECT_EQ(news.count(), 1);
    EXPECT_EQ(controller.promptText(), u"(Another presentation is on screen)"_s);
    EXPECT_EQ(controller.slideTitle(), std::nullopt);
    EXPECT_EQ(controller.slideChangeToken(), token + 1);
    EXPECT_EQ(sync.state(), SlideSyncService::State::Live);
}

TEST_F(PresentedDeckTest, theNotesComeBackAfterTheSlideshow)
{
    present(budgetRecord);
    endSlideshow();

    EXPECT_FALSE(deck.isOther());
    EXPECT_EQ(controller.promptText(), u"Hello"_s);
}

TEST_F(PresentedDeckTest, theWholeTextIsTheScriptsInAnyCase)
{
    settings.setSlideSync(false);
    present(budgetRecord);

    EXPECT_FALSE(controller.isOtherDeck());
    EXPECT_EQ(controller.promptText(), library.activeScript()->body);
}

TEST_F(PresentedDeckTest, knowsTheScriptThatFits)
{
    const QUuid budget = addBudget();
    library.setActiveScriptID(talk);
    Testing::drainEvents();
    present(budgetRecord);
    ASSERT_EQ(deck.fittingScript(), budget);

    library.setActiveScriptID(budget);
    Testing::drainEvents();
    EXPECT_FALSE(deck.isOther());
    EXPECT_EQ(controller.promptText(), u"Money"_s);
}

TEST_F(PresentedDeckTest, anImportOfTheDeckEndsIt)
{
    present(budgetRecord);
    addBudget();
    Testing::drainEvents();

    EXPECT_FALSE(deck.isOther());
    EXPECT_EQ(controller.promptText(), u"Money"_s);
}

TEST_F(PresentedDeckTest, theReaderMayWantTheNotesAllTheSame)
{
    present(budgetRecord);
    deck.accept();
    Testing::drainEvents();
    EXPECT_FALSE(deck.isOther());
    EXPECT_EQ(controller.promptText(), u"Hello"_s);

    // For this deck, in the next slideshow, too.
    endSlideshow();
    present(budgetRecord);
    EXPECT_FALSE(deck.isOther());
    endSlideshow();
    present(u"Third\x1e"
            "A\x1f\x1e"
            "B\x1f"_s);
    EXPECT_TRUE(deck.isOther());
}

TEST_F(PresentedDeckTest, aDeckThatNobodyTellsIsTheScripts)
{
    stage.present(impress.row());
    stage.time.advance(1.5);
    impress.answer(u"1\n"_s);
    impress.deckQuestions.back()({ 1, {}, u"No slideshow is running. (-1728)"_s });
    Testing::drainEvents();

    EXPECT_FALSE(deck.isOther());
    EXPECT_EQ(controller.promptText(), u"Hello"_s);
}

TEST_F(PresentedDeckTest, aNameAloneSpeaksForTheScriptThatHasIt)
{
    const QUuid budget = addBudget();
    library.setActiveScriptID(talk);
    present(u"Budget.pptx\x1e\x1e"_s);

    EXPECT_TRUE(deck.isOther());
    EXPECT_EQ(deck.fittingScript(), budget);
}

TEST_F(PresentedDeckTest, aNameAloneSpeaksAgainstNoScript)
{
    present(u"Budget.pptx\x1e\x1e"_s);

    EXPECT_FALSE(deck.isOther());
}

TEST_F(PresentedDeckTest, aRenamedScriptIsNotLeftForAnOlderVersion)
{
    library.addDeck(u"Mine"_s, { { 1, u"Welcome"_s, u"Hi"_s }, { 2, u"Results"_s, u"Figures"_s } },
        u"Impress"_s);
    present(talkRecord);

    EXPECT_FALSE(deck.isOther());
    EXPECT_EQ(controller.promptText(), u"Hi"_s);
}

TEST_F(PresentedDeckTest, isAskedOnceForEachSlide)
{
    present(talkRecord);
    EXPECT_EQ(impress.deckQuestions.size(), 1u);
    stage.time.advance(0.5);
    impress.answer(u"1\n"_s);
    stage.time.advance(0.5);
    EXPECT_EQ(impress.deckQuestions.size(), 1u);

    impress.answer(u"2\n"_s);
    ASSERT_EQ(impress.deckQuestions.size(), 2u);
    // One question at a time.
    const std::size_t questions = impress.questions.size();
    stage.time.advance(2.0);
    EXPECT_EQ(impress.questions.size(), questions);
    impress.answerDeck(budgetRecord);
    EXPECT_TRUE(deck.isOther());
    stage.time.advance(0.5);
    EXPECT_EQ(impress.questions.size(), questions + 1);
}

TEST_F(PresentedDeckTest, anAnswerAfterTheSlideshowCountsForNothing)
{
    stage.present(impress.row());
    stage.time.advance(1.5);
    impress.answer(u"1\n"_s);
    endSlideshow();
    impress.answerDeck(budgetRecord);

    EXPECT_FALSE(deck.isOther());
    EXPECT_EQ(sync.presentedDeck(), std::nullopt);
}

} // namespace
} // namespace Orvello
