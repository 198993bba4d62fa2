#pragma once

#import <AppKit/AppKit.h>

/// The application object. It logs the exceptions that AppKit's event loop catches.
@interface OrvelloApplication : NSApplication
@end

namespace Orvello {

/// Makes the application object before Qt does, which then uses it: the first call of
/// sharedApplication decides the class. It is an accessory: no Dock icon, and no menu bar of its
/// own. Also passes exceptions that nobody catches to the crash guard.
void makeApplicationObject();

} // namespace Orvello
