#pragma once

#include "Orvello/Library/Records/LibraryChange.h"
#include "Orvello/Library/Window/ScriptEditor.h"

#include <QAbstractListModel>

#include <memory>
#include <vector>

namespace Orvello {

/// The scripts that are open in the scripts window: the active one, which is in sight, and some
/// that were in sight before and keep their undo history, cursor and scroll position. An editor
/// without a script is always among them, for an empty library.
class OpenScripts final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(Orvello::ScriptEditor* active READ active NOTIFY activeChanged FINAL)

public:
    enum Role { EditorRole = Qt::UserRole }; ///< "editor"

    /// The active one counts, too. Beyond either bound the one out of sight for longest is closed;
    /// the active one may be of any length.
    static constexpr std::size_t maximumScripts = 8;
    static constexpr qsizetype maximumCharacters = 4'000'000; ///< Each takes a dozen bytes.

    explicit OpenScripts(LibraryStore& library); ///< `library` must outlive the model.
    ~OpenScripts() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// Never null.
    ScriptEditor* active() const { return m_active; }

Q_SIGNALS:
    void activeChanged();

private:
    struct Open {
        std::unique_ptr<ScriptEditor> editor;
        quint64 lastSeen; ///< Counts the changes of the active script.
    };

    void followScripts(const LibraryChange& change);
    void followActiveScript();
    std::vector<Open>::iterator find(const QUuid& id);
    ScriptEditor* editorFor(const Script& script);
    void closeBeyondBounds();
    void close(std::size_t place);
    bool isBeyondBounds() const;

    LibraryStore& m_library;
    std::vector<Open> m_open; ///< The one without a script comes first.
    ScriptEditor* m_active;
    quint64 m_now = 0;
};

} // namespace Orvello
