// rejects: is only available on macOS 14.0 or newer
#import <Foundation/Foundation.h>

API_AVAILABLE(macos(14.0)) @interface Newer : NSObject
@end

id make() { return [[Newer alloc] init]; }
