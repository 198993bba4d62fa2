#pragma once

#include <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

@class SPUUpdater;

typedef NS_ENUM(NSInteger, SPUUserUpdateChoice) {
    SPUUserUpdateChoiceSkip = 0,
    SPUUserUpdateChoiceInstall = 1,
    SPUUserUpdateChoiceDismiss = 2,
};

@interface SUAppcastItem : NSObject
@property (nonatomic, copy, readonly) NSString* versionString;
@property (nonatomic, copy, readonly) NSString* displayVersionString;
@end

@interface SPUUserUpdateState : NSObject
@end

@protocol SPUStandardUserDriverDelegate <NSObject>
@end

@protocol SPUUpdaterDelegate <NSObject>
@optional
- (nullable NSString*)feedURLStringForUpdater:(SPUUpdater*)updater;
- (BOOL)updaterShouldPromptForPermissionToCheckForUpdates:(SPUUpdater*)updater;
- (void)updater:(SPUUpdater*)updater didFindValidUpdate:(SUAppcastItem*)item;
- (void)updaterDidNotFindUpdate:(SPUUpdater*)updater error:(NSError*)error;
- (void)updater:(SPUUpdater*)updater
    userDidMakeChoice:(SPUUserUpdateChoice)choice
            forUpdate:(SUAppcastItem*)updateItem
                state:(SPUUserUpdateState*)state;
- (void)updater:(SPUUpdater*)updater willInstallUpdate:(SUAppcastItem*)item;
- (void)updater:(SPUUpdater*)updater
    failedToDownloadUpdate:(SUAppcastItem*)item
                     error:(NSError*)error;
- (void)updater:(SPUUpdater*)updater didAbortWithError:(NSError*)error;
- (void)updater:(SPUUpdater*)updater willScheduleUpdateCheckAfterDelay:(NSTimeInterval)delay;
@end

@interface SPUUpdater : NSObject
@property (nonatomic) BOOL automaticallyChecksForUpdates;
@property (nonatomic, readonly) BOOL canCheckForUpdates;
@property (nonatomic, readonly, copy, nullable) NSDate* lastUpdateCheckDate;
@end

@interface SPUStandardUpdaterController : NSObject
@property (nonatomic, readonly) SPUUpdater* updater;
- (instancetype)initWithStartingUpdater:(BOOL)startUpdater
                        updaterDelegate:(nullable id<SPUUpdaterDelegate>)updaterDelegate
                     userDriverDelegate:
                         (nullable id<SPUStandardUserDriverDelegate>)userDriverDelegate;
- (void)startUpdater;
- (void)checkForUpdates:(nullable id)sender;
@end

NS_ASSUME_NONNULL_END
