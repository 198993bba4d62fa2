#pragma once

#include "Orvello/Presentations/Decks/PptxImporter.h"

#include <QHash>
#include <QString>
#include <QUuid>

#include <functional>

namespace Orvello {

/// The file that a deck script was made from.
struct DeckFile {
    QString path; ///< Absolute.
    PptxImporter::FileStamp stamp; ///< As it was read.

    friend bool operator==(const DeckFile&, const DeckFile&) = default;
};

/// Which files deck scripts were made from, in a file of its own beside the library. It is a
/// convenience: a file that is damaged or cannot be written costs no more than a question.
class DeckFiles final {
public:
    explicit DeckFiles(const QString& path);

    /// Reads the file, without what belongs to no script any more.
    void load(const std::function<bool(QUuid)>& isKept);

    /// Null when nobody knows.
    const DeckFile* of(QUuid script) const;
    void set(QUuid script, const DeckFile& file);

    /// From now on nothing is written: the file is another process's.
    void keepToMemory() { m_isInMemory = true; }

private:
    void save() const;

    QString m_path;
    QHash<QUuid, DeckFile> m_files;
    bool m_isInMemory = false;
};

} // namespace Orvello
