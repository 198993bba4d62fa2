#include "Orvello/Library/Window/OpenScripts.h"

#include "Tests/Support/EventLoop.h"
#include "Tests/Support/LibraryServices.h"

#include <QAbstractItemModelTester>
#include <QPointer>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickTextDocument>
#include <QSignalSpy>
#include <QTextCursor>

#include <gtest/gtest.h>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using Testing::LibraryServices;

/// A text field as the window has it, over one script.
class TextField {
public:
    explicit TextField(ScriptEditor& editor)
    {
        QQmlComponent component(&m_engine);
        component.setData("import QtQuick\nTextEdit { textFormat: TextEdit.PlainText }", {});
        m_item.reset(component.create());
        m_item->setProperty("text", editor.bodyInField());
        auto* const document = m_item->property("textDocument").value<QQuickTextDocument*>();
        editor.follow(document);
        m_document = document->textDocument();
    }

    QTextDocument& document() { return *m_document; }

    /// Replaces a part of the text as one edit of the user's.
    void replace(int begin, int end, const QString& text)
    {
        QTextCursor cursor(m_document);
        cursor.setPosition(begin);
        cursor.setPosition(end, QTextCursor::KeepAnchor);
        cursor.insertText(text);
    }

private:
    QQmlEngine m_engine;
    std::unique_ptr<QObject> m_item;
    QTextDocument* m_document = nullptr;
};

class OpenScriptsTest : public ::testing::Test {
protected:
    static QList<Script> threeScripts()
    {
        return { LibraryServices::script(u"One"_s, u"To be or not"_s),
            LibraryServices::deck(u"Two"_s, u"Two.pptx"_s, { { 1, u"Intro"_s, u"Hello all"_s } }),
            LibraryServices::script(u"Three"_s, u"3"_s) };
    }

    void activate(qsizetype row) { library.setActiveScriptID(library.scripts()[row].id); }
    QString storedBody() const { return LibraryFile(services.folders).load().first().body; }
    ScriptEditor& active() const { return *open.active(); }

    LibraryServices services { threeScripts() };
    LibraryStore& library = services.library;
    OpenScripts open { library };
    QAbstractItemModelTester tester { &open,
        QAbstractItemModelTester::FailureReportingMode::Fatal };
};

TEST_F(OpenScriptsTest, opensTheActiveScript)
{
    EXPECT_EQ(active().title(), u"One"_s);
    EXPECT_EQ(active().body(), u"To be or not"_s);
    EXPECT_EQ(active().wordCountText(), u"4 words"_s);
    EXPECT_TRUE(active().isEditable());
    EXPECT_FALSE(active().isDeck());
}

TEST_F(OpenScriptsTest, followsTheActiveScript)
{
    const QSignalSpy activeChanged(&open, &OpenScripts::activeChanged);

    activate(2);

    EXPECT_EQ(active().title(), u"Three"_s);
    EXPECT_EQ(activeChanged.count(), 1);
    EXPECT_EQ(open.data(open.index(2), OpenScripts::EditorRole).value<ScriptEditor*>(), &active());
}

TEST_F(OpenScriptsTest, showsADeckWithANotice)
{
    activate(1);

    EXPECT_TRUE(active().isDeck());
    EXPECT_EQ(active().deckNotice(),
        u"Imported deck (Two.pptx) — notes are read-only here; edit them in the presentation and "
        "re-import."_s);
    EXPECT_EQ(active().body(), u"— Slide 1 · Intro —\nHello all"_s);
}

TEST_F(OpenScriptsTest, showsADeckWithoutASourceWithEmptyBrackets)
{
    Script deck = LibraryServices::deck(u"Deck"_s, {}, {});
    deck.deckSource.reset();
    LibraryServices other { { deck } };

    EXPECT_EQ(OpenScripts(other.library).active()->deckNotice(),
        u"Imported deck () — notes are read-only here; edit them in the presentation and "
        "re-import."_s);
}

TEST_F(OpenScriptsTest, editsTheTitleOfADeckToo)
{
    activate(1);

    active().setTitle(u"Second"_s);

    EXPECT_EQ(library.scripts()[1].title, u"Second"_s);
    EXPECT_EQ(active().title(), u"Second"_s);
}

TEST_F(OpenScriptsTest, keepsAClearedTitleEmpty)
{
    active().setTitle(QString());

    EXPECT_EQ(active().title(), QString());
    EXPECT_EQ(library.scripts().first().title, QString());
}

TEST_F(OpenScriptsTest, savesNothingForATitleThatIsTheSame)
{
    const QSignalSpy scriptsChanged(&library, &LibraryStore::scriptsChanged);

    active().setTitle(u"One"_s);

    EXPECT_EQ(scriptsChanged.count(), 0);
}

TEST_F(OpenScriptsTest, storesEachEditAtOnce)
{
    TextField field(active());

    field.replace(2, 2, u"!"_s);
    EXPECT_EQ(storedBody(), u"To! be or not"_s);

    field.replace(0, 13, u"Hi\nall  of you\n"_s);
    EXPECT_EQ(storedBody(), u"Hi\nall  of you\n"_s);
    EXPECT_EQ(active().wordCountText(), u"4 words"_s);

    field.replace(0, 15, {});
    EXPECT_EQ(storedBody(), QString());
    EXPECT_EQ(active().wordCountText(), u"0 words"_s);
}

TEST_F(OpenScriptsTest, countsTheWordsOfEveryEditLikeThoseOfTheWholeText)
{
    TextField field(active());
    const QStringList pieces { u"x"_s, u" "_s, u"\n"_s, u" y z "_s, u"a\n\nb"_s, {} };
    int length = static_cast<int>(active().body().size());

    for (int step = 0; step < 400; ++step) {
        const int begin = (step * 7919) % (length + 1);
        const int end = std::min(length, begin + step % 4);
        const QString& piece = pieces[step % pieces.size()];
        field.replace(begin, end, piece);
        length += static_cast<int>(piece.size()) - (end - begin);

        ASSERT_EQ(active().body(), field.document().toPlainText()) << step;
        ASSERT_EQ(active().wordCountText(),
            u"%1 words"_s.arg(active().body().simplified().split(u' ', Qt::SkipEmptyParts).size()))
            << step;
    }
    EXPECT_EQ(library.activeScript()->body, active().body());
}

TEST_F(OpenScriptsTest, storesWhatUndoAndRedoMake)
{
    TextField field(active());
    field.replace(0, 2, u"Not to"_s);

    field.document().undo();
    EXPECT_EQ(storedBody(), u"To be or not"_s);

    field.document().redo();
    EXPECT_EQ(storedBody(), u"Not to be or not"_s);
}

TEST_F(OpenScriptsTest, savesNothingForShowingAScript)
{
    const QSignalSpy scriptsChanged(&library, &LibraryStore::scriptsChanged);

    TextField field(active());
    QTextCursor cursor(&field.document());
    cursor.select(QTextCursor::Document);
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    cursor.mergeCharFormat(bold);

    EXPECT_EQ(scriptsChanged.count(), 0);
}

TEST_F(OpenScriptsTest, keepsCharactersThatADocumentHasOthersFor)
{
    LibraryServices other { { LibraryServices::script(
        u"Odd"_s, u"non\u00a0breaking\u2028line\r\nWindows\rMac"_s) } };
    OpenScripts scripts(other.library);
    TextField field(*scripts.active());
    const QSignalSpy scriptsChanged(&other.library, &LibraryStore::scriptsChanged);
    EXPECT_EQ(scripts.active()->wordCountText(), u"5 words"_s);

    field.replace(0, 0, u"A "_s);
    field.replace(27, 27, u"!"_s);

    EXPECT_EQ(
        other.library.activeScript()->body, u"A non\u00a0breaking\u2028line\nWindows!\rMac"_s);
    EXPECT_EQ(scriptsChanged.count(), 2);
}

TEST_F(OpenScriptsTest, breaksLinesWhereTheCardDoesAndKeepsWhatBreaksThem)
{
    const QString body = u"1\v2\f3\u00854\u20285\u20296\r7\n8"_s;
    LibraryServices other { { LibraryServices::script(u"Odd"_s, body) } };
    OpenScripts scripts(other.library);
    TextField field(*scripts.active());
    EXPECT_EQ(field.document().toPlainText(), u"1\n2\n3\n4\n5\n6\n7\n8"_s);
    EXPECT_EQ(field.document().blockCount(), 8);

    field.replace(15, 15, u"!"_s);
    field.replace(0, 0, u"!"_s);
    QTextCursor all(&field.document());
    all.select(QTextCursor::Document);
    QTextCharFormat bold;
    bold.setFontWeight(QFont::Bold);
    all.mergeCharFormat(bold);
    EXPECT_EQ(other.library.activeScript()->body, u"!"_s + body + u"!"_s);

    field.replace(2, 5, u"\n2"_s); // The second of three breaks goes.
    EXPECT_EQ(other.library.activeScript()->body, u"!1\v23\u00854\u20285\u20296\r7\n8!"_s);

    other.library.editActive(3, 1, u"\f\f"_s);
    EXPECT_EQ(field.document().toPlainText(), u"!1\n\n\n3\n4\n5\n6\n7\n8!"_s);
    EXPECT_EQ(other.library.activeScript()->body, scripts.active()->body());
}

TEST_F(OpenScriptsTest, breaksLinesThatAreInsertedWhereTheCardDoes)
{
    TextField field(active());
    QTextCursor cursor(&field.document());
    cursor.setPosition(3);

    field.replace(2, 3, u"\vbe\u2028\u2028or\f"_s);
    EXPECT_EQ(field.document().toPlainText(), u"To\nbe\n\nor\nbe or not"_s);
    EXPECT_EQ(field.document().blockCount(), 5);
    EXPECT_EQ(storedBody(), u"To\vbe\u2028\u2028or\fbe or not"_s);
    EXPECT_EQ(cursor.position(), 10);

    field.document().undo();
    EXPECT_EQ(field.document().toPlainText(), u"To be or not"_s);
    EXPECT_EQ(storedBody(), u"To be or not"_s);

    field.document().redo();
    EXPECT_EQ(field.document().toPlainText(), u"To\nbe\n\nor\nbe or not"_s);
    EXPECT_EQ(storedBody(), active().body());
}

TEST_F(OpenScriptsTest, knowsWhereALineBeginsInTheLibrary)
{
    const QString body = u"One two\r\nthree\vfour\r\nfive"_s;
    LibraryServices other { { LibraryServices::script(u"Odd"_s, body) } };
    OpenScripts scripts(other.library);
    EXPECT_EQ(scripts.active()->startOfLine(body, 5), 0) << "nobody has seen it yet";
    TextField field(*scripts.active());
    field.document().setTextWidth(10'000); // Lays it out.

    EXPECT_EQ(scripts.active()->startOfLine(body, 4), 0);
    EXPECT_EQ(scripts.active()->startOfLine(body, 10), 9);
    EXPECT_EQ(scripts.active()->startOfLine(body, 14), 15);
    EXPECT_EQ(scripts.active()->startOfLine(body, 23), 21);

    field.replace(0, 0, u"!"_s); // The library has plain line feeds from here on.
    EXPECT_EQ(scripts.active()->startOfLine(other.library.activeScript()->body, 24), 20);
}

TEST_F(OpenScriptsTest, showsWhatAnotherChangesAndLeavesTheCursorAlone)
{
    TextField field(active());
    QTextCursor cursor(&field.document());
    cursor.setPosition(5);
    const QSignalSpy scriptsChanged(&library, &LibraryStore::scriptsChanged);

    library.editActive(9, 0, u"rather "_s);

    EXPECT_EQ(active().body(), u"To be or rather not"_s);
    EXPECT_EQ(active().wordCountText(), u"5 words"_s);
    EXPECT_EQ(field.document().toPlainText(), u"To be or rather not"_s);
    EXPECT_EQ(cursor.position(), 5);
    EXPECT_EQ(scriptsChanged.count(), 1);
    EXPECT_EQ(storedBody(), u"To be or rather not"_s);
}

TEST_F(OpenScriptsTest, showsATitleAndABodyThatAnotherReplaces)
{
    TextField field(active());

    library.updateActive(u"Uno"_s, u"One\r\ntwo"_s);

    EXPECT_EQ(active().title(), u"Uno"_s);
    EXPECT_EQ(active().wordCountText(), u"2 words"_s);
    EXPECT_EQ(field.document().toPlainText(), u"One\ntwo"_s);
    EXPECT_EQ(storedBody(), u"One\r\ntwo"_s);

    library.editActive(8, 0, u"!"_s);
    EXPECT_EQ(field.document().toPlainText(), u"One\ntwo!"_s);

    field.replace(8, 8, u"!"_s);
    EXPECT_EQ(storedBody(), u"One\ntwo!!"_s);
}

TEST_F(OpenScriptsTest, tellsTheLibraryWhereTheUserTyped)
{
    TextField field(active());
    QList<LibraryChange> changes;
    QObject::connect(&library, &LibraryStore::scriptsChanged, &library,
        [&](const LibraryChange& change) { changes.append(change); });

    field.replace(5, 5, u" "_s);
    field.replace(3, 5, u"say"_s);

    ASSERT_EQ(changes.size(), 2);
    EXPECT_EQ(changes[0].body, (TextEdit { 5, 0, 1 }));
    EXPECT_EQ(changes[1].body, (TextEdit { 3, 2, 3 }));
    EXPECT_EQ(storedBody(), u"To say  or not"_s);
}

TEST_F(OpenScriptsTest, keepsScriptsOpenWithWhatTheyCanUndo)
{
    ScriptEditor* const first = open.active();
    TextField field(*first);
    field.replace(0, 2, u"Not to"_s);

    activate(2);
    activate(0);

    EXPECT_EQ(open.active(), first);
    field.document().undo();
    EXPECT_EQ(library.activeScript()->body, u"To be or not"_s);
}

TEST_F(OpenScriptsTest, neverStoresAnEditInAnotherScript)
{
    TextField field(active());
    activate(2);

    field.replace(10, 12, u"w"_s);
    field.replace(0, 2, u"Late"_s);
    EXPECT_EQ(library.scripts()[0].body, u"To be or not"_s);
    EXPECT_EQ(library.scripts()[2].body, u"3"_s);

    activate(0);
    EXPECT_EQ(library.scripts()[0].body, u"Late be or nw"_s);
    EXPECT_EQ(storedBody(), u"Late be or nw"_s);
}

TEST_F(OpenScriptsTest, neverStoresAnEditInAnotherScriptWhileTheTwoChangePlaces)
{
    ScriptEditor& first = active();
    TextField field(first);
    // An input method finishes a word when the text field loses the keyboard.
    const auto finishWord = [&] {
        field.replace(0, 2, u"Late"_s);
        first.setTitle(u"Late"_s);
    };
    QObject::connect(
        &open, &OpenScripts::activeChanged, &open, finishWord, Qt::SingleShotConnection);

    activate(2);
    EXPECT_EQ(library.scripts()[2].body, u"3"_s);
    EXPECT_EQ(library.scripts()[2].title, u"Three"_s);
    EXPECT_EQ(library.scripts()[0].body, u"To be or not"_s);

    activate(0);
    EXPECT_EQ(library.scripts()[0].body, u"Late be or not"_s);
}

TEST_F(OpenScriptsTest, closesTheScriptThatWasNotSeenForLongest)
{
    const QUuid one = library.scripts()[0].id;
    const QPointer first = open.active();
    const QPointer second = [this] {
        activate(1);
        return open.active();
    }();
    library.setActiveScriptID(one);
    for (std::size_t i = 2; i < OpenScripts::maximumScripts; ++i)
        library.addScript();
    library.setActiveScriptID(one);
    Testing::drainEvents();

    EXPECT_EQ(open.rowCount(), 1 + OpenScripts::maximumScripts);
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(open.active(), first);
    EXPECT_NE(second, nullptr);

    library.addScript();
    Testing::drainEvents();

    EXPECT_EQ(open.rowCount(), 1 + OpenScripts::maximumScripts);
    EXPECT_NE(first, nullptr);
    EXPECT_EQ(second, nullptr);
}

TEST_F(OpenScriptsTest, closesOthersForTheSakeOfALongOne)
{
    const QPointer first = open.active();
    library.addScript();
    library.updateActive({}, QString(OpenScripts::maximumCharacters + 1, u'x'));
    EXPECT_EQ(open.rowCount(), 3);

    activate(2);
    Testing::drainEvents();

    EXPECT_EQ(open.rowCount(), 2);
    EXPECT_EQ(first, nullptr);
    EXPECT_EQ(active().title(), u"Two"_s);
}

TEST_F(OpenScriptsTest, closesARemovedScript)
{
    const QPointer first = open.active();

    library.remove(library.scripts()[0].id);
    Testing::drainEvents();

    EXPECT_EQ(first, nullptr);
    EXPECT_EQ(active().title(), u"Two"_s);
    EXPECT_EQ(open.rowCount(), 2);
}

TEST_F(OpenScriptsTest, closesEveryScriptOfAnIdThatTheFileHasTwice)
{
    const Script twin = LibraryServices::script(u"Twin"_s, {});
    LibraryServices twins { { twin, twin, LibraryServices::script(u"Other"_s, {}) } };
    twins.library.setActiveScriptID(std::nullopt);
    OpenScripts scripts(twins.library);
    const QAbstractItemModelTester check(
        &scripts, QAbstractItemModelTester::FailureReportingMode::Fatal);

    QObject::connect(
        &scripts, &OpenScripts::rowsAboutToBeRemoved, &scripts, [&](const QModelIndex&, int row) {
            EXPECT_NE(
                scripts.data(scripts.index(row), OpenScripts::EditorRole).value<ScriptEditor*>(),
                scripts.active());
        });

    twins.library.remove(twin.id);

    EXPECT_EQ(scripts.active()->title(), u"Other"_s);
    EXPECT_EQ(scripts.rowCount(), 2);
}

TEST_F(OpenScriptsTest, showsEmptyFieldsForAnEmptyLibrary)
{
    while (!library.scripts().isEmpty())
        library.remove(library.scripts().first().id);

    EXPECT_EQ(active().title(), QString());
    EXPECT_EQ(active().body(), QString());
    EXPECT_EQ(active().wordCountText(), u"0 words"_s);
    EXPECT_FALSE(active().isEditable());
    EXPECT_FALSE(active().isDeck());
    active().setTitle(u"Typed"_s);
    EXPECT_TRUE(library.scripts().isEmpty());
    EXPECT_EQ(active().title(), QString());
}

TEST_F(OpenScriptsTest, refusesEditsThatWouldReachNoScript)
{
    library.setActiveScriptID(QUuid::createUuid());

    EXPECT_EQ(active().title(), u"One"_s);
    EXPECT_FALSE(active().isEditable());
    active().setTitle(u"Typed"_s);
    EXPECT_EQ(active().title(), u"One"_s);

    activate(0);
    EXPECT_TRUE(active().isEditable());
}

TEST_F(OpenScriptsTest, editsTheFirstScriptWhenNoneIsActive)
{
    library.setActiveScriptID(std::nullopt);

    EXPECT_TRUE(active().isEditable());
    active().setTitle(u"Uno"_s);
    EXPECT_EQ(library.scripts()[0].title, u"Uno"_s);
}

TEST_F(OpenScriptsTest, doesNotTakeAScriptWithTheNullIdForNoScript)
{
    Script null = LibraryServices::script(u"Null"_s, u"Body"_s);
    null.id = QUuid();
    LibraryServices other { { null } };
    OpenScripts scripts(other.library);

    other.library.updateActive(u"Zero"_s, {});
    EXPECT_EQ(scripts.active()->title(), u"Zero"_s);
    other.library.remove(null.id);
    EXPECT_EQ(scripts.active()->title(), QString());
}

TEST_F(OpenScriptsTest, leavesTheCursorWhereItIsWhenADeckIsUpdated)
{
    const QUuid deck = services.library.scripts()[1].id;
    services.library.setActiveScriptID(deck);
    ScriptEditor& editor = active();
    TextField field(editor);
    QTextCursor cursor(&field.document());
    cursor.setPosition(static_cast<int>(editor.body().indexOf(u"all"_s)));
    const QSignalSpy notices(&editor, &ScriptEditor::deckNoticeChanged);

    services.library.updateDeck(deck, u"/talks/Two.pptx"_s,
        { { { 1, u"New"_s, u"Before"_s }, { 2, u"Intro"_s, u"Hello all"_s } }, {}, {} });

    EXPECT_EQ(field.document().toPlainText(), services.library.scripts()[1].body);
    EXPECT_EQ(editor.body(), services.library.scripts()[1].body);
    EXPECT_EQ(cursor.position(), editor.body().indexOf(u"all"_s));
    EXPECT_EQ(notices.count(), 0);
}

} // namespace
} // namespace Orvello
