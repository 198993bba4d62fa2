#pragma once

#include "Orvello/Foundation/FileKeeper.h"
#include "Orvello/Library/Records/LibraryChange.h"
#include "Orvello/Library/Records/Script.h"

#include <QByteArray>

#include <optional>
#include <system_error>

namespace Orvello {

class Folders;

/// The library on disk: "scripts.json" in the product's own application-support folder, which each
/// use creates, with whatever is missing above it. It is written at every key press, so the encoded
/// form of each script is kept, and a save encodes only the script that changed. The bytes are
/// brought to the disk a little later, by another thread.
class LibraryFile {
public:
    explicit LibraryFile(const Folders& folders); ///< `folders` must outlive the file.

    /// What the last load found.
    enum class Found { Library, Nothing, Damage };

    /// The stored scripts; none when the file cannot be read or does not hold a whole library.
    [[nodiscard]] QList<Script> load();
    Found found() const { return m_found; }

    /// Replaces the file's content. A failure leaves the old file as it is. Returns whether the
    /// file is as it should be; if not, `problem` says why.
    bool save(const QList<Script>& scripts);

    /// The same for scripts that differ by one change from those last loaded or saved.
    bool save(const QList<Script>& scripts, const LibraryChange& change);

    /// Notes a change without saving it.
    void take(const QList<Script>& scripts, const LibraryChange& change);

    /// Saves what was noted, or what an earlier save could not.
    bool save();

    /// Why the last save failed; nothing if it did not.
    std::error_code problem() const { return m_problem; }

    /// Returns once what was saved is on the disk. Takes a disk's time.
    void flush() { m_keeper.finish(); }

    /// Copies the file as it is to `copyPath()`, a little later.
    void keepCopy();

    QString path() const; ///< Computed afresh; nothing is created.

    /// "scripts.json.last": the library at the last start, quit or full hour, for the day when it
    /// is damaged.
    QString copyPath() const;

    /// The scripts in a file of this form, if it holds a whole library.
    [[nodiscard]] static std::optional<QList<Script>> read(const QString& path);

private:
    QString preparedPath() const;
    void encode(const QList<Script>& scripts);

    const Folders& m_folders;
    QList<QByteArray> m_encoded; ///< The JSON of each script.
    Found m_found = Found::Nothing;
    std::error_code m_problem;
    FileKeeper m_keeper;
};

} // namespace Orvello
