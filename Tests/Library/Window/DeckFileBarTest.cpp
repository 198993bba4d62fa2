#include "Orvello/Library/Window/DeckFileBar.h"

#include "Orvello/Library/Import/DeckFileUpdates.h"
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

class DeckFileBarTest : public ::testing::Test {
protected:
    DeckFileBarTest() { write(DeckBuilder().slide("Intro", "Hello all").build()); }

    void write(const QByteArray& bytes)
    {
        QFile file(talk);
        ASSERT_TRUE(file.open(QIODevice::WriteOnly));
        file.write(bytes);
    }

    void look()
    {
        services.time.advance(2.0);
        settle();
    }
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

    Testing::LibraryServices services;
    DeckImports imports { services.ofWindow() };
    DeckFileBar bar { services.ofWindow(), imports };
    QString talk = services.folders.path + u"/talk.pptx"_s;
};

TEST_F(DeckFileBarTest, hasNothingToOfferForATypedScript)
{
    EXPECT_EQ(bar.action(), QString());
    EXPECT_EQ(bar.text(), QString());
    bar.update();
    EXPECT_EQ(services.openPanel.timesShown, 0);
}

TEST_F(DeckFileBarTest, updatesTheNotesFromTheirFile)
{
    const QSignalSpy changes(&bar, &DeckFileBar::changed);
    ASSERT_TRUE(services.library.importPptx(talk));
    EXPECT_EQ(bar.action(), u"Update"_s);
    EXPECT_EQ(bar.path(), talk);
    EXPECT_EQ(bar.text(), QString());

    bar.update();
    settle();
    EXPECT_EQ(bar.text(), u"Up to date with “talk.pptx”."_s);
    EXPECT_GT(changes.count(), 1);
}

TEST_F(DeckFileBarTest, asksForAFileWhereThereIsNone)
{
    services.library.addDeck(u"Live"_s, { { 1, u"Intro"_s, u"Hi"_s } }, u"Keynote"_s);
    EXPECT_EQ(bar.action(), u"Update from File…"_s);

    services.openPanel.choice = std::nullopt;
    bar.update();
    settle();
    EXPECT_EQ(services.library.activeScript()->slides->first().notes, u"Hi"_s);

    services.openPanel.choice = talk;
    bar.update();
    settle();
    EXPECT_EQ(services.library.activeScript()->slides->first().notes, u"Hello all"_s);
    EXPECT_EQ(bar.action(), u"Update"_s);
}

TEST_F(DeckFileBarTest, saysWhyTheChosenFileIsNotTaken)
{
    services.library.addDeck(u"Live"_s, { { 1, u"Intro"_s, u"Hi"_s } }, u"Keynote"_s);
    write("no package");
    services.openPanel.choice = talk;
    bar.update();
    settle();

    EXPECT_EQ(imports.alertTitle(), u"Import failed"_s);
    EXPECT_EQ(bar.action(), u"Update from File…"_s);
}

TEST_F(DeckFileBarTest, saysWhatIsTheMatterWithTheFile)
{
    ASSERT_TRUE(services.library.importPptx(talk));
    write(DeckBuilder().slide("Introduction", "").build());
    look();
    look();
    EXPECT_EQ(bar.text(),
        u"“talk.pptx” has changed: the notes of slides 1 are no longer in it. An update keeps this "
        "version among the deleted scripts."_s);

    write("no package");
    look();
    look();
    EXPECT_EQ(bar.text(),
        u"“talk.pptx” has changed, but cannot be read: The file could not be opened as a "
        "PowerPoint package."_s);

    QFile::remove(talk);
    look();
    look();
    EXPECT_EQ(bar.text(), u"“talk.pptx” is not there any more. The notes stay as they were."_s);
    EXPECT_EQ(bar.action(), u"Update from File…"_s);
}

} // namespace
} // namespace Orvello
