// rejects: assigning to 'NSWindowSharingType' from incompatible type 'NSWindowCollectionBehavior'
#include "Orvello/Platform/macOS/PrompterPanel.h"

void hide(PrompterPanel* panel)
{
    panel.sharingType = NSWindowCollectionBehavior { NSWindowCollectionBehaviorStationary };
}
