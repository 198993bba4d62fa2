#pragma once

#include "Orvello/Library/Window/DeckFileBar.h"
#include "Orvello/Library/Window/DeckImports.h"
#include "Orvello/Library/Window/DeletedScriptsModel.h"
#include "Orvello/Library/Window/LibraryNotices.h"
#include "Orvello/Library/Window/OpenScripts.h"
#include "Orvello/Library/Window/ScriptExport.h"
#include "Orvello/Library/Window/ScriptListModel.h"
#include "Orvello/Library/Window/ScriptSearch.h"

#include <functional>

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
    /// `startReadingAt` has the prompter begin at a place of the active script's body.
    explicit LibraryViewModel(
        const DeckImports::Services& services,
        std::function<void(qsizetype)> startReadingAt = [](qsizetype) {});
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

    /// Has the prompter begin with the line of the editor that has that place.
    Q_INVOKABLE void startHere(int cursorPosition);

    /// Writes the active script to a file that the user chooses, as text or Markdown.
    Q_INVOKABLE void exportActive();

    /// Writes all scripts of the list to one file.
    Q_INVOKABLE void exportListed();

private:
    using ContentOf = std::function<QString(ScriptExport::Format)>;
    void exportTo(const QString& message, const QString& title, const ContentOf& contentOf);

    LibraryStore& m_library;
    OpenPanel& m_openPanel;
    const std::function<void(qsizetype)> m_startReadingAt;
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
