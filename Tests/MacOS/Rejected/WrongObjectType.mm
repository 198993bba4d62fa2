// rejects: cannot initialize a parameter of type 'NSEvent * _Nonnull' with an lvalue of type
// 'NSString *
#import <AppKit/AppKit.h>

void drag(NSWindow* window, NSString* event) { [window performWindowDragWithEvent:event]; }
