#include "Orvello/Presentations/Slideshow/DeckController.h"

#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Settings/Store/SettingsStore.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/SlideshowStage.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

#include <limits>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using State = SlideSyncService::State;

class DeckControllerTest : public ::testing::Test {
protected:
    DeckControllerTest()
    {
        deck = library.addDeck(u"Deck"_s,
            { { 1, u"Intro"_s, u"First notes"_s }, { 2, std::nullopt, u""_s },
                { 3, u"End"_s, u"Last notes"_s } },
            u"Keynote"_s);
        stage.monitor.start();
        sync.setActive(true);
        Testing::drainEvents();
    }

    /// Lets the running slideshow show this slide.
    void showLive(qint64 slide)
    {
        if (!stage.monitor.isPresenting()) {
            stage.presentKeynote();
            stage.time.advance(1.0);
        }
        stage.time.advance(0.5);
        stage.keynote.answer(QString::number(slide));
        Testing::drainEvents();
    }
    void endSlideshow()
    {
        stage.endSlideshow();
        stage.time.advance(1.5);
        Testing::drainEvents();
    }
    void setTracking(bool on)
    {
        settings.setSlideSync(on);
        Testing::drainEvents();
    }

    /// The list in which the edits of the text shown are going to be.
    const QList<TextEdit>& collectEdits()
    {
        QObject::connect(&controller, &DeckController::promptTextChanged, &controller,
            [this](const TextEdit& edit) { m_edits.append(edit); });
        return m_edits;
    }

    Testing::SlideshowStage stage;
    Testing::FakeUserDefaults defaults;
    Testing::FakeFolders folders;
    SettingsStore settings { defaults };
    LibraryStore library { defaults, folders, stage.time, {} };
    SlideSyncService sync { stage.monitor, stage.presenters, stage.time };
    DeckController controller { library, settings, sync };
    QUuid deck;

private:
    QList<TextEdit> m_edits;
};

TEST_F(DeckControllerTest, showsNothingBeforeTheMainLoopRuns)
{
    const DeckController fresh(library, settings, sync);

    EXPECT_EQ(fresh.promptText(), QString());
    EXPECT_EQ(fresh.slideChangeToken(), 0);
    EXPECT_FALSE(fresh.trackingActive());
    EXPECT_EQ(fresh.displayIndex(), 0);
    EXPECT_EQ(fresh.slideCount(), 0);
    EXPECT_EQ(fresh.slideTitle(), std::nullopt);
    EXPECT_EQ(fresh.syncState(), State::Idle);
}

TEST_F(DeckControllerTest, goesToTheSlideThatHasAPlaceOfTheText)
{
    const QString body = library.activeScript()->body;

    EXPECT_EQ(controller.goTo(body.indexOf(u"notes")), 6);
    EXPECT_EQ(controller.promptText(), u"First notes"_s);
    EXPECT_EQ(controller.goTo(body.indexOf(u"Last notes") + 5), 5);
    EXPECT_EQ(controller.promptText(), u"Last notes"_s);
    EXPECT_EQ(controller.goTo(body.indexOf(u"Slide 2")), 0);
    EXPECT_EQ(controller.displayIndex(), 1);
    EXPECT_EQ(controller.goTo(body.size() + 100), 10);
    EXPECT_EQ(controller.goTo(body.indexOf(u"Intro")), 0);
    EXPECT_EQ(controller.displayIndex(), 0);
}

TEST_F(DeckControllerTest, goesNowhereWhileASlideshowShowsAnotherSlide)
{
    showLive(1);
    EXPECT_EQ(controller.goTo(library.activeScript()->body.indexOf(u"Last")), std::nullopt);
    EXPECT_EQ(controller.promptText(), u"First notes"_s);
    EXPECT_EQ(controller.goTo(library.activeScript()->body.indexOf(u"notes")), 6);
}

TEST_F(DeckControllerTest, goesToAPlaceOfATextThatHasJustChanged)
{
    library.addScript();
    library.updateActive({}, u"Hello all"_s);
    EXPECT_EQ(controller.goTo(6), 6);
    EXPECT_EQ(controller.promptText(), u"Hello all"_s);

    library.setActiveScriptID(deck);
    EXPECT_EQ(controller.goTo(library.activeScript()->body.indexOf(u"Last")), 0);
    EXPECT_EQ(controller.promptText(), u"Last notes"_s);

    setTracking(false);
    EXPECT_EQ(controller.goTo(40), 40);
}

TEST_F(DeckControllerTest, showsTheFirstSlideOfADeck)
{
    EXPECT_EQ(controller.promptText(), u"First notes"_s);
    EXPECT_TRUE(controller.trackingActive());
    EXPECT_EQ(controller.displayIndex(), 0);
    EXPECT_EQ(controller.slideCount(), 3);
    EXPECT_EQ(controller.slideTitle(), u"Intro"_s);
    EXPECT_EQ(controller.syncState(), State::Manual);
}

TEST_F(DeckControllerTest, bumpsTheTokenOnceForTheFirstUnit)
{
    DeckController fresh(library, settings, sync);
    const QSignalSpy tokens(&fresh, &DeckController::slideChangeTokenChanged);
    Testing::drainEvents();

    EXPECT_EQ(tokens.count(), 1);
    EXPECT_EQ(fresh.slideChangeToken(), 1);
}

TEST_F(DeckControllerTest, showsThePlaceholderForEmptyNotes)
{
    controller.showNextSlide();

    EXPECT_EQ(controller.promptText(), u"(No speaker notes on this slide)"_s);
    EXPECT_EQ(controller.slideTitle(), std::nullopt);
}

TEST_F(DeckControllerTest, stepsByHand)
{
    const qint64 token = controller.slideChangeToken();

    controller.showNextSlide();
    controller.showNextSlide();
    EXPECT_EQ(controller.promptText(), u"Last notes"_s);
    EXPECT_EQ(controller.displayIndex(), 2);
    controller.showPreviousSlide();
    EXPECT_EQ(controller.displayIndex(), 1);
    EXPECT_EQ(controller.slideChangeToken(), token + 3);
}

TEST_F(DeckControllerTest, staysOnTheFirstAndTheLastSlide)
{
    const qint64 token = controller.slideChangeToken();

    controller.showPreviousSlide();
    EXPECT_EQ(controller.displayIndex(), 0);
    EXPECT_EQ(controller.slideChangeToken(), token);
    controller.showNextSlide();
    controller.showNextSlide();
    controller.showNextSlide();
    EXPECT_EQ(controller.displayIndex(), 2);
    EXPECT_EQ(controller.slideChangeToken(), token + 2);
    controller.showPreviousSlide();
    EXPECT_EQ(controller.displayIndex(), 1);
}

TEST_F(DeckControllerTest, followsTheLiveSlide)
{
    showLive(3);
    EXPECT_EQ(controller.promptText(), u"Last notes"_s);
    EXPECT_EQ(controller.displayIndex(), 2);
    EXPECT_EQ(controller.syncState(), State::Live);

    showLive(1);
    EXPECT_EQ(controller.promptText(), u"First notes"_s);
}

TEST_F(DeckControllerTest, bumpsTheTokenOncePerLiveSlide)
{
    const qint64 token = controller.slideChangeToken();

    showLive(2);
    showLive(2);
    showLive(3);

    EXPECT_EQ(controller.slideChangeToken(), token + 2);
}

TEST_F(DeckControllerTest, showsTheLastSlideForANumberBeyondTheDeck)
{
    showLive(99);
    EXPECT_EQ(controller.displayIndex(), 2);
    EXPECT_EQ(controller.promptText(), u"Last notes"_s);

    showLive(std::numeric_limits<qint64>::max());
    EXPECT_EQ(controller.displayIndex(), 2);
}

TEST_F(DeckControllerTest, keepsTheLiveSlideWhileTheUserSteps)
{
    showLive(3);
    const qint64 token = controller.slideChangeToken();

    controller.showPreviousSlide();

    EXPECT_EQ(controller.displayIndex(), 2);
    EXPECT_EQ(controller.slideChangeToken(), token);
}

TEST_F(DeckControllerTest, keepsTheSlideWhenTheSlideshowEnds)
{
    showLive(3);
    const qint64 token = controller.slideChangeToken();

    endSlideshow();

    EXPECT_EQ(controller.syncState(), State::Manual);
    EXPECT_EQ(controller.displayIndex(), 2);
    EXPECT_EQ(controller.promptText(), u"Last notes"_s);
    EXPECT_EQ(controller.slideChangeToken(), token);
    controller.showPreviousSlide();
    EXPECT_EQ(controller.displayIndex(), 1);
}

TEST_F(DeckControllerTest, mirrorsTheStateOnlyWhenItChanges)
{
    const QSignalSpy changed(&controller, &DeckController::syncStateChanged);

    showLive(1);
    showLive(2);
    sync.setActive(false);
    Testing::drainEvents();

    EXPECT_EQ(controller.syncState(), State::Idle);
    EXPECT_EQ(changed.count(), 2);
}

TEST_F(DeckControllerTest, showsTheWholeScriptWithoutTracking)
{
    controller.showNextSlide();
    controller.showNextSlide();
    const qint64 token = controller.slideChangeToken();

    setTracking(false);
    EXPECT_EQ(controller.promptText(), library.activeScript()->body);
    EXPECT_FALSE(controller.trackingActive());
    EXPECT_EQ(controller.displayIndex(), 2);
    EXPECT_EQ(controller.slideCount(), 3);
    EXPECT_EQ(controller.slideTitle(), std::nullopt);
    EXPECT_EQ(controller.slideChangeToken(), token + 1);

    setTracking(true);
    EXPECT_EQ(controller.promptText(), u"Last notes"_s);
    EXPECT_EQ(controller.slideChangeToken(), token + 2);
}

TEST_F(DeckControllerTest, followsTheLiveSlideSilentlyWithoutTracking)
{
    setTracking(false);
    const qint64 token = controller.slideChangeToken();

    showLive(3);

    EXPECT_EQ(controller.displayIndex(), 2);
    EXPECT_FALSE(controller.trackingActive());
    EXPECT_EQ(controller.slideChangeToken(), token);
}

TEST_F(DeckControllerTest, showsAPlainScriptWhole)
{
    library.addScript();
    library.updateActive({}, u"Plain text"_s);
    Testing::drainEvents();

    EXPECT_EQ(controller.promptText(), u"Plain text"_s);
    EXPECT_FALSE(controller.trackingActive());
    EXPECT_EQ(controller.displayIndex(), 0);
    EXPECT_EQ(controller.slideCount(), 0);
}

TEST_F(DeckControllerTest, doesNotJumpWhenTheTextIsEdited)
{
    library.addScript();
    Testing::drainEvents();
    const qint64 token = controller.slideChangeToken();
    const QSignalSpy texts(&controller, &DeckController::promptTextChanged);

    library.updateActive({}, u"One"_s);
    Testing::drainEvents();
    library.updateActive({}, u"Two"_s);
    library.updateActive(u"Only a title"_s, {});
    Testing::drainEvents();

    EXPECT_EQ(controller.promptText(), u"Two"_s);
    EXPECT_EQ(texts.count(), 2);
    EXPECT_EQ(controller.slideChangeToken(), token);
}

TEST_F(DeckControllerTest, saysWhereTheTextWasEdited)
{
    library.addScript();
    library.updateActive({}, u"To be or not"_s);
    Testing::drainEvents();
    const QList<TextEdit>& edits = collectEdits();

    library.editActive(9, 0, u"r"_s);
    Testing::drainEvents();
    EXPECT_EQ(edits, (QList<TextEdit> { { 9, 0, 1 } }));

    // Both are in the library before the controller hears of the first.
    library.editActive(10, 0, u"ather "_s);
    library.editActive(0, 2, u"Not to"_s);
    Testing::drainEvents();
    EXPECT_EQ(controller.promptText(), u"Not to be or rather not"_s);
    EXPECT_EQ(edits, (QList<TextEdit> { { 9, 0, 1 }, { 0, 10, 20 } }));
}

TEST_F(DeckControllerTest, saysNothingOfAnEditThatWasTakenBack)
{
    library.addScript();
    library.updateActive({}, u"To be"_s);
    Testing::drainEvents();
    const QList<TextEdit>& edits = collectEdits();

    library.editActive(5, 0, u"!"_s);
    library.editActive(5, 1, {});
    library.editActive(0, 2, u"To"_s);
    Testing::drainEvents();

    EXPECT_TRUE(edits.isEmpty());
}

TEST_F(DeckControllerTest, takesNoEditOfAnotherScriptForOneOfTheTextShown)
{
    const QUuid first = library.addScript();
    library.updateActive({}, u"First"_s);
    const QUuid second = library.addScript();
    library.updateActive({}, u"Second"_s);
    Testing::drainEvents();
    const QList<TextEdit>& edits = collectEdits();

    library.editActive(6, 0, u"!"_s);
    library.setActiveScriptID(first);
    library.editActive(0, 5, {});
    library.setActiveScriptID(second);
    Testing::drainEvents();
    EXPECT_EQ(controller.promptText(), u"Second!"_s);
    EXPECT_EQ(edits, (QList<TextEdit> { { 6, 0, 1 } }));

    library.setActiveScriptID(first);
    library.editActive(0, 0, u"1st"_s);
    Testing::drainEvents();
    EXPECT_EQ(controller.promptText(), u"1st"_s);
    EXPECT_EQ(edits, (QList<TextEdit> { { 6, 0, 1 }, { 0, 7, 3 } }));
}

TEST_F(DeckControllerTest, saysNothingOfAnotherUnitWithTheSameText)
{
    library.addDeck(u"Same"_s, { { 1, {}, u"Same"_s }, { 2, {}, u"Same"_s } }, u"Keynote"_s);
    Testing::drainEvents();
    const QList<TextEdit>& edits = collectEdits();

    controller.showNextSlide();

    EXPECT_EQ(controller.displayIndex(), 1);
    EXPECT_TRUE(edits.isEmpty());
}

TEST_F(DeckControllerTest, doesNotJumpWhenAnUntrackedDeckIsEdited)
{
    setTracking(false);
    const qint64 token = controller.slideChangeToken();

    library.updateActive({}, u"Another body"_s);
    Testing::drainEvents();

    EXPECT_EQ(controller.promptText(), u"Another body"_s);
    EXPECT_EQ(controller.slideChangeToken(), token);
}

TEST_F(DeckControllerTest, keepsATrackedSlideWhenTheBodyIsEdited)
{
    const qint64 token = controller.slideChangeToken();

    library.updateActive(u"Another title"_s, u"Another body"_s);
    Testing::drainEvents();

    EXPECT_EQ(controller.promptText(), u"First notes"_s);
    EXPECT_EQ(controller.slideChangeToken(), token);
}

TEST_F(DeckControllerTest, startsAnotherScriptAtItsFirstSlide)
{
    controller.showNextSlide();
    controller.showNextSlide();
    const QUuid other = library.addDeck(u"Other"_s,
        { { 1, std::nullopt, u"Other first"_s }, { 2, std::nullopt, u"Other second"_s } },
        u"Keynote"_s);
    Testing::drainEvents();
    EXPECT_EQ(controller.promptText(), u"Other first"_s);

    library.setActiveScriptID(deck);
    Testing::drainEvents();
    EXPECT_EQ(controller.promptText(), u"First notes"_s);

    library.setActiveScriptID(other);
    Testing::drainEvents();
    EXPECT_EQ(controller.promptText(), u"Other first"_s);
}

TEST_F(DeckControllerTest, showsTheLiveSlideOfAnotherScript)
{
    showLive(2);

    library.addDeck(u"Other"_s,
        { { 1, std::nullopt, u"Other first"_s }, { 2, std::nullopt, u"Other second"_s } },
        u"Keynote"_s);
    Testing::drainEvents();

    EXPECT_EQ(controller.promptText(), u"Other second"_s);
}

TEST_F(DeckControllerTest, showsAnEmptyDeckAsAPlainScript)
{
    library.addDeck(u"Empty"_s, {}, u"Keynote"_s);
    Testing::drainEvents();
    controller.showNextSlide();

    EXPECT_FALSE(controller.trackingActive());
    EXPECT_EQ(controller.promptText(), QString());
    EXPECT_EQ(controller.displayIndex(), 0);
    EXPECT_EQ(controller.slideCount(), 0);
}

TEST_F(DeckControllerTest, showsNothingOfAnEmptyLibrary)
{
    while (!library.scripts().isEmpty())
        library.remove(library.scripts().first().id);
    Testing::drainEvents();

    EXPECT_EQ(controller.promptText(), QString());
    EXPECT_FALSE(controller.trackingActive());
    EXPECT_EQ(controller.slideCount(), 0);
    EXPECT_EQ(controller.slideTitle(), std::nullopt);
}

TEST_F(DeckControllerTest, announcesAConsistentState)
{
    qint64 indexSeen = -1;
    QString textSeen;
    const auto look = [&] {
        indexSeen = controller.displayIndex();
        textSeen = controller.promptText();
    };
    QObject::connect(&controller, &DeckController::slideChangeTokenChanged, &controller, look);

    showLive(3);

    EXPECT_EQ(indexSeen, 2);
    EXPECT_EQ(textSeen, u"Last notes"_s);
}

TEST_F(DeckControllerTest, announcesTheChangeOfSlideBeforeWhatItShows)
{
    QStringList announced;
    const auto note
        = [&](const QString& name) { return [&announced, name] { announced += name; }; };
    QObject::connect(
        &controller, &DeckController::promptTextChanged, &controller, note(u"promptText"_s));
    QObject::connect(&controller, &DeckController::slideChangeTokenChanged, &controller,
        note(u"slideChangeToken"_s));
    QObject::connect(
        &controller, &DeckController::displayIndexChanged, &controller, note(u"displayIndex"_s));
    QObject::connect(
        &controller, &DeckController::slideTitleChanged, &controller, note(u"slideTitle"_s));

    showLive(3);

    EXPECT_EQ(announced,
        QStringList(
            { u"slideChangeToken"_s, u"promptText"_s, u"displayIndex"_s, u"slideTitle"_s }));
}

TEST_F(DeckControllerTest, announcesOnlyWhatChanges)
{
    const QSignalSpy texts(&controller, &DeckController::promptTextChanged);
    const QSignalSpy counts(&controller, &DeckController::slideCountChanged);
    const QSignalSpy trackings(&controller, &DeckController::trackingActiveChanged);
    const QSignalSpy indexes(&controller, &DeckController::displayIndexChanged);
    const QSignalSpy titles(&controller, &DeckController::slideTitleChanged);

    showLive(2);

    EXPECT_EQ(texts.count(), 1);
    EXPECT_EQ(indexes.count(), 1);
    EXPECT_EQ(titles.count(), 1);
    EXPECT_EQ(counts.count(), 0);
    EXPECT_EQ(trackings.count(), 0);
}

/// The deck of the other tests, updated from its file.
class UpdatedDeckTest : public DeckControllerTest {
protected:
    void update(const QList<SlideNote>& slides)
    {
        library.updateDeck(deck, u"/talks/Deck.pptx"_s, { slides, {}, {} });
        Testing::drainEvents();
    }
};

TEST_F(UpdatedDeckTest, keepsThePlaceInTheNotesOfTheSlide)
{
    const qint64 token = controller.slideChangeToken();
    const QSignalSpy updates(&controller, &DeckController::promptTextUpdated);
    const QSignalSpy edits(&controller, &DeckController::promptTextChanged);

    update({ { 1, u"Intro"_s, u"First, new notes"_s }, { 2, std::nullopt, u""_s },
        { 3, u"End"_s, u"Last notes"_s } });

    EXPECT_EQ(controller.promptText(), u"First, new notes"_s);
    EXPECT_EQ(controller.slideChangeToken(), token);
    EXPECT_EQ(updates.count(), 1);
    EXPECT_EQ(updates.first().first().value<TextDifferences>(), (TextDifferences { { 5, 0, 5 } }));
    EXPECT_EQ(edits.count(), 0);
}

TEST_F(UpdatedDeckTest, followsTheSlideToItsNewPlace)
{
    controller.showNextSlide();
    controller.showNextSlide();
    const qint64 token = controller.slideChangeToken();

    update({ { 1, u"New"_s, u"New"_s }, { 2, u"Intro"_s, u"First notes"_s },
        { 3, std::nullopt, u""_s }, { 4, u"End"_s, u"Last notes, edited"_s } });

    EXPECT_EQ(controller.displayIndex(), 3);
    EXPECT_EQ(controller.slideCount(), 4);
    EXPECT_EQ(controller.promptText(), u"Last notes, edited"_s);
    EXPECT_EQ(controller.slideChangeToken(), token);
}

TEST_F(UpdatedDeckTest, staysInsideADeckThatHasBecomeShorter)
{
    controller.showNextSlide();
    controller.showNextSlide();

    update({ { 1, u"Intro"_s, u"First notes"_s } });

    EXPECT_EQ(controller.displayIndex(), 0);
    EXPECT_EQ(controller.promptText(), u"First notes"_s);
}

TEST_F(UpdatedDeckTest, aSlideshowDecidesAboutItsSlide)
{
    showLive(3);

    update({ { 1, u"New"_s, u"New"_s }, { 2, u"Intro"_s, u"First notes"_s },
        { 3, std::nullopt, u"Third"_s }, { 4, u"End"_s, u"Last notes"_s } });

    EXPECT_EQ(controller.displayIndex(), 2);
    EXPECT_EQ(controller.promptText(), u"Third"_s);
}

TEST_F(UpdatedDeckTest, updatesTheWholeTextWithoutStartingAnew)
{
    setTracking(false);
    const qint64 token = controller.slideChangeToken();
    const QSignalSpy updates(&controller, &DeckController::promptTextUpdated);

    update({ { 1, u"Intro"_s, u"First, new notes"_s }, { 2, std::nullopt, u""_s },
        { 3, u"End"_s, u"Last new notes"_s } });

    EXPECT_EQ(controller.promptText(), library.activeScript()->body);
    EXPECT_EQ(controller.slideChangeToken(), token);
    ASSERT_EQ(updates.count(), 1);
    EXPECT_EQ(updates.first().first().value<TextDifferences>().size(), 2u);
}

} // namespace
} // namespace Orvello
