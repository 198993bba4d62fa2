// rejects: assigning to 'NSWindowSharingType' from incompatible type 'NSWindowCollectionBehavior'
#include "Orvello/Adapters/macOS/Desktop/PrompterPanel.h"

void hide(PrompterPanel* panel)
{
    panel.sharingType = NSWindowCollectionBehavior { NSWindowCollectionBehaviorStationary };
}
