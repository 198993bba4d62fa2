#pragma once

#include <QSortFilterProxyModel>

namespace Orvello {

class LibraryStore;
class ScriptListModel;

/// The list of scripts, or of those whose title or text contains what the user looks for, in
/// either case.
class ScriptSearch final : public QSortFilterProxyModel {
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged FINAL)
    Q_PROPERTY(int activeRow READ activeRow NOTIFY activeRowChanged FINAL)

public:
    /// Both must outlive the search.
    ScriptSearch(LibraryStore& library, ScriptListModel& scripts);

    const QString& text() const { return m_text; }
    void setText(const QString& text); ///< Empty for all scripts.

    /// Where the active script is among those found, or -1.
    int activeRow() const;

    /// Makes that row's script active; a row beyond the list means the nearest one.
    Q_INVOKABLE void activate(int row);

    /// Moves the script of one row to another one, in the library too. Not while searching.
    Q_INVOKABLE void move(int from, int to);

Q_SIGNALS:
    void textChanged();
    void activeRowChanged();

protected:
    bool filterAcceptsRow(int sourceRow, const QModelIndex& sourceParent) const override;

private:
    LibraryStore& m_library;
    ScriptListModel& m_scripts;
    QString m_text;
};

} // namespace Orvello
