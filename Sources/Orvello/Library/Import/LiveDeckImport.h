#pragma once

#include "Orvello/Foundation/Result.h"
#include "Orvello/Library/Import/DeckImportError.h"
#include "Orvello/Library/Import/DeckRecord.h"
#include "Orvello/Presentations/Presenters/AppleScriptRunner.h"

#include <QObject>
#include <QUuid>

#include <functional>

namespace Orvello {

class LibraryStore;
class Workspace;
struct PresenterApp;

/// What an import from PowerPoint made.
struct PowerPointImport {
    QUuid scriptID;
    /// The notes are those of the saved file, because the open presentation could not be read:
    /// unsaved edits may be missing.
    bool fromStaleFile = false;

    friend bool operator==(const PowerPointImport&, const PowerPointImport&) = default;
};

/// Makes deck scripts from the presentation that is open right now in a presentation application.
/// The library changes only on success. Main thread; every completion is called there, once, unless
/// the import is cancelled or destroyed first. One import at a time; it has no time-out of its own.
class LiveDeckImport final : public QObject {
    Q_OBJECT
    /// The name of the application that is being read; empty while none is.
    Q_PROPERTY(QString source READ source NOTIFY sourceChanged FINAL)

public:
    using Imported = Result<QUuid, DeckImportError>;
    using Completion = std::function<void(const Imported&)>;
    using PowerPointImported = Result<PowerPointImport, DeckImportError>;
    using PowerPointCompletion = std::function<void(const PowerPointImported&)>;

    /// Everything must outlive the import.
    LiveDeckImport(LibraryStore& library, const Workspace& workspace,
        const AppleScriptRunner& appleScript, QObject* parent = nullptr);

    const QString& source() const { return m_source; }

    /// Drops the import that is under way: its answer will change nothing.
    Q_INVOKABLE void cancel();

    /// Imports from an application that is asked for its whole deck at once. `keynote` and its like
    /// are rows of the presenter table. Does nothing while another import is under way.
    void importFromOpenDeck(const PresenterApp& app, Completion completion);

    /// Imports from PowerPoint: the saved file when it has every change, else what is open, else
    /// the saved file after all.
    void importFromOpenPowerPointDeck(
        const PresenterApp& powerPoint, PowerPointCompletion completion);

Q_SIGNALS:
    void sourceChanged();

private:
    quint64 begin(const PresenterApp& app);
    bool isUnderWay(quint64 number) const { return !m_source.isEmpty() && number == m_number; }
    void end();
    bool isRunning(const PresenterApp& app) const;
    Imported importRecord(const PresenterApp& app, const QString& logLine,
        const QString& fallbackName, const ScriptResult& result);
    void importLocatedDeck(const PresenterApp& powerPoint, const DeckLocation& location,
        quint64 number, const PowerPointCompletion& completion);
    PowerPointImported importSavedFile(const PresenterApp& powerPoint, const QString& file);
    PowerPointImported importStaleFile(const QString& file, const DeckImportError& liveError);

    LibraryStore& m_library;
    const Workspace& m_workspace;
    const AppleScriptRunner& m_appleScript;
    QString m_source;
    quint64 m_number = 0; ///< Of the latest import.
};

} // namespace Orvello
