#include "Orvello/Settings/OnboardingTour.h"

#include "Tests/Support/FactsOf.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

TEST(OnboardingTourTest, startsOnTheNamedPage)
{
    EXPECT_EQ(OnboardingTour::pageNamed(u"0"_s), 0);
    EXPECT_EQ(OnboardingTour::pageNamed(u"1"_s), 1);
    EXPECT_EQ(OnboardingTour::pageNamed(u"2"_s), 2);
    EXPECT_EQ(OnboardingTour::pageNamed(u"+2"_s), 2);
    EXPECT_EQ(OnboardingTour::pageNamed(u"-0"_s), 0);
    EXPECT_EQ(OnboardingTour::pageNamed(u"0001"_s), 1);
}

TEST(OnboardingTourTest, startsOnTheNearestPageThatThereIs)
{
    EXPECT_EQ(OnboardingTour::pageNamed(u"3"_s), 2);
    EXPECT_EQ(OnboardingTour::pageNamed(u"-1"_s), 0);
    EXPECT_EQ(OnboardingTour::pageNamed(u"99999999999999999999"_s), 2);
    EXPECT_EQ(OnboardingTour::pageNamed(u"-99999999999999999999"_s), 0);
}

TEST(OnboardingTourTest, startsOnTheFirstPageForWhatIsNoDecimalInteger)
{
    for (const QString& text : { u""_s, u"two"_s, u"+"_s, u"-"_s, u" 2"_s, u"2 "_s, u"2.0"_s,
             u"0x2"_s, u"++2"_s, u"2e0"_s, u"٢"_s })
        EXPECT_EQ(OnboardingTour::pageNamed(text), 0) << text.toStdString();
}

TEST(OnboardingTourTest, turnsThePagesBothWays)
{
    OnboardingTour tour(0, false, Testing::factsOfAMac());
    const QSignalSpy turned(&tour, &OnboardingTour::pageChanged);
    EXPECT_TRUE(tour.isFirstPage());

    tour.goOn();
    EXPECT_EQ(tour.page(), 1);
    EXPECT_FALSE(tour.isFirstPage());
    EXPECT_FALSE(tour.isLastPage());
    tour.goOn();
    EXPECT_EQ(tour.page(), 2);
    EXPECT_TRUE(tour.isLastPage());
    tour.goBack();
    EXPECT_EQ(tour.page(), 1);
    EXPECT_EQ(turned.count(), 3);
}

TEST(OnboardingTourTest, goesNoFurtherBackThanTheFirstPage)
{
    OnboardingTour tour(0, false, Testing::factsOfAMac());
    const QSignalSpy turned(&tour, &OnboardingTour::pageChanged);

    tour.goBack();

    EXPECT_EQ(tour.page(), 0);
    EXPECT_EQ(turned.count(), 0);
}

TEST(OnboardingTourTest, endsFromTheLastPage)
{
    OnboardingTour tour(2, false, Testing::factsOfAMac());
    const QSignalSpy left(&tour, &OnboardingTour::left);

    tour.goOn();

    EXPECT_EQ(left.count(), 1);
    EXPECT_EQ(tour.page(), 2);
}

TEST(OnboardingTourTest, canBeSkippedFromEveryPage)
{
    for (int page = 0; page < OnboardingTour::pageCount; ++page) {
        OnboardingTour tour(page, false, Testing::factsOfAMac());
        const QSignalSpy left(&tour, &OnboardingTour::left);

        tour.skip();

        EXPECT_EQ(left.count(), 1);
    }
}

TEST(OnboardingTourTest, copiesThePathToZoomsSettingAsPlainText)
{
    const OnboardingTour tour(1, true, Testing::factsOfAMac());

    tour.copyZoomPath();

    EXPECT_EQ(QGuiApplication::clipboard()->text(),
        u"Zoom → Settings → Share Screen → Advanced → Screen capture mode → \"Advanced capture with window filtering\" (or \"Previous operating systems\")"_s);
}

TEST(OnboardingTourTest, namesNoSettingThatZoomDoesNotHave)
{
    EXPECT_EQ(OnboardingTour(1, true, Testing::factsOfALinuxDesktop()).zoomPath(),
        u"Zoom → Share Screen → \"your slides' window\" (not \"Entire Screen\")"_s);
}

} // namespace
} // namespace Orvello
