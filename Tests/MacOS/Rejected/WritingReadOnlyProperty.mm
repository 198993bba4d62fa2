// rejects: assignment to readonly property
#include "Orvello/Platform/macOS/PrompterPanel.h"

void renumber(PrompterPanel* panel) { panel.windowNumber = 1; }
