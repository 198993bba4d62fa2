#pragma once

#include <CoreAudio/CoreAudio.h>

struct AudioComponentDescription {
    OSType componentType;
    OSType componentSubType;
    OSType componentManufacturer;
    UInt32 componentFlags;
    UInt32 componentFlagsMask;
};
typedef struct OpaqueAudioComponent* AudioComponent;
typedef struct OpaqueAudioComponentInstance* AudioComponentInstance;
typedef AudioComponentInstance AudioUnit;

typedef UInt32 AudioUnitPropertyID;
typedef UInt32 AudioUnitScope;
typedef UInt32 AudioUnitElement;
typedef UInt32 AudioUnitRenderActionFlags;
typedef OSStatus (*AURenderCallback)(void* _Nonnull inRefCon,
    AudioUnitRenderActionFlags* _Nonnull ioActionFlags, const AudioTimeStamp* _Nonnull inTimeStamp,
    UInt32 inBusNumber, UInt32 inNumberFrames, AudioBufferList* _Nullable ioData);
struct AURenderCallbackStruct {
    AURenderCallback _Nullable inputProc;
    void* _Nullable inputProcRefCon;
};

enum : OSType {
    kAudioUnitType_Output = 'auou',
    kAudioUnitSubType_VoiceProcessingIO = 'vpio',
    kAudioUnitManufacturer_Apple = 'appl',
};
enum : AudioUnitScope {
    kAudioUnitScope_Global = 0,
    kAudioUnitScope_Input = 1,
    kAudioUnitScope_Output = 2,
};
enum : AudioUnitPropertyID {
    kAudioUnitProperty_StreamFormat = 8,
    kAudioUnitProperty_SetRenderCallback = 23,
    kAudioOutputUnitProperty_CurrentDevice = 2000,
    kAudioOutputUnitProperty_EnableIO = 2003,
    kAudioOutputUnitProperty_SetInputCallback = 2005,
};

extern "C" {
AudioComponent _Nullable AudioComponentFindNext(
    AudioComponent _Nullable inComponent, const AudioComponentDescription* _Nonnull inDesc);
OSStatus AudioComponentInstanceNew(
    AudioComponent _Nonnull inComponent, AudioComponentInstance _Nullable* _Nonnull outInstance);
OSStatus AudioComponentInstanceDispose(AudioComponentInstance _Nonnull inInstance);
OSStatus AudioUnitSetProperty(AudioUnit _Nonnull inUnit, AudioUnitPropertyID inID,
    AudioUnitScope inScope, AudioUnitElement inElement, const void* _Nullable inData,
    UInt32 inDataSize);
OSStatus AudioUnitInitialize(AudioUnit _Nonnull inUnit);
OSStatus AudioUnitUninitialize(AudioUnit _Nonnull inUnit);
OSStatus AudioOutputUnitStart(AudioUnit _Nonnull ci);
OSStatus AudioOutputUnitStop(AudioUnit _Nonnull ci);
OSStatus AudioUnitRender(AudioUnit _Nonnull inUnit,
    AudioUnitRenderActionFlags* _Nullable ioActionFlags, const AudioTimeStamp* _Nonnull inTimeStamp,
    UInt32 inOutputBusNumber, UInt32 inNumberFrames, AudioBufferList* _Nonnull ioData);
}
