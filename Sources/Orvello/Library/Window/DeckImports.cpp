#include "Orvello/Library/Window/DeckImports.h"

#include "Orvello/Library/Import/LiveDeckImport.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Platform/Desktop/OpenPanel.h"
#include "Orvello/Presentations/Decks/PptxImporter.h"
#include "Orvello/Presentations/Presenters/PresenterApp.h"

#include <QFileInfo>
#include <QPointer>

#include <algorithm>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

const OpenPanel::FileKind deckFile {
    .typeIdentifier = u"org.openxmlformats.presentationml.presentation"_s,
    .extension = u"pptx"_s,
};

bool isDeck(const QUrl& file)
{
    return file.isLocalFile()
        && QFileInfo(file.toLocalFile()).suffix().compare(deckFile.extension, Qt::CaseInsensitive)
        == 0;
}

/// Whether it can be on this machine at all. Keynote and PowerPoint are told by their bundles, and
/// only Macs have those.
bool isHere(const PresenterApp& app, const Facts& facts)
{
    return facts.hasKeynoteAndPowerPoint || !app.bundleIdentifier.startsWith("com."_L1);
}

bool hasNotes(const LibraryStore& library, QUuid id)
{
    const auto script = std::ranges::find(library.scripts(), id, &Script::id);
    return script != library.scripts().end() && script->slides
        && std::ranges::any_of(
            *script->slides, [](const SlideNote& slide) { return !slide.notes.isEmpty(); });
}

} // namespace

DeckImports::DeckImports(const Services& services)
    : m_services(services)
{
    for (const PresenterApp& app : services.presenters.apps()) {
        if (isHere(app, services.facts))
            m_apps.push_back(&app);
    }
    // Shown beside the item for its files.
    std::stable_partition(
        m_apps.begin(), m_apps.end(), [](const PresenterApp* app) { return app->hasDeckFiles; });
}

DeckImports::~DeckImports() = default;

QStringList DeckImports::titles() const
{
    QStringList titles { tr("PowerPoint file (.pptx)…") };
    for (const PresenterApp* app : m_apps)
        //: An item of a menu. %1: a presentation program, such as Keynote.
        titles.append(tr("Open %1 presentation").arg(app->logName));
    return titles;
}

void DeckImports::run(int item)
{
    if (item == 0) {
        chooseFile();
        return;
    }
    const PresenterApp& app = *m_apps.at(static_cast<std::size_t>(item) - 1);
    if (app.hasDeckFiles)
        importOpenPowerPointDeck(app);
    else
        importOpenDeck(app);
}

void DeckImports::chooseFile()
{
    const auto path = m_services.openPanel.chooseFile(
        tr("Choose a PowerPoint presentation — Orvello imports its speaker notes."), deckFile);
    if (path)
        importFiles({ QUrl::fromLocalFile(*path) });
}

bool DeckImports::canTake(const QList<QUrl>& files) const
{
    return std::ranges::any_of(files, &QUrl::isLocalFile);
}

void DeckImports::importFiles(const QList<QUrl>& files)
{
    QStringList others;
    for (const QUrl& file : files) {
        if (isDeck(file))
            importFile(file.toLocalFile());
        else
            others.append(file.fileName());
    }
    if (!others.isEmpty())
        showAlert(tr("Not a presentation"),
            //: %1: the names of files.
            tr("Orvello imports speaker notes from PowerPoint files (.pptx). It cannot read %1.")
                .arg(others.join(u", "_s)));
}

void DeckImports::importFile(const QString& path)
{
    const auto imported = m_services.library.importPptx(path);
    if (!imported)
        showAlert(tr("Import failed"), PptxImporter::description(imported.error()));
    else if (!hasNotes(m_services.library, *imported))
        showAlert(tr("No speaker notes"),
            m_services.facts.hasKeynoteAndPowerPoint
                ? tr("The deck was imported, but no slide has speaker notes. Add notes in "
                     "PowerPoint's notes pane and re-import.")
                : tr("The deck was imported, but no slide has speaker notes. Add notes in your "
                     "presentation program's notes pane and re-import."));
}

void DeckImports::importOpenDeck(const PresenterApp& app)
{
    m_services.openDecks.importFromOpenDeck(
        app, [self = QPointer(this)](const LiveDeckImport::Imported& imported) {
            if (self && !imported)
                self->showFailure(imported.error());
        });
}

void DeckImports::importOpenPowerPointDeck(const PresenterApp& powerPoint)
{
    const auto finish = [self = QPointer(this)](
                            const LiveDeckImport::PowerPointImported& imported) {
        if (!self)
            return;
        if (!imported)
            self->showFailure(imported.error());
        else if (imported->fromStaleFile)
            self->showAlert(tr("Imported the saved copy"),
                tr("PowerPoint has unsaved changes, so the notes came from the last saved copy. "
                   "Save the presentation and import again to include them."));
    };
    m_services.openDecks.importFromOpenPowerPointDeck(powerPoint, finish);
}

void DeckImports::showFailure(const DeckImportError& error)
{
    showAlert(tr("Import failed"), error.description());
}

void DeckImports::showAlert(const QString& title, const std::optional<QString>& message)
{
    m_alerts.append({ title, message ? *message : tr("Unknown error") });
    if (m_alerts.size() == 1)
        Q_EMIT alertChanged();
}

void DeckImports::dismissAlert()
{
    if (m_alerts.isEmpty())
        return;
    m_alerts.removeFirst();
    Q_EMIT alertChanged();
}

QString DeckImports::alertTitle() const
{
    return m_alerts.isEmpty() ? QString() : m_alerts.first().title;
}

QString DeckImports::alertText() const
{
    return m_alerts.isEmpty() ? QString() : m_alerts.first().text;
}

} // namespace Orvello
