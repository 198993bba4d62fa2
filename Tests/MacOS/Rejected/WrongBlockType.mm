// rejects: incompatible block pointer types
#include "Orvello/Adapters/macOS/Desktop/PrompterPanel.h"

void listen(PrompterPanel* panel)
{
    panel.onScroll = ^(NSEvent*) {};
}
