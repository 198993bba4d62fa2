#include "Orvello/Shell/Commands/Support.h"

#include <QUrlQuery>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

TEST(SupportTest, tellsVersionAndBuild)
{
    EXPECT_EQ(Support::versionText(u"2.1"_s, u"57"_s), u"2.1 (57)");
    EXPECT_EQ(Support::versionText({}, u"57"_s), u"? (57)");
    EXPECT_EQ(Support::versionText(u"2.1"_s, {}), u"2.1 (?)");
}

TEST(SupportTest, beginsALetterWithVersionAndSystem)
{
    const QUrl link = Support::mailLink(
        u"help@example.com"_s, u"2.1 (57)"_s, u"macOS Version 14.5 (Build 23F79)"_s);

    EXPECT_EQ(link.scheme(), u"mailto");
    EXPECT_EQ(link.path(), u"help@example.com");
    const QUrlQuery query(link);
    EXPECT_EQ(query.queryItemValue(u"subject"_s, QUrl::FullyDecoded), u"Orvello 2.1 (57)");
    EXPECT_EQ(query.queryItemValue(u"body"_s, QUrl::FullyDecoded),
        u"\n\n—\nOrvello 2.1 (57), macOS Version 14.5 (Build 23F79)\nIf something went wrong, "
        u"attach the log: Orvello menu → Help → Reveal Log Files.");
}

TEST(SupportTest, encodesWhatMailProgramsWouldMisread)
{
    const QByteArray link
        = Support::mailLink(u"help@example.com"_s, u"1+2&3 (4)"_s, u"a#b"_s).toEncoded();

    EXPECT_TRUE(link.startsWith("mailto:help@example.com?subject=Orvello%201%2B2%263%20%284%29&"
                                "body=%0A%0A%E2%80%94%0AOrvello%20"))
        << link.constData();
    EXPECT_FALSE(link.contains('#'));
}

TEST(SupportTest, hasNoLinkWithoutAnAddress)
{
    EXPECT_TRUE(Support::mailLink({}, u"2.1 (57)"_s, u"14"_s).isEmpty());
}

} // namespace
} // namespace Orvello
