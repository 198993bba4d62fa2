#pragma once

#include "Orvello/Platform/Desktop/WindowChrome.h"

namespace Orvello::Testing {

/// A system without title bars of its own, unless a test says otherwise.
class FakeWindowChrome final : public WindowChrome {
public:
    bool hideTitleBar(QWindow&) override { return keepsCloseButton; }

    bool keepsCloseButton = false;
};

} // namespace Orvello::Testing
