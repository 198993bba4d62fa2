// AppKit as declared for the type check, over GNUstep's Foundation: PanelTest.mm has the classes.
// GNUstep's own windows lack most of what the panel is about. Included before each source.
#pragma once

#import <Foundation/Foundation.h>

using CGRect = NSRect;
using CGSize = NSSize;

#import <AppKit/AppKit.h>
