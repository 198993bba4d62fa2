#include "Orvello/Adapters/Linux/Desktop/FileDialog.h"

#include <QFileDialog>
#include <QGuiApplication>
#include <QMimeDatabase>
#include <QWindow>

#include <algorithm>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

QString patternFor(const QString& extension)
{
    return u"*.%1 *.%2"_s.arg(extension.toLower(), extension.toUpper());
}

/// "PowerPoint 2007 presentation (*.pptx *.PPTX)": the system's words for files of this kind, and
/// both spellings of the extension, which some dialogs tell apart.
QString filterFor(const QString& extension)
{
    const QString pattern = patternFor(extension);
    const QMimeType type
        = QMimeDatabase().mimeTypeForFile(u"file."_s + extension, QMimeDatabase::MatchExtension);
    return type.comment() + u" ("_s + pattern + u")"_s;
}

/// The kinds together, by their extensions alone.
QString filterForAll(const QList<OpenPanel::FileKind>& kinds)
{
    QStringList names;
    QStringList patterns;
    for (const OpenPanel::FileKind& kind : kinds) {
        names.append(u'.' + kind.extension);
        patterns.append(patternFor(kind.extension));
    }
    return names.join(u", "_s) + u" ("_s + patterns.join(u' ') + u')';
}

} // namespace

std::optional<QString> FileDialog::chooseFile(const QString& message, const QList<FileKind>& kinds)
{
    // The title is the only place for a message.
    QFileDialog dialog(nullptr, message);
    dialog.setAcceptMode(QFileDialog::AcceptOpen);
    dialog.setFileMode(QFileDialog::ExistingFile);
    QStringList filters;
    for (const FileKind& kind : kinds)
        filters.append(filterFor(kind.extension));
    if (kinds.size() > 1)
        filters.prepend(filterForAll(kinds));
    dialog.setNameFilters(filters);
    // In front of the window that asks for it, which is no widget.
    dialog.winId();
    dialog.windowHandle()->setTransientParent(QGuiApplication::focusWindow());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().first(); // A name can be typed past the filter.
}

} // namespace Orvello
