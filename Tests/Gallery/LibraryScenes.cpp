#include "Tests/Gallery/Scenes.h"

#include "Orvello/Shell/Windows/LibraryWindow.h"
#include "Tests/Gallery/Palettes.h"
#include "Tests/Support/DeckBuilder.h"
#include "Tests/Support/LibraryServices.h"

#include <QDir>
#include <QDragEnterEvent>
#include <QFile>
#include <QMimeData>
#include <QTest>

#include <optional>

namespace Orvello::Gallery {

using namespace Qt::StringLiterals;

namespace {

using Testing::LibraryServices;

/// The scripts window over the real library.
class LibraryStage final : public Stage {
public:
    using Play = std::function<void(LibraryStage&)>;

    LibraryStage(const QList<Script>& scripts, Play play, Look look)
        : m_palette(look)
        , m_play(std::move(play))
    {
        m_services.emplace(scripts);
        m_services->facts = Testing::factsOfALinuxDesktop();
        m_window.emplace(m_services->ofWindow());
        window().setFlags(Qt::FramelessWindowHint);
    }

    QQuickWindow& window() override { return m_window->view(); }
    LibraryServices& services() { return *m_services; }
    void play() override
    {
        window().requestActivate();
        m_play(*this);
    }

    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {})
    {
        QTest::keyClick(&window(), key, modifiers);
    }
    void click(int x, int y) { QTest::mouseClick(&window(), Qt::LeftButton, {}, QPoint(x, y)); }
    void import(const QString& path)
    {
        services().openPanel.choice = path;
        press(Qt::Key_O, Qt::ControlModifier);
    }
    void dragOver(const QString& path)
    {
        m_dragged.setUrls({ QUrl::fromLocalFile(path) });
        QDragEnterEvent event(
            QPoint(360, 200), Qt::CopyAction, &m_dragged, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&window(), &event);
    }

private:
    StagePalette m_palette;
    QMimeData m_dragged;
    Play m_play;
    std::optional<LibraryServices> m_services;
    std::optional<LibraryWindow> m_window;
};

QList<Script> library()
{
    const QString talk
        = u"Thank you all for coming. I want to talk about what we learned this year, and what we "
          "are going to do with it.\n\nWe started with a simple question: what does a speaker "
          "need? Not more slides. Not a bigger screen. A way to look at the audience and still "
          "know the next sentence.\n\nSo we put the words right under the camera."_s;
    const QList<SlideNote> slides {
        { 1, u"Welcome"_s, u"Good morning. Three numbers today, and one request."_s },
        { 2, u"Revenue"_s, u"Up by a fifth, and the reason is not what you think."_s },
        { 3, std::nullopt, {} },
        { 4, u"Questions"_s, u"Leave ten minutes. Ask Ana about the roadmap."_s },
    };
    return { LibraryServices::script(u"Opening words"_s, talk),
        LibraryServices::deck(u"Quarterly review"_s, u"Quarterly review.pptx"_s, slides),
        LibraryServices::script(QString(), u"Nothing has a name yet."_s),
        LibraryServices::script(u"Toast for the wedding of Grandmother's second cousin in "
                                "Bad Berleburg-Arfeld, the long version with the boat"_s,
            talk),
        LibraryServices::deck(u"All hands"_s, u"Keynote"_s, slides),
        LibraryServices::script(u"كلمة الافتتاح"_s, u"شكرا لكم جميعا على حضوركم."_s) };
}

void showDeck(LibraryStage& stage)
{
    stage.services().library.setActiveScriptID(stage.services().library.scripts()[1].id);
}

void showLongTitle(LibraryStage& stage)
{
    stage.services().library.setActiveScriptID(stage.services().library.scripts()[3].id);
}

void empty(LibraryStage& stage)
{
    LibraryStore& store = stage.services().library;
    while (!store.scripts().isEmpty())
        store.remove(store.scripts().first().id);
}

void write(LibraryStage& stage)
{
    stage.click(500, 250);
    stage.press(Qt::Key_Home, Qt::ControlModifier);
    for (int i = 0; i < 14; ++i)
        stage.press(Qt::Key_Right, Qt::ControlModifier | Qt::ShiftModifier);
}

void openMenu(LibraryStage& stage)
{
    stage.click(80, 462);
    QTest::qWait(200);
    stage.press(Qt::Key_Down);
}

void failToImport(LibraryStage& stage) { stage.import(stage.services().folders.path); }

QString deckIn(LibraryStage& stage, const QByteArray& notes)
{
    QFile file(stage.services().folders.path + u"/Deck.pptx"_s);
    if (file.open(QIODevice::WriteOnly))
        file.write(Testing::DeckBuilder().slide("Intro", notes).build());
    return file.fileName();
}

void importSilentDeck(LibraryStage& stage) { stage.import(deckIn(stage, {})); }

void importSavedCopy(LibraryStage& stage)
{
    openMenu(stage);
    stage.press(Qt::Key_Down);
    stage.press(Qt::Key_Return);
    Testing::FakeChildProcess& process = stage.services().process;
    process.finish(0, 0,
        "Deck\x1f"
        "false\x1f"
            + deckIn(stage, "Hello all").toUtf8());
    process.finish(1, 1, {}, "busy");
}

void dragADeckOver(LibraryStage& stage) { stage.dragOver(u"/tmp/Quarterly review.pptx"_s); }

void search(LibraryStage& stage)
{
    stage.press(Qt::Key_F, Qt::ControlModifier);
    for (const char letter : { 'm', 'o', 'r', 'n' })
        QTest::keyClick(&stage.window(), letter);
}

void searchInVain(LibraryStage& stage)
{
    search(stage);
    stage.press(Qt::Key_X);
}

void openDeleted(LibraryStage& stage)
{
    LibraryStore& store = stage.services().library;
    for (const qsizetype row : { 3, 2, 1 })
        store.remove(store.scripts()[row].id);
    QTest::qWait(100);
    stage.click(190, 462);
    QTest::qWait(200);
}

/// With something in the library file's place nothing can be saved.
void failToSave(LibraryStage& stage)
{
    const QString file = stage.services().folders.path + u"/Orvello/scripts.json"_s;
    QFile::remove(file);
    QDir().mkdir(file);
    stage.services().library.updateActive(u"Opening words"_s, {});
}

void openEditorMenu(LibraryStage& stage)
{
    write(stage);
    QTest::mouseClick(&stage.window(), Qt::RightButton, {}, QPoint(300, 120));
    QTest::qWait(200);
}

void openListMenu(LibraryStage& stage)
{
    QTest::mouseClick(&stage.window(), Qt::RightButton, {}, QPoint(60, 90));
    QTest::qWait(200);
}

Scene scene(const QString& name, const LibraryStage::Play& play, Look look = Look::Light,
    double scale = 1, const QList<Script>& scripts = library())
{
    return { u"Scripts: "_s + name,
        [=] { return std::make_unique<LibraryStage>(scripts, play, look); }, Wallpaper::None,
        scale };
}

} // namespace

Scenes libraryScenes()
{
    return {
        scene(u"a script"_s, [](LibraryStage&) {}),
        scene(u"a deck"_s, showDeck),
        scene(u"empty"_s, empty),
        scene(u"writing"_s, write),
        scene(u"long title"_s, showLongTitle),
        scene(u"the import menu"_s, openMenu),
        scene(u"import failed"_s, failToImport),
        scene(u"no speaker notes"_s, importSilentDeck),
        scene(u"the saved copy imported"_s, importSavedCopy),
        scene(u"a deck dragged over it"_s, dragADeckOver),
        scene(u"a deck dragged over it, dark"_s, dragADeckOver, Look::Dark),
        scene(u"a search"_s, search),
        scene(u"a search, dark"_s, search, Look::Dark),
        scene(u"a search in vain"_s, searchInVain),
        scene(u"a search in vain, dark"_s, searchInVain, Look::Dark),
        scene(u"recently deleted"_s, openDeleted),
        scene(u"recently deleted, dark"_s, openDeleted, Look::Dark),
        scene(u"not saved"_s, failToSave),
        scene(u"not saved, dark"_s, failToSave, Look::Dark),
        scene(u"the editor's menu"_s, openEditorMenu),
        scene(u"the editor's menu, dark"_s, openEditorMenu, Look::Dark),
        scene(u"the list's menu"_s, openListMenu),
        scene(u"the list's menu, dark"_s, openListMenu, Look::Dark),
        scene(
            u"a script, dark"_s, [](LibraryStage&) {}, Look::Dark),
        scene(u"a deck, dark"_s, showDeck, Look::Dark),
        scene(u"the import menu, dark"_s, openMenu, Look::Dark),
        scene(u"import failed, dark"_s, failToImport, Look::Dark),
        scene(u"a deck, 2x"_s, showDeck, Look::Light, 2),
        scene(u"writing, dark, 2x"_s, write, Look::Dark, 2),
    };
}

} // namespace Orvello::Gallery
