#pragma once

#include <QAbstractListModel>

namespace Orvello {

class LibraryStore;

/// The recently deleted scripts, newest first.
class DeletedScriptsModel final : public QAbstractListModel {
    Q_OBJECT
    Q_PROPERTY(int count READ count NOTIFY countChanged FINAL)

public:
    enum Role {
        TitleRole = Qt::UserRole, ///< "title": never empty.
        DeletedRole, ///< "deleted": when, in words.
    };

    explicit DeletedScriptsModel(LibraryStore& library); ///< `library` must outlive the model.

    int rowCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QHash<int, QByteArray> roleNames() const override;
    int count() const { return rowCount(); }

    /// Puts that script back into the library. A row that does not exist does nothing.
    Q_INVOKABLE void restore(int row);

Q_SIGNALS:
    void countChanged();

private:
    LibraryStore& m_library;
};

} // namespace Orvello
