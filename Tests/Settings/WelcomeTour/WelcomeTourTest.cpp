#include "Orvello/Settings/WelcomeTour/WelcomeTour.h"

#include "Tests/Support/FactsOf.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

TEST(WelcomeTourTest, startsOnTheNamedPage)
{
    EXPECT_EQ(WelcomeTour::pageNamed(u"0"_s), 0);
    EXPECT_EQ(WelcomeTour::pageNamed(u"1"_s), 1);
    EXPECT_EQ(WelcomeTour::pageNamed(u"2"_s), 2);
    EXPECT_EQ(WelcomeTour::pageNamed(u"+2"_s), 2);
    EXPECT_EQ(WelcomeTour::pageNamed(u"-0"_s), 0);
    EXPECT_EQ(WelcomeTour::pageNamed(u"0001"_s), 1);
}

TEST(WelcomeTourTest, startsOnTheNearestPageThatThereIs)
{
    EXPECT_EQ(WelcomeTour::pageNamed(u"3"_s), 2);
    EXPECT_EQ(WelcomeTour::pageNamed(u"-1"_s), 0);
    EXPECT_EQ(WelcomeTour::pageNamed(u"99999999999999999999"_s), 2);
    EXPECT_EQ(WelcomeTour::pageNamed(u"-99999999999999999999"_s), 0);
}

TEST(WelcomeTourTest, startsOnTheFirstPageForWhatIsNoDecimalInteger)
{
    for (const QString& text : { u""_s, u"two"_s, u"+"_s, u"-"_s, u" 2"_s, u"2 "_s, u"2.0"_s,
             u"0x2"_s, u"++2"_s, u"2e0"_s, u"٢"_s })
        EXPECT_EQ(WelcomeTour::pageNamed(text), 0) << text.toStdString();
}

TEST(WelcomeTourTest, turnsThePagesBothWays)
{
    WelcomeTour tour(0, false, Testing::factsOfAMac());
    const QSignalSpy turned(&tour, &WelcomeTour::pageChanged);
    EXPECT_TRUE(tour.isFirstPage());

    tour.next();
    EXPECT_EQ(tour.page(), 1);
    EXPECT_FALSE(tour.isFirstPage());
    EXPECT_FALSE(tour.isLastPage());
    tour.next();
    EXPECT_EQ(tour.page(), 2);
    EXPECT_TRUE(tour.isLastPage());
    tour.previous();
    EXPECT_EQ(tour.page(), 1);
    EXPECT_EQ(turned.count(), 3);
}

TEST(WelcomeTourTest, goesNoFurtherBackThanTheFirstPage)
{
    WelcomeTour tour(0, false, Testing::factsOfAMac());
    const QSignalSpy turned(&tour, &WelcomeTour::pageChanged);

    tour.previous();

    EXPECT_EQ(tour.page(), 0);
    EXPECT_EQ(turned.count(), 0);
}

TEST(WelcomeTourTest, endsFromTheLastPage)
{
    WelcomeTour tour(2, false, Testing::factsOfAMac());
    const QSignalSpy exitRequested(&tour, &WelcomeTour::exitRequested);

    tour.next();

    EXPECT_EQ(exitRequested.count(), 1);
    EXPECT_EQ(tour.page(), 2);
}

TEST(WelcomeTourTest, canBeSkippedFromEveryPage)
{
    for (int page = 0; page < WelcomeTour::pageCount; ++page) {
        WelcomeTour tour(page, false, Testing::factsOfAMac());
        const QSignalSpy exitRequested(&tour, &WelcomeTour::exitRequested);

        tour.skip();

        EXPECT_EQ(exitRequested.count(), 1);
    }
}

TEST(WelcomeTourTest, copiesThePathToZoomsSettingAsPlainText)
{
    const WelcomeTour tour(1, true, Testing::factsOfAMac());

    tour.copyZoomPath();

    EXPECT_EQ(QGuiApplication::clipboard()->text(),
        u"Zoom → Settings → Share Screen → Advanced → Screen capture mode → \"Advanced capture with window filtering\" (or \"Previous operating systems\")"_s);
}

TEST(WelcomeTourTest, namesNoSettingThatZoomDoesNotHave)
{
    EXPECT_EQ(WelcomeTour(1, true, Testing::factsOfALinuxDesktop()).zoomPath(),
        u"Zoom → Share Screen → \"your slides' window\" (not \"Entire Screen\")"_s);
}

} // namespace
} // namespace Orvello
