// rejects: no visible @interface for 'PrompterPanel' declares the selector 'orderFrontRegardles'
#include "Orvello/Platform/macOS/PrompterPanel.h"

void show(PrompterPanel* panel) { [panel orderFrontRegardles]; }
