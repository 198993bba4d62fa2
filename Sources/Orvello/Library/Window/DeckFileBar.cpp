#include "Orvello/Library/Window/DeckFileBar.h"

#include "Orvello/Library/Import/DeckFileUpdates.h"
#include "Orvello/Library/Store/LibraryStore.h"

#include <QFileInfo>
#include <QPointer>

namespace Orvello {

using State = DeckFileUpdates::State;

DeckFileBar::DeckFileBar(const DeckImports::Services& services, DeckImports& imports)
    : m_services(services)
    , m_imports(imports)
{
    connect(&services.updates, &DeckFileUpdates::stateChanged, this, &DeckFileBar::changed);
}

QString DeckFileBar::path() const { return m_services.updates.path(); }

QString DeckFileBar::text() const
{
    const QString file = QFileInfo(path()).fileName();
    switch (m_services.updates.state()) {
    case State::NoDeck:
    case State::NoFile:
    case State::Watched:
        break;
    case State::Current:
        //: %1: the name of a file.
        return tr("Up to date with “%1”.").arg(file);
    case State::Missing:
        //: %1: the name of a file.
        return tr("“%1” is not there any more. The notes stay as they were.").arg(file);
    case State::LosesNotes:
        //: %1: the name of a file; %2: numbers of slides, as in "3, 257–300".
        return tr("“%1” has changed: the notes of slides %2 are no longer in it. An update keeps "
                  "this version among the deleted scripts.")
            .arg(file, PptxImporter::slideRanges(m_services.updates.lostSlides()));
    case State::Unreadable:
        //: %1: the name of a file; %2: why, as a sentence.
        return tr("“%1” has changed, but cannot be read: %2")
            .arg(file, PptxImporter::description(m_services.updates.problem()));
    }
    return {};
}

bool DeckFileBar::needsFile() const
{
    return m_services.updates.state() == State::NoFile
        || m_services.updates.state() == State::Missing;
}

QString DeckFileBar::action() const
{
    if (m_services.updates.state() == State::NoDeck)
        return {};
    //: A button: the notes are taken from their presentation's file once more.
    return needsFile() ? tr("Update from File…") : tr("Update");
}

void DeckFileBar::update()
{
    if (m_services.updates.state() == State::NoDeck)
        return;
    if (needsFile())
        chooseFile();
    else
        m_services.updates.update();
}

void DeckFileBar::chooseFile()
{
    const Script* const script = m_services.library.activeScript();
    if (!script)
        return;
    const QUuid id = script->id;
    if (const auto path = chooseDeckFile(m_services.openPanel, m_services.facts,
            tr("Choose the presentation that these notes are from.")))
        m_services.updates.update(
            id, *path, [imports = QPointer(&m_imports)](PptxImporter::ImportError error) {
                if (imports)
                    imports->showAlert(
                        DeckImports::failureTitle(), PptxImporter::description(error));
            });
}

} // namespace Orvello
