#pragma once

#include "Orvello/Foundation/Date.h"
#include "Orvello/Library/Records/Script.h"

#include <QString>

#include <system_error>

namespace Orvello {

/// A script that the user deleted, and where it was.
struct DeletedScript {
    Script script;
    Date deletedAt;
    qsizetype row = 0;
    friend bool operator==(const DeletedScript&, const DeletedScript&) = default;
};

/// What was deleted in the last thirty days, newest first, in a file of its own beside the library.
/// Each change is on the disk when it returns: it comes before a change of the library that must
/// not survive it.
class DeletedScripts final {
public:
    static constexpr double keptSeconds = 30.0 * 24 * 60 * 60;

    explicit DeletedScripts(const QString& path);

    /// Reads the file, without what is too old. Bytes that make no sense are kept beside it.
    void load(Date now);

    const QList<DeletedScript>& scripts() const { return m_scripts; }

    void add(const DeletedScript& deleted);
    void remove(qsizetype place);

    /// Whether the file holds the list; if not, `problem` says why.
    bool isSaved() const { return m_isSaved; }
    std::error_code problem() const { return m_problem; }
    void save();

private:
    QString m_path;
    QList<DeletedScript> m_scripts;
    bool m_isSaved = true;
    std::error_code m_problem;
};

} // namespace Orvello
