#include "Orvello/Library/Window/ScriptSearch.h"

#include "Orvello/Foundation/Assign.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Library/Window/ScriptListModel.h"

#include <algorithm>
#include <array>

namespace Orvello {

namespace {

bool isAscii(QChar character) { return character.unicode() < 0x80; }

/// Whether the text contains what is looked for, in either case: what QString::contains() says, in
/// a third of its time where the first letters are English ones. Ten thousand talks must be gone
/// through while a key is pressed.
bool containsInEitherCase(QStringView text, QStringView sought)
{
    const qsizetype length = sought.size();
    if (length < 2 || !isAscii(sought[0]) || !isAscii(sought[1]))
        return text.contains(sought, Qt::CaseInsensitive);
    const std::array first { sought[0].toLower().unicode(), sought[0].toUpper().unicode() };
    const std::array second { sought[1].toLower().unicode(), sought[1].toUpper().unicode() };
    const char16_t* const characters = text.utf16();
    const auto isAt = [](char16_t character, const std::array<char16_t, 2>& cases) {
        return character == cases[0] || character == cases[1];
    };
    for (qsizetype i = 0; i + length <= text.size(); ++i) {
        if (isAt(characters[i], first) && isAt(characters[i + 1], second)
            && text.sliced(i, length).compare(sought, Qt::CaseInsensitive) == 0)
            return true;
    }
    return false;
}

} // namespace

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
    return containsInEitherCase(script.title, m_text) || containsInEitherCase(script.body, m_text);
}

} // namespace Orvello
