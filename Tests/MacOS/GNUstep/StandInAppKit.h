// AppKit as declared for the type check, over GNUstep's Foundation: the tests have the classes.
// GNUstep's own windows lack most of what the panel is about. Included before each source.
#pragma once

#import <Foundation/Foundation.h>

typedef NSRect CGRect; // Newer versions have them by both names.
typedef NSSize CGSize;

#import <AppKit/AppKit.h>
