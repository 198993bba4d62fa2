#include "Orvello/Adapters/macOS/Desktop/CocoaScreens.h"

#include "Orvello/Adapters/macOS/Desktop/CocoaGeometry.h"

#import <AppKit/AppKit.h>

namespace Orvello {

QList<QRectF> CocoaScreens::frames() const
{
    NSScreen* const main = NSScreen.mainScreen;
    QList<QRectF> frames;
    if (main)
        frames.append(flippedVertically(qRect(main.frame)));
    for (NSScreen* screen in NSScreen.screens) {
        if (![screen isEqual:main])
            frames.append(flippedVertically(qRect(screen.frame)));
    }
    return frames;
}

QPointF CocoaScreens::pointer() const
{
    const NSPoint place = NSEvent.mouseLocation;
    return flippedVertically({ place.x, place.y, 0, 0 }).topLeft();
}

} // namespace Orvello
