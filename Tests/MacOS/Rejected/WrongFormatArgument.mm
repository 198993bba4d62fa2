// rejects: format specifies type 'id' but the argument has type 'NSUInteger'
#import <Foundation/Foundation.h>

void tell(NSString* text) { NSLog(@"%@", text.length); }
