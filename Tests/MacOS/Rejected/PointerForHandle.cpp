// rejects: no matching function for call to 'UnregisterEventHotKey'
#include <Carbon/Carbon.h>

OSStatus forget(EventHotKeyRef key) { return UnregisterEventHotKey(&key); }
