#pragma once

#include "Orvello/Platform/Desktop/Updater.h"

#include <functional>
#include <map>

#import <Sparkle/Sparkle.h>

/// Translates what Sparkle says for the port's listener, which is set when the updater starts.
@interface SparkleDelegate : NSObject <SPUUpdaterDelegate> {
@private // Here, because the runtime that tests it elsewhere must know its size.
    Orvello::UpdateListener* _target;
    SPUUpdater* _observed;
    std::map<QString, std::function<void()>> _changed; ///< By the property's key path.
}

@property (nonatomic, nullable) Orvello::UpdateListener* target;

/// Calls `changed` on every change of that property of the updater, whoever made it. Once for each
/// property, and always the same updater.
- (void)observe:(nonnull SPUUpdater*)updater
        keyPath:(nonnull NSString*)keyPath
        changed:(std::function<void()>)changed;
- (void)stopObserving;

@end
