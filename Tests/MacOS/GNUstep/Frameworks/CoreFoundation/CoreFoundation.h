// The names of CoreFoundation that the frameworks' declarations mention, without its rectangles,
// which GNUstep's Foundation has.
#pragma once

#include <cstdint>

typedef unsigned char Boolean;
typedef int16_t SInt16;
typedef uint32_t UInt32;
typedef int32_t SInt32;
typedef unsigned long long UInt64;
typedef float Float32;
typedef double Float64;
typedef uint32_t OSType;
typedef SInt32 OSStatus;
enum { noErr = 0 };

typedef const struct __CFString* CFStringRef;
typedef const struct __CFArray* CFArrayRef;
typedef const struct __CFDictionary* CFDictionaryRef;
