#pragma once

#include "Orvello/Platform/WindowChrome.h"

namespace Orvello {

/// A transparent title bar that lies above the content, with the three buttons.
class CocoaWindowChrome final : public WindowChrome {
public:
    bool hideTitleBar(QWindow& window) override;
};

} // namespace Orvello
