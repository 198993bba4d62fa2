#pragma once

#include <QList>
#include <QString>
#include <QStringList>
#include <QUrl>

namespace Orvello {

/// What the command line asks for. Each switch is a whole-argument match; pairs `-Key value` are
/// left to the user defaults, Qt's own options to Qt.
struct LaunchOptions {
    bool help = false;
    bool version = false;
    bool noStealth = false;
    bool onboarding = false;
    bool checkUpdates = false;
    bool voice = false;
    bool autostart = false;
    QList<QUrl> urls; ///< To open.

    /// Whether it asks for something that a program that runs already can do: not `noStealth`,
    /// which is for a panel that is still to be made.
    bool asksRunningProgram() const
    {
        return onboarding || checkUpdates || voice || autostart || !urls.isEmpty();
    }
    friend bool operator==(const LaunchOptions&, const LaunchOptions&) = default;

    /// Without the program's name.
    static LaunchOptions fromArguments(const QStringList& arguments);

    static QString helpText();
};

} // namespace Orvello
