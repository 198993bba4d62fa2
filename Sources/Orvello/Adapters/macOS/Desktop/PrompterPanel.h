#pragma once

#include <functional>

#import <AppKit/AppKit.h>

/// What happens to the panel. C++ functions, because blocks could be tested on a Mac alone.
struct PanelEvents {
    std::function<void(CGFloat delta)> scrolled = {}; ///< By this much, precisely.
    std::function<void()> resized = {};
    std::function<void()> resizeEnded = {}; ///< The user let go of the edge.
    std::function<void()> screensChanged = {}; ///< One came, went, moved or has another size.
    std::function<NSRect(NSRect frame)> placed = {}; ///< Answers where a panel put there may stand.
};

/// The prompter's window class: it never becomes key or main, so that typing stays with the user's
/// other application, and it keeps scroll-wheel events to itself.
@interface PrompterPanel : NSPanel {
@private // Here, because the runtime that tests it elsewhere must know its size.
    PanelEvents _events;
}

/// Tells them from now on, or nobody when it is empty.
- (void)tell:(const PanelEvents&)events;

/// Configured, empty and not shown.
- (nonnull instancetype)initWithSize:(NSSize)size
                             minimum:(NSSize)minimumSize
                             maximum:(NSSize)maximumSize;

@end
