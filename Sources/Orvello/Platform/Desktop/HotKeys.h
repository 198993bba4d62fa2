#pragma once

#include "Orvello/Platform/Desktop/AssignedKeys.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>
#include <optional>

namespace Orvello {

/// A key and the modifiers that it is pressed with, and no others, as macOS numbers them on every
/// platform: the code of a letter is that of its place on an American keyboard. What counts is the
/// letter, which people read in the settings. On a layout that has it elsewhere, that key is meant,
/// and the place only where there is no such letter.
struct HotKey {
    static constexpr std::uint32_t keyH = 4;
    static constexpr std::uint32_t keyR = 15;
    static constexpr std::uint32_t keyP = 35;
    static constexpr std::uint32_t keyDown = 125;
    static constexpr std::uint32_t keyUp = 126;

    static constexpr std::uint32_t commandKey = 0x100; ///< Super where there is no command key.
    static constexpr std::uint32_t optionKey = 0x800; ///< Alt where there is no option key.

    std::uint32_t keyCode = 0;
    std::uint32_t modifiers = 0;

    friend auto operator<=>(const HotKey&, const HotKey&) = default;
};

/// The name by which the system knows a hot key.
struct HotKeyID {
    std::uint32_t signature = 0;
    std::uint32_t id = 0;
};

/// What a key does, for desktops that list the keys and let the user assign others.
struct HotKeyPurpose {
    QString name; ///< Never changes: the desktop remembers the user's choice by this name.
    QString description; ///< In the user's language.
};

/// What is asked of the system for one key.
struct HotKeyRequest {
    HotKey key;
    HotKeyID id;
    std::optional<HotKeyPurpose> purpose {}; ///< For a key that the user may know by it.
};

/// The system's hot-key service. Main thread.
class HotKeys {
public:
    using Handler = std::function<void(HotKeyID)>;

    /// One registered key. Dropping it unregisters the key.
    class Reference {
    public:
        virtual ~Reference() = default;
        Reference(const Reference&) = delete;
        Reference& operator=(const Reference&) = delete;

    protected:
        Reference() = default;
    };

    virtual ~HotKeys() = default;

    /// `handler` runs on the main loop once for each press of a registered key, however long the
    /// key is down, whichever program has the keyboard. Called once, before any registration.
    virtual void installHandler(Handler handler) = 0;

    /// Registers a key; its presses reach no other program. Null when the system refuses, for
    /// example because another program owns the key. References must not outlive the service.
    [[nodiscard]] virtual std::unique_ptr<Reference> registerHotKey(const HotKeyRequest& request)
        = 0;

    /// What people call the key here: "⌥⌘P", or "Alt+Super+P".
    virtual QString label(const HotKey& key) const = 0;

    /// What the user has assigned; nothing where a key is what the program asks for.
    AssignedKeys& assignedKeys() { return m_assignedKeys; }
    const AssignedKeys& assignedKeys() const { return m_assignedKeys; }

private:
    AssignedKeys m_assignedKeys;
};

} // namespace Orvello
