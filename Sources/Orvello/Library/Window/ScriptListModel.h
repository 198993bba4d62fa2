#pragma once

#include <QAbstractListModel>
#include <QUuid>

#include <vector>

namespace Orvello {

class LibraryStore;

/// The library as the list of the scripts window shows it. A change of the library changes only
/// the rows that it concerns.
class ScriptListModel final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int activeRow READ activeRow NOTIFY activeRowChanged FINAL)

public:
    enum Role {
        TitleRole = Qt::UserRole, ///< "title": never empty.
        IsDeckRole, ///< "isDeck"
        SlidesRole, ///< "slides": how many the deck has, in words; empty for other scripts.
    };

    explicit ScriptListModel(LibraryStore& library); ///< `library` must outlive the model.
    ~ScriptListModel() override;

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// The row that `activeScriptID` names, or -1.
    int activeRow() const { return m_activeRow; }

    /// The title in a list, where a script without one has a name, too.
    static QString shownTitle(const QString& title);

    /// Makes that row's script active; a row beyond the list means the nearest one.
    Q_INVOKABLE void activate(int row);

Q_SIGNALS:
    void activeRowChanged();

private:
    /// What a row shows of its script.
    struct Row {
        QUuid id;
        QString title;
        qsizetype slideCount; ///< Or `noDeck`.
    };
    static constexpr qsizetype noDeck = -1;

    static Row rowOf(const struct Script& script);
    void followScripts(const struct LibraryChange& change);
    void followActiveScript();

    LibraryStore& m_library;
    std::vector<Row> m_rows;
    int m_activeRow = -1;
};

} // namespace Orvello
