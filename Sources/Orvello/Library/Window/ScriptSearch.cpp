#include "Orvello/Library/Window/ScriptSearch.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Library/Window/ScriptListModel.h"

#include <algorithm>

namespace Orvello {

ScriptSearch::ScriptSearch(LibraryStore& library, ScriptListModel& scripts)
    : m_library(library)
    , m_scripts(scripts)
{
    setSourceModel(&scripts);
    connect(&scripts, &ScriptListModel::activeRowChanged, this, &ScriptSearch::activeRowChanged);
    connect(this, &QAbstractItemModel::rowsInserted, this, &ScriptSearch::activeRowChanged);
    connect(this, &QAbstractItemModel::rowsRemoved, this, &ScriptSearch::activeRowChanged);
    connect(this, &QAbstractItemModel::rowsMoved, this, &ScriptSearch::activeRowChanged);
}

void ScriptSearch::setText(const QString& text)
{
    if (!assign(m_text, text))
        return;
    invalidateFilter();
    Q_EMIT textChanged();
    Q_EMIT activeRowChanged();
}

int ScriptSearch::activeRow() const
{
    return mapFromSource(m_scripts.index(m_scripts.activeRow())).row();
}

void ScriptSearch::activate(int row)
{
    if (rowCount() > 0)
        m_scripts.activate(mapToSource(index(std::clamp(row, 0, rowCount() - 1), 0)).row());
}

void ScriptSearch::move(int from, int to)
{
    if (m_text.isEmpty())
        m_library.move(from, to);
}

bool ScriptSearch::filterAcceptsRow(int sourceRow, const QModelIndex&) const
{
    if (m_text.isEmpty() || sourceRow >= m_library.scripts().size())
        return true;
    const Script& script = m_library.scripts()[sourceRow];
    return script.title.contains(m_text, Qt::CaseInsensitive)
        || script.body.contains(m_text, Qt::CaseInsensitive);
}

} // namespace Orvello
