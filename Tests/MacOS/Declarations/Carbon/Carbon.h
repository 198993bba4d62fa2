#pragma once

#include <CoreFoundation/CoreFoundation.h>

typedef struct OpaqueEventRef* EventRef;
typedef struct OpaqueEventHandlerRef* EventHandlerRef;
typedef struct OpaqueEventHandlerCallRef* EventHandlerCallRef;
typedef struct OpaqueEventTargetRef* EventTargetRef;
typedef struct OpaqueEventHotKeyRef* EventHotKeyRef;
typedef OSType EventParamName;
typedef OSType EventParamType;
struct EventTypeSpec {
    OSType eventClass;
    UInt32 eventKind;
};
struct EventHotKeyID {
    OSType signature;
    UInt32 id;
};
typedef OSStatus (*EventHandlerProcPtr)(EventHandlerCallRef _Nullable inHandlerCallRef,
    EventRef _Nullable inEvent, void* _Nullable inUserData);
typedef EventHandlerProcPtr EventHandlerUPP;

enum : OSType { kEventClassKeyboard = 'keyb' };
enum : UInt32 { kEventHotKeyPressed = 5 };
enum : EventParamName { kEventParamDirectObject = '----' };
enum : EventParamType { typeEventHotKeyID = 'hkid' };
enum : OptionBits { kEventHotKeyNoOptions = 0 };

extern "C" {
EventTargetRef _Nullable GetApplicationEventTarget(void);
OSStatus InstallEventHandler(EventTargetRef _Nullable inTarget, EventHandlerUPP _Nullable inHandler,
    ItemCount inNumTypes, const EventTypeSpec* _Nullable inList, void* _Nullable inUserData,
    EventHandlerRef _Nullable* _Nullable outRef);
OSStatus RemoveEventHandler(EventHandlerRef _Nullable inHandlerRef);
OSStatus RegisterEventHotKey(UInt32 inHotKeyCode, UInt32 inHotKeyModifiers,
    EventHotKeyID inHotKeyID, EventTargetRef _Nullable inTarget, OptionBits inOptions,
    EventHotKeyRef _Nullable* _Nullable outRef);
OSStatus UnregisterEventHotKey(EventHotKeyRef _Nullable inHotKey);
OSStatus GetEventParameter(EventRef _Nullable inEvent, EventParamName inName,
    EventParamType inDesiredType, EventParamType* _Nullable outActualType, ByteCount inBufferSize,
    ByteCount* _Nullable outActualSize, void* _Nullable outData);
}
