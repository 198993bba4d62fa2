#pragma once

#include <CoreFoundation/CoreFoundation.h>

// bool on 64-bit Arm.
typedef bool BOOL;
#define YES __objc_yes
#define NO __objc_no
#define nil nullptr

#define NS_ENUM(type, name)                                                                        \
    enum name : type name;                                                                         \
    enum name : type
#define NS_OPTIONS(type, name)                                                                     \
    type name;                                                                                     \
    enum : name
#define NS_ASSUME_NONNULL_BEGIN _Pragma("clang assume_nonnull begin")
#define NS_ASSUME_NONNULL_END _Pragma("clang assume_nonnull end")

typedef long NSInteger;
typedef unsigned long NSUInteger;
static const NSInteger NSNotFound = 0x7fffffffffffffff; // NSIntegerMax
typedef double NSTimeInterval;
typedef unsigned short unichar;
typedef CGPoint NSPoint;
typedef CGSize NSSize;
typedef CGRect NSRect;
typedef struct _NSZone NSZone;
typedef struct _NSRange {
    NSUInteger location;
    NSUInteger length;
} NSRange;
inline NSRange NSMakeRange(NSUInteger location, NSUInteger length) { return { location, length }; }
inline NSRect NSMakeRect(CGFloat x, CGFloat y, CGFloat w, CGFloat h)
{
    return { { x, y }, { w, h } };
}

// What the compiler itself wants for `for (x in y)`.
typedef struct {
    unsigned long state;
    id __unsafe_unretained _Nullable* _Nullable itemsPtr;
    unsigned long* _Nullable mutationsPtr;
    unsigned long extra[5];
} NSFastEnumerationState;

NS_ASSUME_NONNULL_BEGIN

@class NSDictionary, NSString;

@protocol NSObject
- (BOOL)isEqual:(nullable id)object;
- (BOOL)isKindOfClass:(Class)aClass;
@end

__attribute__((objc_root_class))
@interface NSObject<NSObject>
+ (instancetype)alloc;
+ (Class)class;
- (instancetype)init;
- (void)dealloc;
@end

@interface NSObject (NSDelayedPerforming)
- (void)performSelector:(SEL)aSelector withObject:(nullable id)anArgument afterDelay:(double)delay;
@end

typedef NSUInteger NSKeyValueObservingOptions;
@interface NSObject (NSKeyValueObserving)
- (void)observeValueForKeyPath:(nullable NSString*)keyPath
                      ofObject:(nullable id)object
                        change:(nullable NSDictionary*)change
                       context:(nullable void*)context;
- (void)addObserver:(NSObject*)observer
         forKeyPath:(NSString*)keyPath
            options:(NSKeyValueObservingOptions)options
            context:(nullable void*)context;
- (void)removeObserver:(NSObject*)observer forKeyPath:(NSString*)keyPath;
@end

@protocol NSCopying
- (id)copyWithZone:(nullable NSZone*)zone;
@end

@protocol NSFastEnumeration
- (NSUInteger)countByEnumeratingWithState:(NSFastEnumerationState*)state
                                  objects:(id __unsafe_unretained _Nullable[_Nonnull])buffer
                                    count:(NSUInteger)len;
@end

@interface NSArray<__covariant ObjectType> : NSObject <NSCopying, NSFastEnumeration>
@property (nullable, nonatomic, readonly) ObjectType firstObject;
+ (instancetype)arrayWithObjects:(const ObjectType _Nonnull __unsafe_unretained[_Nonnull])objects
                           count:(NSUInteger)cnt;
- (NSString*)componentsJoinedByString:(NSString*)separator;
@end

@interface NSMutableArray<ObjectType> : NSArray <ObjectType>
+ (instancetype)array;
- (void)addObject:(ObjectType)anObject;
- (NSUInteger)indexOfObjectIdenticalTo:(ObjectType)anObject;
@end

@interface NSDictionary<__covariant KeyType, __covariant ObjectType>
    : NSObject <NSCopying, NSFastEnumeration>
- (nullable ObjectType)objectForKey:(KeyType)aKey;
@end

@interface NSString : NSObject <NSCopying>
@property (readonly) NSUInteger length;
+ (instancetype)stringWithCharacters:(const unichar*)characters length:(NSUInteger)length;
- (void)getCharacters:(unichar*)buffer range:(NSRange)range;
@end

@interface NSNumber : NSObject <NSCopying>
@property (readonly) BOOL boolValue;
@property (readonly) double doubleValue;
@property (readonly) long long longLongValue;
+ (NSNumber*)numberWithBool:(BOOL)value;
+ (NSNumber*)numberWithDouble:(double)value;
+ (NSNumber*)numberWithLongLong:(long long)value;
@end

@interface NSData : NSObject <NSCopying>
@property (readonly) NSUInteger length;
@property (readonly) const void* bytes;
+ (instancetype)dataWithBytes:(nullable const void*)bytes length:(NSUInteger)length;
@end

@interface NSDate : NSObject <NSCopying>
@property (readonly) NSTimeInterval timeIntervalSinceReferenceDate;
@end

typedef NSString* NSExceptionName;
@interface NSException : NSObject <NSCopying>
@property (readonly, copy) NSExceptionName name;
@property (nullable, readonly, copy) NSString* reason;
@property (readonly, copy) NSArray<NSString*>* callStackSymbols;
@end
typedef void NSUncaughtExceptionHandler(NSException* exception);

@interface NSURL : NSObject <NSCopying>
@property (nullable, readonly, copy) NSString* path;
+ (nullable instancetype)URLWithString:(NSString*)URLString;
+ (NSURL*)fileURLWithPath:(NSString*)path;
@end

@interface NSError : NSObject <NSCopying>
@property (readonly) NSInteger code;
@property (readonly, copy) NSString* localizedDescription;
@end

@interface NSBundle : NSObject
@property (class, readonly, strong) NSBundle* mainBundle;
@property (nullable, readonly, copy) NSString* bundleIdentifier;
- (nullable id)objectForInfoDictionaryKey:(NSString*)key;
@end

typedef NS_OPTIONS(unsigned long long, NSActivityOptions) {
    NSActivityIdleDisplaySleepDisabled = 1ULL << 40,
    NSActivityUserInitiated = 0x00FFFFFFULL,
    NSActivityUserInitiatedAllowingIdleSystemSleep = 0x00EFFFFFULL,
};
typedef struct {
    NSInteger majorVersion;
    NSInteger minorVersion;
    NSInteger patchVersion;
} NSOperatingSystemVersion;
@interface NSProcessInfo : NSObject
- (id<NSObject>)beginActivityWithOptions:(NSActivityOptions)options reason:(NSString*)reason;
- (void)endActivity:(id<NSObject>)activity;
@property (class, readonly, strong) NSProcessInfo* processInfo;
@property (copy) NSString* processName;
@property (readonly, copy) NSString* operatingSystemVersionString;
@property (readonly) NSOperatingSystemVersion operatingSystemVersion;
@end

@interface NSUserDefaults : NSObject
@property (class, readonly, strong) NSUserDefaults* standardUserDefaults;
- (nullable instancetype)initWithSuiteName:(nullable NSString*)suitename;
- (nullable id)objectForKey:(NSString*)defaultName;
- (void)setObject:(nullable id)value forKey:(NSString*)defaultName;
- (void)removeObjectForKey:(NSString*)defaultName;
- (nullable NSDictionary<NSString*, id>*)persistentDomainForName:(NSString*)domainName;
- (BOOL)synchronize;
@end

typedef NSString* NSNotificationName;
@interface NSNotification : NSObject <NSCopying>
@end

@class NSOperationQueue;

@interface NSNotificationCenter : NSObject
@property (class, readonly, strong) NSNotificationCenter* defaultCenter;
- (void)removeObserver:(id)observer;
- (void)addObserver:(id)observer
           selector:(SEL)selector
               name:(nullable NSNotificationName)name
             object:(nullable id)object;
- (id<NSObject>)addObserverForName:(nullable NSNotificationName)name
                            object:(nullable id)obj
                             queue:(nullable NSOperationQueue*)queue
                        usingBlock:(void (^)(NSNotification* notification))block;
@end

typedef FourCharCode AEEventClass;
typedef FourCharCode AEEventID;
typedef FourCharCode AEKeyword;
@interface NSAppleEventDescriptor : NSObject
@property (readonly) OSType typeCodeValue;
- (nullable NSAppleEventDescriptor*)attributeDescriptorForKeyword:(AEKeyword)keyword;
@end
@interface NSAppleEventManager : NSObject
@property (nullable, readonly, retain) NSAppleEventDescriptor* currentAppleEvent;
+ (NSAppleEventManager*)sharedAppleEventManager;
- (void)setEventHandler:(id)handler
            andSelector:(SEL)handleEventSelector
          forEventClass:(AEEventClass)eventClass
             andEventID:(AEEventID)eventID;
- (void)removeEventHandlerForEventClass:(AEEventClass)eventClass andEventID:(AEEventID)eventID;
@end

typedef NS_ENUM(NSUInteger, NSSearchPathDirectory) { NSApplicationSupportDirectory = 14 };
typedef NS_OPTIONS(NSUInteger, NSSearchPathDomainMask) { NSUserDomainMask = 1 };

extern "C" {
void NSLog(NSString* format, ...) __attribute__((format(NSString, 1, 2)));
SEL _Nullable NSSelectorFromString(NSString* aSelectorName);
void NSSetUncaughtExceptionHandler(NSUncaughtExceptionHandler* _Nullable handler);
extern const NSRect NSZeroRect;
NSArray<NSString*>* NSSearchPathForDirectoriesInDomains(
    NSSearchPathDirectory directory, NSSearchPathDomainMask domainMask, BOOL expandTilde);
}

NS_ASSUME_NONNULL_END
