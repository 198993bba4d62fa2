#include "Tests/Gallery/PseudoLanguage.h"

#include "Orvello/Library/Import/DeckImportError.h"
#include "Orvello/Presentations/Decks/PptxImporter.h"
#include "Orvello/Presentations/Presenters/AppleScriptPresenters.h"
#include "Orvello/Presentations/Presenters/PresenterApp.h"
#include "Orvello/Presentations/Slideshow/ImpressPresenter.h"
#include "Orvello/Prompting/Text/PromptLines.h"
#include "Orvello/Shell/Commands/MainMenu.h"
#include "Orvello/Shell/Commands/StatusMenu.h"
#include "Orvello/Shell/Commands/Support.h"
#include "Orvello/Shell/Windows/ImpressAdviceDialog.h"
#include "Tests/Gallery/Scenes.h"
#include "Tests/Support/EventLoop.h"
#include "Tests/Support/FakeChildProcess.h"
#include "Tests/Support/FakeCommandTarget.h"
#include "Tests/Support/FakeHelperProcess.h"
#include "Tests/Support/FakeHotKeys.h"
#include "Tests/Support/FakeUserDefaults.h"
#include "Tests/Support/SlideshowStage.h"
#include "Tests/Support/ViewItems.h"

#include <QAbstractButton>
#include <QApplication>
#include <QMessageBox>
#include <QQuickWindow>
#include <QRegularExpression>
#include <QTest>
#include <QUrlQuery>

#include <gtest/gtest.h>

#include <algorithm>

namespace Orvello::Gallery {

/// How a test is told from the others: by the argument-dependent look-up of GoogleTest.
static void PrintTo(const Scene& scene, std::ostream* out) { *out << scene.name.toStdString(); }

} // namespace Orvello::Gallery

namespace Orvello {
namespace {

using namespace Qt::StringLiterals;
using namespace Orvello::Testing;
using Gallery::PseudoLanguage;
using Gallery::Scene;
using Gallery::Stage;

/// Whether the translation has passed by, as far as there is anything to translate.
bool isMarked(const QString& text)
{
    const bool hasWords
        = std::ranges::any_of(text, [](QChar character) { return character.isLetter(); });
    return !hasWords || (text.startsWith(u"[!! ") && text.endsWith(u" !!]"));
}

/// Names that are the same everywhere, keys, and what the scenes' user has written.
bool isNobodysToTranslate(const QString& text)
{
    static const QRegularExpression same(
        u"^(Orvello|P|(⌥⌘|Alt\\+Super\\+)[PRH↑↓]( ↓)?|(Alt\\+Super\\+|⌥⌘)↑  /  .*)$"_s);
    static const QStringList written { u"Opening words"_s, u"Quarterly review"_s, u"All hands"_s,
        u"Toast for the wedding"_s, u"كلمة الافتتاح"_s, u"Questions"_s, u"What we learned"_s,
        u"Welcome"_s, u"Thank you all for coming"_s, u"— Slide 1"_s, u"Nothing has a name"_s,
        u"Good morning"_s, u"We set out"_s, u"What would you like"_s, u"Deck"_s, u"مرحبا"_s,
        u"תודה"_s, u"感谢各位"_s, u"本日は"_s, u"Smile 😀"_s, u"Tiếng Việt"_s, u"abcdefghij"_s };
    const QString composed = text.normalized(QString::NormalizationForm_C);
    return same.match(text).hasMatch()
        || std::ranges::any_of(
            written, [&](const QString& beginning) { return composed.startsWith(beginning); });
}

bool isUsersText(const QQuickItem& item)
{
    return item.inherits("QQuickTextEdit") || item.inherits("QQuickTextInput");
}

/// The prompter's text, which is the user's as a rule; empty for any other item.
QString promptedText(const QQuickItem& item)
{
    const auto* const lines = item.inherits("Orvello::PromptText")
        ? item.property("lines").value<PromptLines*>()
        : nullptr;
    return lines ? lines->text() : QString();
}

std::unique_ptr<Stage> played(const Scene& scene)
{
    std::unique_ptr<Stage> stage = scene.make();
    stage->window().show();
    EXPECT_TRUE(QTest::qWaitForWindowExposed(&stage->window()));
    stage->play();
    QTest::qWait(400); // Pages turn, popups open.
    return stage;
}

/// One of the scenes in the pseudo-language. The same at another scale says nothing more, and the
/// prompter's texts in many languages are the user's.
class SceneInPseudoLanguage : public ::testing::TestWithParam<Scene> { };

std::vector<Scene> scenesWithWords()
{
    std::vector<Scene> scenes;
    for (const Scene& scene : Gallery::windowScenes()) {
        if (scene.scale == 1)
            scenes.push_back(Gallery::inPseudoLanguage(scene));
    }
    return scenes;
}

/// What a scene shows without the translation's marks.
QStringList unmarkedTexts(QQuickWindow& window)
{
    QStringList unmarked;
    const auto look = [&](const QString& text) {
        if (!isMarked(text) && !isNobodysToTranslate(text) && !unmarked.contains(text))
            unmarked.append(text);
    };
    look(window.title());
    for (const QQuickItem* const item : visibleItems(window)) {
        if (isUsersText(*item))
            continue;
        look(promptedText(*item));
        look(accessibleName(*item));
        look(item->property("text").toString());
        look(item->property("placeholderText").toString());
    }
    return unmarked;
}

bool scrolls(const QQuickItem& item)
{
    for (const QQuickItem* parent = item.parentItem(); parent; parent = parent->parentItem()) {
        if (parent->inherits("QQuickFlickable"))
            return true;
    }
    return false;
}

/// Why a text is not to be read to its end; empty for one that is.
QString cutOf(const QQuickItem& text, const QQuickWindow& window)
{
    constexpr double tolerance = 1.5; // Rounding to pixels.
    if (text.property("truncated").toBool())
        return u"is cut short"_s;
    if (text.property("contentWidth").toDouble() > text.width() + tolerance)
        return u"is wider than its place"_s;
    if (text.property("contentHeight").toDouble() > text.height() + tolerance)
        return u"is higher than its place"_s;
    const QRectF all(QPointF(-tolerance, -tolerance),
        QSizeF(window.width() + 2 * tolerance, window.height() + 2 * tolerance));
    if (!scrolls(text) && !all.contains(placeInWindow(text)))
        return u"sticks out of the window"_s;
    return {};
}

/// The tour's dots, which a button with a long text could lie on.
QRectF placeOfDots(const QQuickWindow& window)
{
    for (const QQuickItem* const item : visibleItems(window)) {
        if (QByteArray(item->metaObject()->className()).startsWith("TourDots"))
            return placeInWindow(*item);
    }
    return {};
}

QStringList cutTexts(const QQuickWindow& window)
{
    QStringList cut;
    const QRectF dots = placeOfDots(window);
    for (const QQuickItem* const item : visibleItems(window)) {
        const QString text = item->property("text").toString();
        if (!item->inherits("QQuickText") || text.isEmpty() || isNobodysToTranslate(text))
            continue;
        if (const QString reason = cutOf(*item, window); !reason.isEmpty())
            cut.append(u"\"%1\" %2"_s.arg(text, reason));
        if (placeInWindow(*item).intersects(dots))
            cut.append(u"\"%1\" lies on the dots"_s.arg(text));
    }
    return cut;
}

TEST_P(SceneInPseudoLanguage, isAllTranslatedAndCutsNoText)
{
    const std::unique_ptr<Stage> stage = played(GetParam()); // What takes the time.

    EXPECT_EQ(unmarkedTexts(stage->window()).join(u'\n').toStdString(), "") << "not translated";
    EXPECT_EQ(cutTexts(stage->window()).join(u'\n').toStdString(), "") << "cut";
}

INSTANTIATE_TEST_SUITE_P(
    PseudoLanguageTest, SceneInPseudoLanguage, ::testing::ValuesIn(scenesWithWords()));

/// The one box that is shown.
QMessageBox& shownBox()
{
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
        auto* const box = qobject_cast<QMessageBox*>(widget);
        if (box && box->isVisible())
            return *box;
    }
    qFatal("no box is shown");
}

void expectMarked(const QMessageBox& box)
{
    // A message may be one text, of which the box shows the first paragraph in bold.
    QStringList texts { box.text() + u"\n\n"_s + box.informativeText() };
    for (const QAbstractButton* const button : box.buttons())
        texts.append(button->text().remove(u'&'));
    for (const QString& text : texts)
        EXPECT_TRUE(isMarked(text)) << text.toStdString();
}

QStringList linesOf(const Menu& menu)
{
    QStringList lines;
    for (const auto& item : menu.items()) {
        if (!item->isSeparator())
            lines.append(item->title);
        if (item->submenu)
            lines += linesOf(*item->submenu);
    }
    return lines;
}

TEST(PseudoLanguageTest, isSpokenByTheMenus)
{
    const PseudoLanguage language;
    FakeCommandTarget target;
    const FakeHotKeys keys;
    const StatusMenu statusMenu(target, keys, u"2.1 (57)"_s);
    const std::unique_ptr<Menu> mainMenu = makeMainMenu([](const char*) {});

    const QStringList lines = linesOf(statusMenu) + linesOf(*mainMenu);

    EXPECT_EQ(lines.size(), 22);
    for (const QString& line : lines)
        EXPECT_TRUE(isMarked(line)) << line.toStdString();
}

TEST(PseudoLanguageTest, isSpokenByErrorsAndLetters)
{
    const PseudoLanguage language;
    FakeChildProcess process;
    const AppleScriptRunner runner(process);
    const PresenterApp keynote = AppleScriptPresenters::keynote(runner);

    using Reason = DeckImportError::Reason;
    for (const Reason reason :
        { Reason::NotRunning, Reason::NoDocument, Reason::NoNotes, Reason::ScriptFailed }) {
        const QString text = DeckImportError { reason, &keynote, u"why"_s }.description();
        EXPECT_TRUE(isMarked(text)) << text.toStdString();
    }
    EXPECT_TRUE(isMarked(keynote.permissionAdvice));
    for (const auto error :
        { PptxImporter::ImportError::Unreadable, PptxImporter::ImportError::NotAPresentation })
        EXPECT_TRUE(isMarked(PptxImporter::description(error)));
    const QUrlQuery letter(Support::mailLink(u"help@example.com"_s, u"2.1"_s, u"macOS 14"_s));
    EXPECT_TRUE(isMarked(letter.queryItemValue(u"subject"_s, QUrl::FullyDecoded)));
    EXPECT_TRUE(
        isMarked(letter.queryItemValue(u"body"_s, QUrl::FullyDecoded).section(u"—\n"_s, 1)));
}

TEST(PseudoLanguageTest, isSpokenByTheAdviceOnImpress)
{
    const PseudoLanguage language;
    SlideshowStage stage;
    FakeHelperProcess helper;
    FakeUserDefaults defaults;
    ImpressPresenter impress(helper, stage.monitor, defaults);
    const ImpressAdviceDialog dialog(impress);

    impress.row().askOpenDeck([](const ScriptResult&) {});
    drainEvents();
    expectMarked(shownBox());
    for (QAbstractButton* const button : shownBox().buttons()) {
        if (shownBox().buttonRole(button) == QMessageBox::AcceptRole)
            button->click();
    }
    drainEvents();
    expectMarked(shownBox());
}

} // namespace
} // namespace Orvello
