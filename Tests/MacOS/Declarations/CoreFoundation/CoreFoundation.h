#pragma once

#include <os/availability.h>

#include <cstddef>
#include <cstdint>

typedef unsigned char Boolean;
typedef uint8_t UInt8;
typedef int16_t SInt16;
typedef uint16_t UInt16;
typedef uint32_t UInt32;
typedef int32_t SInt32;
typedef unsigned long long UInt64;
typedef float Float32;
typedef double Float64;
typedef UInt32 FourCharCode;
typedef FourCharCode OSType;
typedef SInt32 OSStatus;
typedef unsigned long ByteCount;
typedef unsigned long ItemCount;
typedef UInt32 OptionBits;
enum { noErr = 0 };

typedef UInt16 UniChar;
typedef long CFIndex;
struct CFRange {
    CFIndex location;
    CFIndex length;
};

typedef const void* CFTypeRef;
typedef unsigned long CFTypeID;
typedef const struct __CFBoolean* CFBooleanRef;
typedef const struct __CFNumber* CFNumberRef;
typedef const struct __CFString* CFStringRef;
typedef const struct __CFArray* CFArrayRef;
typedef const struct __CFDictionary* CFDictionaryRef;

typedef double CGFloat;
struct CGPoint {
    CGFloat x;
    CGFloat y;
};
struct CGSize {
    CGFloat width;
    CGFloat height;
};
struct CGRect {
    CGPoint origin;
    CGSize size;
};

extern "C" {
CFTypeID CFGetTypeID(CFTypeRef _Nonnull cf);
CFTypeID CFBooleanGetTypeID(void);
Boolean CFNumberIsFloatType(CFNumberRef _Nonnull number);
void CFRelease(CFTypeRef _Nonnull cf);
CFIndex CFStringGetLength(CFStringRef _Nonnull theString);
void CFStringGetCharacters(CFStringRef _Nonnull theString, CFRange range, UniChar* _Nonnull buffer);
}
