#pragma once

#include "Orvello/Library/Window/DeckFileBar.h"
#include "Orvello/Library/Window/DeckImports.h"
#include "Orvello/Library/Window/DeletedScriptsModel.h"
#include "Orvello/Library/Window/LibraryNotices.h"
#include "Orvello/Library/Window/OpenScripts.h"
#include "Orvello/Library/Window/ScriptListModel.h"
#include "Orvello/Library/Window/ScriptSearch.h"

namespace Orvello {

/// What the scripts window shows, and its commands on the library.
class LibraryViewModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(Orvello::ScriptSearch* scripts READ scripts CONSTANT FINAL)
    Q_PROPERTY(Orvello::DeletedScriptsModel* deleted READ deleted CONSTANT FINAL)
    Q_PROPERTY(Orvello::LibraryNotices* notices READ notices CONSTANT FINAL)
    Q_PROPERTY(Orvello::OpenScripts* openScripts READ openScripts CONSTANT FINAL)
    Q_PROPERTY(Orvello::DeckImports* imports READ imports CONSTANT FINAL)
    Q_PROPERTY(Orvello::DeckFileBar* deckFile READ deckFile CONSTANT FINAL)
    Q_PROPERTY(Orvello::Facts facts MEMBER m_facts CONSTANT FINAL)

public:
    explicit LibraryViewModel(const DeckImports::Services& services);
    ~LibraryViewModel() override;

    ScriptSearch* scripts() { return &m_search; }
    DeletedScriptsModel* deleted() { return &m_deleted; }
    LibraryNotices* notices() { return &m_notices; }
    OpenScripts* openScripts() { return &m_openScripts; }
    DeckImports* imports() { return &m_imports; }
    DeckFileBar* deckFile() { return &m_deckFile; }

    Q_INVOKABLE void addScript();
    Q_INVOKABLE void removeActive(); ///< Does nothing when no script is active.
    Q_INVOKABLE void duplicateActive(); ///< The same.

private:
    LibraryStore& m_library;
    ScriptListModel m_scripts;
    ScriptSearch m_search;
    DeletedScriptsModel m_deleted;
    LibraryNotices m_notices;
    OpenScripts m_openScripts;
    DeckImports m_imports;
    DeckFileBar m_deckFile;
    Facts m_facts; ///< What the window may say about this machine.
};

} // namespace Orvello
