// The few functions of CoreFoundation that the preferences use, over GNUstep's numbers: GNUstep has
// Foundation alone. Included before every source that is built with GNUstep.
#pragma once

#import <Foundation/Foundation.h>

#include <cstring>

using CFTypeRef = const void*;
using CFNumberRef = const void*;
using CFTypeID = unsigned long;

inline CFTypeID CFBooleanGetTypeID() { return 1; }

inline CFTypeID CFGetTypeID(CFTypeRef object)
{
    NSNumber* const truth = [NSNumber numberWithBool:YES];
    return [(id)object class] == [truth class] ? CFBooleanGetTypeID() : 0;
}

inline bool CFNumberIsFloatType(CFNumberRef number)
{
    return std::strchr("fd", *[(id)number objCType]) != nullptr;
}

/// GNUstep's class is older than this initializer. It keeps a domain of its own for each name in
/// the one shared database, which is all that the sources ask of a suite.
@interface NSUserDefaults (Suite)
- (instancetype)initWithSuiteName:(NSString*)name;
@end
