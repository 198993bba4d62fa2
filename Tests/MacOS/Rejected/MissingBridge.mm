// rejects: cannot cast from type 'NSNumber *' to pointer type 'CFTypeRef'
#import <Foundation/Foundation.h>

CFTypeRef bare(NSNumber* number) { return static_cast<CFTypeRef>(number); }
