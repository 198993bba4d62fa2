#include "Orvello/Shell/Updates/Appcast.h"

#include <QProcess>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::IsEmpty;

QByteArray feed(const QByteArray& items)
{
    return R"(<?xml version="1.0" encoding="utf-8"?>
<rss version="2.0" xmlns:sparkle="http://www.andymatuschak.org/xml-namespaces/sparkle">
<channel><title>Orvello</title><language>en</language>)"
        + items + "</channel></rss>";
}

QList<AppcastItem> parsed(const QByteArray& xml)
{
    const auto items = Appcast::parse(xml, u"linux"_s);
    EXPECT_TRUE(items) << qPrintable(items.error());
    return items ? *items : QList<AppcastItem>();
}

TEST(AppcastTest, readsAReleaseWithItsVersionsAsElements)
{
    const QList<AppcastItem> items = parsed(feed(R"(
        <item>
            <title>Version 2.1</title>
            <link>https://example.com/download</link>
            <sparkle:version>57</sparkle:version>
            <sparkle:shortVersionString> 2.1 </sparkle:shortVersionString>
            <sparkle:channel>beta</sparkle:channel>
            <description><![CDATA[<p>New &amp; better</p>]]></description>
            <enclosure url="https://example.com/Orvello.zip" length="1" type="x/y"/>
        </item>)"));

    const AppcastItem expected { u"57"_s, u"2.1"_s, u"beta"_s,
        QUrl(u"https://example.com/download"_s) };
    EXPECT_EQ(items, QList { expected });
}

TEST(AppcastTest, readsAReleaseWithItsVersionsAsAttributes)
{
    const QList<AppcastItem> items = parsed(feed(R"(
        <item><enclosure url="https://example.com/Orvello.zip" sparkle:version="57"
            sparkle:shortVersionString="2.1"/></item>)"));

    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].version, u"57");
    EXPECT_EQ(items[0].displayVersion, u"2.1");
    EXPECT_EQ(items[0].page, QUrl(u"https://example.com/Orvello.zip"_s));
}

TEST(AppcastTest, showsTheVersionWhereThereIsNoneForPeople)
{
    const QList<AppcastItem> items
        = parsed(feed("<item><sparkle:version>57</sparkle:version></item>"));

    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].displayVersion, u"57");
}

TEST(AppcastTest, leavesOutAReleaseWithoutVersion)
{
    EXPECT_THAT(parsed(feed("<item><title>2.1</title><version>57</version></item>")), IsEmpty());
}

TEST(AppcastTest, leavesOutTheReleasesOfOtherSystems)
{
    const QList<AppcastItem> items = parsed(feed(R"(
        <item><sparkle:version>1</sparkle:version>
            <enclosure url="https://e.com/a" sparkle:os="macos"/></item>
        <item><sparkle:version>2</sparkle:version>
            <enclosure url="https://e.com/a" sparkle:os="macos"/>
            <enclosure url="https://e.com/b" sparkle:os="linux"/></item>)"));

    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].version, u"2");
    EXPECT_EQ(items[0].page, QUrl(u"https://e.com/b"_s));
}

TEST(AppcastTest, doesNotTakeADeltaForTheRelease)
{
    const QList<AppcastItem> items = parsed(feed(R"(
        <item><sparkle:version>3</sparkle:version>
            <sparkle:deltas><enclosure url="https://e.com/delta" sparkle:version="9"/></sparkle:deltas>
            <enclosure url="https://e.com/whole"/></item>)"));

    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].version, u"3");
    EXPECT_EQ(items[0].page, QUrl(u"https://e.com/whole"_s));
}

TEST(AppcastTest, cutsVersionsThatNoWindowCouldShow)
{
    const QList<AppcastItem> items = parsed(feed("<item><sparkle:version>" + QByteArray(5000, '5')
        + "</sparkle:version><sparkle:shortVersionString>" + QByteArray(5000, 'x')
        + "</sparkle:shortVersionString></item>"));

    ASSERT_EQ(items.size(), 1);
    EXPECT_EQ(items[0].version.size(), 40);
    EXPECT_EQ(items[0].displayVersion.size(), 40);
}

/// What tools/appcast-entry prints.
QByteArray entry(const QStringList& arguments)
{
    QProcess tool;
    tool.start(QStringLiteral(ORVELLO_APPCAST_ENTRY), arguments);
    EXPECT_TRUE(tool.waitForFinished(20'000));
    EXPECT_EQ(tool.exitCode(), 0) << tool.readAllStandardError().constData();
    return tool.readAllStandardOutput();
}

/// One feed for both editions.
TEST(AppcastTest, readsTheEntriesThatTheToolsWrite)
{
    const QByteArray xml
        = feed(entry({ u"macos"_s, u"58"_s, u"2.1"_s, u"https://example.com/Orvello.dmg"_s,
                   u"--minimum-system"_s, u"99.0"_s, u"--notes"_s, u"https://example.com/2.1"_s,
                   u"--signature"_s, u"sparkle:edSignature=\"A+b/=\" length=\"12\""_s })
            + entry({ u"linux"_s, u"59"_s, u"2.1.1"_s, u"https://example.com/?a=1&b=2"_s }));

    const AppcastItem linuxEntry { u"59"_s, u"2.1.1"_s, {},
        QUrl(u"https://example.com/?a=1&b=2"_s) };
    EXPECT_EQ(parsed(xml), QList { linuxEntry });
    const auto ofMac = Appcast::parse(xml, u"macos"_s);
    ASSERT_TRUE(ofMac);
    const AppcastItem macEntry { u"58"_s, u"2.1"_s, {},
        QUrl(u"https://example.com/Orvello.dmg"_s) };
    EXPECT_EQ(*ofMac, QList { macEntry });
    EXPECT_TRUE(xml.contains("sparkle:edSignature=\"A+b/=\" length=\"12\""));
    EXPECT_EQ(xml.count("minimumSystemVersion>99.0<"), 1);
}

TEST(AppcastTest, acceptsAnEmptyFeed) { EXPECT_THAT(parsed(feed("")), IsEmpty()); }

class BadAppcastTest : public ::testing::TestWithParam<const char*> { };

TEST_P(BadAppcastTest, fails)
{
    const auto items = Appcast::parse(GetParam(), u"linux"_s);

    ASSERT_FALSE(items);
    EXPECT_FALSE(items.error().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Feeds, BadAppcastTest,
    ::testing::Values("", " ", "plain text", "{\"json\": true}", "<rss/>", "<rss></rss>",
        "<html><body>Not found</body></html>",
        "<!DOCTYPE html><html><head><title>x</title></head></html>",
        "<rss><channel><item><title>2.1</title></item>", "<rss><channel></item></channel></rss>",
        "<rss><channel></channel></rss><rss/>", "\xff\xfe<rss>",
        "<feed xmlns=\"http://www.w3.org/2005/Atom\"/>",
        R"(<!DOCTYPE rss [<!ENTITY a "aaaaaaaaaa"><!ENTITY b "&a;&a;&a;&a;&a;&a;&a;&a;&a;&a;">
           <!ENTITY c "&b;&b;&b;&b;&b;&b;&b;&b;&b;&b;">]><rss><channel>&c;</channel></rss>)",
        R"(<!DOCTYPE rss [<!ENTITY x SYSTEM "file:///etc/passwd">]>
           <rss><channel><title>&x;</title></channel></rss>)"));

TEST(AppcastTest, survivesElementsNestedWithoutEnd)
{
    const QByteArray nested = QByteArray("<a>").repeated(300'000);

    EXPECT_FALSE(Appcast::parse(feed("<item><sparkle:version>" + nested), u"linux"_s));
    EXPECT_THAT(parsed(feed("<item><sparkle:version>" + nested
                    + QByteArray("</a>").repeated(300'000) + "</sparkle:version></item>")),
        IsEmpty());
}

class NewestReleaseTest : public ::testing::Test {
protected:
    static AppcastItem release(const QString& version)
    {
        AppcastItem item;
        item.version = version;
        return item;
    }

    QString newest(const QString& version = u"57"_s) const
    {
        const AppcastItem* const item = Appcast::newest(items, version);
        return item ? item->version : u"none"_s;
    }

    QList<AppcastItem> items;
};

TEST_F(NewestReleaseTest, isTheNewestWhateverTheOrder)
{
    items = { release(u"58"_s), release(u"60"_s), release(u"59"_s) };

    EXPECT_EQ(newest(), u"60");
}

TEST_F(NewestReleaseTest, isNoOlderOrSameRelease)
{
    items = { release(u"57"_s), release(u"56"_s) };

    EXPECT_EQ(newest(), u"none");
}

TEST_F(NewestReleaseTest, isNotFromAChannelOfItsOwn)
{
    items = { release(u"58"_s), release(u"60"_s) };
    items[1].channel = u"beta"_s;

    EXPECT_EQ(newest(), u"58");
}

TEST_F(NewestReleaseTest, countsEachNumberOfAVersion)
{
    for (const auto& [older, newer] :
        { std::pair(u"1.0"_s, u"1.1"_s), std::pair(u"1.9"_s, u"1.10"_s),
            std::pair(u"0.9.9"_s, u"1"_s), std::pair(u"1"_s, u"1.0.1"_s),
            std::pair(u"1.0"_s, u"1.1-beta"_s), std::pair(u""_s, u"1"_s) }) {
        items = { release(newer) };
        EXPECT_EQ(newest(older), newer) << qPrintable(older);
        items = { release(older) };
        EXPECT_EQ(newest(newer), u"none") << qPrintable(newer);
    }
}

TEST_F(NewestReleaseTest, leadsFromEachPreReleaseToTheNextAndToTheRelease)
{
    const QStringList order { u"2.0.9"_s, u"2.1-alpha"_s, u"2.1-beta"_s, u"2.1-beta.2"_s,
        u"2.1-beta.10"_s, u"2.1-rc1"_s, u"2.1-rc2"_s, u"2.1"_s, u"2.1.1-beta"_s };
    for (qsizetype older = 0; older < order.size(); ++older) {
        for (qsizetype newer = older + 1; newer < order.size(); ++newer) {
            items = { release(order[newer]) };
            EXPECT_EQ(newest(order[older]), order[newer]) << qPrintable(order[older]);
            items = { release(order[older]) };
            EXPECT_EQ(newest(order[newer]), u"none") << qPrintable(order[older]);
        }
    }
    items = { release(u"2.1+build5"_s) };
    EXPECT_EQ(newest(u"2.1"_s), u"none");
}

TEST_F(NewestReleaseTest, takesVersionsOfEqualNumbersForTheSame)
{
    for (const QString& version : { u"1"_s, u"1.0.0"_s, u"01.0"_s, u"1.0-beta"_s, u"1.0b2"_s }) {
        items = { release(version) };
        EXPECT_EQ(newest(u"1.0"_s), u"none") << qPrintable(version);
    }
}

TEST_F(NewestReleaseTest, hasAVersionThatIsANumber)
{
    items = { release(u"new"_s), release(u"99999999999999999999"_s), release(u"-58"_s) };

    EXPECT_EQ(newest(), u"none");
}

} // namespace
} // namespace Orvello
