#include "Orvello/Library/Import/DeckFileUpdates.h"

#include "Tests/Support/DeckBuilder.h"
#include "Tests/Support/LibraryServices.h"

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using State = DeckFileUpdates::State;
using Testing::DeckBuilder;

class DeckFileUpdatesTest : public ::testing::Test {
protected:
    DeckFileUpdatesTest()
    {
        write(DeckBuilder().slide("Intro", "Hello all").slide("End", "Thanks"));
        script = *services.library.importPptx(talk);
    }

    /// Each version is seen as another one, however fast they follow each other.
    void write(const QByteArray& bytes)
    {
        QFile file(talk);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
        file.flush();
        m_written = m_written.addSecs(10);
        file.setFileTime(m_written, QFileDevice::FileModificationTime);
    }
    void write(const DeckBuilder& deck) { write(deck.build()); }

    /// So many looks at the file, each with all that follows from it.
    void look(int times = 1)
    {
        for (int i = 0; i < times; ++i) {
            services.time.advance(2.0);
            settle();
        }
    }
    /// Files are looked at and read by another thread, one after the other.
    void settle()
    {
        for (int round = 0; round < 2; ++round) {
            bool isDone = false;
            services.files.look(talk, [&](const auto&) { isDone = true; });
            QElapsedTimer timer;
            for (timer.start(); !isDone;) {
                ASSERT_LT(timer.elapsed(), 60'000);
                QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
            }
        }
    }

    QString firstNotes() const { return services.library.activeScript()->slides->first().notes; }

    Testing::LibraryServices services;
    DeckFileUpdates& updates = services.updates;
    QString talk = services.folders.path + u"/talk.pptx"_s;
    QUuid script;

private:
    QDateTime m_written { QDate(2026, 3, 1), QTime(12, 0) };
};

TEST_F(DeckFileUpdatesTest, leavesADeckAloneWhoseFileIsTheSame)
{
    const QSignalSpy changes(&services.library, &LibraryStore::scriptsChanged);
    look(5);

    EXPECT_EQ(updates.state(), State::Watched);
    EXPECT_EQ(updates.path(), talk);
    EXPECT_EQ(changes.count(), 0);
}

TEST_F(DeckFileUpdatesTest, takesOverWhatWasSaved)
{
    look(2);
    write(DeckBuilder().slide("Intro", "Hello everybody").slide("End", "Thanks"));
    look(); // It may still be being written.
    EXPECT_EQ(firstNotes(), u"Hello all"_s);
    look();

    EXPECT_EQ(firstNotes(), u"Hello everybody"_s);
    EXPECT_EQ(updates.state(), State::Watched);
    EXPECT_EQ(services.library.scripts().size(), 2);
}

TEST_F(DeckFileUpdatesTest, takesOverWhatWasSavedWhileTheProgramWasNotRunning)
{
    write(DeckBuilder().slide("Intro", "Hello everybody").slide("End", "Thanks"));
    look(2);

    EXPECT_EQ(firstNotes(), u"Hello everybody"_s);
}

TEST_F(DeckFileUpdatesTest, asksBeforeNotesGetLost)
{
    write(DeckBuilder().slide("Intro", "Hello everybody").slide("End", ""));
    look(3);
    EXPECT_EQ(updates.state(), State::LosesNotes);
    EXPECT_EQ(updates.lostSlides(), QList<qint64>({ 2 }));
    EXPECT_EQ(firstNotes(), u"Hello all"_s);

    updates.update();
    settle();
    EXPECT_EQ(updates.state(), State::Current);
    EXPECT_EQ(firstNotes(), u"Hello everybody"_s);
    EXPECT_EQ(services.library.deletedScripts().size(), 1);
    look(2);
    EXPECT_EQ(updates.state(), State::Current);
}

TEST_F(DeckFileUpdatesTest, aLaterVersionWithTheNotesNeedsNoAnswer)
{
    write(DeckBuilder().slide("Intro", "Hello everybody"));
    look(2);
    ASSERT_EQ(updates.state(), State::LosesNotes);
    write(DeckBuilder().slide("Intro", "Hello everybody").slide("End", "Thanks a lot"));
    look(2);

    EXPECT_EQ(updates.state(), State::Watched);
    EXPECT_EQ(firstNotes(), u"Hello everybody"_s);
}

TEST_F(DeckFileUpdatesTest, saysThatTheFileIsGoneAndFindsItAgain)
{
    QFile::rename(talk, talk + u".away"_s);
    look();
    EXPECT_EQ(updates.state(), State::Watched); // Some programs take it away while they save.
    look();
    EXPECT_EQ(updates.state(), State::Missing);
    EXPECT_EQ(firstNotes(), u"Hello all"_s);

    QFile::rename(talk + u".away"_s, talk);
    look(2);
    EXPECT_EQ(updates.state(), State::Watched);
}

TEST_F(DeckFileUpdatesTest, leavesTheNotesWhereTheFileMakesNoSense)
{
    write(QByteArray("half a file"));
    look(2);
    EXPECT_EQ(updates.state(), State::Unreadable);
    EXPECT_EQ(updates.problem(), PptxImporter::ImportError::Unreadable);
    EXPECT_EQ(firstNotes(), u"Hello all"_s);

    write(DeckBuilder().slide("Intro", "Whole again").slide("End", "Thanks"));
    look(2);
    EXPECT_EQ(updates.state(), State::Watched);
    EXPECT_EQ(firstNotes(), u"Whole again"_s);
}

TEST_F(DeckFileUpdatesTest, watchesTheActiveScriptAlone)
{
    services.library.setActiveScriptID(services.library.scripts().last().id);
    EXPECT_EQ(updates.state(), State::NoDeck);
    EXPECT_EQ(updates.path(), QString());
    write(DeckBuilder().slide("Intro", "Hello everybody").slide("End", "Thanks"));
    look(3);
    EXPECT_EQ(services.library.scripts().first().slides->first().notes, u"Hello all"_s);

    services.library.setActiveScriptID(script);
    EXPECT_EQ(updates.state(), State::Watched);
    look(2);
    EXPECT_EQ(firstNotes(), u"Hello everybody"_s);
}

TEST_F(DeckFileUpdatesTest, asksForTheFileOfADeckWithoutOne)
{
    const QUuid live
        = services.library.addDeck(u"Live"_s, { { 1, u"Intro"_s, u"Hi"_s } }, u"Impress"_s);
    EXPECT_EQ(updates.state(), State::NoFile);
    updates.update();
    settle();
    EXPECT_EQ(firstNotes(), u"Hi"_s);

    updates.update(live, talk, [](auto) { FAIL(); });
    settle();
    EXPECT_EQ(updates.state(), State::Current);
    EXPECT_EQ(updates.path(), talk);
    EXPECT_EQ(firstNotes(), u"Hello all"_s);
}

TEST_F(DeckFileUpdatesTest, saysWhyAFileThatWasChosenIsNotTaken)
{
    std::optional<PptxImporter::ImportError> error;
    updates.update(script, services.folders.path + u"/nothing.pptx"_s,
        [&](PptxImporter::ImportError told) { error = told; });
    settle();

    EXPECT_EQ(error, PptxImporter::ImportError::Unreadable);
    EXPECT_EQ(updates.path(), talk);
    EXPECT_EQ(updates.state(), State::Watched);
}

TEST_F(DeckFileUpdatesTest, aDeckThatIsDeletedMeanwhileStaysDeleted)
{
    updates.update();
    services.library.remove(script);
    settle();

    EXPECT_EQ(services.library.scripts().size(), 1);
    EXPECT_EQ(services.library.deletedScripts().size(), 1);
}

} // namespace
} // namespace Orvello
