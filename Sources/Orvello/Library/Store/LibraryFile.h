#pragma once

#include "Orvello/Library/Records/LibraryChange.h"
#include "Orvello/Library/Records/Script.h"

#include <QByteArray>

namespace Orvello {

class Folders;

/// The library on disk: "scripts.json" in the product's own application-support folder, which each
/// use creates, with whatever is missing above it. It is written at every key press, so the encoded
/// form of each script is kept, and a save encodes only the script that changed.
class LibraryFile {
public:
    explicit LibraryFile(const Folders& folders); ///< `folders` must outlive the file.

    /// The stored scripts; none when the file cannot be read or does not hold a whole library.
    [[nodiscard]] QList<Script> load();

    /// Replaces the file's content. A failure leaves the old file as it is and is not reported.
    void save(const QList<Script>& scripts);

    /// The same for scripts that differ by one change from those last loaded or saved.
    void save(const QList<Script>& scripts, const LibraryChange& change);

private:
    QString preparedPath() const;
    void encode(const QList<Script>& scripts);
    void write() const;

    const Folders& m_folders;
    QList<QByteArray> m_encoded; ///< The JSON of each script.
};

} // namespace Orvello
