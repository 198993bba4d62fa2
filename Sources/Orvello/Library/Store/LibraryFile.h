#pragma once

#include "Orvello/Library/Records/Script.h"

#include <QByteArray>

namespace Orvello {

class Folders;

/// The library on disk: "scripts.json" in the product's own application-support folder, which is
/// created with whatever is missing above it at each use. It is written at every key press, so the
/// encoded form of each script is kept, and a save encodes only what changed since the last one.
class LibraryFile {
public:
    explicit LibraryFile(const Folders& folders); ///< `folders` must outlive the file.

    /// The stored scripts; none when the file cannot be read or does not hold a whole library.
    [[nodiscard]] QList<Script> load();

    /// Replaces the file's content. A failure leaves the old file as it is and is not reported.
    void save(const QList<Script>& scripts);

private:
    QString preparedPath() const;
    void encodeChanges(const QList<Script>& scripts);

    const Folders& m_folders;
    QList<Script> m_scripts; ///< What `m_encoded` holds.
    QList<QByteArray> m_encoded; ///< The JSON of each script.
};

} // namespace Orvello
