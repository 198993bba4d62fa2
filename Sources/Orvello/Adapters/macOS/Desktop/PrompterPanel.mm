#include "Orvello/Adapters/macOS/Desktop/PrompterPanel.h"

namespace {

/// Above the menu bar and full-screen applications.
constexpr NSWindowLevel screenSaverLevel = 1000;

} // namespace

@implementation PrompterPanel

- (instancetype)initWithSize:(NSSize)size minimum:(NSSize)minimumSize maximum:(NSSize)maximumSize
{
    // The window server takes notice of the non-activating bit when a window is made, never later.
    // Nothing is deferred, so the window has its number at once.
    self = [super initWithContentRect:NSMakeRect(0, 0, size.width, size.height)
                            styleMask:NSWindowStyleMaskBorderless | NSWindowStyleMaskResizable
                            | NSWindowStyleMaskNonactivatingPanel
                              backing:NSBackingStoreBuffered
                                defer:NO];
    if (!self)
        return nil;
    self.floatingPanel = YES; // Before the level, which it would set to its own.
    self.level = screenSaverLevel;
    self.collectionBehavior = NSWindowCollectionBehaviorCanJoinAllSpaces
        | NSWindowCollectionBehaviorStationary | NSWindowCollectionBehaviorFullScreenAuxiliary;
    self.hidesOnDeactivate = NO; // Panels do by default, and this application is never active.
    self.releasedWhenClosed = NO; // ARC owns it.
    // Not movableByWindowBackground: AppKit would take each press for a drag before Qt sees it, and
    // no button in the view would work. The owner starts the drag when the view wants no press.
    self.movableByWindowBackground = NO;
    self.backgroundColor = NSColor.clearColor;
    self.opaque = NO;
    self.hasShadow = YES;
    self.minSize = minimumSize;
    self.maxSize = maximumSize;
    // A plain view, so that Qt's own view is a subview of it: were Qt's view the content view, Qt
    // would take the window for its own and rewrite its style, level and geometry.
    self.contentView = [[NSView alloc] initWithFrame:NSMakeRect(0, 0, size.width, size.height)];
    return self;
}

- (BOOL)canBecomeKeyWindow
{
    return NO;
}

- (BOOL)canBecomeMainWindow
{
    return NO;
}

- (void)tell:(const PanelEvents&)events
{
    _events = events;
    NSNotificationCenter* const center = NSNotificationCenter.defaultCenter;
    [center removeObserver:self];
    if (!_events.resized)
        return;
    const auto observe = [&](SEL method, NSNotificationName name, id object) {
        [center addObserver:self selector:method name:name object:object];
    };
    observe(@selector(panelDidResize:), NSWindowDidResizeNotification, self);
    observe(@selector(panelDidEndResize:), NSWindowDidEndLiveResizeNotification, self);
    observe(@selector(screensDidChange:), NSApplicationDidChangeScreenParametersNotification, nil);
}

- (void)panelDidResize:(NSNotification*)notification
{
    (void)notification;
    _events.resized();
}

- (void)panelDidEndResize:(NSNotification*)notification
{
    (void)notification;
    _events.resizeEnded();
}

- (void)screensDidChange:(NSNotification*)notification
{
    (void)notification;
    _events.screensChanged();
}

/// The panel belongs under the camera, where the menu bar is, and AppKit would push it down. But
/// this is also how AppKit brings windows back that nobody could reach.
- (NSRect)constrainFrameRect:(NSRect)frameRect toScreen:(NSScreen*)screen
{
    (void)screen;
    return _events.placed ? _events.placed(frameRect) : frameRect;
}

- (void)sendEvent:(NSEvent*)event
{
    if (event.type != NSEventTypeScrollWheel)
        [super sendEvent:event];
    else if (_events.scrolled)
        _events.scrolled(event.scrollingDeltaY);
}

@end
