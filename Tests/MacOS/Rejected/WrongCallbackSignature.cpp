// rejects: cannot initialize a member subobject of type 'AURenderCallback
#include <AudioToolbox/AudioToolbox.h>

static OSStatus onInput(void*, UInt32, UInt32, AudioBufferList*) { return noErr; }

AURenderCallbackStruct callback() { return { &onInput, nullptr }; }
