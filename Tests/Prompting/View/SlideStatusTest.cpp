#include "Orvello/Prompting/View/SlideStatus.h"

#include "Tests/Support/PrompterServices.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class SlideStatusTest : public ::testing::Test {
protected:
    void openDeck()
    {
        services.openDeck({ { 1, u"Intro"_s, u"First"_s }, { 2, std::nullopt, u"Second"_s },
            { 3, u"End"_s, u"Third"_s } });
    }

    Testing::PrompterServices services;
    SlideStatus status { services.deck };
};

TEST_F(SlideStatusTest, isShownWhileOneSlidesNotesAre)
{
    EXPECT_FALSE(status.isShown());

    openDeck();
    EXPECT_TRUE(status.isShown());

    services.settings.setSlideSync(false);
    Testing::drainEvents();
    EXPECT_FALSE(status.isShown());
}

TEST_F(SlideStatusTest, countsSlidesFromOne)
{
    openDeck();
    EXPECT_EQ(status.position(), u"1 / 3"_s);
    EXPECT_EQ(status.widestPosition(), u"3 / 3"_s);

    status.next();
    EXPECT_EQ(status.position(), u"2 / 3"_s);
}

TEST_F(SlideStatusTest, tellsTheSlidesTitle)
{
    openDeck();
    EXPECT_EQ(status.title(), u"Intro"_s);

    status.next();
    EXPECT_EQ(status.title(), QString());
}

TEST_F(SlideStatusTest, goesNoFartherThanTheDeck)
{
    openDeck();
    EXPECT_FALSE(status.hasPrevious());
    EXPECT_TRUE(status.hasNext());

    status.previous();
    EXPECT_EQ(status.position(), u"1 / 3"_s);
    status.next();
    EXPECT_TRUE(status.hasPrevious());
    EXPECT_TRUE(status.hasNext());
    status.next();
    EXPECT_FALSE(status.hasNext());
    status.next();
    EXPECT_EQ(status.position(), u"3 / 3"_s);
    status.previous();
    EXPECT_EQ(status.position(), u"2 / 3"_s);
}

TEST_F(SlideStatusTest, saysManualWithoutASlideshow)
{
    EXPECT_EQ(status.stateLabel(), u"Manual"_s);

    openDeck();

    EXPECT_EQ(status.stateLabel(), u"Manual"_s);
    EXPECT_EQ(status.stateColor(), QColor::fromRgbF(1, 1, 1, 0.5F));
}

TEST_F(SlideStatusTest, saysLiveWhileItFollowsASlideshow)
{
    openDeck();

    services.startSlideshow();
    services.showLiveSlide(2);

    EXPECT_EQ(status.stateLabel(), u"Live"_s);
    EXPECT_EQ(status.stateColor(), QColor(48, 209, 88));
    EXPECT_EQ(status.position(), u"2 / 3"_s);
}

TEST_F(SlideStatusTest, saysNoAccessWithoutPermission)
{
    openDeck();

    services.startSlideshow();
    services.refuseToTellTheSlide();

    EXPECT_EQ(status.stateLabel(), u"No access"_s);
    EXPECT_EQ(status.stateColor(), QColor(255, 69, 58));
}

TEST_F(SlideStatusTest, saysThatTheSlideshowShowsAnotherDeck)
{
    openDeck();
    const QSignalSpy changes(&status, &SlideStatus::changed);

    services.presentOtherDeck(u"Budget\x1e"
                              "Costs\x1f\x1eIncome\x1f"_s);

    EXPECT_TRUE(status.isShown());
    EXPECT_TRUE(status.isOtherDeck());
    EXPECT_EQ(status.stateLabel(), u"Other deck"_s);
    EXPECT_EQ(status.stateColor(), QColor(255, 214, 10));
    EXPECT_TRUE(status.stateLabels().contains(status.stateLabel()));
    EXPECT_EQ(status.title(), QString());
    EXPECT_GT(changes.count(), 0);
}

TEST_F(SlideStatusTest, announcesEachChange)
{
    openDeck();
    const QSignalSpy changes(&status, &SlideStatus::changed);

    status.next();

    EXPECT_GT(changes.count(), 0);
}

} // namespace
} // namespace Orvello
