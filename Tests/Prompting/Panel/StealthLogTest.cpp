#include "Orvello/Prompting/Panel/StealthLog.h"

#include "Tests/Support/FakeFolders.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::MatchesRegex;

constexpr auto stampPattern = "[0-9]{4}-[0-9]{2}-[0-9]{2}T[0-9]{2}:[0-9]{2}:[0-9]{2}\\.[0-9]{3}Z ";

class StealthLogTest : public ::testing::Test {
protected:
    QString path() const { return folders.path + u"/Orvello/stealth.log"_s; }

    std::string content() const
    {
        QFile file(path());
        return file.open(QIODevice::ReadOnly) ? file.readAll().toStdString() : "";
    }

    void fill(qint64 size) const
    {
        QDir().mkpath(folders.path + u"/Orvello"_s);
        QFile file(path());
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(QByteArray(size, 'x'));
    }

    Testing::FakeFolders folders;
    StealthLog log { folders };
};

TEST_F(StealthLogTest, makesItsFolderAndFile)
{
    log.write(u"APPLY ON"_s);

    EXPECT_THAT(content(), MatchesRegex(std::string(stampPattern) + "APPLY ON\n"));
}

TEST_F(StealthLogTest, belongsToItsOwnerAlone)
{
    constexpr auto owners
        = QFile::ReadOwner | QFile::WriteOwner | QFile::ReadUser | QFile::WriteUser;
    log.write(u"new"_s);
    EXPECT_EQ(QFileInfo(path()).permissions(), owners);

    QFile::setPermissions(path(), owners | QFile::ReadGroup | QFile::ReadOther);
    log.write(u"of an older version"_s);
    EXPECT_EQ(QFileInfo(path()).permissions(), owners);
}

TEST_F(StealthLogTest, appendsOneLineAMessage)
{
    log.write(u"first"_s);
    log.write(u"zweite Zeile \u2014 \u00e4"_s);

    EXPECT_THAT(content(),
        MatchesRegex(
            std::string(stampPattern) + "first\n" + stampPattern + "zweite Zeile \u2014 \u00e4\n"));
}

TEST_F(StealthLogTest, goesOnInALogOfTheLargestSize)
{
    fill(256'000);

    log.write(u"more"_s);

    EXPECT_GT(QFileInfo(path()).size(), 256'000);
}

TEST_F(StealthLogTest, startsAfreshOnceTheLogIsLarger)
{
    fill(256'001);

    log.write(u"fresh"_s);

    EXPECT_THAT(content(), MatchesRegex(std::string(stampPattern) + "fresh\n"));
}

TEST_F(StealthLogTest, ignoresEveryFailure)
{
    QFile blocking(folders.path + u"/Orvello"_s);
    ASSERT_TRUE(blocking.open(QIODevice::WriteOnly));

    log.write(u"nowhere"_s);

    EXPECT_FALSE(QFile::exists(path()));
}

} // namespace
} // namespace Orvello
