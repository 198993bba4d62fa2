#include "Orvello/Library/Window/ScriptEditor.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Foundation/TextDifferences.h"
#include "Orvello/Foundation/WordCount.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Prompting/Text/PromptPiece.h"

#include <QQuickItem>
#include <QQuickTextDocument>
#include <QScopedValueRollback>
#include <QTextBlock>
#include <QTextCursor>
#include <QTextDocument>
#include <QTextLayout>

#include <algorithm>
#include <cmath>
#include <ranges>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// How fast people speak who present: 52 words take 22 seconds.
constexpr double wordsPerMinute = 140;

/// A text with as many characters as a document makes of it. Every other line break is one
/// character there, too, so that it survives until it is edited.
QString asInDocument(const QString& text)
{
    QString result = text;
    if (text.contains(u'\r'))
        result.replace(u"\r\n"_s, u"\n"_s);
    return result;
}

/// The character that a document shows it as: whatever begins a new line on the card does so here.
QChar shown(QChar character) { return isParagraphEnd(character) ? QChar(u'\n') : character; }

bool isForeignBreak(QChar character) { return shown(character) != character; }

QString shown(QString text)
{
    if (std::ranges::any_of(std::as_const(text), isForeignBreak))
        std::replace_if(text.begin(), text.end(), isForeignBreak, u'\n');
    return text;
}

QString textBetween(QTextDocument& document, qsizetype begin, qsizetype end)
{
    QTextCursor cursor(&document);
    cursor.setPosition(static_cast<int>(begin));
    cursor.setPosition(static_cast<int>(end), QTextCursor::KeepAnchor);
    return cursor.selectedText().replace(QChar::ParagraphSeparator, u'\n');
}

} // namespace

ScriptEditor::ScriptEditor(LibraryStore& library)
    : m_library(library)
{
}

ScriptEditor::ScriptEditor(LibraryStore& library, const Script& script)
    : m_library(library)
    , m_id(script.id)
    , m_title(script.title)
    , m_body(asInDocument(script.body))
    , m_wordCount(WordCount::of(m_body))
    , m_isAsInLibrary(m_body.size() == script.body.size())
{
    if (script.slides)
        m_deckSource = script.deckSource.value_or(QString());
}

ScriptEditor::~ScriptEditor() = default;

void ScriptEditor::setTitle(const QString& title)
{
    if (canStore() && title != m_title)
        m_library.updateActive(title, {}); // Comes back through update().
}

QString ScriptEditor::bodyInField() const { return shown(m_body); }

QString ScriptEditor::wordCountText() const
{
    return tr("%n words", nullptr, static_cast<int>(m_wordCount));
}

QString ScriptEditor::lengthText() const
{
    if (m_wordCount == 0)
        return wordCountText();
    const long seconds = std::lround(static_cast<double>(m_wordCount) * 60 / wordsPerMinute);
    //: %1: how many words, as in "52 words"; %2: minutes and seconds, as in "0:22".
    return tr("%1 · about %2")
        .arg(wordCountText(), u"%1:%2"_s.arg(seconds / 60).arg(seconds % 60, 2, 10, QChar(u'0')));
}

QString ScriptEditor::deckNotice() const
{
    //: %1: where the deck is from: a program or a file.
    return tr("Imported deck (%1) — notes are read-only here; edit them in the presentation and "
              "re-import.")
        .arg(m_deckSource.value_or(QString()));
}

void ScriptEditor::setEditable(bool isEditable)
{
    if (!assign(m_isEditable, isEditable))
        return;
    store();
    Q_EMIT editableChanged();
}

void ScriptEditor::follow(QQuickTextDocument* document)
{
    m_document = document->textDocument();
    // A text field that was given a long text draws only what is in sight, but one whose text has
    // grown long since draws everything: a pasted megabyte takes twice the time.
    if (auto* const field = qobject_cast<QQuickItem*>(document->parent()))
        field->setFlag(QQuickItem::ItemObservesViewport);
    connect(m_document, &QTextDocument::contentsChange, this, &ScriptEditor::takeOver);
    connect(m_document, &QTextDocument::contentsChanged, this, &ScriptEditor::store);
}

qsizetype ScriptEditor::startOfLine(QStringView libraryBody, int position) const
{
    qsizetype start = 0;
    if (m_document) {
        const QTextBlock block = m_document->findBlock(position);
        const QTextLine line = block.layout()->lineForTextPosition(position - block.position());
        start = block.position() + (line.isValid() ? line.textStart() : 0);
    }
    if (m_isAsInLibrary)
        return start;
    for (qsizetype i = 0; i < std::min(start, libraryBody.size()); ++i)
        start += libraryBody.sliced(i).startsWith(u"\r\n") ? 1 : 0;
    return start;
}

void ScriptEditor::update(const Script& script, const LibraryChange& change)
{
    if (change.hasNewTitle) {
        m_title = script.title;
        Q_EMIT titleChanged();
    }
    if (script.slides && assign(m_deckSource, script.deckSource.value_or(QString())))
        Q_EMIT deckNoticeChanged();
    if (!change.body || m_isStoring)
        return;
    const QString inserted = script.body.sliced(change.body->position, change.body->inserted);
    if (change.hasNewSlides && m_isAsInLibrary && !m_unstored && !inserted.contains(u'\r')) {
        showDifferences(script.body);
    } else if (m_isAsInLibrary && !m_unstored && !inserted.contains(u'\r')) {
        show(change.body->position, change.body->removed, inserted);
    } else {
        const QString body = asInDocument(script.body);
        m_isAsInLibrary = body.size() == script.body.size();
        show(0, m_body.size(), body);
    }
    m_unstored.reset();
    Q_EMIT bodyChanged();
}

/// Applies an edit of the document to the body. Only the edit: copying the document's whole text
/// takes milliseconds, and a key press must cost the same in a text of any length.
void ScriptEditor::takeOver(int position, int removed, int added)
{
    if (m_isUpdating)
        return;
    // An edit at the end also counts the end of the last paragraph, which is not part of the text.
    const qsizetype length = m_document->characterCount() - 1;
    const qsizetype end = std::min<qsizetype>(position + added, length);
    takeOverText(position, std::min<qsizetype>(removed, m_body.size() - position),
        textBetween(*m_document, position, end));
    if (m_body.size() != length)
        takeOverText(0, m_body.size(), textBetween(*m_document, 0, length));
}

/// Leaves what the document shows as before as it is: it may be another line break.
void ScriptEditor::takeOverText(qsizetype position, qsizetype removed, QStringView text)
{
    const QStringView before = QStringView(m_body).sliced(position, removed);
    const auto looksSame = [](QChar old, QChar now) { return shown(old) == shown(now); };
    const qsizetype begin
        = std::mismatch(before.begin(), before.end(), text.begin(), text.end(), looksSame).first
        - before.begin();
    const auto oldRest = before.sliced(begin);
    const auto newRest = text.sliced(begin);
    const qsizetype end = std::mismatch(oldRest.rbegin(), oldRest.rend(), newRest.rbegin(),
                              newRest.rend(), looksSame)
                              .first
        - oldRest.rbegin();
    const QString inserted = newRest.chopped(end).toString();
    replaceInBody(position + begin, removed - begin - end, inserted);
    m_hasUnshownBreaks = m_hasUnshownBreaks || std::ranges::any_of(inserted, isForeignBreak);
}

void ScriptEditor::replaceInBody(qsizetype position, qsizetype removed, const QString& inserted)
{
    if (QStringView(m_body).sliced(position, removed) == inserted)
        return; // Only formatting has changed.
    // Whether a word begins right after the edit depends on the edit.
    m_wordCount -= WordCount::beginningIn(m_body, position, position + removed + 1);
    m_body.replace(position, removed, inserted);
    m_wordCount += WordCount::beginningIn(m_body, position, position + inserted.size() + 1);
    const TextEdit edit { position, removed, inserted.size() };
    m_unstored = m_unstored ? m_unstored->followedBy(edit) : edit;
}

/// Leaves what is the same where it is, with the cursor and the part in sight.
void ScriptEditor::showDifferences(const QString& body)
{
    const TextDifferences differences = differencesBetween(m_body, body);
    qsizetype moved = 0;
    for (const TextEdit& edit : differences) {
        show(
            edit.position + moved, edit.removed, body.sliced(edit.position + moved, edit.inserted));
        moved += edit.inserted - edit.removed;
    }
}

void ScriptEditor::show(qsizetype position, qsizetype removed, const QString& inserted)
{
    replaceInBody(position, removed, inserted);
    if (!m_document)
        return;
    QTextCursor cursor(m_document);
    cursor.setPosition(static_cast<int>(position));
    cursor.setPosition(static_cast<int>(position + removed), QTextCursor::KeepAnchor);
    const QScopedValueRollback updating(m_isUpdating, true);
    cursor.insertText(shown(inserted));
}

/// Breaks the lines of a text that the user has inserted where the card will. The step that undoes
/// the text undoes this, too.
void ScriptEditor::showBreaks()
{
    const QScopedValueRollback updating(m_isUpdating, true);
    QTextCursor cursor(m_document);
    cursor.joinPreviousEditBlock();
    for (int i = static_cast<int>(m_body.size()) - 1; i >= 0; --i) {
        if (!isParagraphEnd(m_body[i]) || m_document->characterAt(i) == QChar::ParagraphSeparator)
            continue;
        cursor.setPosition(i);
        cursor.setPosition(i + 1, QTextCursor::KeepAnchor);
        cursor.insertBlock();
    }
    cursor.endEditBlock();
}

/// An input method may finish a word in a text field that is going out of sight or has already
/// gone. The library would put it into another script, so the edit waits until this one is active
/// again.
bool ScriptEditor::canStore() const
{
    const Script* const active = m_library.activeScript();
    return m_isEditable && active && active->id == m_id;
}

void ScriptEditor::store()
{
    if (m_isUpdating)
        return;
    if (std::exchange(m_hasUnshownBreaks, false))
        showBreaks();
    if (!m_unstored || !canStore())
        return;
    const TextEdit edit = *std::exchange(m_unstored, std::nullopt);
    {
        const QScopedValueRollback storing(m_isStoring, true);
        if (m_isAsInLibrary)
            m_library.editActive(
                edit.position, edit.removed, m_body.sliced(edit.position, edit.inserted));
        else
            m_library.updateActive({}, m_body);
    }
    m_isAsInLibrary = true;
    Q_EMIT bodyChanged();
}

} // namespace Orvello
