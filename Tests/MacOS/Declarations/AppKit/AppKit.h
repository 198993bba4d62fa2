#pragma once

#include <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class NSEvent, NSGraphicsContext, NSMenu, NSScreen, NSView, NSWindow, UTType;

@interface NSColor : NSObject <NSCopying>
@property (class, strong, readonly) NSColor* clearColor;
@end

typedef NSString* NSAppearanceName;
extern NSAppearanceName const NSAppearanceNameDarkAqua;
@interface NSAppearance : NSObject
+ (nullable NSAppearance*)appearanceNamed:(NSAppearanceName)name;
@end

@interface NSScreen : NSObject
@property (class, readonly, copy) NSArray<NSScreen*>* screens;
@property (class, nullable, readonly, strong) NSScreen* mainScreen;
@property (readonly) NSRect frame;
@end

typedef NS_ENUM(NSUInteger, NSEventType) {
    NSEventTypeLeftMouseDown = 1,
    NSEventTypeLeftMouseUp = 2,
    NSEventTypeScrollWheel = 22,
};
typedef NSUInteger NSEventModifierFlags;

@interface NSEvent : NSObject <NSCopying>
@property (readonly) NSEventType type;
@property (readonly) NSEventModifierFlags modifierFlags;
@property (readonly) NSTimeInterval timestamp;
@property (readonly) NSPoint locationInWindow;
@property (readonly) CGFloat scrollingDeltaY;
@property (class, readonly) NSPoint mouseLocation;
+ (nullable NSEvent*)mouseEventWithType:(NSEventType)type
                               location:(NSPoint)location
                          modifierFlags:(NSEventModifierFlags)flags
                              timestamp:(NSTimeInterval)time
                           windowNumber:(NSInteger)wNum
                                context:(nullable NSGraphicsContext*)unusedPassNil
                            eventNumber:(NSInteger)eNum
                             clickCount:(NSInteger)cNum
                               pressure:(float)pressure;
@end

@interface NSResponder : NSObject
- (void)mouseUp:(NSEvent*)event;
- (void)mouseMoved:(NSEvent*)event;
- (void)mouseEntered:(NSEvent*)event;
- (void)mouseExited:(NSEvent*)event;
@end

typedef NS_OPTIONS(NSUInteger, NSTrackingAreaOptions) {
    NSTrackingMouseEnteredAndExited = 0x01,
    NSTrackingMouseMoved = 0x02,
    NSTrackingActiveAlways = 0x80,
    NSTrackingInVisibleRect = 0x200,
};
@interface NSTrackingArea : NSObject <NSCopying>
- (instancetype)initWithRect:(NSRect)rect
                     options:(NSTrackingAreaOptions)options
                       owner:(nullable id)owner
                    userInfo:(nullable NSDictionary*)userInfo;
@end

typedef NS_OPTIONS(NSUInteger, NSAutoresizingMaskOptions) {
    NSViewWidthSizable = 2,
    NSViewHeightSizable = 16,
};
@interface NSView : NSResponder
@property NSRect frame;
@property NSRect bounds;
@property NSAutoresizingMaskOptions autoresizingMask;
- (instancetype)initWithFrame:(NSRect)frameRect;
- (void)addSubview:(NSView*)view;
- (void)removeFromSuperview;
- (NSPoint)convertPoint:(NSPoint)point fromView:(nullable NSView*)view;
- (void)addTrackingArea:(NSTrackingArea*)trackingArea;
- (void)removeTrackingArea:(NSTrackingArea*)trackingArea;
@property (nullable, readonly, assign) NSWindow* window;
@end

typedef NSInteger NSWindowLevel;
typedef NS_OPTIONS(NSUInteger, NSWindowStyleMask) {
    NSWindowStyleMaskBorderless = 0,
    NSWindowStyleMaskResizable = 1 << 3,
    NSWindowStyleMaskNonactivatingPanel = 1 << 7,
    NSWindowStyleMaskFullSizeContentView = 1 << 15,
};
typedef NS_OPTIONS(NSUInteger, NSWindowCollectionBehavior) {
    NSWindowCollectionBehaviorCanJoinAllSpaces = 1 << 0,
    NSWindowCollectionBehaviorStationary = 1 << 4,
    NSWindowCollectionBehaviorFullScreenAuxiliary = 1 << 8,
};
typedef NS_ENUM(NSUInteger, NSWindowSharingType) {
    NSWindowSharingNone = 0,
    NSWindowSharingReadOnly = 1,
};
typedef NS_ENUM(NSUInteger, NSBackingStoreType) { NSBackingStoreBuffered = 2 };
typedef NSString* NSWindowFrameAutosaveName;
typedef NS_ENUM(NSInteger, NSWindowTitleVisibility) { NSWindowTitleHidden = 1 };

@interface NSWindow : NSResponder
@property NSWindowStyleMask styleMask;
@property BOOL titlebarAppearsTransparent;
@property NSWindowTitleVisibility titleVisibility;
@property (nullable, strong) NSAppearance* appearance;
@property NSWindowLevel level;
@property NSWindowCollectionBehavior collectionBehavior;
@property NSWindowSharingType sharingType;
@property BOOL hidesOnDeactivate;
@property (getter=isReleasedWhenClosed) BOOL releasedWhenClosed;
@property (getter=isMovableByWindowBackground) BOOL movableByWindowBackground;
@property (null_resettable, copy) NSColor* backgroundColor;
@property (getter=isOpaque) BOOL opaque;
@property BOOL hasShadow;
@property BOOL canHide;
@property NSSize minSize;
@property NSSize maxSize;
@property (nullable, strong) __kindof NSView* contentView;
@property (readonly) NSRect frame;
@property (readonly, getter=isVisible) BOOL visible;
@property (readonly) BOOL inLiveResize;
@property (readonly) NSPoint mouseLocationOutsideOfEventStream;
@property (readonly) BOOL canBecomeKeyWindow;
@property (readonly) BOOL canBecomeMainWindow;
@property (readonly) NSInteger windowNumber;
@property (nullable, readonly, weak) NSResponder* firstResponder;
- (instancetype)initWithContentRect:(NSRect)contentRect
                          styleMask:(NSWindowStyleMask)style
                            backing:(NSBackingStoreType)backingStoreType
                              defer:(BOOL)flag;
- (void)setFrame:(NSRect)frameRect display:(BOOL)flag;
- (void)setContentSize:(NSSize)size;
- (NSRect)constrainFrameRect:(NSRect)frameRect toScreen:(nullable NSScreen*)screen;
- (BOOL)setFrameUsingName:(NSWindowFrameAutosaveName)name force:(BOOL)force;
- (BOOL)setFrameAutosaveName:(NSWindowFrameAutosaveName)name;
- (void)invalidateShadow;
- (void)orderFrontRegardless;
- (void)orderOut:(nullable id)sender;
- (void)close;
- (void)sendEvent:(NSEvent*)event;
- (void)performWindowDragWithEvent:(NSEvent*)event;
@end

@interface NSPanel : NSWindow
@property (getter=isFloatingPanel) BOOL floatingPanel;
@property BOOL worksWhenModal;
@end

@interface NSImageRep : NSObject <NSCopying>
@property NSSize size;
@end

@interface NSBitmapImageRep : NSImageRep
+ (nullable instancetype)imageRepWithData:(NSData*)data;
@end

@interface NSImage : NSObject <NSCopying>
@property (nullable, copy) NSString* accessibilityDescription;
- (instancetype)initWithSize:(NSSize)size;
- (void)addRepresentation:(NSImageRep*)imageRep;
- (void)setTemplate:(BOOL)isTemplate; // A property, whose name is a keyword of C++.
@end

typedef NSInteger NSControlStateValue;
static const NSControlStateValue NSControlStateValueOff = 0;
static const NSControlStateValue NSControlStateValueOn = 1;

@interface NSMenuItem : NSObject <NSCopying>
@property (copy) NSString* title;
@property (nullable, weak) id target;
@property (nullable) SEL action;
@property (nullable, assign) NSMenu* menu;
@property (nullable, strong) NSMenu* submenu;
@property (getter=isEnabled) BOOL enabled;
@property NSControlStateValue state;
+ (NSMenuItem*)separatorItem;
- (instancetype)initWithTitle:(NSString*)string
                       action:(nullable SEL)selector
                keyEquivalent:(NSString*)charCode;
@end

@protocol NSMenuDelegate <NSObject>
@optional
- (void)menuNeedsUpdate:(NSMenu*)menu;
@end

@interface NSMenu : NSObject <NSCopying>
@property (nullable, weak) id<NSMenuDelegate> delegate;
@property BOOL autoenablesItems;
- (instancetype)initWithTitle:(NSString*)title;
- (void)addItem:(NSMenuItem*)newItem;
@end

@interface NSButton : NSView
@property (nullable, strong) NSImage* image;
@end
@interface NSStatusBarButton : NSButton
- (void)performClick:(nullable id)sender;
@end

static const CGFloat NSSquareStatusItemLength = -2.0;
@interface NSStatusItem : NSObject
@property (nullable, readonly, strong) NSStatusBarButton* button;
@property (nullable, strong) NSMenu* menu;
@end
@interface NSStatusBar : NSObject
@property (class, readonly, strong) NSStatusBar* systemStatusBar;
- (NSStatusItem*)statusItemWithLength:(CGFloat)length;
- (void)removeStatusItem:(NSStatusItem*)item;
@end

typedef NSInteger NSModalResponse;
static const NSModalResponse NSModalResponseOK = 1;

@interface NSSavePanel : NSPanel
@property (copy) NSArray<UTType*>* allowedContentTypes;
@property (nullable, readonly, copy) NSURL* URL;
@property (null_resettable, copy) NSString* message;
@property (copy) NSString* nameFieldStringValue;
+ (NSSavePanel*)savePanel;
- (NSModalResponse)runModal;
@end

@interface NSOpenPanel : NSSavePanel
@property BOOL allowsMultipleSelection;
@property BOOL canChooseDirectories;
@property BOOL canChooseFiles;
+ (NSOpenPanel*)openPanel;
@end

extern NSNotificationName const NSWindowDidResizeNotification;
extern NSNotificationName const NSWindowDidEndLiveResizeNotification;
extern NSNotificationName const NSApplicationDidResignActiveNotification;
extern NSNotificationName const NSApplicationWillFinishLaunchingNotification;
extern NSNotificationName const NSApplicationDidChangeScreenParametersNotification;

typedef NS_ENUM(NSInteger, NSApplicationActivationPolicy) {
    NSApplicationActivationPolicyAccessory = 1,
};
typedef NS_ENUM(NSUInteger, NSApplicationTerminateReply) {
    NSTerminateCancel = 0,
    NSTerminateNow = 1,
};
@class NSApplication;
@protocol NSApplicationDelegate <NSObject>
@optional
- (NSApplicationTerminateReply)applicationShouldTerminate:(NSApplication*)sender;
@end
@interface NSApplication : NSResponder
@property (nullable, weak) id<NSApplicationDelegate> delegate;
@property (class, readonly, strong) __kindof NSApplication* sharedApplication;
@property (nullable, readonly, strong) NSEvent* currentEvent;
@property (readonly, getter=isActive) BOOL active;
@property (nullable, readonly, weak) NSWindow* keyWindow;
@property (nullable, strong) NSMenu* mainMenu;
- (BOOL)sendAction:(SEL)action to:(nullable id)target from:(nullable id)sender;
- (BOOL)setActivationPolicy:(NSApplicationActivationPolicy)activationPolicy;
- (void)activateIgnoringOtherApps:(BOOL)ignoreOtherApps;
- (void)reportException:(NSException*)exception;
@end
extern "C" __kindof NSApplication* _Null_unspecified NSApp;

@interface NSRunningApplication : NSObject
@property (nullable, readonly, copy) NSString* bundleIdentifier;
@property (nullable, readonly, copy) NSString* localizedName;
@end

@interface NSWorkspace : NSObject
@property (class, readonly, strong) NSWorkspace* sharedWorkspace;
@property (readonly, copy) NSArray<NSRunningApplication*>* runningApplications;
@property (nullable, readonly, strong) NSRunningApplication* frontmostApplication;
- (BOOL)openURL:(NSURL*)url;
- (nullable NSURL*)URLForApplicationWithBundleIdentifier:(NSString*)bundleIdentifier;
- (void)activateFileViewerSelectingURLs:(NSArray<NSURL*>*)fileURLs;
@end

NS_ASSUME_NONNULL_END
