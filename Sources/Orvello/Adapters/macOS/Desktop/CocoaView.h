#pragma once

#import <AppKit/AppKit.h>

class QWindow;

namespace Orvello {

/// Qt's view of a window, which is made if there is none yet.
[[nodiscard]] NSView* _Nonnull nativeViewOf(const QWindow& window);

} // namespace Orvello
