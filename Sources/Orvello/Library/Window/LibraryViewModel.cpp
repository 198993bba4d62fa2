#include "Orvello/Library/Window/LibraryViewModel.h"

#include "Orvello/Library/Store/LibraryStore.h"

namespace Orvello {

LibraryViewModel::LibraryViewModel(const DeckImports::Services& services)
    : m_library(services.library)
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

} // namespace Orvello
