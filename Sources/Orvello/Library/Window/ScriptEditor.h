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
    Q_PROPERTY(QString bodyInField READ bodyInField NOTIFY bodyChanged FINAL)
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

    /// As the library has it, but for line breaks of two characters.
    const QString& body() const { return m_body; }

    /// What the text field's document starts with: the body with plain line feeds.
    QString bodyInField() const;

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

    /// Where the line that the document shows at this position begins in the body as the library
    /// has it.
    qsizetype startOfLine(QStringView libraryBody, int position) const;

    /// Shows this script as the library has it after a change.
    void update(const Script& script, const LibraryChange& change);

Q_SIGNALS:
    void titleChanged();
    void bodyChanged();
    void editableChanged();
    void deckNoticeChanged();

private:
    void takeOver(int position, int removed, int added);
    void takeOverText(qsizetype position, qsizetype removed, QStringView text);
    void replaceInBody(qsizetype position, qsizetype removed, const QString& inserted);
    void showDifferences(const QString& body);
    void show(qsizetype position, qsizetype removed, const QString& inserted);
    void showBreaks();
    bool canStore() const;
    void store();

    LibraryStore& m_library;
    QUuid m_id;
    QString m_title;
    QString m_body; ///< With one character for each that the document has.
    std::optional<QString> m_deckSource; ///< Set only for a deck; empty when its source is unknown.
    qsizetype m_wordCount = 0;
    bool m_isEditable = false;
    bool m_isAsInLibrary = true; ///< The body matches the library's, except for the unstored edit.
    std::optional<TextEdit> m_unstored; ///< The user's edits that the library does not have yet.
    bool m_hasUnshownBreaks
        = false; ///< The user has inserted some that the document does not know.
    bool m_isStoring = false; ///< The library is taking over the user's edit.
    /// The document is following the library, which is no edit by the user.
    bool m_isUpdating = false;
    QPointer<QTextDocument> m_document;
};

} // namespace Orvello
