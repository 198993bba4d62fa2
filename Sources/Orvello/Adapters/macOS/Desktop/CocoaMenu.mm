#include "Orvello/Adapters/macOS/Desktop/CocoaMenu.h"

#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Shell/Commands/Menu.h"

using Orvello::MenuItem;
using Orvello::nsString;

@implementation CocoaMenu

+ (BOOL)runActionOf:(id)line
{
    if (![line isKindOfClass:[NSMenuItem class]])
        return NO;
    const id owner = static_cast<NSMenuItem*>(line).menu.delegate;
    return [owner isKindOfClass:[CocoaMenu class]] && [static_cast<CocoaMenu*>(owner) run:line];
}

- (instancetype)initWithMenu:(Orvello::Menu&)menu
{
    self = [super init];
    if (!self)
        return nil;
    _menu = &menu;
    _lines = [[NSMutableArray alloc] init];
    _submenus = [[NSMutableArray alloc] init];
    _nativeMenu = [[NSMenu alloc] initWithTitle:nsString(menu.title())];
    // Each line itself says whether it can be chosen. AppKit would ask the responders instead, and
    // those of a Qt window give wrong answers: see OrvelloApplication.
    _nativeMenu.autoenablesItems = NO;
    for (const auto& item : menu.items()) {
        NSMenuItem* const line = [self newLineFor:*item];
        [_lines addObject:line];
        [_nativeMenu addItem:line];
    }
    [self follow];
    _nativeMenu.delegate = self;
    return self;
}

- (NSMenu*)nativeMenu
{
    return _nativeMenu;
}

- (NSMenuItem*)newLineFor:(const MenuItem&)item
{
    if (item.isSeparator())
        return [NSMenuItem separatorItem];
    // An upper-case key equivalent means the shift key here as well.
    NSMenuItem* const line = [[NSMenuItem alloc] initWithTitle:nsString(item.title)
                                                        action:nullptr
                                                 keyEquivalent:nsString(item.keyEquivalent)];
    line.enabled = item.isEnabled();
    if (item.submenu) {
        CocoaMenu* const submenu = [[CocoaMenu alloc] initWithMenu:*item.submenu];
        [_submenus addObject:submenu];
        line.submenu = submenu.nativeMenu;
    } else if (!item.command.isEmpty()) {
        // Without a target it goes to the first responder.
        line.action = NSSelectorFromString(nsString(QString::fromLatin1(item.command + ':')));
    } else if (item.action) {
        line.target = self;
        line.action = @selector(run:);
    }
    return line;
}

- (BOOL)run:(NSMenuItem*)line
{
    const NSUInteger index = [_lines indexOfObjectIdenticalTo:line];
    if (index == NSNotFound || !_menu->items()[index]->action)
        return NO;
    _menu->items()[index]->action();
    return YES;
}

- (void)menuNeedsUpdate:(NSMenu*)menu
{
    (void)menu;
    _menu->needsUpdate();
    [self follow];
}

- (void)follow
{
    NSUInteger index = 0;
    for (NSMenuItem* line in _lines) {
        const MenuItem& item = *_menu->items()[index++];
        if (item.isSeparator())
            continue;
        line.title = nsString(item.title);
        line.state = item.isChecked ? NSControlStateValueOn : NSControlStateValueOff;
    }
}

@end
