#include "Orvello/Adapters/macOS/Desktop/CocoaWindowChrome.h"

#include "Orvello/Adapters/macOS/Desktop/CocoaGeometry.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaView.h"
#include "Orvello/Adapters/macOS/Early/ExceptionShield.h"

#include <QWindow>

#import <AppKit/AppKit.h>

namespace Orvello {

bool CocoaWindowChrome::hideTitleBar(QWindow& window)
{
    const QSize size = window.size();
#if QT_VERSION >= QT_VERSION_CHECK(6, 9, 0)
    // Flags for what follows, which Qt would take away again if it had not set it by itself.
    window.setFlags(window.flags() | Qt::ExpandedClientAreaHint | Qt::NoTitleBarBackgroundHint);
#endif
    window.create();
    NSWindow* const nativeWindow = nativeViewOf(window).window;
    shielded([&] {
        // Up to Qt 6.8, which keeps this bit when it sets the style for its own flags.
        nativeWindow.styleMask |= NSWindowStyleMaskFullSizeContentView;
        nativeWindow.titlebarAppearsTransparent = YES;
        nativeWindow.titleVisibility = NSWindowTitleHidden;
        nativeWindow.appearance = [NSAppearance appearanceNamed:NSAppearanceNameDarkAqua];
        // The content has grown by the height of the title bar.
        [nativeWindow setContentSize:cgSize(size)];
    });
    return true;
}

} // namespace Orvello
