// rejects: no visible @interface for 'PrompterPanel' declares the selector 'setFrame:'
#include "Orvello/Platform/macOS/PrompterPanel.h"

void move(PrompterPanel* panel, NSRect frame) { [panel setFrame:frame]; }
