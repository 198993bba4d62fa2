#pragma once

#include <CoreFoundation/CoreFoundation.h>

typedef UInt32 AudioObjectID;
typedef UInt32 AudioObjectPropertySelector;
typedef UInt32 AudioObjectPropertyScope;
typedef UInt32 AudioObjectPropertyElement;
struct AudioObjectPropertyAddress {
    AudioObjectPropertySelector mSelector;
    AudioObjectPropertyScope mScope;
    AudioObjectPropertyElement mElement;
};

enum : AudioObjectID { kAudioObjectUnknown = 0, kAudioObjectSystemObject = 1 };
enum : AudioObjectPropertyScope {
    kAudioObjectPropertyScopeGlobal = 'glob',
    kAudioObjectPropertyScopeInput = 'inpt',
    kAudioObjectPropertyScopeOutput = 'outp',
};
enum : AudioObjectPropertyElement { kAudioObjectPropertyElementMain = 0 };
enum : AudioObjectPropertySelector {
    kAudioObjectPropertyName = 'lnam',
    kAudioHardwarePropertyDevices = 'dev#',
    kAudioHardwarePropertyDefaultInputDevice = 'dIn ',
    kAudioDevicePropertyDeviceUID = 'uid ',
    kAudioDevicePropertyStreams = 'stm#',
    kAudioDevicePropertyDeviceCanBeDefaultDevice = 'dflt',
    kAudioDevicePropertyMute = 'mute',
    // In the SDK since that of macOS 14, without an availability mark.
    kAudioHardwarePropertyProcessObjectList = 'prs#',
    kAudioProcessPropertyPID = 'ppid',
    kAudioProcessPropertyIsRunningInput = 'piri',
};

typedef OSStatus (*AudioObjectPropertyListenerProc)(AudioObjectID inObjectID,
    UInt32 inNumberAddresses, const AudioObjectPropertyAddress* _Nonnull inAddresses,
    void* _Nullable inClientData);
extern "C" {
Boolean AudioObjectHasProperty(
    AudioObjectID inObjectID, const AudioObjectPropertyAddress* _Nonnull inAddress);
OSStatus AudioObjectGetPropertyDataSize(AudioObjectID inObjectID,
    const AudioObjectPropertyAddress* _Nonnull inAddress, UInt32 inQualifierDataSize,
    const void* _Nullable inQualifierData, UInt32* _Nonnull outDataSize);
OSStatus AudioObjectGetPropertyData(AudioObjectID inObjectID,
    const AudioObjectPropertyAddress* _Nonnull inAddress, UInt32 inQualifierDataSize,
    const void* _Nullable inQualifierData, UInt32* _Nonnull ioDataSize, void* _Nonnull outData);
OSStatus AudioObjectAddPropertyListener(AudioObjectID inObjectID,
    const AudioObjectPropertyAddress* _Nonnull inAddress,
    AudioObjectPropertyListenerProc _Nonnull inListener, void* _Nullable inClientData);
OSStatus AudioObjectRemovePropertyListener(AudioObjectID inObjectID,
    const AudioObjectPropertyAddress* _Nonnull inAddress,
    AudioObjectPropertyListenerProc _Nonnull inListener, void* _Nullable inClientData);
}

typedef UInt32 AudioFormatID;
typedef UInt32 AudioFormatFlags;
struct AudioStreamBasicDescription {
    Float64 mSampleRate;
    AudioFormatID mFormatID;
    AudioFormatFlags mFormatFlags;
    UInt32 mBytesPerPacket;
    UInt32 mFramesPerPacket;
    UInt32 mBytesPerFrame;
    UInt32 mChannelsPerFrame;
    UInt32 mBitsPerChannel;
    UInt32 mReserved;
};
static_assert(sizeof(AudioStreamBasicDescription) == 40);

enum : AudioFormatID { kAudioFormatLinearPCM = 'lpcm' };
enum : AudioFormatFlags {
    kAudioFormatFlagIsFloat = 1,
    kAudioFormatFlagIsPacked = 8,
};

struct AudioBuffer {
    UInt32 mNumberChannels;
    UInt32 mDataByteSize;
    void* _Nullable mData;
};
struct AudioBufferList {
    UInt32 mNumberBuffers;
    AudioBuffer mBuffers[1]; // mNumberBuffers of them.
};

struct SMPTETime {
    SInt16 mSubframes;
    SInt16 mSubframeDivisor;
    UInt32 mCounter;
    UInt32 mType;
    UInt32 mFlags;
    SInt16 mHours;
    SInt16 mMinutes;
    SInt16 mSeconds;
    SInt16 mFrames;
};
struct AudioTimeStamp {
    Float64 mSampleTime;
    UInt64 mHostTime;
    Float64 mRateScalar;
    UInt64 mWordClockTime;
    SMPTETime mSMPTETime;
    UInt32 mFlags;
    UInt32 mReserved;
};
static_assert(sizeof(AudioTimeStamp) == 64);
