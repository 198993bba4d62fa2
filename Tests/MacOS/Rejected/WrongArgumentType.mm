// rejects: no viable conversion from 'NSSize' (aka 'CGSize') to 'NSRect'
#include "Orvello/Adapters/macOS/Desktop/PrompterPanel.h"

void move(PrompterPanel* panel) { [panel setFrame:NSSize { 720, 200 } display:YES]; }
