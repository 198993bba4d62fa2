#pragma once

#include "Orvello/Platform/Desktop/HotKeys.h"

#include <QString>

#include <optional>
#include <span>
#include <string_view>

namespace Orvello {

/// The program as its commands see it: what they do, and what they depend on.
class CommandTarget {
public:
    virtual ~CommandTarget() = default;

    virtual void toggleScroll() = 0;
    virtual void speedUp() = 0;
    virtual void slowDown() = 0;
    virtual void backToTop() = 0;
    virtual void togglePanel() = 0;
    virtual void putUnderCamera() = 0;
    virtual void toggleVoice() = 0;
    virtual void toggleSlideTracking() = 0;
    virtual void toggleStealth() = 0;
    virtual void openLibrary() = 0;
    virtual void openSettings() = 0;
    virtual void openTour() = 0;
    virtual void checkForUpdates() = 0;
    virtual void contactSupport() = 0;
    virtual void revealLogs() = 0;
    virtual void terminate() = 0;

    virtual bool isScrolling() const = 0;
    virtual bool isPanelVisible() const = 0;
    virtual bool isVoiceOn() const = 0;
    virtual bool isSlideTrackingOn() const = 0;
    virtual bool isStealthOn() const = 0;
    virtual bool hasSupportAddress() const = 0;
};

/// One command of the program. Its texts are untranslated here.
struct Command {
    std::string_view name; ///< For machines, and never changed: a switch, a shortcut's id.
    const char* title; ///< In a menu.
    /// In a menu while it is on, for a command with two titles.
    const char* titleWhileOn = nullptr;
    const char* description = nullptr; ///< What its key does.
    const char* shortDescription = nullptr; ///< The same where there is less room.
    const char* purpose = nullptr; ///< The same in the desktop's list of keys.
    std::optional<HotKey> key {};
    bool titleHasKey = false; ///< Whether the title in the menu names the hot key.
    /// The letter that, with the command key, stands for it in the open menu.
    char16_t menuKey = 0;
    void (CommandTarget::*run)() = nullptr;
    bool (CommandTarget::*isOn)() const = nullptr; ///< For a switch, or a command with two titles.
    bool (CommandTarget::*isPossible)() const = nullptr; ///< Null when it always is.

    bool isSwitch() const { return isOn && !titleWhileOn; }
};

/// The one table of what the program can be told to do. Menus, key lists, hot keys, the desktop's
/// list of shortcuts and the command line take names, words and keys from here.
namespace Commands {

[[nodiscard]] std::span<const Command> all(); ///< Those with a hot key first.

/// The command of that name, which must exist.
[[nodiscard]] const Command& named(std::string_view name);

/// What it is called in a menu at present.
[[nodiscard]] QString title(
    const Command& command, const CommandTarget& target, const HotKeys& keys);

/// What its key does, in the user's language. The short one is for a narrow list.
[[nodiscard]] QString description(const Command& command);
[[nodiscard]] QString shortDescription(const Command& command);

/// What its key is for, to the desktop.
[[nodiscard]] HotKeyPurpose purpose(const Command& command);

/// What people call its hot key here, or have assigned in its place; empty without one.
[[nodiscard]] QString keyLabel(const Command& command, const HotKeys& keys);

} // namespace Commands

} // namespace Orvello
