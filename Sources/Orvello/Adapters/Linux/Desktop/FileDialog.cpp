#include "Orvello/Adapters/Linux/Desktop/FileDialog.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QMimeDatabase>
#include <QWindow>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// "PowerPoint 2007 presentation (*.pptx *.PPTX)": the system's words for files of this kind, and
/// both spellings of the extension, which some dialogs tell apart.
QString filterFor(const QString& extension)
{
    const QString pattern = u"*.%1 *.%2"_s.arg(extension.toLower(), extension.toUpper());
    const QMimeType type
        = QMimeDatabase().mimeTypeForFile(u"file."_s + extension, QMimeDatabase::MatchExtension);
    return type.comment() + u" ("_s + pattern + u")"_s;
}

} // namespace

std::optional<QString> FileDialog::chooseFile(const QString& message, const FileKind& kind)
{
    // The title is the only place for a message.
    QFileDialog dialog(nullptr, message);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    dialog.setNameFilter(filterFor(kind.extension));
    // In front of the window that asks for it, which is no widget.
    dialog.winId();
    dialog.windowHandle()->setTransientParent(QGuiApplication::focusWindow());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().first(); // A name can be typed past the filter.
}

} // namespace Orvello
