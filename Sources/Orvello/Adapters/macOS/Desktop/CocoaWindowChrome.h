#pragma once

#include "Orvello/Platform/Desktop/WindowChrome.h"

namespace Orvello {

/// A transparent title bar that lies above the content, with the three buttons. The content itself
/// starts a drag of the window: AppKit's dragging by the background asks the view, and Qt's says no
/// where it is opaque and gives up every press where it is not.
class CocoaWindowChrome final : public WindowChrome {
public:
    bool hideTitleBar(QWindow& window) override;
};

} // namespace Orvello
