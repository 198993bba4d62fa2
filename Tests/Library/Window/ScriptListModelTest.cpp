#include "Orvello/Library/Window/ScriptListModel.h"

#include "Tests/Support/LibraryServices.h"

#include <QAbstractItemModelTester>
#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using Testing::LibraryServices;

class ScriptListModelTest : public ::testing::Test {
protected:
    QVariant shown(int row, ScriptListModel::Role role) const
    {
        return model.data(model.index(row), role);
    }
    QStringList titles() const
    {
        QStringList titles;
        for (int row = 0; row < model.rowCount(); ++row)
            titles.append(shown(row, ScriptListModel::TitleRole).toString());
        return titles;
    }

    LibraryServices services { { LibraryServices::script(u"One"_s, u"1"_s),
        LibraryServices::deck(u"Two"_s, u"Keynote"_s, { { 1, {}, u"Hi"_s }, { 2, {}, {} } }),
        LibraryServices::script(u"Three"_s, u"3"_s) } };
    LibraryStore& library = services.library;
    ScriptListModel model { library };
    // It checks every signal against what it announces.
    QAbstractItemModelTester tester { &model,
        QAbstractItemModelTester::FailureReportingMode::Fatal };
    QSignalSpy inserted { &model, &QAbstractItemModel::rowsInserted };
    QSignalSpy removed { &model, &QAbstractItemModel::rowsRemoved };
    QSignalSpy changed { &model, &QAbstractItemModel::dataChanged };
    QSignalSpy activeRowChanged { &model, &ScriptListModel::activeRowChanged };
};

TEST_F(ScriptListModelTest, listsTheScriptsInTheOrderOfTheLibrary)
{
    EXPECT_EQ(titles(), QStringList({ u"One"_s, u"Two"_s, u"Three"_s }));
    EXPECT_EQ(model.activeRow(), 0);
}

TEST_F(ScriptListModelTest, showsHowManySlidesADeckHas)
{
    EXPECT_FALSE(shown(0, ScriptListModel::IsDeckRole).toBool());
    EXPECT_EQ(shown(0, ScriptListModel::SlidesRole), QString());
    EXPECT_TRUE(shown(1, ScriptListModel::IsDeckRole).toBool());
    EXPECT_EQ(shown(1, ScriptListModel::SlidesRole), u"2 slides"_s);

    library.addDeck(u"Bare"_s, {}, u"Keynote"_s);
    EXPECT_EQ(shown(0, ScriptListModel::SlidesRole), u"0 slides"_s);
}

TEST_F(ScriptListModelTest, showsAScriptWithoutTitleAsUntitled)
{
    library.updateActive(QString(), {});

    EXPECT_EQ(shown(0, ScriptListModel::TitleRole), u"Untitled"_s);
    EXPECT_EQ(library.scripts().first().title, QString());
}

TEST_F(ScriptListModelTest, announcesOnlyTheRowWhoseTitleChanges)
{
    library.setActiveScriptID(library.scripts()[2].id);

    library.updateActive(u"Last"_s, {});

    ASSERT_EQ(changed.count(), 1);
    EXPECT_EQ(changed[0][0].toModelIndex().row(), 2);
    EXPECT_EQ(changed[0][1].toModelIndex().row(), 2);
    EXPECT_EQ(inserted.count() + removed.count(), 0);
}

TEST_F(ScriptListModelTest, announcesNothingWhenABodyChanges)
{
    library.updateActive({}, u"Another"_s);

    EXPECT_EQ(changed.count() + inserted.count() + removed.count(), 0);
}

TEST_F(ScriptListModelTest, announcesOnlyTheRowThatIsNew)
{
    library.addScript();

    ASSERT_EQ(inserted.count(), 1);
    EXPECT_EQ(inserted[0][1].toInt(), 0);
    EXPECT_EQ(inserted[0][2].toInt(), 0);
    EXPECT_EQ(removed.count() + changed.count(), 0);
    EXPECT_EQ(titles(), QStringList({ u"Untitled"_s, u"One"_s, u"Two"_s, u"Three"_s }));
    EXPECT_EQ(model.activeRow(), 0);
}

TEST_F(ScriptListModelTest, announcesOnlyTheRowThatIsGone)
{
    library.setActiveScriptID(library.scripts()[1].id);

    library.remove(library.scripts()[1].id);

    ASSERT_EQ(removed.count(), 1);
    EXPECT_EQ(removed[0][1].toInt(), 1);
    EXPECT_EQ(removed[0][2].toInt(), 1);
    EXPECT_EQ(inserted.count() + changed.count(), 0);
    EXPECT_EQ(titles(), QStringList({ u"One"_s, u"Three"_s }));
    EXPECT_EQ(model.activeRow(), 0);
}

TEST_F(ScriptListModelTest, removesEveryRowOfAnIdThatTheFileHasTwice)
{
    const Script twin = LibraryServices::script(u"Twin"_s, {});
    LibraryServices twins { { twin, LibraryServices::script(u"Between"_s, {}), twin } };
    ScriptListModel list(twins.library);
    const QAbstractItemModelTester check(
        &list, QAbstractItemModelTester::FailureReportingMode::Fatal);

    twins.library.remove(twin.id);

    EXPECT_EQ(list.rowCount(), 1);
    EXPECT_EQ(list.data(list.index(0), ScriptListModel::TitleRole), u"Between"_s);
}

TEST_F(ScriptListModelTest, makesTheScriptOfARowActive)
{
    model.activate(2);

    EXPECT_EQ(library.activeScriptID(), library.scripts()[2].id);
    EXPECT_EQ(model.activeRow(), 2);
    EXPECT_EQ(activeRowChanged.count(), 1);
}

TEST_F(ScriptListModelTest, staysInsideTheList)
{
    model.activate(99);
    EXPECT_EQ(model.activeRow(), 2);

    model.activate(-1);
    EXPECT_EQ(model.activeRow(), 0);
}

TEST_F(ScriptListModelTest, selectsNoRowForAnIdThatNamesNoScript)
{
    library.setActiveScriptID(QUuid::createUuid());

    EXPECT_EQ(model.activeRow(), -1);
}

TEST_F(ScriptListModelTest, followsTheActiveRowThroughInsertionsAndRemovals)
{
    model.activate(2);
    library.addDeck(u"Deck"_s, {}, u"Keynote"_s);
    EXPECT_EQ(model.activeRow(), 0);

    model.activate(3);
    library.remove(library.scripts()[0].id);
    EXPECT_EQ(model.activeRow(), 2);
}

TEST_F(ScriptListModelTest, isEmptyWithTheLibrary)
{
    while (!library.scripts().isEmpty())
        library.remove(library.scripts().first().id);

    EXPECT_EQ(model.rowCount(), 0);
    EXPECT_EQ(model.activeRow(), -1);
    model.activate(0);
    EXPECT_EQ(library.activeScriptID(), std::nullopt);
}

} // namespace
} // namespace Orvello
