#pragma once

#include <AudioToolbox/AudioToolbox.h>
#include <CoreAudio/CoreAudio.h>
#include <Foundation/Foundation.h>

NS_ASSUME_NONNULL_BEGIN

typedef NS_ENUM(NSInteger, AVAuthorizationStatus) {
    AVAuthorizationStatusNotDetermined = 0,
    AVAuthorizationStatusRestricted = 1,
    AVAuthorizationStatusDenied = 2,
    AVAuthorizationStatusAuthorized = 3,
};
typedef NSString* AVMediaType;
extern AVMediaType const AVMediaTypeAudio;

@interface AVCaptureDevice : NSObject
+ (AVAuthorizationStatus)authorizationStatusForMediaType:(AVMediaType)mediaType;
+ (void)requestAccessForMediaType:(AVMediaType)mediaType
                completionHandler:(void (^)(BOOL granted))handler;
@end

typedef UInt32 AVAudioChannelCount;
typedef UInt32 AVAudioFrameCount;
typedef NSUInteger AVAudioNodeBus;

@interface AVAudioFormat : NSObject
@property (nonatomic, readonly) double sampleRate;
@property (nonatomic, readonly) AVAudioChannelCount channelCount;
@end

@interface AVAudioTime : NSObject
@end

@interface AVAudioPCMBuffer : NSObject
@property (nonatomic) AVAudioFrameCount frameLength;
@property (nonatomic, readonly) float* const _Nonnull* _Nullable floatChannelData;
@end

typedef void (^AVAudioNodeTapBlock)(AVAudioPCMBuffer* buffer, AVAudioTime* when);
@interface AVAudioNode : NSObject
- (AVAudioFormat*)inputFormatForBus:(AVAudioNodeBus)bus;
- (AVAudioFormat*)outputFormatForBus:(AVAudioNodeBus)bus;
- (void)installTapOnBus:(AVAudioNodeBus)bus
             bufferSize:(AVAudioFrameCount)bufferSize
                 format:(nullable AVAudioFormat*)format
                  block:(AVAudioNodeTapBlock)tapBlock;
- (void)removeTapOnBus:(AVAudioNodeBus)bus;
@end

@interface AVAudioIONode : AVAudioNode
@property (nonatomic, readonly, nullable) AudioUnit audioUnit;
@end

@interface AVAudioInputNode : AVAudioIONode
@end

@interface AVAudioEngine : NSObject
@property (nonatomic, readonly) AVAudioInputNode* inputNode;
@property (nonatomic, readonly, getter=isRunning) BOOL running;
- (instancetype)init;
- (BOOL)startAndReturnError:(NSError**)outError;
- (void)stop;
@end
extern NSNotificationName const AVAudioEngineConfigurationChangeNotification;

NS_ASSUME_NONNULL_END
