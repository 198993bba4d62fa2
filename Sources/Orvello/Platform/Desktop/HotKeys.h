#pragma once

#include "Orvello/Platform/Desktop/AssignedKeys.h"

#include <QString>

#include <cstdint>
#include <functional>
#include <memory>

namespace Orvello {

/// Keys and modifiers as macOS numbers them, on every platform: the code of a letter is that of its
/// place on an American keyboard. What counts is the letter, which people read in the settings. On
/// a layout that has it elsewhere, that key is meant, and the place only where there is no such
/// letter.
namespace HotKey {

inline constexpr std::uint32_t keyH = 4;
inline constexpr std::uint32_t keyR = 15;
inline constexpr std::uint32_t keyP = 35;
inline constexpr std::uint32_t keyDown = 125;
inline constexpr std::uint32_t keyUp = 126;

inline constexpr std::uint32_t commandKey = 0x100; ///< Super where there is no command key.
inline constexpr std::uint32_t optionKey = 0x800; ///< Alt where there is no option key.

} // namespace HotKey

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

    /// Registers a key with exactly these modifiers; its presses reach no other program. Null when
    /// the system refuses, for example because another program owns the key. References must not
    /// outlive the service.
    [[nodiscard]] virtual std::unique_ptr<Reference> registerHotKey(
        std::uint32_t keyCode, std::uint32_t modifiers, HotKeyID id)
        = 0;

    /// The same for a key that the user may know by its purpose.
    [[nodiscard]] virtual std::unique_ptr<Reference> registerHotKeyFor(
        const HotKeyPurpose&, std::uint32_t keyCode, std::uint32_t modifiers, HotKeyID id)
    {
        return registerHotKey(keyCode, modifiers, id);
    }

    /// What people call the key with these modifiers here: "⌥⌘P", or "Alt+Super+P".
    virtual QString label(std::uint32_t keyCode, std::uint32_t modifiers) const = 0;

    /// What the user has assigned; nothing where a key is what the program asks for.
    AssignedKeys& assignedKeys() { return m_assignedKeys; }
    const AssignedKeys& assignedKeys() const { return m_assignedKeys; }

private:
    AssignedKeys m_assignedKeys;
};

} // namespace Orvello
