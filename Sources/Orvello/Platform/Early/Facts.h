#pragma once

#include <QMetaType>
#include <QString>

namespace Orvello {

/// What is true of the machine that the program runs on, as far as its texts mention it. A text
/// asks for the fact that it states, never for an operating system.
struct Facts {
    Q_GADGET
    Q_PROPERTY(bool canHideWindows MEMBER canHideWindows CONSTANT FINAL)
    Q_PROPERTY(bool capturesMayShowHidden MEMBER capturesMayShowHidden CONSTANT FINAL)
    Q_PROPERTY(bool hasMenuBar MEMBER hasMenuBar CONSTANT FINAL)
    Q_PROPERTY(bool isMac MEMBER isMac CONSTANT FINAL)
    Q_PROPERTY(bool hasQuickTime MEMBER hasQuickTime CONSTANT FINAL)
    Q_PROPERTY(bool asksBeforeControl MEMBER asksBeforeControl CONSTANT FINAL)
    Q_PROPERTY(bool hasPrivacySettings MEMBER hasPrivacySettings CONSTANT FINAL)
    Q_PROPERTY(bool installsUpdates MEMBER installsUpdates CONSTANT FINAL)
    Q_PROPERTY(bool zoomChoosesCapture MEMBER zoomChoosesCapture CONSTANT FINAL)
    Q_PROPERTY(QString presenters READ presenters CONSTANT FINAL)
    Q_PROPERTY(QString presentersInFull READ presentersInFull CONSTANT FINAL)

public:
    /// The desktop can keep a window out of captures.
    bool canHideWindows = false;
    /// Not every program that captures is known to respect that.
    bool capturesMayShowHidden = false;
    /// The menu is always in the screen's bar, not in a tray that may be missing.
    bool hasMenuBar = false;
    /// People call the computer a Mac.
    bool isMac = false;
    /// The screen is recorded with QuickTime.
    bool hasQuickTime = false;
    /// The system asks before it lets one program control another.
    bool asksBeforeControl = false;
    /// System Settings → Privacy & Security grants permissions.
    bool hasPrivacySettings = false;
    /// The updater installs what it finds, signed.
    bool installsUpdates = false;
    /// Zoom has a setting for how it captures the screen.
    bool zoomChoosesCapture = false;
    /// These two are the presenters here; elsewhere it is LibreOffice Impress.
    bool hasKeynoteAndPowerPoint = false;
    /// With its version: "macOS Version 14.5".
    QString operatingSystem;
    /// The hot keys' modifiers, spelled: "Option-Command-".
    QString keyPrefix;

    /// The presentation programs by the short and the full names of their makers, as "one or
    /// other".
    QString presenters() const;
    QString presentersInFull() const;
};

} // namespace Orvello

Q_DECLARE_METATYPE(Orvello::Facts)
