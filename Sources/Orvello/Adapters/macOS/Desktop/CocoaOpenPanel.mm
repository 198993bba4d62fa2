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

} // namespace

std::optional<QString> CocoaOpenPanel::chooseFile(
    const QString& message, const QList<FileKind>& kinds)
{
    std::optional<QString> path;
    shielded([&] {
        NSOpenPanel* const panel = [NSOpenPanel openPanel];
        panel.message = nsString(message);
        panel.allowedContentTypes = contentTypes(kinds);
        panel.allowsMultipleSelection = NO;
        panel.canChooseDirectories = NO;
        panel.canChooseFiles = YES;
        panel.level = abovePrompter;
        // An accessory's panel would open behind the active application.
        [NSApp activateIgnoringOtherApps:YES];
        if ([panel runModal] == NSModalResponseOK && panel.URL.path)
            path = qString(panel.URL.path);
    });
    return path;
}

} // namespace Orvello
