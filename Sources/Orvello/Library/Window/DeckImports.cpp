#include "Orvello/Library/Window/DeckImports.h"

#include "Orvello/Library/Import/DeckFileImport.h"
#include "Orvello/Library/Import/DeckFileUpdates.h"
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

std::optional<QString> chooseDeckFile(OpenPanel& panel, const Facts& facts, const QString& message)
{
    return facts.hasKeynoteAndPowerPoint
        ? panel.chooseFile(message, { deckFile })
        : panel.chooseFile(message, { deckFile, openDocumentFile });
}

DeckImports::DeckImports(const Services& services)
    : m_services(services)
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
    if (const auto path = chooseDeckFile(m_services.openPanel, m_services.facts,
            m_services.facts.hasKeynoteAndPowerPoint
                ? tr("Choose a PowerPoint presentation — Orvello imports its speaker notes.")
                : tr("Choose a presentation — Orvello imports its speaker notes.")))
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
    const QString absolute = QFileInfo(path).absoluteFilePath();
    if (!m_services.library.scriptOfDeckFile(absolute)) {
        addFile(path);
        return;
    }
    m_questions.append(absolute);
    if (m_questions.size() == 1)
        Q_EMIT questionChanged();
}

QString DeckImports::question() const
{
    return m_questions.isEmpty()
        ? QString()
        //: %1: the name of a file.
        : tr("The notes of “%1” are among your scripts already. Update them, or add them once "
             "more?")
              .arg(QFileInfo(m_questions.first()).fileName());
}

void DeckImports::updateKnown()
{
    const QString path = takeQuestion();
    const auto failed = [self = QPointer(this)](PptxImporter::ImportError error) {
        if (self)
            self->showAlert(failureTitle(), PptxImporter::description(error));
    };
    if (const auto script = m_services.library.scriptOfDeckFile(path))
        m_services.updates.update(*script, path, failed);
    else if (!path.isEmpty())
        addFile(path);
}

void DeckImports::addOnceMore()
{
    if (const QString path = takeQuestion(); !path.isEmpty())
        addFile(path);
}

void DeckImports::dismissQuestion() { takeQuestion(); }

QString DeckImports::takeQuestion()
{
    if (m_questions.isEmpty())
        return {};
    const QString path = m_questions.takeFirst();
    Q_EMIT questionChanged();
    return path;
}

void DeckImports::addFile(const QString& path)
{
    const auto finish = [self = QPointer(this)](const DeckFileImport::Imported& imported) {
        if (!self)
            return;
        if (imported)
            self->finishFile(*imported);
        else
            self->showAlert(failureTitle(), PptxImporter::description(imported.error()));
    };
    m_services.files.import(path, finish);
}

bool DeckImports::isReadingFiles() const { return m_services.files.isBusy(); }

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
    showAlert(failureTitle(), error.description());
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
