#include "Orvello/Library/Import/LiveDeckImport.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Library/Store/LibraryStore.h"
#include "Orvello/Platform/Desktop/Workspace.h"
#include "Orvello/Presentations/Decks/PptxImporter.h"
#include "Orvello/Presentations/Presenters/PresenterApp.h"

#include <QFileInfo>
#include <QPointer>

#include <algorithm>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

constexpr QStringView locateScript = uR"script(tell application "Microsoft PowerPoint"
    if (count of presentations) is 0 then error "NO_DOCUMENT"
    set theDoc to active presentation
    set outText to (name of theDoc) & (character id 31) & ((saved of theDoc) as text) & (character id 31)
    try
        set outText to outText & (POSIX path of ((full name of theDoc) as alias))
    on error
        try
            set outText to outText & (full name of theDoc)
        end try
    end try
    return outText
end tell)script";

using Reason = DeckImportError::Reason;

} // namespace

LiveDeckImport::LiveDeckImport(LibraryStore& library, const Workspace& workspace,
    const AppleScriptRunner& appleScript, QObject* parent)
    : QObject(parent)
    , m_library(library)
    , m_workspace(workspace)
    , m_appleScript(appleScript)
{
}

quint64 LiveDeckImport::begin(const PresenterApp& app)
{
    m_source = app.logName;
    Q_EMIT sourceChanged();
    return ++m_number;
}

void LiveDeckImport::end()
{
    m_source.clear();
    Q_EMIT sourceChanged();
}

void LiveDeckImport::cancel()
{
    if (!m_source.isEmpty())
        end();
}

void LiveDeckImport::importFromOpenDeck(const PresenterApp& app, Completion completion)
{
    if (!m_source.isEmpty())
        return;
    if (!isRunning(app)) {
        completion(Failure { DeckImportError { Reason::NotRunning, &app, {} } });
        return;
    }
    const quint64 number = begin(app);
    app.askOpenDeck([self = QPointer(this), number, &app, completion = std::move(completion)](
                        const ScriptResult& result) {
        if (!self || !self->isUnderWay(number))
            return;
        self->end();
        const QString tag = u"IMPORT_"_s + app.logName.toUpper();
        //: The title of a deck without a name. %1: a presentation program, such as Keynote.
        const QString fallbackName = tr("%1 deck").arg(app.logName);
        completion(self->importRecord(app, tag + u" ok"_s, fallbackName, result));
    });
}

void LiveDeckImport::importFromOpenPowerPointDeck(
    const PresenterApp& powerPoint, PowerPointCompletion completion)
{
    if (!m_source.isEmpty())
        return;
    if (!isRunning(powerPoint)) {
        completion(Failure { DeckImportError { Reason::NotRunning, &powerPoint, {} } });
        return;
    }
    const quint64 number = begin(powerPoint);
    const auto locate = [self = QPointer(this), number, &powerPoint,
                            completion = std::move(completion)](const ScriptResult& result) {
        if (!self || !self->isUnderWay(number))
            return;
        if (result.status == 0) {
            self->importLocatedDeck(
                powerPoint, DeckLocation::parse(result.standardOutput), number, completion);
            return;
        }
        self->end();
        completion(Failure { DeckImportError::of(powerPoint, result) });
    };
    m_appleScript.run(locateScript.toString(), locate);
}

void LiveDeckImport::importLocatedDeck(const PresenterApp& powerPoint, const DeckLocation& location,
    quint64 number, const PowerPointCompletion& completion)
{
    const std::optional<QString> file = location.localDeck();
    AppLog::write("Orvello IMPORT_PPT locate saved=%d file=%@", location.isSaved ? 1 : 0,
        file ? QFileInfo(*file).fileName() : u"-"_s);
    if (location.isSaved && file) {
        end();
        completion(importSavedFile(powerPoint, *file));
        return;
    }
    powerPoint.askOpenDeck([self = QPointer(this), number, &powerPoint, name = location.name, file,
                               completion](const ScriptResult& result) {
        if (!self || !self->isUnderWay(number))
            return;
        self->end();
        const Imported live
            = self->importRecord(powerPoint, u"IMPORT_PPT ok (live)"_s, name, result);
        if (live)
            completion(PowerPointImport { *live, false });
        else if (file)
            completion(self->importStaleFile(*file, live.error()));
        else
            completion(Failure { live.error() });
    });
}

bool LiveDeckImport::isRunning(const PresenterApp& app) const
{
    const QList<RunningApplication> running = m_workspace.runningApplications();
    return std::any_of(running.begin(), running.end(), [&](const RunningApplication& other) {
        return other.bundleIdentifier == app.bundleIdentifier;
    });
}

/// Makes a script from the deck record that an application printed, and logs it.
LiveDeckImport::Imported LiveDeckImport::importRecord(const PresenterApp& app,
    const QString& logLine, const QString& fallbackName, const ScriptResult& result)
{
    if (result.status != 0)
        return Failure { DeckImportError::of(app, result) };
    const auto record = DeckRecord::parse(result.standardOutput, fallbackName);
    if (!record)
        return Failure { DeckImportError { Reason::NoNotes, &app, {} } };
    AppLog::write("Orvello %@ slides=%d doc=%@", logLine, record->slides.size(), record->name);
    return m_library.addDeck(record->name, record->slides, app.logName);
}

LiveDeckImport::PowerPointImported LiveDeckImport::importSavedFile(
    const PresenterApp& powerPoint, const QString& file)
{
    const auto imported = m_library.importPptx(file, powerPoint.logName);
    if (!imported)
        return Failure { DeckImportError {
            Reason::ScriptFailed, &powerPoint, PptxImporter::description(imported.error()) } };
    return PowerPointImport { *imported, false };
}

/// Falls back on the saved file. When that cannot be read either, the user learns why the open
/// presentation could not.
LiveDeckImport::PowerPointImported LiveDeckImport::importStaleFile(
    const QString& file, const DeckImportError& liveError)
{
    const auto imported = m_library.importPptx(file, liveError.app->logName);
    if (!imported)
        return Failure { liveError };
    AppLog::write(
        "Orvello IMPORT_PPT live read failed (%@); used saved file", liveError.description());
    return PowerPointImport { *imported, true };
}

} // namespace Orvello
