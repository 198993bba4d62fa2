#pragma once

#include <QString>
#include <QStringList>

namespace Orvello {

/// What the command line asks for. Each switch is a whole-argument match; everything else is left
/// to others (pairs
/// `-Key value` to the user defaults, Qt's own options to Qt).
struct LaunchOptions {
    bool help = false;
    bool version = false;
    bool noStealth = false;
    bool voice = false;
    bool autostart = false;

    static LaunchOptions fromArguments(
        const QStringList& arguments); ///< Without the program's name.

    static QString helpText();
};

} // namespace Orvello
