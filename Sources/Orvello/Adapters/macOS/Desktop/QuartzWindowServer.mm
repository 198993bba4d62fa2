#include "Orvello/Adapters/macOS/Desktop/QuartzWindowServer.h"

#include "Orvello/Adapters/macOS/Desktop/CocoaGeometry.h"
#include "Orvello/Adapters/macOS/Early/CocoaText.h"

#import <AppKit/AppKit.h>
#import <CoreGraphics/CoreGraphics.h>

namespace Orvello {

namespace {

using WindowDescription = NSDictionary<NSString*, id>;

QString ownerName(WindowDescription* window)
{
    const id name = [window objectForKey:(__bridge NSString*)kCGWindowOwnerName];
    return [name isKindOfClass:[NSString class]] ? qString(name) : QString();
}

std::optional<QRectF> bounds(WindowDescription* window)
{
    const id entry = [window objectForKey:(__bridge NSString*)kCGWindowBounds];
    CGRect rect {};
    if (![entry isKindOfClass:[NSDictionary class]]
        || !CGRectMakeWithDictionaryRepresentation((__bridge CFDictionaryRef)entry, &rect))
        return std::nullopt;
    return qRect(rect);
}

} // namespace

std::optional<QList<WindowOnScreen>> QuartzWindowServer::windowsOnScreen() const
{
    NSArray<WindowDescription*>* const windows
        = (__bridge_transfer NSArray*)CGWindowListCopyWindowInfo(
            kCGWindowListOptionOnScreenOnly | kCGWindowListExcludeDesktopElements, kCGNullWindowID);
    if (!windows)
        return std::nullopt;
    QList<WindowOnScreen> onScreen;
    for (WindowDescription* window in windows)
        onScreen.append({ ownerName(window), bounds(window) });
    return onScreen;
}

QList<QSizeF> QuartzWindowServer::screenSizes() const
{
    QList<QSizeF> sizes;
    for (NSScreen* screen in NSScreen.screens)
        sizes.append(qRect(screen.frame).size());
    return sizes;
}

} // namespace Orvello
