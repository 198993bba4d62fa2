// rejects: assignment to readonly property
#include "Orvello/Adapters/macOS/Desktop/PrompterPanel.h"

void renumber(PrompterPanel* panel) { panel.windowNumber = 1; }
