#pragma once

#import <AppKit/AppKit.h>

namespace Orvello {

/// Runs `action` and stops an Objective-C exception in it, which would leave Qt's frames half done
/// if it unwound through them. The application object reports it, as it does for exceptions in
/// AppKit's own event loop.
template <typename Action>
void shielded(Action action)
{
    @try {
        action();
    } @catch (NSException* exception) {
        [NSApp reportException:exception];
    }
}

} // namespace Orvello
