#include "Orvello/Adapters/Portable/OpenedUrls.h"

#include <QCoreApplication>
#include <QDesktopServices>
#include <QFileOpenEvent>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class OpenedUrlsTest : public testing::Test {
protected:
    OpenedUrls urls { u"orvello-test"_s };
    QSignalSpy opened { &urls, &OpenedUrls::opened };
    const QUrl hello { u"orvello-test://hello?to=you"_s };
};

TEST_F(OpenedUrlsTest, passesOnWhatComesAsAnEventToTheApplication)
{
    QFileOpenEvent event(hello);
    QCoreApplication::sendEvent(QCoreApplication::instance(), &event);

    ASSERT_EQ(opened.count(), 1);
    EXPECT_EQ(opened.first().first().value<QList<QUrl>>(), QList<QUrl> { hello });
}

TEST_F(OpenedUrlsTest, passesOnWhatComesToTheHandlerOfTheScheme)
{
    EXPECT_TRUE(QDesktopServices::openUrl(hello));

    ASSERT_EQ(opened.count(), 1);
    EXPECT_EQ(opened.first().first().value<QList<QUrl>>(), QList<QUrl> { hello });
}

TEST_F(OpenedUrlsTest, leavesEventsOfOtherObjectsAlone)
{
    QObject other;
    QFileOpenEvent event(hello);

    EXPECT_FALSE(urls.eventFilter(&other, &event));
    EXPECT_EQ(opened.count(), 0);
}

} // namespace
} // namespace Orvello
