// rejects: incompatible pointer types assigning to 'id<NSMenuDelegate> _Nullable' from
// 'OrvelloApplication *'
#include "Orvello/Adapters/macOS/Desktop/OrvelloApplication.h"

void follow(NSMenu* menu, OrvelloApplication* application) { menu.delegate = application; }
