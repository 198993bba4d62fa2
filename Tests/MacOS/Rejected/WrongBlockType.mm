// rejects: incompatible block pointer types
#include "Orvello/Platform/macOS/PrompterPanel.h"

void listen(PrompterPanel* panel)
{
    panel.onScroll = ^(NSEvent*) {};
}
