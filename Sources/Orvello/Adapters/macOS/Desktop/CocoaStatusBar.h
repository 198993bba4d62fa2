#pragma once

#include "Orvello/Adapters/macOS/Desktop/CocoaMenuBar.h"
#include "Orvello/Platform/Desktop/StatusBar.h"

namespace Orvello {

/// The right side of the system's menu bar, which is never missing.
class CocoaStatusBar final : public StatusBar {
public:
    MenuBar* menuBar() override { return &m_menuBar; }
    void observe(std::function<void(bool isThere)> changed) override { changed(true); }

private:
    CocoaMenuBar m_menuBar;
};

} // namespace Orvello
