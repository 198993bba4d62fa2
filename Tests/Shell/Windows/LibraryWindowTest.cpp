#include "Orvello/Shell/Windows/LibraryWindow.h"

#include "Tests/Support/EventLoop.h"
#include "Tests/Support/LibraryServices.h"
#include "Tests/Support/ViewItems.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QMimeData>
#include <QQuickItem>
#include <QScreen>
#include <QTest>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <optional>

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using Testing::LibraryServices;

/// The real window over the real library, with keys and clicks, on no screen.
class LibraryWindowTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        open({ LibraryServices::script(u"One"_s, u"First body"_s),
            LibraryServices::deck(u"Two"_s, u"Two.pptx"_s,
                { { 1, u"Intro"_s, u"Hello all"_s }, { 2, {}, u"Bye"_s } }),
            LibraryServices::script(u"Three"_s, u"Third body"_s) });
    }

    void open(const QList<Script>& scripts)
    {
        window.reset();
        services.emplace(scripts);
        window.emplace(services->ofWindow(), PanelSpace {},
            [this](qsizetype position) { starts.append(position); });
        window->bringToFront();
        ASSERT_TRUE(QTest::qWaitForWindowActive(&view()));
        settle();
    }

    /// Items are laid out when the window is polished, which waits for a frame.
    void settle()
    {
        Testing::drainEvents();
        view().grabWindow();
        Testing::drainEvents();
    }

    QQuickView& view() { return window->view(); }
    LibraryStore& library() { return services->library; }
    const Script& active() { return *library().activeScript(); }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&view(), key, modifiers);
        settle();
    }
    void type(const QString& text)
    {
        for (const QChar character : text)
            QTest::keyClick(&view(), character.toLatin1());
        settle();
    }

    QQuickItem* named(const QString& name)
    {
        return itemWhere(
            [&](const QQuickItem& item) { return Testing::accessibleName(item) == name; });
    }
    /// Decks are read on a thread.
    void expectSoon(const QString& text)
    {
        const auto isShown = [&] {
            settle();
            return showing(text) != nullptr;
        };
        EXPECT_TRUE(QTest::qWaitFor(isShown)) << text.toStdString();
    }
    QQuickItem* showing(const QString& text)
    {
        return itemWhere(
            [&](const QQuickItem& item) { return item.property("text").toString() == text; });
    }
    void click(QQuickItem* item)
    {
        ASSERT_NE(item, nullptr);
        Testing::click(view(), *item);
        settle();
    }

    QString titleField() { return named(u"Title"_s)->property("text").toString(); }
    QString bodyField()
    {
        QQuickItem* const body = named(active().slides ? u"Speaker notes"_s : u"Script text"_s);
        return body ? body->property("text").toString() : u"(none)"_s;
    }

    QList<qsizetype> starts; ///< Where the prompter was asked to begin.
    std::optional<LibraryServices> services;
    std::optional<LibraryWindow> window;

private:
    QQuickItem* itemWhere(const std::function<bool(const QQuickItem&)>& holds)
    {
        const QList<QQuickItem*> items = Testing::visibleItems(view());
        const auto item = std::ranges::find_if(items, [&](auto* each) { return holds(*each); });
        return item == items.end() ? nullptr : *item;
    }
};

TEST_F(LibraryWindowTest, beginsReadingAtTheLineOfTheCursor)
{
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(starts, QList<qsizetype>({ 0 }));

    library().updateActive({}, u"One\nTwo three\nFour"_s);
    QQuickItem* const body = named(u"Script text"_s);
    body->forceActiveFocus();
    press(Qt::Key_End, Qt::ControlModifier);
    press(Qt::Key_Up);
    press(Qt::Key_Return, Qt::ControlModifier);
    EXPECT_EQ(starts, QList<qsizetype>({ 0, 4 }));
    EXPECT_EQ(active().body, u"One\nTwo three\nFour"_s) << "the key writes nothing";

    const QPointF last = body->mapToScene(QPointF(30, 10 + 2.5 * 17));
    QTest::mouseClick(&view(), Qt::RightButton, {}, last.toPoint());
    QTest::qWait(50);
    settle();
    click(showing(u"Start Here"_s));
    EXPECT_EQ(starts, QList<qsizetype>({ 0, 4, 14 }));
}

TEST_F(LibraryWindowTest, hasItsTitleAndSize)
{
    EXPECT_EQ(view().title(), u"Scripts"_s);
    EXPECT_EQ(view().size(), QSize(720, 480));
    EXPECT_EQ(view().minimumSize(), QSize(660, 440));
}

TEST_F(LibraryWindowTest, comesUpInTheMiddleOfTheScreen)
{
    const QPoint middle = view().screen()->availableGeometry().center();
    EXPECT_LE((view().geometry().center() - middle).manhattanLength(), 2);
}

TEST_F(LibraryWindowTest, beginsWithTheListWhereReadingBegins)
{
    const auto places = [this] {
        return std::pair(Testing::placeInWindow(*named(u"Scripts"_s)).center().x(),
            Testing::placeInWindow(*named(u"Script text"_s)).center().x());
    };
    const auto [list, text] = places();
    EXPECT_LT(list, text);

    QGuiApplication::setLayoutDirection(Qt::RightToLeft);
    SetUp();
    const auto [mirroredList, mirroredText] = places();
    QGuiApplication::setLayoutDirection(Qt::LeftToRight);

    EXPECT_DOUBLE_EQ(mirroredList, view().width() - list);
    EXPECT_LT(mirroredText, mirroredList);
}

TEST_F(LibraryWindowTest, isHiddenWhenClosedAndComesBackAsItWas)
{
    view().resize(700, 500);
    view().setPosition(20, 70);
    settle();
    view().close();
    EXPECT_FALSE(view().isVisible());

    window->bringToFront();

    EXPECT_TRUE(view().isVisible());
    EXPECT_EQ(view().size(), QSize(700, 500));
    EXPECT_EQ(view().position(), QPoint(20, 70));
}

TEST_F(LibraryWindowTest, keepsTheSidebarAndTheEditorWithinTheirWidths)
{
    const QQuickItem* list = named(u"Scripts"_s);
    const auto editor = [this] { return named(u"Script text"_s); };
    EXPECT_NEAR(list->width(), 210, 6);

    view().resize(660, 440);
    settle();
    EXPECT_GE(list->width(), 174);
    EXPECT_GE(editor()->width(), 400);

    view().resize(1600, 900);
    settle();
    EXPECT_LE(list->width(), 280);
    EXPECT_GT(editor()->width(), 1300);
}

TEST_F(LibraryWindowTest, letsTheSidebarBeDraggedToItsBounds)
{
    const QQuickItem* list = named(u"Scripts"_s);
    const auto dragTo = [&](int x) {
        const int edge = qRound(list->width()) + 1;
        QTest::mousePress(&view(), Qt::LeftButton, {}, QPoint(edge, 200));
        for (int step = 1; step <= 10; ++step)
            QTest::mouseMove(&view(), QPoint(edge + (x - edge) * step / 10, 200));
        QTest::mouseRelease(&view(), Qt::LeftButton, {}, QPoint(x, 200));
        settle();
    };
    EXPECT_EQ(list->width(), 210);

    dragTo(20);
    EXPECT_EQ(list->width(), 180);
    dragTo(700);
    EXPECT_EQ(list->width(), 280);
}

TEST_F(LibraryWindowTest, sticksOutNowhereAtItsSmallestSize)
{
    const int edge = qRound(named(u"Scripts"_s)->width()) + 1;
    QTest::mousePress(&view(), Qt::LeftButton, {}, QPoint(edge, 200));
    for (int x = edge; x <= 700; x += 50)
        QTest::mouseMove(&view(), QPoint(x, 200));
    QTest::mouseRelease(&view(), Qt::LeftButton, {}, QPoint(700, 200));
    settle();
    ASSERT_EQ(named(u"Scripts"_s)->width(), 280);

    view().resize(view().minimumSize());
    settle();
    for (const qsizetype row : { 0, 1 }) {
        library().setActiveScriptID(library().scripts()[row].id);
        settle();
        for (QQuickItem* const item : Testing::visibleItems(view())) {
            const QRectF place = item->mapRectToScene(QRectF(QPointF(), item->size()));
            if (place.isEmpty())
                continue;
            EXPECT_LE(place.right(), 660.5) << item->metaObject()->className();
            EXPECT_GE(place.left(), -0.5) << item->metaObject()->className();
        }
        EXPECT_GE(named(u"Title"_s)->width(), 374);
    }
}

TEST_F(LibraryWindowTest, saysThatASearchFindsNothing)
{
    press(Qt::Key_F, Qt::ControlModifier);
    type(u"first"_s);
    EXPECT_EQ(showing(u"Nothing found"_s), nullptr);
    type(u"x"_s);
    EXPECT_NE(showing(u"Nothing found"_s), nullptr);
    press(Qt::Key_Escape);
    EXPECT_EQ(showing(u"Nothing found"_s), nullptr);
}

TEST_F(LibraryWindowTest, showsTheActiveScript)
{
    EXPECT_EQ(titleField(), u"One"_s);
    EXPECT_EQ(bodyField(), u"First body"_s);
    EXPECT_NE(showing(u"2 words · about 0:01"_s), nullptr);
    EXPECT_NE(
        showing(u"Shown in the prompter · autosaved locally, nothing leaves your Mac"_s), nullptr);
}

TEST_F(LibraryWindowTest, makesTheClickedRowActiveAtOnce)
{
    click(showing(u"Three"_s));

    EXPECT_EQ(active().title, u"Three"_s);
    EXPECT_EQ(titleField(), u"Three"_s);
    EXPECT_EQ(bodyField(), u"Third body"_s);
    EXPECT_EQ(services->defaults.stored.value(u"activeScriptID"_s), UuidText::format(active().id));
}

TEST_F(LibraryWindowTest, walksTheListWithTheKeys)
{
    press(Qt::Key_Down);
    EXPECT_EQ(active().title, u"Two"_s);
    press(Qt::Key_End);
    EXPECT_EQ(active().title, u"Three"_s);
    press(Qt::Key_Down);
    EXPECT_EQ(active().title, u"Three"_s);
    press(Qt::Key_Up);
    EXPECT_EQ(active().title, u"Two"_s);
    press(Qt::Key_Home);
    EXPECT_EQ(active().title, u"One"_s);
    press(Qt::Key_PageDown);
    EXPECT_EQ(active().title, u"Three"_s);
    press(Qt::Key_PageUp);
    EXPECT_EQ(active().title, u"One"_s);
}

TEST_F(LibraryWindowTest, addsAScriptToBeNamedAndWritten)
{
    click(named(u"New script"_s));
    EXPECT_EQ(active().title, u"Untitled"_s);

    type(u"Talk"_s);
    press(Qt::Key_Return);
    type(u"Hello all"_s);

    EXPECT_EQ(library().scripts().size(), 4);
    EXPECT_EQ(active().title, u"Talk"_s);
    EXPECT_EQ(active().body, u"Hello all"_s);
    EXPECT_NE(showing(u"2 words · about 0:01"_s), nullptr);
}

TEST_F(LibraryWindowTest, addsAScriptWithAShortcut)
{
    press(Qt::Key_N, Qt::ControlModifier);

    EXPECT_EQ(library().scripts().size(), 4);
}

TEST_F(LibraryWindowTest, deletesTheActiveScript)
{
    click(named(u"Delete"_s));
    EXPECT_EQ(library().scripts().size(), 2);
    EXPECT_EQ(titleField(), u"Two"_s);

    click(showing(u"Two"_s));
    press(Qt::Key_Delete);
    EXPECT_EQ(library().scripts().size(), 1);
    EXPECT_EQ(titleField(), u"Three"_s);
}

TEST_F(LibraryWindowTest, deletesNothingWhenNoScriptIsActive)
{
    library().setActiveScriptID(std::nullopt);

    click(named(u"Delete"_s));

    EXPECT_EQ(library().scripts().size(), 3);
}

TEST_F(LibraryWindowTest, showsEmptyFieldsForAnEmptyLibraryAndTakesNoText)
{
    for (int i = 0; i < 3; ++i)
        click(named(u"Delete"_s));
    EXPECT_TRUE(library().scripts().isEmpty());

    EXPECT_EQ(titleField(), QString());
    click(named(u"Title"_s));
    type(u"x"_s);
    click(named(u"Script text"_s));
    type(u"y"_s);

    EXPECT_TRUE(library().scripts().isEmpty());
    EXPECT_EQ(titleField(), QString());
    EXPECT_EQ(named(u"Script text"_s)->property("text"), QString());
    EXPECT_NE(showing(u"0 words"_s), nullptr);
}

TEST_F(LibraryWindowTest, editsTheTitleFromTheList)
{
    for (const Qt::Key key : { Qt::Key_F2, Qt::Key_Return }) {
        click(showing(active().title));
        press(key);
        type(u"New"_s);
        EXPECT_EQ(active().title, u"New"_s);
        library().updateActive(u"Old"_s, {});
        settle();
    }
}

TEST_F(LibraryWindowTest, storesATitleAtEachKey)
{
    press(Qt::Key_F2);

    type(u"N"_s);
    EXPECT_EQ(active().title, u"N"_s);
    EXPECT_NE(showing(u"N"_s), nullptr);
    type(u"ew"_s);
    EXPECT_EQ(active().title, u"New"_s);
}

TEST_F(LibraryWindowTest, listsAScriptWithoutTitleAsUntitled)
{
    press(Qt::Key_F2);
    press(Qt::Key_Delete);

    EXPECT_EQ(active().title, QString());
    EXPECT_EQ(titleField(), QString());
    EXPECT_NE(showing(u"Untitled"_s), nullptr);
}

TEST_F(LibraryWindowTest, readsADecksTitleOutAsItIs)
{
    click(showing(u"Two"_s));
    library().updateActive(u"50%1 or 100%2"_s, {});
    settle();

    EXPECT_NE(named(u"50%1 or 100%2, 2 slides"_s), nullptr);
}

TEST_F(LibraryWindowTest, letsADecksTitleBeEditedButNotItsBody)
{
    const QString body = library().scripts()[1].body;
    click(showing(u"Two"_s));
    EXPECT_NE(showing(u"2 slides"_s), nullptr);
    EXPECT_NE(showing(u"Imported deck (Two.pptx) — notes are read-only here; edit them in the "
                      "presentation and re-import."_s),
        nullptr);
    EXPECT_EQ(bodyField(), body);

    click(named(u"Speaker notes"_s));
    type(u"x"_s);
    EXPECT_EQ(active().body, body);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), body);
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(active().body, body);

    press(Qt::Key_Backtab); // The button that reads the deck's file.
    press(Qt::Key_Backtab);
    press(Qt::Key_A, Qt::ControlModifier);
    type(u"Second"_s);
    EXPECT_EQ(active().title, u"Second"_s);
}

TEST_F(LibraryWindowTest, knowsTheSixEditingKeys)
{
    click(named(u"Script text"_s));
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_X, Qt::ControlModifier);
    EXPECT_EQ(active().body, QString());
    press(Qt::Key_V, Qt::ControlModifier);
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_EQ(active().body, u"First bodyFirst body"_s);
    press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(active().body, u"First body"_s);
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(active().body, u"First bodyFirst body"_s);
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(QGuiApplication::clipboard()->text(), u"First bodyFirst body"_s);
}

TEST_F(LibraryWindowTest, undoesOnlyWhatWasDoneToTheScript)
{
    click(named(u"Script text"_s));
    type(u"a"_s);
    click(showing(u"Three"_s));
    click(named(u"Script text"_s));
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(active().body, u"Third body"_s);
    type(u"b"_s);

    click(showing(u"One"_s));
    click(named(u"Script text"_s));
    for (int i = 0; i < 3; ++i)
        press(Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(active().body, u"First body"_s);
    press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
    EXPECT_EQ(active().body.size(), 11);

    EXPECT_EQ(library().scripts()[2].body.size(), 11);
}

TEST_F(LibraryWindowTest, leavesTheCursorWhereItIsWhenAnotherScriptIsSeenMeanwhile)
{
    QQuickItem* const body = named(u"Script text"_s);
    click(body);
    body->setProperty("cursorPosition", 3);
    settle();
    library().addDeck(u"Deck"_s, {}, u"Keynote"_s);
    settle();

    library().setActiveScriptID(library().scripts()[1].id);
    settle();

    EXPECT_EQ(named(u"Script text"_s), body);
    EXPECT_EQ(body->property("cursorPosition").toInt(), 3);
}

TEST_F(LibraryWindowTest, drawsALongTextWhereverItIsScrolledTo)
{
    const auto isDrawn = [this] {
        const QImage picture = view().grabWindow().copy(230, 100, 400, 300);
        return picture != QImage(picture).scaled(1, 1).scaled(picture.size());
    };
    QGuiApplication::clipboard()->setText(u"A line of a long text\n"_s.repeated(3000));
    click(named(u"Script text"_s));
    press(Qt::Key_V, Qt::ControlModifier);
    EXPECT_TRUE(named(u"Script text"_s)->flags() & QQuickItem::ItemObservesViewport);

    EXPECT_TRUE(isDrawn());
    press(Qt::Key_Home, Qt::ControlModifier);
    EXPECT_TRUE(isDrawn());
    for (int i = 0; i < 20; ++i) {
        press(Qt::Key_PageDown);
        EXPECT_TRUE(isDrawn()) << i;
    }
    press(Qt::Key_A, Qt::ControlModifier);
    press(Qt::Key_Delete);
    EXPECT_FALSE(isDrawn());
}

TEST_F(LibraryWindowTest, takesATabAndLeavesTheTextWithShiftTab)
{
    click(named(u"Script text"_s));
    press(Qt::Key_Home, Qt::ControlModifier);
    press(Qt::Key_Tab);
    EXPECT_EQ(active().body, u"\tFirst body"_s);

    press(Qt::Key_Backtab);
    EXPECT_TRUE(named(u"Title"_s)->hasActiveFocus());
}

TEST_F(LibraryWindowTest, reachesEveryControlWithTheTabKey)
{
    QStringList reached;
    for (int i = 0; i < 6; ++i) {
        reached.append(Testing::accessibleName(*view().activeFocusItem()));
        press(Qt::Key_Tab);
    }

    EXPECT_EQ(reached,
        QStringList({ u"One"_s, u"New script"_s, u"Delete"_s, u"Import speaker notes from a deck"_s,
            u"Title"_s, u"Script text"_s }));
}

TEST_F(LibraryWindowTest, imports)
{
    services->openPanel.choice = services->folders.path + u"/missing.pptx"_s;
    const auto openMenu = [this] {
        click(named(u"Import speaker notes from a deck"_s));
        QTest::qWait(50);
        settle();
    };
    openMenu();
    EXPECT_NE(showing(u"Open Keynote presentation"_s), nullptr);
    EXPECT_NE(showing(u"Open Impress presentation"_s), nullptr);

    click(showing(u"PowerPoint file (.pptx)…"_s));
    EXPECT_EQ(services->openPanel.timesShown, 1);
    expectSoon(u"Import failed"_s);
    press(Qt::Key_Return);
    EXPECT_EQ(showing(u"Import failed"_s), nullptr);

    openMenu();
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Down);
    press(Qt::Key_Return);
    ASSERT_EQ(services->process.runs.size(), 1);
    services->process.finish(0, 0, "My talk\x1eIntro\x1fHello all\n");
    settle();
    EXPECT_EQ(titleField(), u"My talk"_s);
}

TEST_F(LibraryWindowTest, staysMaximizedWhenItIsBroughtToTheFront)
{
    view().showMaximized();
    settle();

    window->bringToFront();

    EXPECT_TRUE(view().windowStates().testFlag(Qt::WindowMaximized));
}

TEST_F(LibraryWindowTest, comesBackWhenItWasMinimized)
{
    view().showMinimized();
    settle();

    window->bringToFront();

    EXPECT_TRUE(view().isVisible());
    EXPECT_FALSE(view().windowStates().testFlag(Qt::WindowMinimized));
}

TEST_F(LibraryWindowTest, closesAnAlertWithEscape)
{
    services->openPanel.choice = services->folders.path + u"/missing.pptx"_s;
    press(Qt::Key_O, Qt::ControlModifier);
    expectSoon(u"Import failed"_s);

    press(Qt::Key_Escape);

    EXPECT_EQ(showing(u"Import failed"_s), nullptr);
}

TEST_F(LibraryWindowTest, importsDroppedDecks)
{
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(services->folders.path + u"/Broken.pptx"_s) });
    const QPointF place(300, 200);
    QDragEnterEvent enter(place.toPoint(), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view(), &enter);
    EXPECT_TRUE(enter.isAccepted());
    QDropEvent drop(place, Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view(), &drop);

    expectSoon(u"Import failed"_s);
}

TEST_F(LibraryWindowTest, showsTheAlertsOfSeveralDecksOneAfterTheOther)
{
    QMimeData data;
    data.setUrls({ QUrl::fromLocalFile(services->folders.path + u"/One.pptx"_s),
        QUrl::fromLocalFile(services->folders.path + u"/Two.pptx"_s) });
    QDropEvent drop(QPointF(300, 200), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QDragEnterEvent enter(QPoint(300, 200), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&view(), &enter);
    QCoreApplication::sendEvent(&view(), &drop);
    expectSoon(u"Import failed"_s);

    press(Qt::Key_Return);
    expectSoon(u"Import failed"_s);

    press(Qt::Key_Escape);
    EXPECT_EQ(showing(u"Import failed"_s), nullptr);
}

TEST_F(LibraryWindowTest, refusesOtherThingsThatAreDragged)
{
    QMimeData data;
    data.setUrls({ QUrl(u"https://example.com/talk.pptx"_s) });
    QDragEnterEvent enter(QPoint(300, 200), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);

    QCoreApplication::sendEvent(&view(), &enter);

    EXPECT_FALSE(enter.isAccepted());
}

TEST_F(LibraryWindowTest, scrollsTheListWithTheWheel)
{
    QList<Script> many;
    for (int i = 0; i < 200; ++i)
        many.append(LibraryServices::script(u"Script %1"_s.arg(i), {}));
    open(many);
    QQuickItem* const list = named(u"Scripts"_s);
    const double before = list->property("contentY").toDouble();

    QWheelEvent event(QPointF(100, 200), view().mapToGlobal(QPointF(100, 200)), {}, QPoint(0, -240),
        Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&view(), &event);
    QTest::qWait(300);

    EXPECT_GT(list->property("contentY").toDouble(), before);
}

TEST_F(LibraryWindowTest, keepsTheActiveRowInSight)
{
    QList<Script> many;
    for (int i = 0; i < 200; ++i)
        many.append(LibraryServices::script(u"Script %1"_s.arg(i), {}));
    open(many);

    press(Qt::Key_End);

    const QQuickItem* row = showing(u"Script 199"_s);
    ASSERT_NE(row, nullptr);
    EXPECT_LT(row->mapToScene(QPointF()).y(), 440);
}

} // namespace
} // namespace Orvello
