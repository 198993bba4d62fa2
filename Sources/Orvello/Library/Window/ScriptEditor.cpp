#include "Orvello/Library/Window/ScriptEditor.h"

#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Library/Window/WordCount.h"

#include <QQuickItem>
#include <QQuickTextDocument>
#include <QScopedValueRollback>
#include <QTextCursor>
#include <QTextDocument>

#include <algorithm>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// What a document makes of a text, position for position. The other line breaks it counts as one
/// character each, so that they survive until they are edited.
QString asInDocument(const QString& text)
{
    QString result = text;
    if (text.contains(u'\r'))
        result.replace(u"\r\n"_s, u"\n"_s);
    return result;
}

QString textBetween(QTextDocument& document, qsizetype begin, qsizetype end)
{
    QTextCursor cursor(&document);
    cursor.setPosition(static_cast<int>(begin));
    cursor.setPosition(static_cast<int>(end), QTextCursor::KeepAnchor);
    return cursor.selectedText().replace(QChar::ParagraphSeparator, u'\n');
}

/// Bodies have a megabyte, and most of the time nobody has touched the one in question.
bool isSame(const QString& one, const QString& other)
{
    return (one.constData() == other.constData() && one.size() == other.size()) || one == other;
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
    , m_stored(script.body)
    , m_body(asInDocument(script.body))
    , m_wordCount(WordCount::of(m_body))
{
    if (script.slides)
        m_deckSource = script.deckSource.value_or(QString());
}

ScriptEditor::~ScriptEditor() = default;

void ScriptEditor::setTitle(const QString& title)
{
    if (m_isEditable && title != m_title)
        m_library.updateActive(title, {}); // Comes back as an update.
}

QString ScriptEditor::wordCountText() const
{
    return tr("%n words", nullptr, static_cast<int>(m_wordCount));
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
    if (std::exchange(m_isEditable, isEditable) == isEditable)
        return;
    store();
    Q_EMIT editableChanged();
}

void ScriptEditor::follow(QQuickTextDocument* document)
{
    m_document = document->textDocument();
    // A text field draws only what is in sight if it was given a long text, but everything if the
    // text has become long since: twice the time for a megabyte that is pasted.
    if (auto* const field = qobject_cast<QQuickItem*>(document->parent()))
        field->setFlag(QQuickItem::ItemObservesViewport);
    connect(m_document, &QTextDocument::contentsChange, this, &ScriptEditor::takeOver);
    connect(m_document, &QTextDocument::contentsChanged, this, &ScriptEditor::store);
}

void ScriptEditor::update(const Script& script)
{
    if (script.title != m_title) {
        m_title = script.title;
        Q_EMIT titleChanged();
    }
    if (isSame(script.body, m_stored))
        return;
    m_stored = script.body;
    const QString body = asInDocument(script.body);
    if (m_document)
        replaceInDocument(body);
    else
        replaceInBody(0, m_body.size(), body);
    m_hasUnstoredEdit = false;
    Q_EMIT bodyChanged();
}

/// Applies an edit of the document to the body. That and not the document's whole text, which takes
/// milliseconds to copy, so that a key press costs the same in a text of any length.
void ScriptEditor::takeOver(int position, int removed, int added)
{
    // An edit at the end also counts the end of the last paragraph, which is not part of the text.
    const qsizetype length = m_document->characterCount() - 1;
    const qsizetype end = std::min<qsizetype>(position + added, length);
    replaceInBody(position, std::min<qsizetype>(removed, m_body.size() - position),
        textBetween(*m_document, position, end));
    if (m_body.size() != length)
        replaceInBody(0, m_body.size(), textBetween(*m_document, 0, length));
}

void ScriptEditor::replaceInBody(qsizetype position, qsizetype removed, const QString& inserted)
{
    if (QStringView(m_body).sliced(position, removed) == inserted)
        return; // Only the looks have changed.
    // Whether a word begins right after the edit depends on the edit.
    m_wordCount -= WordCount::beginningIn(m_body, position, position + removed + 1);
    m_body.replace(position, removed, inserted);
    m_wordCount += WordCount::beginningIn(m_body, position, position + inserted.size() + 1);
    m_hasUnstoredEdit = true;
}

/// Replaces only what differs, which leaves the cursor and the place on the screen alone.
void ScriptEditor::replaceInDocument(const QString& body)
{
    const auto [oldBegin, newBegin]
        = std::mismatch(m_body.cbegin(), m_body.cend(), body.cbegin(), body.cend());
    const auto [oldEnd, newEnd] = std::mismatch(m_body.crbegin(),
        std::make_reverse_iterator(oldBegin), body.crbegin(), std::make_reverse_iterator(newBegin));

    const auto position = [this](auto at) { return static_cast<int>(at - m_body.cbegin()); };
    QTextCursor cursor(m_document);
    cursor.setPosition(position(oldBegin));
    cursor.setPosition(position(oldEnd.base()), QTextCursor::KeepAnchor);
    const QScopedValueRollback updating(m_isUpdating, true);
    cursor.insertText(QString(newBegin, newEnd.base() - newBegin));
}

/// An input method may finish a word in a text field that has gone out of sight already. The store
/// would put it into another script, so that it waits until this one is active again.
void ScriptEditor::store()
{
    if (!m_hasUnstoredEdit || m_isUpdating || !m_isEditable)
        return;
    m_hasUnstoredEdit = false;
    m_stored = m_body;
    m_library.updateActive({}, m_body);
    Q_EMIT bodyChanged();
}

} // namespace Orvello
