#include "Orvello/Presentations/Decks/ZipArchive.h"

#include "Orvello/Presentations/Decks/PackagePath.h"
#include "Orvello/Presentations/Decks/PptxImporter.h"
#include "Tests/Support/ZipBuilder.h"

#include <QBuffer>

#include <gtest/gtest.h>

#include <algorithm>

namespace Orvello::PptxImporter {
namespace {

using namespace Qt::StringLiterals;
using Testing::Compression;
using Testing::DirectoryField;
using Testing::ZipBuilder;

/// An archive in memory and its reader.
class OpenedArchive {
public:
    explicit OpenedArchive(const QByteArray& bytes)
    {
        m_device.setData(bytes);
        m_device.open(QIODevice::ReadOnly);
        m_archive = ZipArchive::open(m_device);
    }

    bool isOpen() const { return m_archive != nullptr; }
    /// A copy, so that it outlives the next call.
    std::optional<QByteArray> data(const QString& path)
    {
        const auto content = m_archive->data(path);
        return content ? std::optional(content->toByteArray()) : std::nullopt;
    }

private:
    QBuffer m_device;
    std::unique_ptr<ZipArchive> m_archive;
};

/// Bytes that do not compress away.
QByteArray noise(qsizetype size)
{
    QByteArray bytes(size, Qt::Uninitialized);
    quint32 state = 1;
    std::generate(bytes.begin(), bytes.end(), [&state] {
        state = state * 1'664'525 + 1'013'904'223;
        return static_cast<char>(state >> 24);
    });
    return bytes;
}

TEST(ZipArchiveTest, extractsDeflatedAndStoredEntriesWhole)
{
    for (const qsizetype size : { 0, 1, 16'383, 16'384, 16'385, 32'768, 100'000 }) {
        const QByteArray content = noise(size);
        OpenedArchive archive(ZipBuilder()
                                  .add("deflated", content)
                                  .add("stored", content, Compression::Stored)
                                  .build());

        EXPECT_EQ(archive.data(u"deflated"_s), content) << size;
        EXPECT_EQ(archive.data(u"stored"_s), content) << size;
    }
}

TEST(ZipArchiveTest, readsEntriesInAnyOrderAndAgain)
{
    OpenedArchive archive(ZipBuilder().add("long", noise(50'000)).add("short", "s").build());

    EXPECT_EQ(archive.data(u"short"_s), "s");
    EXPECT_EQ(archive.data(u"long"_s), noise(50'000));
    EXPECT_EQ(archive.data(u"short"_s), "s");
}

TEST(ZipArchiveTest, looksEntriesUpByTheirExactPath)
{
    OpenedArchive archive(ZipBuilder().add("ppt/a.xml", "content").build());

    EXPECT_TRUE(archive.data(u"ppt/a.xml"_s));
    EXPECT_FALSE(archive.data(u"ppt/A.xml"_s));
    EXPECT_FALSE(archive.data(u"/ppt/a.xml"_s));
    EXPECT_FALSE(archive.data(u"ppt//a.xml"_s));
    EXPECT_FALSE(archive.data(u"ppt/./a.xml"_s));
    EXPECT_FALSE(archive.data(u"a.xml"_s));
    EXPECT_FALSE(archive.data(u"ppt/a"_s));
    EXPECT_FALSE(archive.data(u""_s));
}

TEST(ZipArchiveTest, comparesNamesAsBytes)
{
    // In the old code page of ZIP, 0x82 is é as well.
    QByteArray bytes = ZipBuilder()
                           .add("\x82", "code page")
                           .add("\xff\xfe", "invalid")
                           .add("e'", "UTF-8")
                           .build();
    bytes.replace("e'", "\xc3\xa9");
    OpenedArchive archive(bytes);

    ASSERT_TRUE(archive.isOpen());
    EXPECT_EQ(archive.data(u"é"_s), "UTF-8");
    EXPECT_FALSE(archive.data(u"\ufffd\ufffd"_s));
    EXPECT_FALSE(archive.data(u"ÿþ"_s));
}

TEST(ZipArchiveTest, takesTheFirstOfSeveralEntriesOfOneName)
{
    QByteArray bytes = ZipBuilder().add("same", "first").add("sane", "second").build();
    bytes.replace("sane", "same");

    EXPECT_EQ(OpenedArchive(bytes).data(u"same"_s), "first");
}

TEST(ZipArchiveTest, dropsAnEntryWhoseChecksumDiffersAtItsEnd)
{
    QByteArray bytes = ZipBuilder().add("bad", noise(100'000)).add("good", "content").build();
    overwrite(bytes, "bad", DirectoryField::Checksum, 12345);
    OpenedArchive archive(bytes);

    EXPECT_FALSE(archive.data(u"bad"_s));
    EXPECT_EQ(archive.data(u"good"_s), "content");
}

TEST(ZipArchiveTest, dropsAnEntryWhoseDataAreDamaged)
{
    QByteArray bytes = ZipBuilder().add("bad", noise(100'000)).add("good", "content").build();
    bytes.replace(5'000, 8, "damaged!");
    OpenedArchive archive(bytes);

    EXPECT_FALSE(archive.data(u"bad"_s));
    EXPECT_EQ(archive.data(u"good"_s), "content");
}

TEST(ZipArchiveTest, dropsAnEntryOfAnotherSizeThanTheDirectorySays)
{
    for (const quint32 claimed : { 0U, 10U, 99'999U, 100'001U, 0xffff'fffeU }) {
        for (const Compression compression : { Compression::Deflated, Compression::Stored }) {
            QByteArray bytes = ZipBuilder().add("bad", noise(100'000), compression).build();
            overwrite(bytes, "bad", DirectoryField::Size, claimed);

            EXPECT_FALSE(OpenedArchive(bytes).data(u"bad"_s)) << claimed;
        }
    }
}

TEST(ZipArchiveTest, dropsAnEntryWithoutDataThatClaimsSome)
{
    QByteArray bytes = ZipBuilder().add("bad", "content").build();
    overwrite(bytes, "bad", DirectoryField::CompressedSize, 0);

    EXPECT_FALSE(OpenedArchive(bytes).data(u"bad"_s));
}

TEST(ZipArchiveTest, dropsEncryptedEntries)
{
    OpenedArchive archive(
        ZipBuilder().addEncrypted("secret", "content").add("open", "content").build());

    EXPECT_FALSE(archive.data(u"secret"_s));
    EXPECT_EQ(archive.data(u"open"_s), "content");

    QByteArray traditional = ZipBuilder().add("secret", "content").build();
    overwrite(traditional, "secret", DirectoryField::Flags, 1);
    EXPECT_FALSE(OpenedArchive(traditional).data(u"secret"_s));
}

TEST(ZipArchiveTest, dropsEntriesOfOtherCompressionMethods)
{
    for (const quint32 method : { 1U, 9U, 12U, 14U, 93U, 95U, 98U, 0xffffU }) {
        QByteArray bytes = ZipBuilder().add("odd", "content").build();
        overwrite(bytes, "odd", DirectoryField::Method, method);

        EXPECT_FALSE(OpenedArchive(bytes).data(u"odd"_s)) << method;
    }
}

TEST(ZipArchiveTest, opensNothingThatIsNotAnArchive)
{
    EXPECT_FALSE(OpenedArchive("").isOpen());
    EXPECT_FALSE(OpenedArchive("PK\3\4").isOpen());
    EXPECT_FALSE(OpenedArchive("no archive, but long enough to be one").isOpen());
    EXPECT_FALSE(OpenedArchive(QByteArray(200'000, 'x')).isOpen());
    EXPECT_FALSE(OpenedArchive("PK\5\6" + QByteArray(17, '\0')).isOpen());
}

TEST(ZipArchiveTest, opensAnArchiveWithoutEntries)
{
    OpenedArchive archive("PK\5\6" + QByteArray(18, '\0'));

    ASSERT_TRUE(archive.isOpen());
    EXPECT_FALSE(archive.data(u"ppt/presentation.xml"_s));
}

TEST(ZipArchiveTest, opensAnArchiveWithACommentAndWithBytesBehindIt)
{
    QByteArray bytes = ZipBuilder().add("name", "content").build();
    bytes[bytes.size() - 2] = 7;

    EXPECT_EQ(OpenedArchive(bytes + "comment").data(u"name"_s), "content");
}

TEST(ZipArchiveTest, survivesBeingCutOffAnywhere)
{
    const QByteArray bytes = ZipBuilder().add("a", noise(300)).add("b", "content").build();

    for (qsizetype size = 0; size < bytes.size(); ++size)
        EXPECT_FALSE(OpenedArchive(bytes.first(size)).isOpen()) << size;
}

TEST(ZipArchiveTest, readsALargestEntryButNoLargerOne)
{
    const QByteArray largest(Limits::entrySize, 'x');
    OpenedArchive archive(
        ZipBuilder().add("largest", largest).add("larger", largest + 'x').build());

    EXPECT_EQ(archive.data(u"largest"_s), largest);
    EXPECT_FALSE(archive.data(u"larger"_s));
}

TEST(ZipArchiveTest, readsNothingMoreAfterTheLimitOfAllEntries)
{
    OpenedArchive archive(ZipBuilder()
                              .add("large", QByteArray(Limits::entrySize, 'x'))
                              .add("small", "content")
                              .build());

    const qint64 possible = Limits::totalSize / Limits::entrySize;
    for (qint64 i = 0; i < possible; ++i)
        ASSERT_TRUE(archive.data(u"large"_s)) << i;

    EXPECT_FALSE(archive.data(u"small"_s));
    EXPECT_FALSE(archive.data(u"large"_s));
}

TEST(PackagePathTest, resolvesTargetsAgainstAFolder)
{
    EXPECT_EQ(resolve(u"slides/slide3.xml", u"ppt"), u"ppt/slides/slide3.xml"_s);
    EXPECT_EQ(resolve(u"../notesSlides/notesSlide3.xml", u"ppt/slides"),
        u"ppt/notesSlides/notesSlide3.xml"_s);
}

TEST(PackagePathTest, skipsEmptyAndSinglePointPieces)
{
    EXPECT_EQ(resolve(u"./a//b/./c/", u"/ppt//slides/"), u"ppt/slides/a/b/c"_s);
    EXPECT_EQ(resolve(u"", u"ppt"), u"ppt"_s);
    EXPECT_EQ(resolve(u"", u""), u""_s);
}

TEST(PackagePathTest, takesAnAbsoluteTargetAsRelative)
{
    EXPECT_EQ(resolve(u"/ppt/slides/slide1.xml", u"ppt"), u"ppt/ppt/slides/slide1.xml"_s);
}

TEST(PackagePathTest, doesNotClimbAboveTheRoot)
{
    EXPECT_EQ(resolve(u"../../../../etc/passwd", u"ppt/slides"), u"etc/passwd"_s);
    EXPECT_EQ(resolve(u"a/../../b/..", u"ppt"), u""_s);
    EXPECT_EQ(resolve(u"..", u""), u""_s);
}

TEST(PackagePathTest, leavesOtherPiecesAsTheyAre)
{
    EXPECT_EQ(resolve(u".../a%20b\\c/..d/e..", u"ppt"), u"ppt/.../a%20b\\c/..d/e.."_s);
}

TEST(PackagePathTest, namesTheFileOfAPath)
{
    EXPECT_EQ(fileName(u"ppt/slides/slide1.xml"), u"slide1.xml"_s);
    EXPECT_EQ(fileName(u"slide1.xml"), u"slide1.xml"_s);
    EXPECT_EQ(fileName(u""), u""_s);
}

} // namespace
} // namespace Orvello::PptxImporter
