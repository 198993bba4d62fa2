#include "Orvello/Presentations/Decks/PptxImporter.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvello::PptxImporter {
namespace {

using namespace Qt::StringLiterals;

/// In each of the two formats, with the same notes in both.
class PptxLiveTest : public ::testing::TestWithParam<const char*> { };

TEST_P(PptxLiveTest, importsADeckThatLibreOfficeWritesNow)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"deck."_s + QString::fromLatin1(GetParam()));
    QProcess makeDeck;
    makeDeck.setProcessChannelMode(QProcess::MergedChannels);
    makeDeck.start(QStringLiteral(ORVELLO_MAKE_DECK),
        { u"--output"_s, path, u"--json"_s, u"-"_s, u"--timeout"_s, u"100"_s });
    makeDeck.write(R"([
        {"title": "Opening", "body": "shown", "notes": "First paragraph.\n\nSecond\u2028broken,\ttab,  blanks."},
        {"title": "Silent"},
        {"title": "Ελληνικά", "notes": "ملاحظات المتحدث", "hidden": true},
        {"notes": "Only notes"}
    ])");
    makeDeck.closeWriteChannel();
    ASSERT_TRUE(makeDeck.waitForFinished(110'000));
    ASSERT_EQ(makeDeck.exitCode(), 0) << makeDeck.readAll().toStdString();

    const auto slides = importNotes(path);

    ASSERT_TRUE(slides.has_value());
    const QList<SlideNote> expected { { 1, u"Opening"_s,
                                          u"First paragraph.\n\nSecond\nbroken,\ttab,  blanks."_s },
        { 2, u"Silent"_s, u""_s }, { 3, u"Ελληνικά"_s, u"ملاحظات المتحدث"_s },
        { 4, std::nullopt, u"Only notes"_s } };
    EXPECT_EQ(*slides, expected);
}

INSTANTIATE_TEST_SUITE_P(Formats, PptxLiveTest, ::testing::Values("pptx", "odp"));

} // namespace
} // namespace Orvello::PptxImporter
