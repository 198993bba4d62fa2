#include "Orvello/Library/Import/LiveDeckImport.h"

#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Presentations/Decks/PptxImporter.h"
#include "Orvello/Presentations/Presenters/AppleScriptPresenters.h"
#include "Tests/Support/FakeChildProcess.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakePresenter.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/FakeWorkspace.h"
#include "Tests/Support/LogCapture.h"
#include "Tests/Support/ManualTimeSource.h"

#include <QFile>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

const QByteArray threeSlides = "My talk\x1eIntro\x1fHello all\x1e\x1f\x1e"
                               "End\x1fThank you\n";

class LiveDeckImportTest : public ::testing::Test {
protected:
    LiveDeckImportTest()
    {
        workspace.running = { Testing::FakeWorkspace::application(u"com.apple.finder"_s),
            Testing::FakeWorkspace::application(u"com.apple.iWork.Keynote"_s),
            Testing::FakeWorkspace::application(u"com.microsoft.Powerpoint"_s) };
        log.clear();
    }

    void importKeynote()
    {
        importer->importFromOpenDeck(
            keynote, [this](const LiveDeckImport::Imported& result) { imported = result; });
    }
    void importPowerPoint()
    {
        importer->importFromOpenPowerPointDeck(powerPoint,
            [this](const LiveDeckImport::PowerPointImported& result) { importedPpt = result; });
    }

    /// PowerPoint's answer to where its presentation is.
    void locate(const QString& saved, const QString& path)
    {
        process.finish(0, 0, u"Open deck\u001f%1\u001f%2\n"_s.arg(saved, path).toUtf8());
    }

    /// A real deck of two slides, or a file that is none.
    QString savedDeck() const { return QStringLiteral(ORVELLO_TEST_DECKS "/Saved deck.pptx"); }
    QString brokenDeck() const
    {
        QFile file(folders.path + u"/Broken.pptx"_s);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write("not a package");
        return file.fileName();
    }

    void expectNothingImported() const { EXPECT_EQ(library.scripts().size(), 1); }

    Testing::ManualTimeSource time;
    Testing::FakeUserDefaults defaults;
    Testing::FakeFolders folders;
    Testing::FakeWorkspace workspace;
    Testing::FakeChildProcess process;
    AppleScriptRunner runner { process };
    const PresenterApp keynote = AppleScriptPresenters::keynote(runner);
    const PresenterApp powerPoint = AppleScriptPresenters::powerPoint(runner);
    LibraryStore library { defaults, folders, time, {} };
    std::unique_ptr<LiveDeckImport> importer
        = std::make_unique<LiveDeckImport>(library, workspace, runner);
    std::optional<LiveDeckImport::Imported> imported;
    std::optional<LiveDeckImport::PowerPointImported> importedPpt;
    Testing::LogCapture log;
};

TEST_F(LiveDeckImportTest, needsARunningKeynote)
{
    workspace.running = { Testing::FakeWorkspace::application(u"com.apple.iwork.keynote"_s) };
    importKeynote();

    EXPECT_EQ(imported->error().description(),
        u"Keynote isn't running. Open your presentation in Keynote first."_s);
    EXPECT_TRUE(process.runs.isEmpty());
    expectNothingImported();
}

TEST_F(LiveDeckImportTest, asksKeynoteWithThisScript)
{
    importKeynote();

    ASSERT_EQ(process.runs.size(), 1);
    EXPECT_EQ(process.runs[0].program, u"/usr/bin/osascript"_s);
    EXPECT_EQ(process.runs[0].arguments, QStringList({ u"-e"_s, uR"script(tell application "Keynote"
    if (count of documents) is 0 then error "NO_DOCUMENT"
    set doc to front document
    set out to name of doc
    repeat with s in every slide of doc
        set t to ""
        try
            set t to object text of default title item of s
        end try
        set n to ""
        try
            set n to presenter notes of s
        end try
        set out to out & (character id 30) & t & (character id 31) & n
    end repeat
    return out
end tell)script"_s }));
}

TEST_F(LiveDeckImportTest, makesAScriptOfTheKeynoteDeck)
{
    importKeynote();
    EXPECT_FALSE(imported.has_value());
    process.finish(0, 0, threeSlides);

    ASSERT_TRUE(imported->has_value());
    const Script& script = library.scripts().first();
    EXPECT_EQ(script.id, imported->value());
    EXPECT_EQ(library.activeScriptID(), script.id);
    EXPECT_EQ(script.title, u"My talk"_s);
    EXPECT_EQ(script.deckSource, u"Keynote"_s);
    EXPECT_EQ(script.body,
        u"— Slide 1 · Intro —\nHello all\n\n— Slide 2 —\n(no notes)\n\n— Slide 3 · End —\nThank you"_s);
    EXPECT_EQ(script.slides,
        QList<SlideNote>({ { 1, u"Intro"_s, u"Hello all"_s }, { 2, std::nullopt, u""_s },
            { 3, u"End"_s, u"Thank you"_s } }));
    EXPECT_THAT(log.lines(), ElementsAre("IMPORT_KEYNOTE ok slides=3 doc=My talk"));
}

TEST_F(LiveDeckImportTest, namesANamelessKeynoteDeck)
{
    importKeynote();
    process.finish(0, 0, "\x1eIntro\x1fHello\n");

    EXPECT_EQ(library.scripts().first().title, u"Keynote deck"_s);
}

TEST_F(LiveDeckImportTest, explainsWhyKeynoteGaveNoDeck)
{
    const QList<std::pair<QByteArray, QString>> errors {
        { "9:12: execution error: NO_DOCUMENT (-2700)\n",
            u"No presentation is open in Keynote."_s },
        { "NO_DOCUMENT (-1743)", u"No presentation is open in Keynote."_s },
        { "execution error: Not authorized to send Apple events to Keynote. (-1743)\n",
            u"Couldn't read the Keynote presentation: permission denied — allow Orvello to control Keynote in System Settings → Privacy & Security → Automation"_s },
        { " \n execution error: Keynote got an error (-609)\n",
            u"Couldn't read the Keynote presentation: execution error: Keynote got an error (-609)"_s },
        { "", u"Couldn't read the Keynote presentation: "_s },
        { "\xff", u"Couldn't read the Keynote presentation: "_s },
    };
    for (const auto& [output, description] : errors) {
        importKeynote();
        process.finish(process.runs.size() - 1, 1, threeSlides, output);
        EXPECT_EQ(imported->error().description(), description);
    }
    expectNothingImported();
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(LiveDeckImportTest, reportsAScriptRunnerThatCannotBeLaunched)
{
    importKeynote();
    process.failToLaunch(0, u"No such file or directory"_s);

    EXPECT_EQ(imported->error().description(),
        u"Couldn't read the Keynote presentation: No such file or directory"_s);
}

TEST_F(LiveDeckImportTest, reportsAScriptThatASignalEnded)
{
    importKeynote();
    process.finish(0, 9, threeSlides);

    EXPECT_FALSE(imported->has_value());
    expectNothingImported();
}

TEST_F(LiveDeckImportTest, refusesAKeynoteDeckWithoutNotes)
{
    for (const QByteArray& output : { QByteArray("My talk\n"),
             QByteArray("My talk\x1e"
                        "A\x1f\x1e"
                        "B\x1f \n"),
             QByteArray("\xff\x1e"
                        "A\x1fx") }) {
        importKeynote();
        process.finish(process.runs.size() - 1, 0, output);
        EXPECT_EQ(imported->error().description(),
            u"That Keynote presentation has no presenter notes on any slide."_s);
    }
    expectNothingImported();
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(LiveDeckImportTest, needsARunningPowerPoint)
{
    workspace.running = { Testing::FakeWorkspace::application(u"com.microsoft.PowerPoint"_s) };
    importPowerPoint();

    EXPECT_EQ(importedPpt->error().description(),
        u"PowerPoint isn't running. Open your presentation in PowerPoint first."_s);
    EXPECT_TRUE(process.runs.isEmpty());
}

TEST_F(LiveDeckImportTest, locatesThePowerPointDeckWithThisScript)
{
    importPowerPoint();

    ASSERT_EQ(process.runs.size(), 1);
    EXPECT_EQ(process.runs[0].arguments,
        QStringList({ u"-e"_s, uR"script(tell application "Microsoft PowerPoint"
    if (count of presentations) is 0 then error "NO_DOCUMENT"
    set theDoc to active presentation
    set outText to (name of theDoc) & (character id 31) & ((saved of theDoc) as text) & (character id 31)
    try
        set outText to outText & (POSIX path of ((full name of theDoc) as alias))
    on error
        try
            set outText to outText & (full name of theDoc)
        end try
    end try
    return outText
end tell)script"_s }));
}

TEST_F(LiveDeckImportTest, readsThePowerPointDeckWithThisScript)
{
    importPowerPoint();
    locate(u"false"_s, QString());

    ASSERT_EQ(process.runs.size(), 2);
    EXPECT_EQ(process.runs[1].arguments,
        QStringList({ u"-e"_s, uR"script(tell application "Microsoft PowerPoint"
    if (count of presentations) is 0 then error "NO_DOCUMENT"
    set theDoc to active presentation
    set outText to name of theDoc
    repeat with i from 1 to (count of slides of theDoc)
        set theSlide to slide i of theDoc
        set titleText to ""
        set noteText to ""
        repeat with j from 1 to (count of shapes of theSlide)
            set theShape to shape j of theSlide
            try
                set phType to placeholder type of placeholder format of theShape
                if (phType is placeholder type title placeholder) or (phType is placeholder type center title placeholder) or (phType is placeholder type vertical title placeholder) then
                    if has text frame of theShape then set titleText to content of text range of text frame of theShape
                end if
            end try
        end repeat
        set thePage to notes page of theSlide
        repeat with j from 1 to (count of shapes of thePage)
            set theShape to shape j of thePage
            try
                set phType to placeholder type of placeholder format of theShape
                if (phType is placeholder type body placeholder) or (phType is placeholder type vertical body placeholder) then
                    if has text frame of theShape then set noteText to noteText & (content of text range of text frame of theShape)
                end if
            end try
        end repeat
        set outText to outText & (character id 30) & titleText & (character id 31) & noteText
    end repeat
    return outText
end tell)script"_s }));
}

TEST_F(LiveDeckImportTest, explainsWhyPowerPointGaveNoLocation)
{
    const QList<std::pair<QByteArray, QString>> errors {
        { "NO_DOCUMENT", u"No presentation is open in PowerPoint."_s },
        { "-1743",
            u"Couldn't read the PowerPoint presentation: permission denied — allow Orvello to control Microsoft PowerPoint in System Settings → Privacy & Security → Automation"_s },
        { "busy\n", u"Couldn't read the PowerPoint presentation: busy"_s },
    };
    for (const auto& [output, description] : errors) {
        importPowerPoint();
        process.finish(process.runs.size() - 1, 1, {}, output);
        EXPECT_EQ(importedPpt->error().description(), description);
    }
    EXPECT_EQ(process.runs.size(), 3);
    EXPECT_THAT(log.lines(), IsEmpty());
}

TEST_F(LiveDeckImportTest, prefersTheFileWhenEveryChangeIsSaved)
{
    importPowerPoint();
    locate(u"true"_s, savedDeck());

    ASSERT_TRUE(importedPpt->has_value());
    const Script& script = library.scripts().first();
    EXPECT_EQ(importedPpt->value(), (PowerPointImport { script.id, false }));
    EXPECT_EQ(script.title, u"Saved deck"_s);
    EXPECT_EQ(script.deckSource, u"PowerPoint"_s);
    EXPECT_EQ(process.runs.size(), 1);
    EXPECT_THAT(log.lines(),
        ElementsAre("IMPORT_PPT locate saved=1 file=Saved deck.pptx",
            "IMPORT_PPTX ok slides=2 file=Saved deck.pptx"));
}

TEST_F(LiveDeckImportTest, doesNotAskPowerPointWhenTheSavedFileCannotBeRead)
{
    importPowerPoint();
    locate(u"true"_s, brokenDeck());

    EXPECT_EQ(importedPpt->error().description(),
        u"Couldn't read the PowerPoint presentation: "_s
            + PptxImporter::description(PptxImporter::ImportError::Unreadable));
    EXPECT_EQ(process.runs.size(), 1);
    expectNothingImported();
}

TEST_F(LiveDeckImportTest, asksPowerPointWhenThereAreUnsavedChanges)
{
    importPowerPoint();
    locate(u"false"_s, savedDeck());
    EXPECT_FALSE(importedPpt.has_value());
    process.finish(1, 0, threeSlides);

    ASSERT_TRUE(importedPpt->has_value());
    const Script& script = library.scripts().first();
    EXPECT_EQ(importedPpt->value(), (PowerPointImport { script.id, false }));
    EXPECT_EQ(script.title, u"My talk"_s);
    EXPECT_EQ(script.deckSource, u"PowerPoint"_s);
    EXPECT_EQ(library.scripts().size(), 2);
    EXPECT_THAT(log.lines(),
        ElementsAre("IMPORT_PPT locate saved=0 file=Saved deck.pptx",
            "IMPORT_PPT ok (live) slides=3 doc=My talk"));
}

TEST_F(LiveDeckImportTest, asksPowerPointWhenTheSavedFileIsOfAnotherFormat)
{
    importPowerPoint();
    locate(u"true"_s, u"/tmp/Talk.key"_s);

    EXPECT_EQ(process.runs.size(), 2);
    EXPECT_THAT(log.lines(), ElementsAre("IMPORT_PPT locate saved=1 file=-"));
}

TEST_F(LiveDeckImportTest, namesANamelessPowerPointDeckByItsDocument)
{
    importPowerPoint();
    locate(u"false"_s, QString());
    process.finish(1, 0, "\x1eIntro\x1fHello\n");
    EXPECT_EQ(library.scripts().first().title, u"Open deck"_s);

    importPowerPoint();
    process.finish(2, 0, "\n");
    process.finish(3, 0, "\x1eIntro\x1fHello\n");
    EXPECT_EQ(library.scripts().first().title, u"PowerPoint"_s);
}

TEST_F(LiveDeckImportTest, fallsBackOnTheSavedFile)
{
    importPowerPoint();
    locate(u"false"_s, savedDeck());
    process.finish(1, 1, {}, "PowerPoint got an error\n");

    ASSERT_TRUE(importedPpt->has_value());
    EXPECT_EQ(importedPpt->value(), (PowerPointImport { library.scripts().first().id, true }));
    EXPECT_EQ(library.scripts().first().deckSource, u"PowerPoint"_s);
    EXPECT_THAT(log.lines(),
        ElementsAre("IMPORT_PPT locate saved=0 file=Saved deck.pptx",
            "IMPORT_PPTX ok slides=2 file=Saved deck.pptx",
            "IMPORT_PPT live read failed (Couldn't read the PowerPoint presentation: PowerPoint "
            "got an error); used saved file"));
}

TEST_F(LiveDeckImportTest, fallsBackOnTheSavedFileAlsoWhenTheOpenDeckHasNoNotes)
{
    importPowerPoint();
    locate(u"false"_s, savedDeck());
    process.finish(1, 0, "My talk\n");

    EXPECT_TRUE(importedPpt->value().fromStaleFile);
    EXPECT_EQ(log.lines().back(),
        "IMPORT_PPT live read failed (That PowerPoint presentation has no speaker notes on any "
        "slide.); used saved file");
}

TEST_F(LiveDeckImportTest, reportsTheLiveReadWithoutASavedFile)
{
    importPowerPoint();
    locate(u"false"_s, QString());
    process.finish(1, 1, {}, "no connection (-1743)");

    EXPECT_EQ(importedPpt->error().reason, DeckImportError::Reason::ScriptFailed);
    EXPECT_EQ(importedPpt->error().message, powerPoint.permissionAdvice);
    expectNothingImported();
}

TEST_F(LiveDeckImportTest, reportsTheLiveReadWhenTheSavedFileCannotBeReadEither)
{
    importPowerPoint();
    locate(u"false"_s, brokenDeck());
    process.finish(1, 1, {}, "busy");

    EXPECT_EQ(
        importedPpt->error().description(), u"Couldn't read the PowerPoint presentation: busy"_s);
    expectNothingImported();
    EXPECT_THAT(log.lines(), ElementsAre("IMPORT_PPT locate saved=0 file=Broken.pptx"));
}

TEST_F(LiveDeckImportTest, mayBeGoneWhenTheAnswerComes)
{
    importKeynote();
    importPowerPoint();
    importer.reset();
    process.finish(0, 0, threeSlides);
    locate(u"true"_s, savedDeck());

    EXPECT_FALSE(imported.has_value());
    EXPECT_FALSE(importedPpt.has_value());
    expectNothingImported();
}

TEST_F(LiveDeckImportTest, importsFromAPresenterThatTheEditionAdds)
{
    Testing::FakePresenter presenter(
        u"LibreOffice Impress"_s, u"Impress"_s, u"libreoffice-impress"_s);
    const PresenterApp impress = presenter.row();
    const auto importImpress = [&] {
        importer->importFromOpenDeck(
            impress, [this](const LiveDeckImport::Imported& result) { imported = result; });
    };

    importImpress();
    EXPECT_EQ(imported->error().description(),
        u"Impress isn't running. Open your presentation in Impress first."_s);

    workspace.running.append(Testing::FakeWorkspace::application(u"libreoffice-impress"_s));
    importImpress();
    presenter.answer(QString::fromUtf8(threeSlides));
    EXPECT_EQ(library.scripts().first().deckSource, u"Impress"_s);
    EXPECT_THAT(log.lines(), ElementsAre("IMPORT_IMPRESS ok slides=3 doc=My talk"));
}

} // namespace
} // namespace Orvello
