#include "Orvello/Library/Window/ScriptListModel.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Library/Store/LibraryStore.h"

#include <algorithm>
#include <iterator>

namespace Orvello {

ScriptListModel::ScriptListModel(LibraryStore& library)
    : m_library(library)
{
    connect(&library, &LibraryStore::scriptsChanged, this, &ScriptListModel::followScripts);
    connect(
        &library, &LibraryStore::activeScriptIDChanged, this, &ScriptListModel::followActiveScript);
    std::ranges::transform(library.scripts(), std::back_inserter(m_rows), rowOf);
    followActiveScript();
}

ScriptListModel::~ScriptListModel() = default;

int ScriptListModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_rows.size());
}

QVariant ScriptListModel::data(const QModelIndex& index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Row& row = m_rows[static_cast<std::size_t>(index.row())];
    switch (role) {
    case TitleRole:
        return shownTitle(row.title);
    case IsDeckRole:
        return row.slideCount != noDeck;
    case SlidesRole:
        return row.slideCount == noDeck
            ? QString()
            : tr("%n slides", nullptr, static_cast<int>(row.slideCount));
    default:
        return {};
    }
}

QHash<int, QByteArray> ScriptListModel::roleNames() const
{
    return { { TitleRole, "title" }, { IsDeckRole, "isDeck" }, { SlidesRole, "slides" } };
}

QString ScriptListModel::shownTitle(const QString& title)
{
    //: Stands for a script without a title.
    return title.isEmpty() ? tr("Untitled") : title;
}

void ScriptListModel::activate(int row)
{
    const QList<Script>& scripts = m_library.scripts();
    if (!scripts.isEmpty())
        m_library.setActiveScriptID(scripts[std::clamp<qsizetype>(row, 0, scripts.size() - 1)].id);
}

ScriptListModel::Row ScriptListModel::rowOf(const Script& script)
{
    return { script.id, script.title, script.slides ? script.slides->size() : noDeck };
}

void ScriptListModel::followScripts(const LibraryChange& change)
{
    const int row = static_cast<int>(change.row);
    switch (change.kind) {
    case LibraryChange::Kind::Inserted:
        beginInsertRows({}, row, row);
        m_rows.insert(m_rows.begin() + row, rowOf(m_library.scripts()[change.row]));
        endInsertRows();
        followActiveScript();
        break;
    case LibraryChange::Kind::Removed:
        beginRemoveRows({}, row, row);
        m_rows.erase(m_rows.begin() + row);
        endRemoveRows();
        followActiveScript();
        break;
    case LibraryChange::Kind::Moved: {
        const int newRow = static_cast<int>(change.newRow);
        // A move downward names the row that the script is put in front of.
        beginMoveRows({}, row, row, {}, newRow > row ? newRow + 1 : newRow);
        const Row moved = m_rows[static_cast<std::size_t>(row)];
        m_rows.erase(m_rows.begin() + row);
        m_rows.insert(m_rows.begin() + newRow, moved);
        endMoveRows();
        followActiveScript();
        break;
    }
    case LibraryChange::Kind::Edited:
        if (!change.hasNewTitle)
            break;
        m_rows[static_cast<std::size_t>(row)].title = m_library.scripts()[change.row].title;
        Q_EMIT dataChanged(index(row), index(row));
        break;
    }
}

void ScriptListModel::followActiveScript()
{
    const std::optional<QUuid> id = m_library.activeScriptID();
    const auto active = std::ranges::find_if(m_rows, [&](const Row& row) { return row.id == id; });
    const int row = active == m_rows.end() ? -1 : static_cast<int>(active - m_rows.begin());
    if (assign(m_activeRow, row))
        Q_EMIT activeRowChanged();
}

} // namespace Orvello
