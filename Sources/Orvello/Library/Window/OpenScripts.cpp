#include "Orvello/Library/Window/OpenScripts.h"

#include "Orvello/Library/Store/LibraryStore.h"

#include <algorithm>
#include <utility>

namespace Orvello {

OpenScripts::OpenScripts(LibraryStore& library)
    : m_library(library)
{
    m_open.push_back({ std::make_unique<ScriptEditor>(library), 0 });
    m_active = m_open.front().editor.get();
    connect(&library, &LibraryStore::scriptsChanged, this, &OpenScripts::followScripts);
    connect(&library, &LibraryStore::activeScriptIDChanged, this, &OpenScripts::followActiveScript);
    followActiveScript();
}

OpenScripts::~OpenScripts() = default;

int OpenScripts::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_open.size());
}

QVariant OpenScripts::data(const QModelIndex& index, int role) const
{
    if (role != EditorRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    return QVariant::fromValue(m_open[static_cast<std::size_t>(index.row())].editor.get());
}

QHash<int, QByteArray> OpenScripts::roleNames() const { return { { EditorRole, "editor" } }; }

void OpenScripts::followScripts(const LibraryChange& change)
{
    if (change.kind == LibraryChange::Kind::Edited) {
        if (const auto open = find(change.id); open != m_open.end())
            open->editor->update(m_library.scripts()[change.row], change);
        return;
    }
    followActiveScript(); // Before one is closed, because it may be the one in sight.
    const auto open = find(change.id);
    // The file may hold a second script with that id.
    const bool isGone = change.kind == LibraryChange::Kind::Removed && open != m_open.end()
        && open->editor.get() != m_active;
    if (isGone)
        close(static_cast<std::size_t>(open - m_open.begin()));
}

void OpenScripts::followActiveScript()
{
    const Script* script = m_library.activeScript();
    ScriptEditor* const active = script ? editorFor(*script) : m_open.front().editor.get();
    ScriptEditor* const before = std::exchange(m_active, active);
    const std::optional<QUuid> edited = m_library.activeScriptID();
    active->setEditable(script && (!edited || edited == script->id));
    if (before == active)
        return;
    Q_EMIT activeChanged();
    // Only now that it is out of sight, because a text field shows the difference.
    before->setEditable(false);
    closeBeyondBounds();
}

std::vector<OpenScripts::Open>::iterator OpenScripts::find(const QUuid& id)
{
    return std::ranges::find_if(m_open.begin() + 1, m_open.end(),
        [&](const Open& open) { return open.editor->scriptID() == id; });
}

/// Puts the script in sight.
ScriptEditor* OpenScripts::editorFor(const Script& script)
{
    ++m_now;
    if (const auto open = find(script.id); open != m_open.end()) {
        open->lastSeen = m_now;
        return open->editor.get();
    }
    beginInsertRows({}, rowCount(), rowCount());
    m_open.push_back({ std::make_unique<ScriptEditor>(m_library, script), m_now });
    endInsertRows();
    return m_open.back().editor.get();
}

bool OpenScripts::isBeyondBounds() const
{
    qsizetype characters = 0;
    for (const Open& open : m_open)
        characters += open.editor->body().size();
    return m_open.size() - 1 > maximumScripts
        || (m_open.size() > 2 && characters > maximumCharacters);
}

void OpenScripts::closeBeyondBounds()
{
    while (isBeyondBounds()) {
        const auto oldest
            = std::ranges::min_element(m_open.begin() + 1, m_open.end(), {}, &Open::lastSeen);
        close(static_cast<std::size_t>(oldest - m_open.begin()));
    }
}

void OpenScripts::close(std::size_t place)
{
    const int row = static_cast<int>(place);
    beginRemoveRows({}, row, row);
    std::unique_ptr<ScriptEditor> editor = std::move(m_open[place].editor);
    m_open.erase(m_open.begin() + row);
    endRemoveRows();
    editor.release()->deleteLater(); // Outlives its page, which is deleted later, too.
}

} // namespace Orvello
