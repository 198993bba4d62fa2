#pragma once

#include "Orvello/Foundation/Result.h"
#include "Orvello/Library/Records/Script.h"
#include "Orvello/Library/Store/DeckFiles.h"
#include "Orvello/Library/Store/DeletedScripts.h"
#include "Orvello/Library/Store/LibraryFile.h"
#include "Orvello/Library/Store/LibraryLock.h"
#include "Orvello/Library/Store/LibraryRescue.h"
#include "Orvello/Platform/Early/Facts.h"
#include "Orvello/Platform/Early/TimeSource.h"
#include "Orvello/Presentations/Decks/PptxImporter.h"

#include <QObject>

#include <memory>
#include <optional>
#include <system_error>

namespace Orvello {

class UserDefaults;

/// The user's scripts, newest first, and which of them is being prompted. Every change is saved
/// before it is announced. Main thread.
class LibraryStore final : public QObject {
    Q_OBJECT

public:
    /// Loads the library, or makes the first script of a new one. What is passed must outlive the
    /// store.
    LibraryStore(UserDefaults& defaults, const Folders& folders, TimeSource& time,
        const Facts& facts, QObject* parent = nullptr);
    ~LibraryStore() override;

    const QList<Script>& scripts() const { return m_scripts; }

    /// Persisted in the user defaults on each assignment. May name a script that does not exist.
    std::optional<QUuid> activeScriptID() const { return m_activeScriptID; }
    void setActiveScriptID(std::optional<QUuid> id);

    /// The script that `activeScriptID` names, else the first; null for an empty library. Changes
    /// with either property. The pointer is valid until `scripts` changes.
    const Script* activeScript() const;

    /// Adds an empty script on top and makes it active.
    QUuid addScript();

    /// Moves the script with that id to the deleted ones. If it was active, the first that remains
    /// becomes active.
    void remove(QUuid id);

    /// What was deleted in the last thirty days, newest first.
    const QList<DeletedScript>& deletedScripts() const { return m_deleted.scripts(); }

    /// Puts a deleted script back to where it was and makes it active.
    void restore(qsizetype place);

    /// Moves the script of one row to another one. Rows beyond the list mean the nearest ones.
    void move(qsizetype from, qsizetype to);

    /// Adds a copy of that script below it and makes it active. The copy of a deck is one, too.
    void duplicate(QUuid id);

    /// Replaces what is given of the active script, or of the first if none is active. Its date is
    /// renewed in any case.
    void updateActive(const std::optional<QString>& title, const std::optional<QString>& body);

    /// Replaces a part of that script's body. The part must be inside the body.
    void editActive(qsizetype position, qsizetype removed, const QString& inserted);

    /// Adds a deck's speaker notes on top and makes them active. `source` names the deck; without
    /// it, the file name does. On failure the library stays as it was.
    Result<QUuid, PptxImporter::ImportError> importPptx(
        const QString& path, const std::optional<QString>& source = {});

    /// Adds what importPptx() would have read from that file.
    QUuid addReadDeck(const QString& path, const PptxImporter::Deck& deck,
        const std::optional<QString>& source = {});

    /// The file that a deck script was made from; null when nobody knows.
    const DeckFile* deckFile(QUuid id) const { return m_deckFiles.of(id); }

    /// The newest script that was made from that file. The path is absolute.
    std::optional<QUuid> scriptOfDeckFile(const QString& path) const;

    /// The numbers of the slides whose notes would be gone if these slides took the place of those
    /// of the script: they had some, and what is in their place has none.
    [[nodiscard]] static QList<qint64> lostNotes(
        const Script& script, const QList<SlideNote>& slides);

    /// Puts what was read from that file in the place of a deck script's notes. Its title stays,
    /// unless it was the former file's name. Where notes would be gone, the version before is kept
    /// among the deleted scripts.
    void updateDeck(QUuid id, const QString& path, const PptxImporter::Deck& deck);

    /// Adds a deck's speaker notes on top and makes them active.
    QUuid addDeck(const QString& title, const QList<SlideNote>& slides, const QString& source);

    /// Whether the file is as the library is. A save that failed is tried again until it succeeds.
    enum class SaveState {
        Saved,
        Failing, ///< For the reason in `saveProblem`.
        Foreign, ///< Another process has the library; this one never writes it.
    };
    SaveState saveState() const { return m_saveState; }
    std::error_code saveProblem() const { return m_saveProblem; }

    /// What is to be said and done about a library file that was damaged.
    const LibraryRescue& rescue() const { return m_rescue; }

    /// Adds the scripts of the copy on offer below the others, and makes the first of them active.
    void takeOfferedCopy();
    void closeRescue(); ///< The user has read the news and leaves the copy, if there is one.

Q_SIGNALS:
    void deletedScriptsChanged();
    void saveStateChanged();
    void rescueChanged();
    void scriptsChanged(const Orvello::LibraryChange& change);
    void activeScriptIDChanged();

    /// The file that was imported holds more than the importer's limits allow: the notes of these
    /// slides ("3, 257–300") are missing or not whole.
    void notesLeftOut(const QString& slides);

private:
    void makeFirstScript(const Facts& facts);
    QUuid addOnTop(const Script& script);
    Script deckScript(
        const QString& title, const QList<SlideNote>& slides, const QString& source) const;
    void tellLimits(const PptxImporter::Deck& deck);
    void loadDeckFiles();
    void keepVersion(const Script& script);
    Script* editedScript();
    void edit(Script& script, LibraryChange change);
    void insert(qsizetype row, const Script& script);
    void publish(const LibraryChange& change);
    void rescueLibrary();
    void keepDeleted(const DeletedScript& deleted);
    void takeNoteOf(bool isSaved);
    void save();
    std::error_code problem() const;
    std::optional<QUuid> firstScriptID() const;

    /// Assigns and persists; returns whether the id changed.
    bool assignActiveScriptID(std::optional<QUuid> id);
    void persistActiveScriptID();

    UserDefaults& m_defaults;
    TimeSource& m_time;
    LibraryFile m_file;
    LibraryLock m_lock;
    LibraryRescue m_rescue;
    DeletedScripts m_deleted;
    DeckFiles m_deckFiles;
    SaveState m_saveState;
    std::error_code m_saveProblem;
    std::unique_ptr<TimeSource::Ticket> m_retry;
    std::unique_ptr<TimeSource::Ticket> m_hourlyCopy;
    QList<Script> m_scripts;
    std::optional<QUuid> m_activeScriptID;
};

} // namespace Orvello
