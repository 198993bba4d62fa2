// rejects: cannot be narrowed
#include <CoreAudio/CoreAudio.h>

AudioObjectPropertyAddress address() { return { -1, kAudioObjectPropertyScopeGlobal, 0 }; }
