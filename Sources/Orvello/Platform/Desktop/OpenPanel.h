#pragma once

#include <QList>
#include <QString>

#include <optional>

namespace Orvello {

/// The system's panels for choosing a file. Main thread.
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

    /// A file that is to be written, and which of the kinds it is to be.
    struct NewFile {
        QString path;
        qsizetype kind = 0;
    };

    /// Lets the user say where a file is to be written, beginning with a suggested name, which has
    /// no extension. A name that has the extension of one of the kinds means that kind; a file that
    /// exists is replaced only if the user agrees. Runs the event loop meanwhile.
    virtual std::optional<NewFile> chooseNewFile(
        const QString& message, const QString& name, const QList<FileKind>& kinds)
        = 0;
};

} // namespace Orvello
