#pragma once

#import <AppKit/AppKit.h>

namespace Orvello {
class Menu;
}

/// A native menu with the lines of a portable one, which it asks for their titles and check marks
/// each time before it opens. AppKit holds neither the delegate of a menu nor the target of a line,
/// so whoever shows the menu must hold this object.
@interface CocoaMenu : NSObject <NSMenuDelegate> {
@private // Here, because the runtime that tests it elsewhere must know its size.
    Orvello::Menu* _menu;
    NSMenu* _nativeMenu;
    NSMutableArray<NSMenuItem*>* _lines; ///< One for each of the menu's; AppKit may add its own.
    NSMutableArray<CocoaMenu*>* _submenus;
}

/// Runs the action of `line` if it belongs to such a menu; otherwise does nothing and answers NO.
+ (BOOL)runActionOf:(nullable id)line;

/// `menu` must outlive it.
- (nonnull instancetype)initWithMenu:(Orvello::Menu&)menu;

@property (nonatomic, readonly, nonnull) NSMenu* nativeMenu;

@end
