#pragma once

#import <AppKit/AppKit.h>

/// The prompter's window class: it never becomes key or main, so that typing stays with the user's
/// other application, and it keeps scroll-wheel events to itself.
@interface PrompterPanel : NSPanel

/// Gets the precise vertical delta of each scroll-wheel event over the panel; without it the events
/// are dropped.
@property (nonatomic, copy, nullable) void (^onScroll)(CGFloat delta);

/// Configured, empty and not shown.
- (nonnull instancetype)initWithSize:(NSSize)size
                             minimum:(NSSize)minimumSize
                             maximum:(NSSize)maximumSize;

@end
