#pragma once

#include "Orvello/Library/Import/DeckFileImport.h"
#include "Orvello/Platform/Early/TimeSource.h"

#include <QList>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace Orvello {

struct DeckFile;
struct Script;

/// Keeps the active deck script as its file is: looks at the file every two seconds, and reads it
/// once it has changed and rests. What would lose notes waits for the user's word. Main thread.
class DeckFileUpdates final : public QObject {
    Q_OBJECT

public:
    enum class State {
        NoDeck, ///< The active script is none.
        NoFile, ///< Nobody knows the deck's file.
        Watched, ///< The notes are those of the file, as far as is known.
        Current, ///< The same, and somebody has asked.
        Missing, ///< The file is not there any more.
        LosesNotes, ///< It has changed, and has no notes for `lostSlides()`.
        Unreadable, ///< It has changed, and cannot be read for the reason in `problem()`.
    };
    Q_ENUM(State)

    /// All of them must outlive it.
    DeckFileUpdates(
        LibraryStore& library, DeckFileImport& files, TimeSource& time, QObject* parent = nullptr);
    ~DeckFileUpdates() override;

    State state() const { return m_state; }
    QString path() const; ///< Of the active script's file; empty when nobody knows.
    const QList<qint64>& lostSlides() const { return m_lostSlides; }
    PptxImporter::ImportError problem() const { return m_problem; }

    /// Reads the active script's file now and takes over what is in it, whatever gets lost.
    void update();

    /// The same for any deck script, which becomes active, from a file that becomes its own.
    /// `completion` hears what went wrong.
    void update(
        QUuid script, const QString& path, std::function<void(PptxImporter::ImportError)> failed);

Q_SIGNALS:
    void stateChanged();

private:
    const Script* activeDeck() const;
    void followActiveScript();
    void look();
    void take(QUuid script, const QString& path, const PptxImporter::FileStamp& stamp);
    void read(QUuid script, const QString& path);
    void setState(State state);

    LibraryStore& m_library;
    DeckFileImport& m_files;
    State m_state = State::NoDeck;
    QList<qint64> m_lostSlides;
    PptxImporter::ImportError m_problem = PptxImporter::ImportError::Unreadable;
    std::optional<QUuid> m_script; ///< Whose file is watched.
    PptxImporter::FileStamp m_lastStamp; ///< At the last look.
    PptxImporter::FileStamp m_readStamp; ///< Of the version that was read last, taken over or not.
    int m_looks = 0; ///< Since the script became active.
    bool m_isLooking = false;
    std::unique_ptr<TimeSource::Ticket> m_timer;
};

} // namespace Orvello
