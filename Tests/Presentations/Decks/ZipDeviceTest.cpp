#include "Orvello/Presentations/Decks/DeviceZipSource.h"
#include "Orvello/Presentations/Decks/Zip64Directory.h"
#include "Tests/Support/HostileZip.h"
#include "Tests/Support/ZipBuilder.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <memory>

namespace Orvello::PptxImporter {
namespace {

using Testing::ZipBuilder;

class DeviceZipSourceTest : public ::testing::Test {
protected:
    DeviceZipSourceTest()
    {
        device.setData(ZipBuilder().add("name", "content").build());
        device.open(QIODevice::ReadOnly);
    }

    /// Whether libzip opens the archive and extracts its entry, with an allowance for each.
    bool opens(DeviceZipSource::Allowance allowance)
    {
        DeviceZipSource source(device, allowance);
        zip_source_keep(source.get());
        zip_t* const archive = zip_open_from_source(source.get(), ZIP_RDONLY, nullptr);
        if (!archive) {
            zip_source_free(source.get());
            return false;
        }
        zip_discard(archive);
        return true;
    }
    bool extracts(DeviceZipSource::Allowance allowance)
    {
        DeviceZipSource source(device, { .bytes = 1'000, .reads = 100 });
        zip_source_keep(source.get());
        zip_t* const archive = zip_open_from_source(source.get(), ZIP_RDONLY, nullptr);
        source.setAllowance(allowance);
        char content[8] = {};
        zip_file_t* const file = zip_fopen_index(archive, 0, 0);
        const bool extracted = file && zip_fread(file, content, sizeof content) == 7;
        if (file)
            zip_fclose(file);
        zip_discard(archive);
        return extracted;
    }

    QBuffer device;
};

TEST_F(DeviceZipSourceTest, readsWithinItsAllowance)
{
    EXPECT_TRUE(opens({ .bytes = 1'000, .reads = 100 }));
    EXPECT_TRUE(extracts({ .bytes = 1'000, .reads = 100 }));
}

TEST_F(DeviceZipSourceTest, failsPastItsAllowance)
{
    EXPECT_FALSE(opens({ .bytes = 100, .reads = 100 }));
    EXPECT_FALSE(opens({ .bytes = 1'000, .reads = 0 }));
    EXPECT_FALSE(extracts({ .bytes = 8, .reads = 100 }));
    EXPECT_FALSE(extracts({ .bytes = 1'000, .reads = 1 }));
}

quint64 entryCountOf(const QByteArray& bytes)
{
    QBuffer device;
    device.setData(bytes);
    device.open(QIODevice::ReadOnly);
    return zip64EntryCount(device);
}

TEST(Zip64DirectoryTest, findsNoClaimWhereThereIsNone)
{
    EXPECT_EQ(entryCountOf(""), 0U);
    EXPECT_EQ(entryCountOf("PK\5\6"), 0U);
    EXPECT_EQ(entryCountOf(QByteArray(100'000, 'x')), 0U);
    EXPECT_EQ(entryCountOf(ZipBuilder().add("name", "content").build()), 0U);
}

TEST(Zip64DirectoryTest, findsTheHighestClaimBeforeAnyEnd)
{
    const QByteArray archive = Testing::archiveWithClaimedEntries(500'000'000);

    EXPECT_EQ(entryCountOf(archive), 500'000'000U);
    EXPECT_EQ(entryCountOf(archive + QByteArray(65'000, 'x')), 500'000'000U);
    EXPECT_EQ(entryCountOf(archive + ZipBuilder().add("name", "content").build()), 500'000'000U);
}

TEST(Zip64DirectoryTest, ignoresALocatorThatLeadsNowhere)
{
    const QByteArray archive = Testing::archiveWithClaimedEntries(7);
    constexpr qsizetype endRecordSize = 22;
    constexpr qsizetype offsetBeforeEnd = 12;
    QByteArray lost = archive;
    lost[lost.size() - endRecordSize - offsetBeforeEnd] = '\1';
    QByteArray far = archive;
    far.replace(far.size() - endRecordSize - offsetBeforeEnd, 8, QByteArray(8, '\xff'));

    EXPECT_EQ(entryCountOf(archive), 7U);
    EXPECT_EQ(entryCountOf(lost), 0U);
    EXPECT_EQ(entryCountOf(far), 0U);
}

} // namespace
} // namespace Orvello::PptxImporter
