#pragma once

#import <AppKit/AppKit.h>

/// The application object. It logs the exceptions that AppKit's event loop catches, and brings the
/// main menu's editing commands to the fields of Qt's windows.
///
/// Those commands go to the first responder, which is Qt's view while a Qt window has the keyboard.
/// That view answers cutting, copying, pasting and selecting, but drops what does not come from a
/// menu of Qt's own; and a window answers undoing and redoing, for an undo manager that Qt's fields
/// do not know. Neither may have them, then. Native fields get them as everywhere.
@interface OrvelloApplication : NSApplication
@end

namespace Orvello {

/// Makes the application object before Qt does, which then uses it: the first call of
/// sharedApplication decides the class. It is an accessory: no Dock icon, and no menu bar of its
/// own. Also passes exceptions that nobody catches to the crash guard.
void makeApplicationObject();

} // namespace Orvello
