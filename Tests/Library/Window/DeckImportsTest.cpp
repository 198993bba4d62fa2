#include "Orvello/Library/Window/DeckImports.h"

#include "Tests/Support/DeckBuilder.h"
#include "Tests/Support/LibraryServices.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using Testing::DeckBuilder;
namespace Pptx = Testing::Pptx;

class DeckImportsTest : public ::testing::Test {
protected:
    QString file(const QString& name, const QByteArray& bytes) const
    {
        QFile file(services.folders.path + u'/' + name);
        EXPECT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        return file.fileName();
    }
    QString deckFile(const QString& name) const
    {
        return file(name, DeckBuilder().slide("Intro", "Hello all").slide("End", "").build());
    }
    QString silentDeckFile() const
    {
        return file(
            u"Silent.pptx"_s, DeckBuilder().slide("Intro", "").slideWithoutNotes("End").build());
    }
    QString brokenFile(const QString& name = u"Broken.pptx"_s) const
    {
        return file(name, "not a package");
    }

    void choose(const QString& path)
    {
        services.openPanel.choice = path;
        imports.run(0);
        finishReading();
    }

    /// Files are read by another thread.
    void finishReading()
    {
        for (const QElapsedTimer timer = startedTimer(); imports.isReadingFiles();) {
            ASSERT_LT(timer.elapsed(), 60'000);
            QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
        }
    }
    static QElapsedTimer startedTimer()
    {
        QElapsedTimer timer;
        timer.start();
        return timer;
    }

    QStringList titles() const
    {
        QStringList titles;
        for (const Script& script : services.library.scripts())
            titles.append(script.title);
        return titles;
    }

    void expectAlert(const QString& title, const QString& text) const
    {
        EXPECT_TRUE(imports.isShowingAlert());
        EXPECT_EQ(imports.alertTitle(), title);
        EXPECT_EQ(imports.alertText(), text);
    }

    Testing::LibraryServices services { { Testing::LibraryServices::script(u"Old"_s, {}) } };
    DeckImports imports { services.ofWindow() };
};

TEST_F(DeckImportsTest, offersAFileAndWhatIsOpenInEachApplication)
{
    EXPECT_EQ(imports.titles(),
        QStringList({ u"PowerPoint file (.pptx)…"_s, u"Open PowerPoint presentation"_s,
            u"Open Keynote presentation"_s, u"Open Impress presentation"_s }));
}

TEST_F(DeckImportsTest, offersImpressOnlyWhereItIsFollowed)
{
    PresenterTable presenters;
    presenters.add(AppleScriptPresenters::keynote(services.scriptRunner));
    presenters.add(AppleScriptPresenters::powerPoint(services.scriptRunner));
    const DeckImports two({ services.library, services.openDecks, services.files, services.updates,
        presenters, services.openPanel, services.facts });

    EXPECT_EQ(two.titles(),
        QStringList({ u"PowerPoint file (.pptx)…"_s, u"Open PowerPoint presentation"_s,
            u"Open Keynote presentation"_s }));
}

TEST_F(DeckImportsTest, offersOnlyWhatThisSystemCanHave)
{
    PresenterTable presenters;
    PresenterApp keynote = AppleScriptPresenters::keynote(services.scriptRunner);
    keynote.isForThisSystem = false;
    presenters.add(keynote);
    presenters.add(services.impress.row());
    const DeckImports one({ services.library, services.openDecks, services.files, services.updates,
        presenters, services.openPanel });

    EXPECT_EQ(one.titles(),
        QStringList({ u"Presentation file (.pptx, .odp)…"_s, u"Open Impress presentation"_s }));
}

TEST_F(DeckImportsTest, showsWhatIsBeingReadAndReadsOneAtATime)
{
    const QSignalSpy changes(&imports, &DeckImports::readingTextChanged);
    EXPECT_EQ(imports.readingText(), QString());
    imports.run(3);
    EXPECT_EQ(imports.readingText(), u"Reading what is open in Impress…"_s);
    imports.run(3);
    imports.run(2);
    EXPECT_EQ(services.impress.questions.size(), 1u);
    EXPECT_TRUE(services.process.runs.empty());

    services.impress.answer(u"Deck\x1eTitle\x1fNotes"_s);
    EXPECT_EQ(imports.readingText(), QString());
    EXPECT_EQ(titles(), QStringList({ u"Deck"_s, u"Old"_s }));
    EXPECT_EQ(changes.count(), 2);
}

TEST_F(DeckImportsTest, dropsACancelledReading)
{
    imports.run(3);
    imports.cancelReading();
    EXPECT_EQ(imports.readingText(), QString());
    imports.run(3);

    services.impress.questions[0]({ 0, u"Late\x1eTitle\x1fNotes"_s, {} });
    EXPECT_EQ(titles(), QStringList { u"Old"_s });
    services.impress.questions[1]({ 0, u"Deck\x1eTitle\x1fNotes"_s, {} });
    EXPECT_EQ(titles(), QStringList({ u"Deck"_s, u"Old"_s }));
}

TEST_F(DeckImportsTest, asksForOnePptxFile)
{
    imports.run(0);

    EXPECT_EQ(services.openPanel.timesShown, 1);
    EXPECT_EQ(services.openPanel.shownMessage,
        u"Choose a PowerPoint presentation — Orvello imports its speaker notes."_s);
    ASSERT_EQ(services.openPanel.shownKinds.size(), 1);
    EXPECT_EQ(services.openPanel.shownKinds[0].extension, u"pptx"_s);
    EXPECT_EQ(services.openPanel.shownKinds[0].typeIdentifier,
        u"org.openxmlformats.presentationml.presentation"_s);
}

TEST_F(DeckImportsTest, asksForEitherFormatWhereImpressIsThePresenter)
{
    services.facts = Testing::factsOfALinuxDesktop();
    DeckImports linux(services.ofWindow());
    linux.run(0);

    EXPECT_EQ(linux.titles().first(), u"Presentation file (.pptx, .odp)…"_s);
    ASSERT_EQ(services.openPanel.shownKinds.size(), 2);
    EXPECT_EQ(services.openPanel.shownKinds[1].extension, u"odp"_s);
}

TEST_F(DeckImportsTest, readsFilesWhileTheProgramGoesOn)
{
    services.openPanel.choice = deckFile(u"Review.pptx"_s);
    imports.run(0);
    EXPECT_TRUE(imports.isReadingFiles());
    EXPECT_EQ(titles(), QStringList { u"Old"_s });

    finishReading();
    EXPECT_EQ(titles(), QStringList({ u"Review"_s, u"Old"_s }));
}

TEST_F(DeckImportsTest, saysWhichNotesWereLeftOut)
{
    const QByteArray text(static_cast<qsizetype>(PptxImporter::Limits::partText) + 1, 'x');
    choose(file(u"Large.pptx"_s,
        DeckBuilder()
            .slide("A", "a")
            .slide("B", "b")
            .part("ppt/notesSlides/notesSlide2.xml",
                Pptx::notes(Pptx::shape("body", Pptx::paragraph(text))))
            .build()));

    expectAlert(u"Not all notes were imported"_s,
        u"The file holds more than Orvello reads: the notes of slides 2 could not be read."_s);
    EXPECT_EQ(titles(), QStringList({ u"Large"_s, u"Old"_s }));
}

TEST_F(DeckImportsTest, doesNothingWhenNoFileIsChosen)
{
    imports.run(0);

    EXPECT_EQ(titles(), QStringList { u"Old"_s });
    EXPECT_FALSE(imports.isShowingAlert());
}

TEST_F(DeckImportsTest, importsTheChosenFile)
{
    choose(deckFile(u"Review.pptx"_s));

    EXPECT_EQ(titles(), QStringList({ u"Review"_s, u"Old"_s }));
    EXPECT_EQ(services.library.scripts().first().deckSource, u"Review.pptx"_s);
    EXPECT_EQ(services.library.activeScriptID(), services.library.scripts().first().id);
    EXPECT_FALSE(imports.isShowingAlert());
}

TEST_F(DeckImportsTest, saysWhyAFileCannotBeImported)
{
    choose(brokenFile());

    expectAlert(
        u"Import failed"_s, PptxImporter::description(PptxImporter::ImportError::Unreadable));
    EXPECT_EQ(titles(), QStringList { u"Old"_s });
}

TEST_F(DeckImportsTest, keepsADeckWithoutNotesAndSaysSo)
{
    choose(silentDeckFile());

    expectAlert(u"No speaker notes"_s,
        u"The deck was imported, but no slide has speaker notes. Add notes in PowerPoint's notes "
        "pane and re-import."_s);
    EXPECT_EQ(titles(), QStringList({ u"Silent"_s, u"Old"_s }));
}

TEST_F(DeckImportsTest, importsWhatIsOpenInKeynote)
{
    imports.run(2);
    ASSERT_EQ(services.process.runs.size(), 1);
    services.process.finish(0, 0, "My talk\x1eIntro\x1fHello all\n");

    EXPECT_EQ(titles(), QStringList({ u"My talk"_s, u"Old"_s }));
    EXPECT_EQ(services.library.scripts().first().deckSource, u"Keynote"_s);
    EXPECT_FALSE(imports.isShowingAlert());
}

TEST_F(DeckImportsTest, importsWhatIsOpenInImpress)
{
    imports.run(3);
    services.impress.answer(u"My talk\u001eIntro\u001fHello all"_s);

    EXPECT_EQ(titles(), QStringList({ u"My talk"_s, u"Old"_s }));
    EXPECT_EQ(services.library.scripts().first().deckSource, u"Impress"_s);
}

TEST_F(DeckImportsTest, saysThatAnApplicationIsNotRunning)
{
    services.workspace.running.clear();

    imports.run(2);
    expectAlert(
        u"Import failed"_s, u"Keynote isn't running. Open your presentation in Keynote first."_s);
    imports.dismissAlert();
    imports.run(1);
    expectAlert(u"Import failed"_s,
        u"PowerPoint isn't running. Open your presentation in PowerPoint first."_s);
    imports.dismissAlert();
    imports.run(3);
    expectAlert(
        u"Import failed"_s, u"Impress isn't running. Open your presentation in Impress first."_s);
}

TEST_F(DeckImportsTest, saysThatNoPresentationIsOpen)
{
    imports.run(2);
    services.process.finish(0, 1, {}, "execution error: NO_DOCUMENT (-2700)");

    expectAlert(u"Import failed"_s, u"No presentation is open in Keynote."_s);
}

TEST_F(DeckImportsTest, saysThatAnOpenPresentationHasNoNotes)
{
    imports.run(2);
    services.process.finish(0, 0, "My talk\x1eIntro\x1f\n");

    expectAlert(
        u"Import failed"_s, u"That Keynote presentation has no presenter notes on any slide."_s);
    EXPECT_EQ(titles(), QStringList { u"Old"_s });
}

TEST_F(DeckImportsTest, importsWhatIsOpenInPowerPoint)
{
    imports.run(1);
    services.process.finish(0, 0,
        "Talk\x1f"
        "false\x1f\n");
    services.process.finish(1, 0, "Talk\x1eIntro\x1fHello all\n");

    EXPECT_EQ(titles(), QStringList({ u"Talk"_s, u"Old"_s }));
    EXPECT_EQ(services.library.scripts().first().deckSource, u"PowerPoint"_s);
    EXPECT_FALSE(imports.isShowingAlert());
}

TEST_F(DeckImportsTest, saysThatTheSavedCopyWasImported)
{
    const QString saved = deckFile(u"Saved.pptx"_s);

    imports.run(1);
    services.process.finish(0, 0,
        "Talk\x1f"
        "false\x1f"
            + saved.toUtf8());
    services.process.finish(1, 1, {}, "some error");

    expectAlert(u"Imported the saved copy"_s,
        u"PowerPoint has unsaved changes, so the notes came from the last saved copy. Save the "
        "presentation and import again to include them."_s);
    EXPECT_EQ(titles(), QStringList({ u"Saved"_s, u"Old"_s }));
}

TEST_F(DeckImportsTest, saysWhyPowerPointCouldNotBeAsked)
{
    imports.run(1);
    services.process.finish(0, 1, {}, "execution error: Not authorized. (-1743)");

    expectAlert(u"Import failed"_s,
        u"Couldn't read the PowerPoint presentation: permission denied — allow Orvello to control "
        "Microsoft PowerPoint in System Settings → Privacy & Security → Automation"_s);
}

TEST_F(DeckImportsTest, forgetsAnAnswerThatComesAfterTheWindow)
{
    {
        DeckImports gone(services.ofWindow());
        gone.run(2);
    }
    services.process.finish(0, 1, {}, "NO_DOCUMENT");

    EXPECT_FALSE(imports.isShowingAlert());
}

TEST_F(DeckImportsTest, importsEveryDroppedDeckInOrder)
{
    const QList<QUrl> files { QUrl::fromLocalFile(deckFile(u"First.pptx"_s)),
        QUrl::fromLocalFile(file(u"notes.txt"_s, "text")),
        QUrl(u"https://example.org/Remote.pptx"_s),
        QUrl::fromLocalFile(deckFile(u"Second.PPTX"_s)) };
    EXPECT_TRUE(imports.canTake(files));

    imports.importFiles(files);
    finishReading();

    EXPECT_EQ(titles(), QStringList({ u"Second"_s, u"First"_s, u"Old"_s }));
    EXPECT_EQ(imports.alertTitle(), u"Not a presentation"_s);
}

TEST_F(DeckImportsTest, saysWhichFilesAreNoDecks)
{
    EXPECT_FALSE(imports.canTake({}));
    EXPECT_FALSE(imports.canTake({ QUrl(u"https://example.org/Remote.pptx"_s) }));
    const QList<QUrl> files { QUrl::fromLocalFile(u"/tmp/a.txt"_s),
        QUrl::fromLocalFile(u"/tmp/pptx"_s) };
    EXPECT_TRUE(imports.canTake(files));

    imports.importFiles(files);

    EXPECT_EQ(imports.alertTitle(), u"Not a presentation"_s);
    EXPECT_EQ(imports.alertText(),
        u"Orvello imports speaker notes from presentations (.pptx, .odp). It cannot read a.txt, pptx."_s);
    EXPECT_EQ(titles(), QStringList { u"Old"_s });
}

TEST_F(DeckImportsTest, showsTheAlertsOfSeveralFilesOneAfterTheOther)
{
    const QSignalSpy alertChanged(&imports, &DeckImports::alertChanged);

    imports.importFiles(
        { QUrl::fromLocalFile(brokenFile()), QUrl::fromLocalFile(silentDeckFile()) });
    finishReading();

    EXPECT_EQ(imports.alertTitle(), u"Import failed"_s);
    imports.dismissAlert();
    EXPECT_EQ(imports.alertTitle(), u"No speaker notes"_s);
    imports.dismissAlert();
    EXPECT_FALSE(imports.isShowingAlert());
    EXPECT_EQ(imports.alertTitle(), QString());
    EXPECT_EQ(alertChanged.count(), 3);
    imports.dismissAlert();
    EXPECT_EQ(alertChanged.count(), 3);
}

TEST_F(DeckImportsTest, showsAnAlertWithoutAMessageAsAnUnknownError)
{
    imports.showAlert(u"Import failed"_s, std::nullopt);

    expectAlert(u"Import failed"_s, u"Unknown error"_s);
}

class KnownFileTest : public DeckImportsTest {
protected:
    KnownFileTest()
    {
        choose(talk);
        script = *services.library.activeScriptID();
        services.library.setActiveScriptID(services.library.scripts().last().id);
        QFile::remove(talk);
        EXPECT_EQ(
            file(u"Talk.pptx"_s, DeckBuilder().slide("Intro", "Hello everybody").build()), talk);
        imports.importFiles({ QUrl::fromLocalFile(talk) });
    }

    QString talk = deckFile(u"Talk.pptx"_s);
    QUuid script;
};

TEST_F(KnownFileTest, isAskedAbout)
{
    EXPECT_EQ(imports.question(),
        u"The notes of “Talk.pptx” are among your scripts already. Update them, or add them once "
        "more?"_s);
    EXPECT_EQ(titles(), QStringList({ u"Talk"_s, u"Old"_s }));
}

TEST_F(KnownFileTest, updatesItsScript)
{
    imports.updateKnown();
    EXPECT_EQ(imports.question(), QString());
    finishReading();

    EXPECT_EQ(titles(), QStringList({ u"Talk"_s, u"Old"_s }));
    EXPECT_EQ(services.library.activeScript()->id, script);
    EXPECT_EQ(services.library.activeScript()->slides->first().notes, u"Hello everybody"_s);
    EXPECT_FALSE(imports.isShowingAlert());
}

TEST_F(KnownFileTest, isAddedOnceMore)
{
    imports.addOnceMore();
    finishReading();

    EXPECT_EQ(titles(), QStringList({ u"Talk"_s, u"Talk"_s, u"Old"_s }));
    EXPECT_EQ(services.library.scripts()[0].slides->first().notes, u"Hello everybody"_s);
    EXPECT_EQ(services.library.scripts()[1].slides->first().notes, u"Hello all"_s);
}

TEST_F(KnownFileTest, isLeftAlone)
{
    imports.importFiles({ QUrl::fromLocalFile(talk) });
    imports.dismissQuestion();
    EXPECT_NE(imports.question(), QString()); // About the second time.
    imports.dismissQuestion();
    imports.dismissQuestion();
    finishReading();

    EXPECT_EQ(imports.question(), QString());
    EXPECT_EQ(services.library.scripts().first().slides->first().notes, u"Hello all"_s);
}

TEST_F(KnownFileTest, saysWhyItCannotBeUpdated)
{
    QFile::remove(talk);
    imports.updateKnown();
    finishReading();

    expectAlert(u"Import failed"_s, u"The file could not be opened as a PowerPoint package."_s);
}

TEST_F(KnownFileTest, isAddedWhereItsScriptIsGoneByNow)
{
    services.library.remove(script);
    imports.updateKnown();
    finishReading();

    EXPECT_EQ(titles(), QStringList({ u"Talk"_s, u"Old"_s }));
}

} // namespace
} // namespace Orvello
