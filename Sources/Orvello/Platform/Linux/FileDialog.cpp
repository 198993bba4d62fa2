#include "Orvello/Platform/Linux/FileDialog.h"

#include <QFileDialog>
#include <QMimeDatabase>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// "PowerPoint 2007 presentation (*.pptx)": the system's words for files of this kind.
QString filterFor(const QString& extension)
{
    const QString pattern = u"*."_s + extension;
    const QMimeType type
        = QMimeDatabase().mimeTypeForFile(u"file."_s + extension, QMimeDatabase::MatchExtension);
    return type.comment() + u" ("_s + pattern + u")"_s;
}

} // namespace

std::optional<QString> FileDialog::chooseFile(const QString& message, const FileKind& kind)
{
    // There is no place for a message but the title.
    QFileDialog dialog(nullptr, message);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilter(filterFor(kind.extension));
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().first();
}

} // namespace Orvello
