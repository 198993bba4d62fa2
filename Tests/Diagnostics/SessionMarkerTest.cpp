#include "Orvello/Diagnostics/SessionMarker.h"

#include "Tests/Diagnostics/TextFile.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace Orvello {
namespace {

using Testing::readFile;
using Testing::writeFile;

class SessionMarkerTest : public ::testing::Test {
protected:
    QTemporaryDir folder;
    std::string path = folder.filePath(QStringLiteral("session.marker")).toStdString();
    SessionMarker marker { path };
};

TEST_F(SessionMarkerTest, hasNoTextWhereThereIsNoFile) { EXPECT_EQ(marker.text(), std::nullopt); }

TEST_F(SessionMarkerTest, givesBackWhatWasWritten)
{
    marker.write("2.1 (57) pid 4312 started é");

    EXPECT_EQ(readFile(path), "2.1 (57) pid 4312 started é");
    EXPECT_EQ(marker.text(), "2.1 (57) pid 4312 started é");
}

TEST_F(SessionMarkerTest, replacesAnOldMarkerAndLeavesNothingElse)
{
    marker.write("a much longer old marker");

    marker.write("new");

    EXPECT_EQ(readFile(path), "new");
    const auto files = std::filesystem::directory_iterator(folder.path().toStdString());
    EXPECT_EQ(std::distance(files, {}), 1);
}

TEST_F(SessionMarkerTest, trimsWhiteSpaceAndLineBreaksAtBothEnds)
{
    writeFile(path, "\n\t  \r\n\u00A0two words\nand a line \u2028 \r\n");

    EXPECT_EQ(marker.text(), "two words\nand a line");
}

TEST_F(SessionMarkerTest, countsAnEmptyFileAsAMarker)
{
    writeFile(path, "");

    EXPECT_EQ(marker.text(), "");
}

TEST_F(SessionMarkerTest, ignoresAFileThatIsNotUtf8)
{
    writeFile(path, "2.1 \xFF\xFE");

    EXPECT_EQ(marker.text(), std::nullopt);
}

TEST_F(SessionMarkerTest, ignoresAFileFarLargerThanAnyMarker)
{
    writeFile(path, std::string(1'000'000, 'x'));
    EXPECT_EQ(marker.text()->size(), 1'000'000u);

    writeFile(path, std::string(1'000'001, 'x'));
    EXPECT_EQ(marker.text(), std::nullopt);
}

TEST_F(SessionMarkerTest, ignoresAFolder)
{
    std::filesystem::create_directory(path);

    EXPECT_EQ(marker.text(), std::nullopt);
    marker.write("refused");
    marker.remove();

    EXPECT_TRUE(std::filesystem::is_directory(path));
}

TEST_F(SessionMarkerTest, doesNotWaitForTheWriterOfAPipe)
{
    ASSERT_EQ(::mkfifo(path.c_str(), 0600), 0);

    EXPECT_EQ(marker.text(), std::nullopt);
}

TEST_F(SessionMarkerTest, isRemoved)
{
    marker.write("text");

    marker.remove();
    EXPECT_FALSE(std::filesystem::exists(path));

    marker.remove(); // A missing marker is no error.
}

} // namespace
} // namespace Orvello
