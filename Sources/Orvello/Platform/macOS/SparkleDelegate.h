#pragma once

#include "Orvello/Platform/Updater.h"

#import <Sparkle/Sparkle.h>

/// Translates what Sparkle says for the port's delegate, which is set when the updater starts.
@interface SparkleDelegate : NSObject <SPUUpdaterDelegate>

@property (nonatomic, nullable) Orvello::UpdaterDelegate* target;

/// Calls `changed` on every change of the updater's automatic-check flag, whoever made it.
- (void)observe:(nonnull SPUUpdater*)updater changed:(std::function<void()>)changed;
- (void)stopObserving;

@end
