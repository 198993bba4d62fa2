#include "Orvello/Library/Window/OpenScripts.h"

#include "Orvello/Library/Store/LibraryStore.h"

#include <QHash>

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

void OpenScripts::followScripts()
{
    QHash<QUuid, const Script*> scripts;
    for (std::size_t i = 1; i < m_open.size(); ++i)
        scripts.insert(m_open[i].editor->scriptID(), nullptr);
    for (const Script& script : m_library.scripts()) {
        const auto wanted = scripts.find(script.id);
        if (wanted != scripts.end() && !*wanted)
            *wanted = &script;
    }

    for (std::size_t i = 1; i < m_open.size(); ++i) {
        if (const Script* script = scripts.value(m_open[i].editor->scriptID()))
            m_open[i].editor->update(*script);
    }
    followActiveScript(); // Before any is closed: it may be the one that is seen.
    for (std::size_t i = m_open.size() - 1; i > 0; --i) {
        const QUuid id = m_open[i].editor->scriptID();
        if (scripts.contains(id) && !scripts.value(id))
            close(i);
    }
}

void OpenScripts::followActiveScript()
{
    const Script* script = m_library.activeScript();
    ScriptEditor* const active = script ? opened(*script) : m_open.front().editor.get();
    ScriptEditor* const before = std::exchange(m_active, active);
    const std::optional<QUuid> edited = m_library.activeScriptID();
    active->setEditable(script && (!edited || edited == script->id));
    if (before == active)
        return;
    Q_EMIT activeChanged();
    before->setEditable(false); // Now that it is out of sight: a text field shows the difference.
    closeBeyondBounds();
}

/// The editor of a script, which is seen from now on.
ScriptEditor* OpenScripts::opened(const Script& script)
{
    ++m_now;
    const auto open = std::ranges::find_if(m_open.begin() + 1, m_open.end(),
        [&](const Open& candidate) { return candidate.editor->scriptID() == script.id; });
    if (open != m_open.end()) {
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
    return m_open.size() - 1 > mostScripts || (m_open.size() > 2 && characters > mostCharacters);
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
    editor.release()->deleteLater(); // After its page, which is deleted later, too.
}

} // namespace Orvello
