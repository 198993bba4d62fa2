#pragma once

#include "Orvello/Platform/Desktop/WindowChrome.h"

#include <QWindow>

namespace Orvello {

/// X11 window managers draw a title bar whole or not at all.
class FramelessChrome final : public WindowChrome {
public:
    bool hideTitleBar(QWindow& window) override
    {
        window.setFlag(Qt::FramelessWindowHint);
        return false;
    }
};

} // namespace Orvello
