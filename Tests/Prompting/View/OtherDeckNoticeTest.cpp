#include "Orvello/Prompting/View/OtherDeckNotice.h"

#include "Tests/Support/PrompterServices.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

const QString budgetRecord = u"Budget\x1e"
                             "Costs\x1f\x1eIncome\x1f"_s;

class OtherDeckNoticeTest : public ::testing::Test {
protected:
    OtherDeckNoticeTest()
    {
        services.openDeck({ { 1, u"Welcome"_s, u"Hello"_s }, { 2, u"Results"_s, u"Numbers"_s } });
    }

    void press(void (OtherDeckNotice::*button)())
    {
        (notice.*button)();
        Testing::drainEvents();
    }

    Testing::PrompterServices services;
    OtherDeckNotice notice { services.deck, services.library, services.openDecks };
};

TEST_F(OtherDeckNoticeTest, isHiddenWhileTheDecksAreTheSame)
{
    EXPECT_FALSE(notice.isShown());
    services.presentOtherDeck(u"Deck\x1eWelcome\x1f\x1eResults\x1f"_s);
    EXPECT_FALSE(notice.isShown());
}

TEST_F(OtherDeckNoticeTest, namesTheDeckAndOffersItsNotes)
{
    const QSignalSpy changes(&notice, &OtherDeckNotice::changed);
    services.presentOtherDeck(budgetRecord);

    EXPECT_TRUE(notice.isShown());
    EXPECT_GT(changes.count(), 0);
    EXPECT_EQ(
        notice.text(), u"“Budget” is on screen. These notes are from another presentation."_s);
    EXPECT_EQ(notice.action(), u"Import its notes"_s);
}

TEST_F(OtherDeckNoticeTest, importsThem)
{
    services.presentOtherDeck(budgetRecord);
    press(&OtherDeckNotice::act);
    EXPECT_EQ(notice.text(), u"Reading what is open in Impress…"_s);
    EXPECT_EQ(notice.action(), QString());

    services.impress.answer(u"Budget\x1e"
                            "Costs\x1fMoney\x1eIncome\x1fMore"_s);
    Testing::drainEvents();
    EXPECT_FALSE(notice.isShown());
    EXPECT_EQ(services.library.activeScript()->title, u"Budget"_s);
    EXPECT_EQ(services.deck.promptText(), u"Money"_s);
}

TEST_F(OtherDeckNoticeTest, saysWhyThatIsNotPossible)
{
    services.presentOtherDeck(budgetRecord);
    press(&OtherDeckNotice::act);
    services.impress.answer(u"Budget\x1e"
                            "Costs\x1f\x1eIncome\x1f"_s);
    Testing::drainEvents();

    EXPECT_TRUE(notice.isShown());
    EXPECT_EQ(notice.text(), u"That Impress presentation has no notes on any slide."_s);
    EXPECT_EQ(notice.action(), QString());
    EXPECT_EQ(services.library.activeScript()->title, u"Deck"_s);
}

TEST_F(OtherDeckNoticeTest, switchesToTheScriptThatFits)
{
    const QUuid talk = services.library.activeScript()->id;
    services.library.addDeck(u"Budget"_s,
        { { 1, u"Costs"_s, u"Money"_s }, { 2, u"Income"_s, u"More"_s } }, u"Budget.pptx"_s);
    services.library.setActiveScriptID(talk);
    Testing::drainEvents();
    services.presentOtherDeck(budgetRecord);
    ASSERT_EQ(notice.action(), u"Switch to its notes"_s);

    press(&OtherDeckNotice::act);
    EXPECT_FALSE(notice.isShown());
    EXPECT_EQ(services.deck.promptText(), u"Money"_s);
    EXPECT_EQ(services.library.scripts().size(), 3);
}

TEST_F(OtherDeckNoticeTest, keepsTheNotesOnRequest)
{
    services.presentOtherDeck(budgetRecord);
    press(&OtherDeckNotice::keepNotes);

    EXPECT_FALSE(notice.isShown());
    EXPECT_EQ(services.deck.promptText(), u"Hello"_s);
}

} // namespace
} // namespace Orvello
