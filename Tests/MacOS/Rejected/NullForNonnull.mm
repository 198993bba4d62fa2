// rejects: null passed to a callee that requires a non-null argument
#import <AppKit/AppKit.h>

void add(NSView* view) { [view addSubview:nil]; }
