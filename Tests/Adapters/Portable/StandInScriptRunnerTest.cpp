// The imports and the following of slides with real child processes: a stand-in for the system's
// script runner answers as AppleScript would.

#include "Orvello/Adapters/Portable/QtChildProcess.h"
#include "Orvello/Library/Import/LiveDeckImport.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Presentations/Presenters/AppleScriptPresenters.h"
#include "Orvello/Presentations/Slideshow/SlideSyncService.h"
#include "Tests/Support/FakeFolders.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/SlideshowStage.h"

#include <QCoreApplication>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <optional>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class StandInScriptRunnerTest : public ::testing::Test {
protected:
    StandInScriptRunnerTest()
    {
        stage.workspace.running
            = { Testing::FakeWorkspace::application(u"com.apple.iWork.Keynote"_s),
                  Testing::FakeWorkspace::application(u"com.microsoft.Powerpoint"_s) };
    }

    /// What the script runner does with the script, which is the shell's "$2".
    void answerWith(const QByteArray& shellScript)
    {
        QFile file(program);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write("#!/bin/sh\n[ \"$#,$1\" = 2,-e ] || exit 99\necho >> '" + starts.toUtf8() + "'\n"
            + shellScript + '\n');
        file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    qint64 startCount() const
    {
        QFile file(starts);
        return file.open(QIODevice::ReadOnly) ? file.size() : 0;
    }

    template <typename Condition>
    static void waitUntil(Condition condition)
    {
        while (!condition())
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }

    LiveDeckImport::Imported importKeynote()
    {
        std::optional<LiveDeckImport::Imported> imported;
        importer.importFromOpenDeck(
            keynote, [&](const LiveDeckImport::Imported& result) { imported = result; });
        waitUntil([&] { return imported.has_value(); });
        return *imported;
    }

    LiveDeckImport::PowerPointImported importPowerPoint()
    {
        std::optional<LiveDeckImport::PowerPointImported> imported;
        importer.importFromOpenPowerPointDeck(powerPoint,
            [&](const LiveDeckImport::PowerPointImported& result) { imported = result; });
        waitUntil([&] { return imported.has_value(); });
        return *imported;
    }

    QTemporaryDir folder;
    const QString program = folder.filePath(u"osascript"_s);
    const QString starts = folder.filePath(u"starts"_s);
    Testing::SlideshowStage stage;
    Testing::FakeUserDefaults defaults;
    Testing::FakeFolders folders;
    QtChildProcess process;
    const AppleScriptRunner runner { process, program };
    const PresenterApp keynote = AppleScriptPresenters::keynote(runner);
    const PresenterApp powerPoint = AppleScriptPresenters::powerPoint(runner);
    LibraryStore library { defaults, folders, stage.time, {} };
    LiveDeckImport importer { library, stage.workspace, runner };
};

TEST_F(StandInScriptRunnerTest, importsWhatKeynotePrints)
{
    answerWith("printf 'My talk\\036Intro\\037Gr\\303\\274\\303\\237e\\036\\037\\n'");

    ASSERT_TRUE(importKeynote());
    EXPECT_EQ(library.scripts().first().title, u"My talk"_s);
    EXPECT_EQ(library.scripts().first().slides,
        QList<SlideNote>({ { 1, u"Intro"_s, u"Grüße"_s }, { 2, std::nullopt, u""_s } }));
}

TEST_F(StandInScriptRunnerTest, tellsWhyKeynoteFailed)
{
    answerWith("echo '9:12: execution error: NO_DOCUMENT (-2700)' >&2; exit 1");
    EXPECT_EQ(importKeynote().error().description(), u"No presentation is open in Keynote."_s);

    answerWith("printf 'My talk\\036A\\037B'; kill -KILL $$");
    EXPECT_EQ(importKeynote().error().description(), u"Couldn't read the Keynote presentation: "_s);

    answerWith("printf 'My talk\\036A\\037\\377'");
    EXPECT_EQ(importKeynote().error().reason, DeckImportError::Reason::NoNotes);
    EXPECT_EQ(library.scripts().size(), 1);
}

TEST_F(StandInScriptRunnerTest, tellsThatThereIsNoScriptRunner)
{
    const auto imported = importKeynote();

    EXPECT_EQ(imported.error().reason, DeckImportError::Reason::ScriptFailed);
    EXPECT_FALSE(imported.error().message.isEmpty());
}

TEST_F(StandInScriptRunnerTest, readsALargeDeckBesideALongComplaint)
{
    constexpr qsizetype megabytes = 5'000'000;
    answerWith("head -c 5000000 /dev/zero >&2; printf 'My talk\\036\\037'; "
               "head -c 5000000 /dev/zero | tr '\\0' x; head -c 5000000 /dev/zero >&2");

    ASSERT_TRUE(importKeynote());
    EXPECT_EQ(library.scripts().first().slides->first().notes.size(), megabytes);
}

TEST_F(StandInScriptRunnerTest, fallsBackOnPowerPointsSavedFile)
{
    answerWith(
        "case \"$2\" in\n*'full name'*) printf 'Open\\037false\\037%s\\n' '" ORVELLO_TEST_DECKS
        "/Saved deck.pptx';;\n*) echo busy >&2; exit 1;;\nesac");

    const auto imported = importPowerPoint();
    ASSERT_TRUE(imported);
    EXPECT_TRUE(imported->fromStaleFile);
    EXPECT_EQ(library.scripts().first().title, u"Saved deck"_s);
    EXPECT_EQ(startCount(), 2);
}

TEST_F(StandInScriptRunnerTest, readsWhatPowerPointHasNotSaved)
{
    answerWith("case \"$2\" in\n*'full name'*) printf 'Open\\037false\\037\\n';;\n"
               "*) printf '\\036\\037Said\\n';;\nesac");

    const auto imported = importPowerPoint();
    ASSERT_TRUE(imported);
    EXPECT_FALSE(imported->fromStaleFile);
    EXPECT_EQ(library.scripts().first().title, u"Open"_s);
}

/// Follows a slideshow with the same stand-in.
class StandInSlideTest : public StandInScriptRunnerTest {
protected:
    StandInSlideTest()
    {
        presenters.add(keynote);
        stage.present(keynote);
        stage.monitor.start();
        sync.setActive(true);
    }

    PresenterTable presenters;
    SlideSyncService sync { stage.monitor, presenters, stage.time };
};

TEST_F(StandInSlideTest, followsWhatTheScriptPrints)
{
    answerWith("echo 7");
    stage.time.advance(0.5);
    waitUntil([&] { return sync.liveSlide().has_value(); });

    EXPECT_EQ(sync.liveSlide(), 7);
    EXPECT_EQ(sync.state(), SlideSyncService::State::Live);
}

TEST_F(StandInSlideTest, isDeniedByTheSystemsErrorNumber)
{
    answerWith("echo 'execution error: Not authorised to send Apple events. (-1743)' >&2; exit 1");
    stage.time.advance(0.5);
    waitUntil([&] { return sync.state() == SlideSyncService::State::Denied; });

    EXPECT_EQ(sync.liveSlide(), std::nullopt);
}

TEST_F(StandInSlideTest, startsNoSecondScriptWhileOneNeverEnds)
{
    answerWith("exec sleep 1000");
    stage.time.advance(0.5);
    waitUntil([&] { return startCount() == 1; });
    stage.time.advance(5.0);
    QCoreApplication::processEvents();
    EXPECT_EQ(startCount(), 1);
    EXPECT_EQ(sync.state(), SlideSyncService::State::Manual);

    // The user may still switch tracking off and on, which asks afresh.
    answerWith("echo 3");
    sync.setActive(false);
    sync.setActive(true);
    stage.time.advance(0.5);
    waitUntil([&] { return sync.liveSlide().has_value(); });
    EXPECT_EQ(sync.liveSlide(), 3);
}

} // namespace
} // namespace Orvello
