#include "Orvello/Presentations/Decks/PptxImporter.h"

#include <QProcess>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvello::PptxImporter {
namespace {

using namespace Qt::StringLiterals;

TEST(PptxLiveTest, importsADeckThatLibreOfficeWritesNow)
{
    const QTemporaryDir folder;
    const QString path = folder.filePath(u"deck.pptx"_s);
    QProcess makeDeck;
    makeDeck.setProcessChannelMode(QProcess::MergedChannels);
    makeDeck.start(QStringLiteral(ORVELLO_MAKE_DECK),
        { u"--output"_s, path, u"--json"_s, u"-"_s, u"--timeout"_s, u"100"_s });
    makeDeck.write(R"([
        {"title": "Opening", "body": "shown", "notes": "First paragraph.\nSecond\u2028broken."},
        {"title": "Silent"},
        {"title": "Ελληνικά", "notes": "ملاحظات المتحدث", "hidden": true},
        {"notes": "Only notes"}
    ])");
    makeDeck.closeWriteChannel();
    ASSERT_TRUE(makeDeck.waitForFinished(110'000));
    ASSERT_EQ(makeDeck.exitCode(), 0) << makeDeck.readAll().toStdString();

    const auto slides = importNotes(path);

    ASSERT_TRUE(slides.has_value());
    const QList<SlideNote> expected { { 1, u"Opening"_s, u"First paragraph.\nSecond\nbroken."_s },
        { 2, u"Silent"_s, u""_s }, { 3, u"Ελληνικά"_s, u"ملاحظات المتحدث"_s },
        { 4, std::nullopt, u"Only notes"_s } };
    EXPECT_EQ(*slides, expected);
}

} // namespace
} // namespace Orvello::PptxImporter
