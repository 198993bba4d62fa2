// What AppKit has and GNUstep's is too old for, as far as the menus of the macOS edition use it.
// Included before each of their sources; MenusTest.mm has the implementations.
#pragma once

#import <AppKit/AppKit.h>

@interface NSApplication (ActivationPolicy)
- (BOOL)setActivationPolicy:(NSInteger)activationPolicy;
@end

@interface NSImage (Template)
@property (copy) NSString* accessibilityDescription;
- (void)setTemplate:(BOOL)isTemplate;
@end

@interface NSStatusItem (Button)
@property (readonly) NSButton* button;
@end
