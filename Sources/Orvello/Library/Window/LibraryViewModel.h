#pragma once

#include "Orvello/Library/Window/DeckImports.h"
#include "Orvello/Library/Window/OpenScripts.h"
#include "Orvello/Library/Window/ScriptListModel.h"

namespace Orvello {

/// What the scripts window shows, and its commands on the library.
class LibraryViewModel final : public QObject {
    Q_OBJECT
    Q_PROPERTY(Orvello::ScriptListModel* scripts READ scripts CONSTANT FINAL)
    Q_PROPERTY(Orvello::OpenScripts* openScripts READ openScripts CONSTANT FINAL)
    Q_PROPERTY(Orvello::DeckImports* imports READ imports CONSTANT FINAL)
    Q_PROPERTY(Orvello::Facts facts MEMBER m_facts CONSTANT FINAL)

public:
    explicit LibraryViewModel(const DeckImports::Services& services);
    ~LibraryViewModel() override;

    ScriptListModel* scripts() { return &m_scripts; }
    OpenScripts* openScripts() { return &m_openScripts; }
    DeckImports* imports() { return &m_imports; }

    Q_INVOKABLE void addScript();
    Q_INVOKABLE void removeActive(); ///< Does nothing when no script is active.

private:
    LibraryStore& m_library;
    ScriptListModel m_scripts;
    OpenScripts m_openScripts;
    DeckImports m_imports;
    Facts m_facts; ///< What the window may say about this machine.
};

} // namespace Orvello
