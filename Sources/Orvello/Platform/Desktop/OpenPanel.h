#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace Orvello {

/// The system's panel for choosing a file. Main thread.
class OpenPanel {
public:
    /// One kind of file, by both names that systems know it by.
    struct FileKind {
        QString typeIdentifier; ///< Uniform type identifier.
        QString extension; ///< Without the dot.
    };

    virtual ~OpenPanel() = default;

    /// Lets the user choose one existing file of one of these kinds, under a message that says what
    /// for. Returns its path, or nothing when the user cancels. Runs the event loop meanwhile.
    virtual std::optional<QString> chooseFile(const QString& message, const QList<FileKind>& kinds)
        = 0;
};

} // namespace Orvello
