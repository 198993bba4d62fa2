#pragma once

#include "Orvello/Platform/Desktop/WindowServer.h"

namespace Orvello::Testing {

/// Shows what a test puts on the screens.
class FakeWindowServer final : public WindowServer {
public:
    std::optional<QList<WindowOnScreen>> windowsOnScreen() const override { return windows; }
    QList<QSizeF> screenSizes() const override { return screens; }

    std::optional<QList<WindowOnScreen>> windows { QList<WindowOnScreen> {} };
    QList<QSizeF> screens { QSizeF(1920, 1080) };
};

} // namespace Orvello::Testing
