#pragma once

#include "Orvello/Platform/StatusBar.h"

namespace Orvello {

/// The system's menu bar, which is never missing.
class CocoaStatusBar final : public StatusBar {
public:
    bool isPartOfMenuBar() const override { return true; }
    void observe(std::function<void(bool isThere)> changed) override { changed(true); }
};

} // namespace Orvello
