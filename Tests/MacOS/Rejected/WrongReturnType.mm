// rejects: no viable conversion from 'NSScreen *
#import <AppKit/AppKit.h>

CGFloat height(NSScreen* screen)
{
    const NSRect frame = screen;
    return frame.size.height;
}
