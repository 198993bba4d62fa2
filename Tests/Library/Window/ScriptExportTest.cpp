#include "Orvello/Library/Window/ScriptExport.h"

#include "Orvello/Library/Window/LibraryViewModel.h"
#include "Tests/Support/LibraryServices.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ScriptExport::Format;
using Testing::LibraryServices;

const Script talk = LibraryServices::script(u"My talk"_s, u"Good morning.\r\nHello\vall\n\nBye"_s);
const Script deck = LibraryServices::deck(
    u"Review"_s, u"Review.pptx"_s, { { 1, u"Intro\nduction"_s, u"Hello\nall"_s }, { 2, {}, {} } });

TEST(ScriptExportTest, writesTheBodyAsText)
{
    EXPECT_EQ(ScriptExport::contentOf(talk, Format::Text), u"Good morning.\nHello\nall\n\nBye\n"_s);
    EXPECT_EQ(ScriptExport::contentOf(deck, Format::Text),
        u"— Slide 1 · Intro\nduction —\nHello\nall\n\n— Slide 2 —\n(no notes)\n"_s);
    EXPECT_EQ(
        ScriptExport::contentOf(LibraryServices::script(u"Empty"_s, {}), Format::Text), QString());
}

TEST(ScriptExportTest, writesTitlesAndSlidesAsMarkdownHeadings)
{
    EXPECT_EQ(ScriptExport::contentOf(talk, Format::Markdown),
        u"# My talk\n\nGood morning.  \nHello  \nall\n\nBye\n"_s);
    EXPECT_EQ(ScriptExport::contentOf(deck, Format::Markdown),
        u"# Review\n\n## Slide 1 · Intro duction\n\nHello  \nall\n\n## Slide 2\n\n(no notes)\n"_s);
}

TEST(ScriptExportTest, putsSeveralScriptsUnderTheirTitles)
{
    const QList<Script> scripts { LibraryServices::script({}, u"One"_s), talk };

    EXPECT_EQ(ScriptExport::contentOf(scripts, Format::Text),
        u"Untitled\n\nOne\n\n\nMy talk\n\nGood morning.\nHello\nall\n\nBye\n"_s);
    EXPECT_EQ(ScriptExport::contentOf(scripts, Format::Markdown),
        u"# Untitled\n\nOne\n\n\n# My talk\n\nGood morning.  \nHello  \nall\n\nBye\n"_s);
}

TEST(ScriptExportTest, makesAFileNameOfEveryTitle)
{
    EXPECT_EQ(ScriptExport::fileNameOf(u"My talk"_s), u"My talk"_s);
    EXPECT_EQ(ScriptExport::fileNameOf(u"../a/b\\c: \"d\"?\n\x07"_s), u"-a-b-c- -d-- -"_s);
    EXPECT_EQ(ScriptExport::fileNameOf(u"..."_s), u"Untitled"_s);
    EXPECT_EQ(ScriptExport::fileNameOf({}), u"Untitled"_s);
    EXPECT_EQ(ScriptExport::fileNameOf(u"é"_s.repeated(300)), u"é"_s.repeated(60));
    EXPECT_EQ(
        ScriptExport::fileNameOf(u"x"_s + u"😀"_s.repeated(300)), u"x"_s + u"😀"_s.repeated(29));
}

class ScriptExportCommandTest : public ::testing::Test {
protected:
    QByteArray exported(const QString& name) const
    {
        QFile file(folder.filePath(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray("none");
    }
    void choose(const QString& name, Format format)
    {
        services.openPanel.choice = folder.filePath(name);
        services.openPanel.newFile.kind = static_cast<int>(format);
    }

    QTemporaryDir folder;
    LibraryServices services { { talk, deck, LibraryServices::script(u"Café"_s, u"Crème"_s) } };
    LibraryViewModel window { services.ofWindow() };
};

TEST_F(ScriptExportCommandTest, writesTheActiveScriptWhereTheUserSays)
{
    choose(u"talk.txt"_s, Format::Text);
    window.exportActive();

    EXPECT_EQ(services.openPanel.shownMessage, u"Export this script"_s);
    EXPECT_EQ(services.openPanel.suggestedName, u"My talk"_s);
    ASSERT_EQ(services.openPanel.shownKinds.size(), 2);
    EXPECT_EQ(services.openPanel.shownKinds[0].extension, u"txt"_s);
    EXPECT_EQ(services.openPanel.shownKinds[1].extension, u"md"_s);
    EXPECT_EQ(exported(u"talk.txt"_s), "Good morning.\nHello\nall\n\nBye\n");

    choose(u"talk.txt"_s, Format::Markdown);
    window.exportActive();
    EXPECT_TRUE(exported(u"talk.txt"_s).startsWith("# My talk\n"));
    EXPECT_EQ(
        QDir(folder.path()).entryList(QDir::Files | QDir::Hidden), QStringList(u"talk.txt"_s));
    EXPECT_FALSE(window.imports()->isShowingAlert());
}

TEST_F(ScriptExportCommandTest, writesWhatTheListShows)
{
    choose(u"all.md"_s, Format::Markdown);
    window.exportListed();
    EXPECT_EQ(services.openPanel.shownMessage, u"Export 3 scripts"_s);
    EXPECT_EQ(exported(u"all.md"_s).count("\n# "), 2);

    window.scripts()->setText(u"CAF"_s);
    window.exportListed();
    EXPECT_EQ(exported(u"all.md"_s), "# Café\n\nCrème\n");

    window.scripts()->setText(u"nothing"_s);
    window.exportListed();
    EXPECT_EQ(services.openPanel.timesShown, 2) << "there is nothing to export";
}

TEST_F(ScriptExportCommandTest, writesNothingWhenTheUserCancels)
{
    window.exportActive();
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
    EXPECT_FALSE(window.imports()->isShowingAlert());
}

TEST_F(ScriptExportCommandTest, saysWhatCouldNotBeWrittenAndKeepsWhatWasThere)
{
    choose(u"missing/talk.txt"_s, Format::Text);
    window.exportActive();

    EXPECT_EQ(window.imports()->alertTitle(), u"Export failed"_s);
    EXPECT_TRUE(window.imports()->alertText().startsWith(u"“talk.txt” could not be written ("_s));
    EXPECT_TRUE(window.imports()->alertText().contains(u"No such file"_s));
    window.imports()->dismissAlert();

    QDir(folder.path()).mkdir(u"folder.txt"_s);
    choose(u"folder.txt"_s, Format::Text);
    window.exportActive();
    EXPECT_TRUE(window.imports()->isShowingAlert());
    EXPECT_TRUE(QDir(folder.filePath(u"folder.txt"_s)).exists());
}

} // namespace
} // namespace Orvello
