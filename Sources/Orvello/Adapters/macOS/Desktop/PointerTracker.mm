#include "Orvello/Adapters/macOS/Desktop/PointerTracker.h"

#include "Orvello/Adapters/macOS/Early/ExceptionShield.h"

#include <QCoreApplication>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QWindow>

@implementation PointerTracker

- (instancetype)initWithView:(NSView*)view window:(QWindow*)window
{
    self = [super init];
    if (!self)
        return nil;
    _view = view;
    _window = window;
    const NSTrackingAreaOptions options = NSTrackingMouseEnteredAndExited | NSTrackingMouseMoved
        | NSTrackingActiveAlways | NSTrackingInVisibleRect;
    // In the visible rectangle: AppKit keeps the area with the view's size.
    _area = [[NSTrackingArea alloc] initWithRect:NSZeroRect
                                         options:options
                                           owner:self
                                        userInfo:nil];
    [_view addTrackingArea:_area];
    [NSNotificationCenter.defaultCenter addObserver:self
                                           selector:@selector(applicationDidResignActive:)
                                               name:NSApplicationDidResignActiveNotification
                                             object:nil];
    return self;
}

- (void)stop
{
    _window = nullptr; // What is still to come finds nobody.
    [NSNotificationCenter.defaultCenter removeObserver:self];
    Orvello::shielded([&] { [_view removeTrackingArea:_area]; });
}

/// Qt counts y from the top.
- (QPointF)positionOf:(NSPoint)inWindow
{
    const NSPoint point = [_view convertPoint:inWindow fromView:nil];
    return { point.x, _view.bounds.size.height - point.y };
}

- (void)enterAt:(QPointF)position
{
    QEnterEvent enter(position, position, _window->mapToGlobal(position));
    QCoreApplication::sendEvent(_window, &enter);
}

/// Qt then tells its window that the pointer has left, even where it rests.
- (void)applicationDidResignActive:(NSNotification*)notification
{
    (void)notification;
    [self performSelector:@selector(enterIfThere) withObject:nil afterDelay:0];
}

- (void)enterIfThere
{
    if (!_window || !_view.window.visible)
        return;
    const NSRect bounds = _view.bounds;
    const QPointF position = [self positionOf:_view.window.mouseLocationOutsideOfEventStream];
    if (QRectF(0, 0, bounds.size.width, bounds.size.height).contains(position))
        [self enterAt:position];
}

- (void)mouseEntered:(NSEvent*)event
{
    if (!_window || NSApp.active)
        return; // Qt's view reports it.
    [self enterAt:[self positionOf:event.locationInWindow]];
}

- (void)mouseMoved:(NSEvent*)event
{
    if (!_window || NSApp.active)
        return;
    const QPointF position = [self positionOf:event.locationInWindow];
    QMouseEvent move(QEvent::MouseMove, position, position, _window->mapToGlobal(position),
        Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(_window, &move);
}

- (void)mouseExited:(NSEvent*)event
{
    (void)event;
    if (!_window)
        return;
    // Also while the application is active: it may have become so in between, and leaving twice
    // does no harm.
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(_window, &leave);
}

@end
