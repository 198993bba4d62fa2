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

/// Returns what was chosen. In front of the window that asks for it, which is no widget.
std::optional<QString> run(QFileDialog& dialog)
{
    dialog.winId();
    dialog.windowHandle()->setTransientParent(QGuiApplication::focusWindow());
    if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty())
        return std::nullopt;
    return dialog.selectedFiles().first();
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
    return run(dialog); // A name can be typed past the filter.
}

std::optional<OpenPanel::NewFile> FileDialog::chooseNewFile(
    const QString& message, const QString& name, const QList<FileKind>& kinds)
{
    QFileDialog dialog(nullptr, message);
    dialog.setAcceptMode(QFileDialog::AcceptSave);
    dialog.setFileMode(QFileDialog::AnyFile);
    QStringList filters;
    for (const FileKind& kind : kinds)
        filters.append(filterFor(kind.extension));
    dialog.setNameFilters(filters);
    // What the dialog adds to a name without an extension, before it asks about a file that exists.
    const auto followFilter = [&](const QString& filter) {
        dialog.setDefaultSuffix(kinds.value(filters.indexOf(filter)).extension);
    };
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog, followFilter);
    followFilter(filters.value(0));
    dialog.selectFile(name);
    const std::optional<QString> path = run(dialog);
    if (!path)
        return std::nullopt;
    const auto named = std::ranges::find_if(kinds, [&](const FileKind& kind) {
        return path->endsWith(u'.' + kind.extension, Qt::CaseInsensitive);
    });
    const qsizetype kind = named != kinds.end() ? named - kinds.begin()
                                                : filters.indexOf(dialog.selectedNameFilter());
    return NewFile { *path, std::max<qsizetype>(kind, 0) };
}

} // namespace Orvello
