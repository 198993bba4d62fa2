#include "Orvello/Adapters/macOS/Desktop/CocoaOpenPanel.h"

#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Early/ExceptionShield.h"

#import <UniformTypeIdentifiers/UniformTypeIdentifiers.h>

namespace Orvello {

namespace {

/// Just above the prompter, which would cover an ordinary panel.
constexpr NSWindowLevel abovePrompter = 1001;

/// No type at all would let the user choose any file, so an unknown identifier falls back to the
/// extension.
NSArray<UTType*>* contentTypes(const QList<OpenPanel::FileKind>& kinds)
{
    NSMutableArray<UTType*>* const types = [NSMutableArray array];
    for (const OpenPanel::FileKind& kind : kinds) {
        UTType* type = [UTType typeWithIdentifier:nsString(kind.typeIdentifier)];
        if (!type)
            type = [UTType typeWithFilenameExtension:nsString(kind.extension)];
        if (type)
            [types addObject:type];
    }
    return types;
}

/// Above the prompter and in front; returns what was chosen.
std::optional<QString> run(
    NSSavePanel* panel, const QString& message, const QList<OpenPanel::FileKind>& kinds)
{
    panel.message = nsString(message);
    panel.allowedContentTypes = contentTypes(kinds);
    panel.level = abovePrompter;
    // An accessory's panel would open behind the active application.
    [NSApp activateIgnoringOtherApps:YES];
    if ([panel runModal] != NSModalResponseOK || !panel.URL.path)
        return std::nullopt;
    return qString(panel.URL.path);
}

} // namespace

std::optional<QString> CocoaOpenPanel::chooseFile(
    const QString& message, const QList<FileKind>& kinds)
{
    std::optional<QString> path;
    shielded([&] {
        NSOpenPanel* const panel = [NSOpenPanel openPanel];
        panel.allowsMultipleSelection = NO;
        panel.canChooseDirectories = NO;
        panel.canChooseFiles = YES;
        path = run(panel, message, kinds);
    });
    return path;
}

std::optional<OpenPanel::NewFile> CocoaOpenPanel::chooseNewFile(
    const QString& message, const QString& name, const QList<FileKind>& kinds)
{
    std::optional<QString> path;
    shielded([&] {
        NSSavePanel* const panel = [NSSavePanel savePanel];
        // With an extension that is typed in its place, the file is of that kind.
        panel.nameFieldStringValue = nsString(name + u'.' + kinds.value(0).extension);
        path = run(panel, message, kinds);
    });
    if (!path)
        return std::nullopt;
    NewFile file { *path, 0 };
    for (qsizetype i = 0; i < kinds.size(); ++i) {
        if (path->endsWith(u'.' + kinds[i].extension, Qt::CaseInsensitive))
            file.kind = i;
    }
    return file;
}

} // namespace Orvello
