#pragma once

#include "Orvello/Library/Records/LibraryChange.h"
#include "Orvello/Library/Records/Script.h"

#include <QObject>
#include <QPointer>

class QQuickTextDocument;
class QTextDocument;

namespace Orvello {

class LibraryStore;

/// One script while it is open in the scripts window, or no script at all, which shows as empty
/// fields. Every edit goes to the store at once, as an edit of the active script.
class ScriptEditor final : public QObject {
    Q_OBJECT
    Q_PROPERTY(QString title READ title WRITE setTitle NOTIFY titleChanged FINAL)
    Q_PROPERTY(QString body READ body NOTIFY bodyChanged FINAL)
    Q_PROPERTY(QString lengthText READ lengthText NOTIFY bodyChanged FINAL)
    Q_PROPERTY(bool isDeck READ isDeck CONSTANT FINAL)
    Q_PROPERTY(QString deckNotice READ deckNotice NOTIFY deckNoticeChanged FINAL)
    Q_PROPERTY(bool isEditable READ isEditable NOTIFY editableChanged FINAL)

public:
    explicit ScriptEditor(LibraryStore& library); ///< An editor without a script.
    ScriptEditor(LibraryStore& library, const Script& script); ///< `library` must outlive both.
    ~ScriptEditor() override;

    QUuid scriptID() const { return m_id; }

    const QString& title() const { return m_title; }
    void setTitle(const QString& title);

    /// What the text field's document starts with.
    const QString& body() const { return m_body; }

    /// "12 words".
    QString wordCountText() const;

    /// The same, and how long they take to read aloud.
    QString lengthText() const;

    /// A deck's body is read-only: it is edited in the presentation.
    bool isDeck() const { return m_deckSource.has_value(); }
    QString deckNotice() const;

    /// Whether an edit would reach the script, because it is the one that the store edits.
    bool isEditable() const { return m_isEditable; }
    void setEditable(bool isEditable);

    /// Follows the user's edits in a document that shows the body.
    Q_INVOKABLE void follow(QQuickTextDocument* document);

    /// Shows this script as the library has it after a change.
    void update(const Script& script, const LibraryChange& change);

Q_SIGNALS:
    void titleChanged();
    void bodyChanged();
    void editableChanged();
    void deckNoticeChanged();

private:
    void takeOver(int position, int removed, int added);
    void replaceInBody(qsizetype position, qsizetype removed, const QString& inserted);
    void showDifferences(const QString& body);
    void show(qsizetype position, qsizetype removed, const QString& inserted);
    bool canStore() const;
    void store();

    LibraryStore& m_library;
    QUuid m_id;
    QString m_title;
    QString m_body; ///< In a document's form: with plain line feeds.
    std::optional<QString> m_deckSource; ///< Set only for a deck; empty when its source is unknown.
    qsizetype m_wordCount = 0;
    bool m_isEditable = false;
    bool m_isAsInLibrary = true; ///< The body matches the library's, except for the unstored edit.
    std::optional<TextEdit> m_unstored; ///< The user's edits that the library does not have yet.
    bool m_isStoring = false; ///< The library is taking over the user's edit.
    /// The document is following the library, which is no edit by the user.
    bool m_isUpdating = false;
    QPointer<QTextDocument> m_document;
};

} // namespace Orvello
