#include "Orvello/Library/Window/DeckImports.h"

#include "Orvello/Library/Import/DeckFileImport.h"
#include "Orvello/Library/Import/LiveDeckImport.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Platform/Desktop/OpenPanel.h"
#include "Orvello/Presentations/Decks/PptxImporter.h"
#include "Orvello/Presentations/Presenters/PresenterApp.h"

#include <QPointer>

#include <algorithm>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

const OpenPanel::FileKind deckFile {
    .typeIdentifier = u"org.openxmlformats.presentationml.presentation"_s,
    .extension = u"pptx"_s,
};

const OpenPanel::FileKind openDocumentFile {
    .typeIdentifier = u"org.oasis-open.opendocument.presentation"_s,
    .extension = u"odp"_s,
};

bool isDeck(const QUrl& file)
{
    return file.isLocalFile() && PptxImporter::isDeckFile(file.toLocalFile());
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
    , m_files(std::make_unique<DeckFileImport>(services.library))
{
    for (const PresenterApp& app : services.presenters.apps()) {
        if (app.isForThisSystem)
            m_apps.push_back(&app);
    }
    connect(&services.openDecks, &LiveDeckImport::sourceChanged, this,
        &DeckImports::readingTextChanged);
    connect(&services.library, &LibraryStore::notesLeftOut, this, [this](const QString& slides) {
        showAlert(tr("Not all notes were imported"),
            //: %1: numbers of slides, as in "3, 257–300".
            tr("The file holds more than Orvello reads: the notes of slides %1 could not be read.")
                .arg(slides));
    });
    // Shown beside the item for its files.
    std::stable_partition(
        m_apps.begin(), m_apps.end(), [](const PresenterApp* app) { return app->hasDeckFiles; });
}

DeckImports::~DeckImports() = default;

QStringList DeckImports::titles() const
{
    QStringList titles { m_services.facts.hasKeynoteAndPowerPoint
            ? tr("PowerPoint file (.pptx)…")
            : tr("Presentation file (.pptx, .odp)…") };
    for (const PresenterApp* app : m_apps)
        //: An item of a menu. %1: a presentation program, such as Keynote.
        titles.append(tr("Open %1 presentation").arg(app->logName));
    return titles;
}

QString DeckImports::readingText() const
{
    const QString source = m_services.openDecks.source();
    //: %1: a presentation program, such as Keynote.
    return source.isEmpty() ? QString() : tr("Reading what is open in %1…").arg(source);
}

void DeckImports::cancelReading() { m_services.openDecks.cancel(); }

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
    const auto path = m_services.facts.hasKeynoteAndPowerPoint
        ? m_services.openPanel.chooseFile(
            tr("Choose a PowerPoint presentation — Orvello imports its speaker notes."),
            { deckFile })
        : m_services.openPanel.chooseFile(
            tr("Choose a presentation — Orvello imports its speaker notes."),
            { deckFile, openDocumentFile });
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
            tr("Orvello imports speaker notes from presentations (.pptx, .odp). It cannot read %1.")
                .arg(others.join(u", "_s)));
}

void DeckImports::importFile(const QString& path)
{
    m_files->import(path, [this](const DeckFileImport::Imported& imported) {
        if (imported)
            finishFile(*imported);
        else
            showAlert(tr("Import failed"), PptxImporter::description(imported.error()));
    });
}

bool DeckImports::isReadingFiles() const { return m_files->isBusy(); }

void DeckImports::finishFile(const QUuid& imported)
{
    if (!hasNotes(m_services.library, imported))
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
