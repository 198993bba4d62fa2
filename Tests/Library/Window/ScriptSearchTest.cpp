#include "Orvello/Library/Window/ScriptSearch.h"

#include "Orvello/Library/Window/ScriptListModel.h"
#include "Tests/Support/LibraryServices.h"

#include <QSignalSpy>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;

class ScriptSearchTest : public ::testing::Test {
protected:
    QStringList titles() const
    {
        QStringList list;
        for (int row = 0; row < search.rowCount(); ++row)
            list.append(search.index(row, 0).data(ScriptListModel::TitleRole).toString());
        return list;
    }
    QString active() const
    {
        const int row = search.activeRow();
        return row < 0 ? u"(none)"_s
                       : search.index(row, 0).data(ScriptListModel::TitleRole).toString();
    }

    Testing::LibraryServices services { { Testing::LibraryServices::script(
                                              u"Opening"_s, u"Good morning"_s),
        Testing::LibraryServices::script(u"Budget"_s, u"Numbers for the OPENING year"_s),
        Testing::LibraryServices::script(u"Closing"_s, u"Good night"_s) } };
    ScriptListModel scripts { services.library };
    ScriptSearch search { services.library, scripts };
};

TEST_F(ScriptSearchTest, showsAllScriptsWithoutAText)
{
    EXPECT_EQ(titles(), (QStringList { u"Opening"_s, u"Budget"_s, u"Closing"_s }));
}

TEST_F(ScriptSearchTest, findsTitlesAndTextsInEitherCase)
{
    search.setText(u"opening"_s);
    EXPECT_EQ(titles(), (QStringList { u"Opening"_s, u"Budget"_s }));
    search.setText(u"GOOD"_s);
    EXPECT_EQ(titles(), (QStringList { u"Opening"_s, u"Closing"_s }));
    search.setText(u"nothing has this"_s);
    EXPECT_EQ(titles(), QStringList());
    search.setText({});
    EXPECT_EQ(search.rowCount(), 3);
}

TEST_F(ScriptSearchTest, findsWhateverTheTextContains)
{
    const QStringList texts { u"Straße nach Ägypten, ÇA VA ΣΟΦΟΣ"_s, u"x"_s, u"aab"_s, u"😀 smile"_s,
        {} };
    QList<Script> list;
    for (const QString& text : texts)
        list.append(Testing::LibraryServices::script(u"#"_s, text));
    Testing::LibraryServices many { list };
    ScriptListModel rows { many.library };
    ScriptSearch every { many.library, rows };

    for (const QString& sought : { u"STRAß"_s, u"ägyp"_s, u"ça va"_s, u"σοφος"_s, u"X"_s, u"AB"_s,
             u"ab "_s, u"aabb"_s, u"😀 S"_s, u"smile"_s, u"SMILES"_s, u", ç"_s }) {
        int expected = 0;
        for (const QString& text : texts)
            expected += text.contains(sought, Qt::CaseInsensitive) ? 1 : 0;
        every.setText(sought);
        EXPECT_EQ(every.rowCount(), expected) << sought.toStdString();
    }
}

TEST_F(ScriptSearchTest, activatesAmongWhatItFound)
{
    services.library.setActiveScriptID(services.library.scripts()[1].id);
    search.setText(u"good"_s);
    EXPECT_EQ(active(), u"(none)"_s);
    const QSignalSpy activeRowChanged(&search, &ScriptSearch::activeRowChanged);

    search.activate(1);
    EXPECT_EQ(services.library.activeScript()->title, u"Closing"_s);
    EXPECT_EQ(search.activeRow(), 1);
    EXPECT_EQ(activeRowChanged.count(), 1);
    search.activate(5);
    EXPECT_EQ(search.activeRow(), 1);
    search.activate(-5);
    EXPECT_EQ(active(), u"Opening"_s);

    search.setText({});
    EXPECT_EQ(active(), u"Opening"_s);
}

TEST_F(ScriptSearchTest, movesScriptsOnlyInTheWholeList)
{
    search.move(0, 2);
    EXPECT_EQ(titles(), (QStringList { u"Budget"_s, u"Closing"_s, u"Opening"_s }));
    EXPECT_EQ(services.library.scripts().last().title, u"Opening"_s);
    search.move(2, 1);
    EXPECT_EQ(titles(), (QStringList { u"Budget"_s, u"Opening"_s, u"Closing"_s }));

    search.setText(u"good"_s);
    search.move(0, 1);
    EXPECT_EQ(services.library.scripts()[1].title, u"Opening"_s);
}

TEST_F(ScriptSearchTest, keepsAScriptInSightWhileItIsEdited)
{
    services.library.setActiveScriptID(services.library.scripts()[0].id);
    search.setText(u"good"_s);
    ASSERT_EQ(search.rowCount(), 2);

    services.library.editActive(0, 4, u"Fine"_s);

    EXPECT_EQ(titles(), (QStringList { u"Opening"_s, u"Closing"_s }));
}

TEST_F(ScriptSearchTest, losesAScriptThatIsDeleted)
{
    search.setText(u"good"_s);
    services.library.remove(services.library.scripts()[0].id);

    EXPECT_EQ(titles(), QStringList { u"Closing"_s });
}

} // namespace
} // namespace Orvello
