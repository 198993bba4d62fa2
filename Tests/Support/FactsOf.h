#pragma once

#include "Orvello/Platform/Early/Facts.h"

namespace Orvello::Testing {

/// Everything that a text can say of a machine, said of a Mac.
inline Facts factsOfAMac()
{
    return {
        .canHideWindows = true,
        .hasMenuBar = true,
        .isMac = true,
        .hasQuickTime = true,
        .asksBeforeControl = true,
        .hasPrivacySettings = true,
        .installsUpdates = true,
        .zoomChoosesCapture = true,
        .hasKeynoteAndPowerPoint = true,
        .operatingSystem = QStringLiteral("macOS Version 14.5"),
        .keyPrefix = QStringLiteral("Option-Command-"),
    };
}

/// The same of a Linux desktop that shows every window to whoever captures the screen.
inline Facts factsOfALinuxDesktop()
{
    return {
        .operatingSystem = QStringLiteral("Debian GNU/Linux 12 (bookworm)"),
        .keyPrefix = QStringLiteral("Alt+Super+"),
    };
}

} // namespace Orvello::Testing
