// rejects: no visible @interface for 'PrompterPanel' declares the selector 'orderFrontRegardles'
#include "Orvello/Adapters/macOS/Desktop/PrompterPanel.h"

void show(PrompterPanel* panel) { [panel orderFrontRegardles]; }
