#include "Orvello/Library/Window/LibraryViewModel.h"

#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Platform/Desktop/OpenPanel.h"

#include <QFileInfo>
#include <QSaveFile>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// In the order of ScriptExport::Format.
QList<OpenPanel::FileKind> exportKinds()
{
    return { { .typeIdentifier = u"public.plain-text"_s, .extension = u"txt"_s },
        { .typeIdentifier = u"net.daringfireball.markdown"_s, .extension = u"md"_s } };
}

} // namespace

LibraryViewModel::LibraryViewModel(
    const DeckImports::Services& services, std::function<void(qsizetype)> startReadingAt)
    : m_library(services.library)
    , m_openPanel(services.openPanel)
    , m_startReadingAt(std::move(startReadingAt))
    , m_scripts(services.library)
    , m_search(services.library, m_scripts)
    , m_deleted(services.library)
    , m_notices(services.library)
    , m_openScripts(services.library)
    , m_imports(services)
    , m_deckFile(services, m_imports)
    , m_facts(services.facts)
{
}

LibraryViewModel::~LibraryViewModel() = default;

void LibraryViewModel::addScript()
{
    m_search.setText({}); // Else the new script might not be in the list.
    m_library.addScript();
}

void LibraryViewModel::duplicateActive()
{
    if (const Script* const script = m_library.activeScript())
        m_library.duplicate(script->id);
}

void LibraryViewModel::removeActive()
{
    if (const std::optional<QUuid> id = m_library.activeScriptID())
        m_library.remove(*id);
}

void LibraryViewModel::startHere(int cursorPosition)
{
    if (const Script* const script = m_library.activeScript())
        m_startReadingAt(m_openScripts.active()->startOfLine(script->body, cursorPosition));
}

void LibraryViewModel::exportActive()
{
    const Script* const active = m_library.activeScript();
    if (!active)
        return;
    const Script script = *active;
    //: Above the panel in which the user says where the script is to be written.
    exportTo(tr("Export this script"), script.title,
        [&](ScriptExport::Format format) { return ScriptExport::contentOf(script, format); });
}

void LibraryViewModel::exportListed()
{
    QList<Script> scripts;
    for (int row = 0; row < m_search.rowCount(); ++row)
        scripts.append(m_library.scripts()[m_search.mapToSource(m_search.index(row, 0)).row()]);
    if (scripts.isEmpty())
        return;
    //: The name of a file with several scripts.
    const QString name = tr("Scripts");
    exportTo(tr("Export %n scripts", nullptr, static_cast<int>(scripts.size())), name,
        [&](ScriptExport::Format format) { return ScriptExport::contentOf(scripts, format); });
}

void LibraryViewModel::exportTo(
    const QString& message, const QString& title, const ContentOf& contentOf)
{
    const auto chosen
        = m_openPanel.chooseNewFile(message, ScriptExport::fileNameOf(title), exportKinds());
    if (!chosen)
        return;
    QSaveFile file(
        chosen->path); // Whatever happens, an older file stays until the new one is whole.
    const QByteArray bytes = contentOf(ScriptExport::Format(chosen->kind)).toUtf8();
    if (file.open(QIODevice::WriteOnly) && file.write(bytes) == bytes.size() && file.commit())
        return;
    m_imports.showAlert(tr("Export failed"),
        //: %1: the name of a file; %2: what the system says about it.
        tr("“%1” could not be written (%2).")
            .arg(QFileInfo(chosen->path).fileName(), file.errorString()));
}

} // namespace Orvello
