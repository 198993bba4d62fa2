#include "Orvello/Adapters/macOS/Desktop/PointerTracker.h"

#include <QCoreApplication>
#include <QEnterEvent>
#include <QMouseEvent>
#include <QWindow>

@implementation PointerTracker {
    NSView* _view;
    QWindow* _window;
    NSTrackingArea* _area;
}

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
    return self;
}

- (void)stop
{
    [_view removeTrackingArea:_area];
}

/// Qt counts y from the top.
- (QPointF)positionOf:(NSEvent*)event
{
    const NSPoint point = [_view convertPoint:event.locationInWindow fromView:nil];
    return { point.x, _view.bounds.size.height - point.y };
}

- (void)mouseEntered:(NSEvent*)event
{
    if (NSApp.active)
        return; // Qt's view reports it.
    const QPointF position = [self positionOf:event];
    QEnterEvent enter(position, position, _window->mapToGlobal(position));
    QCoreApplication::sendEvent(_window, &enter);
}

- (void)mouseMoved:(NSEvent*)event
{
    if (NSApp.active)
        return;
    const QPointF position = [self positionOf:event];
    QMouseEvent move(QEvent::MouseMove, position, position, _window->mapToGlobal(position),
        Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QCoreApplication::sendEvent(_window, &move);
}

- (void)mouseExited:(NSEvent*)event
{
    (void)event;
    // Also while the application is active: it may have become so in between, and leaving twice
    // does no harm.
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(_window, &leave);
}

@end
