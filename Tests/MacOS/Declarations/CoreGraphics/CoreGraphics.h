#pragma once

#include <CoreFoundation/CoreFoundation.h>

typedef uint32_t CGWindowID;
typedef uint32_t CGWindowListOption;
enum : CGWindowListOption {
    kCGWindowListOptionOnScreenOnly = 1 << 0,
    kCGWindowListExcludeDesktopElements = 1 << 4,
};
#define kCGNullWindowID ((CGWindowID)0)

extern "C" {
extern const CFStringRef _Nonnull kCGWindowOwnerName;
extern const CFStringRef _Nonnull kCGWindowBounds;

/// One reference, the caller's; null outside a session with a screen.
CFArrayRef _Nullable CGWindowListCopyWindowInfo(
    CGWindowListOption option, CGWindowID relativeToWindow);
bool CGRectMakeWithDictionaryRepresentation(CFDictionaryRef _Nullable dict, CGRect* _Nullable rect);
}
