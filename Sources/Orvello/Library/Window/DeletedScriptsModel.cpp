#include "Orvello/Library/Window/DeletedScriptsModel.h"

#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Library/Window/ScriptListModel.h"

#include <QDateTime>
#include <QLocale>

namespace Orvello {

DeletedScriptsModel::DeletedScriptsModel(LibraryStore& library)
    : m_library(library)
{
    connect(&library, &LibraryStore::deletedScriptsChanged, this, [this] {
        beginResetModel(); // It is short, and seldom in sight.
        endResetModel();
        Q_EMIT countChanged();
    });
}

int DeletedScriptsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_library.deletedScripts().size());
}

QVariant DeletedScriptsModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const DeletedScript& deleted = m_library.deletedScripts()[index.row()];
    switch (role) {
    case TitleRole:
        return ScriptListModel::shownTitle(deleted.script.title);
    case DeletedRole: {
        const auto seconds = static_cast<qint64>(deleted.deletedAt.unixSeconds());
        //: %1: a date.
        return tr("Deleted %1")
            .arg(QLocale().toString(
                QDateTime::fromSecsSinceEpoch(seconds).date(), QLocale::ShortFormat));
    }
    default:
        return {};
    }
}

QHash<int, QByteArray> DeletedScriptsModel::roleNames() const
{
    return { { TitleRole, "title" }, { DeletedRole, "deleted" } };
}

void DeletedScriptsModel::restore(int row) { m_library.restore(row); }

} // namespace Orvello
