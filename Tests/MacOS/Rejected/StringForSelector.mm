// rejects: cannot initialize a parameter of type 'SEL _Nullable' with an lvalue of type 'const char
#import <AppKit/AppKit.h>

NSMenuItem* line()
{
    return [[NSMenuItem alloc] initWithTitle:@"Undo" action:"undo:" keyEquivalent:@"z"];
}
