#pragma once

#include "Orvello/Platform/Desktop/WindowServer.h"

namespace Orvello {

/// The window list of Core Graphics. Owners and bounds need no permission to record the screen;
/// nothing else is asked for.
class QuartzWindowServer final : public WindowServer {
public:
    std::optional<QList<WindowOnScreen>> windowsOnScreen() const override;
    QList<QSizeF> screenSizes() const override;
};

} // namespace Orvello
