#include "Orvello/Library/Window/ScriptListModel.h"

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
    followScripts();
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
        //: Stands for a script without a title.
        return row.title.isEmpty() ? tr("Untitled") : row.title;
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

/// An insertion and a removal each leave a head and a tail of the list as they were.
void ScriptListModel::followScripts()
{
    const auto isSame = [](const Row& row, const Script& script) { return row.id == script.id; };
    const QList<Script>& scripts = m_library.scripts();
    const auto [headEnd, scriptsHeadEnd]
        = std::mismatch(m_rows.begin(), m_rows.end(), scripts.begin(), scripts.end(), isSame);
    const auto [tailBegin, scriptsTailBegin]
        = std::mismatch(m_rows.rbegin(), std::make_reverse_iterator(headEnd), scripts.rbegin(),
            std::make_reverse_iterator(scriptsHeadEnd), isSame);

    replace(headEnd - m_rows.begin(), tailBegin.base() - headEnd,
        scriptsTailBegin.base() - scriptsHeadEnd);
    refresh();
    followActiveScript();
}

void ScriptListModel::replace(qsizetype first, qsizetype removed, qsizetype inserted)
{
    const int row = static_cast<int>(first);
    if (removed > 0) {
        beginRemoveRows({}, row, row + static_cast<int>(removed) - 1);
        m_rows.erase(m_rows.begin() + first, m_rows.begin() + first + removed);
        endRemoveRows();
    }
    if (inserted > 0) {
        std::vector<Row> rows;
        const auto begin = m_library.scripts().begin() + first;
        std::transform(begin, begin + inserted, std::back_inserter(rows), rowOf);
        beginInsertRows({}, row, row + static_cast<int>(inserted) - 1);
        m_rows.insert(m_rows.begin() + first, rows.begin(), rows.end());
        endInsertRows();
    }
}

/// Announces the rows that show something else than before.
void ScriptListModel::refresh()
{
    const QList<Script>& scripts = m_library.scripts();
    for (int i = 0; i < rowCount(); ++i) {
        const Script& script = scripts[i];
        Row& row = m_rows[static_cast<std::size_t>(i)];
        if (row.title == script.title
            && row.slideCount == (script.slides ? script.slides->size() : noDeck))
            continue;
        row = rowOf(script);
        Q_EMIT dataChanged(index(i), index(i));
    }
}

void ScriptListModel::followActiveScript()
{
    const std::optional<QUuid> id = m_library.activeScriptID();
    const auto active = std::ranges::find_if(m_rows, [&](const Row& row) { return row.id == id; });
    const int row = active == m_rows.end() ? -1 : static_cast<int>(active - m_rows.begin());
    if (std::exchange(m_activeRow, row) != row)
        Q_EMIT activeRowChanged();
}

} // namespace Orvello
