// rejects: no visible @interface for 'PrompterPanel' declares the selector 'setFrame:'
#include "Orvello/Adapters/macOS/Desktop/PrompterPanel.h"

void move(PrompterPanel* panel, NSRect frame) { [panel setFrame:frame]; }
