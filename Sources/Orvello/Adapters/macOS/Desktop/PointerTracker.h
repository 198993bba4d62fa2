#pragma once

#import <AppKit/AppKit.h>

class QWindow;

/// Tells a Qt window about the pointer over it while the application is inactive. Qt's own view
/// drops entering, moving and leaving then, and a non-activating panel is hardly ever seen while
/// the application is active.
@interface PointerTracker : NSObject {
@private // Here, because the runtime that tests it elsewhere must know its size.
    NSView* _view;
    QWindow* _window;
    NSTrackingArea* _area;
}

/// Tracks from now on, for the life of the tracker. `window` must outlive it, and fill `view`.
- (nonnull instancetype)initWithView:(nonnull NSView*)view window:(nonnull QWindow*)window;

- (void)stop; ///< Before the view or the window goes.

@end
