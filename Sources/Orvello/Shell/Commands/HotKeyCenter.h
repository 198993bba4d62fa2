#pragma once

#include "Orvello/Platform/Desktop/HotKeys.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>

namespace Orvello {

/// The registry of the system-wide hot keys: what runs for which key. There is one, which lives as
/// long as the process. Main thread.
class HotKeyCenter {
public:
    using Action = std::function<void()>;

    /// The four-character code 'OVHK' that marks this program's keys.
    static constexpr std::uint32_t signature = 0x4F56484B;

    /// `system` must outlive the center. Ids count up from `firstID`.
    explicit HotKeyCenter(HotKeys& system, std::uint32_t firstID = 1);
    HotKeyCenter(const HotKeyCenter&) = delete;
    HotKeyCenter& operator=(const HotKeyCenter&) = delete;

    /// Runs `action` at each press of the key with exactly these modifiers (HotKey, both). Returns
    /// the id to unregister it by, even when the system refuses the key, which then never fires.
    /// Ids are never reused; running out of them ends the process.
    std::uint32_t registerHotKey(std::uint32_t keyCode, std::uint32_t modifiers, Action action);

    /// The same for a key that the desktop may list and assign by its purpose.
    std::uint32_t registerHotKeyFor(const HotKeyPurpose& purpose, std::uint32_t keyCode,
        std::uint32_t modifiers, Action action);

    void unregister(std::uint32_t id); ///< An unknown id is ignored.

private:
    using Registration = std::function<std::unique_ptr<HotKeys::Reference>(HotKeyID)>;

    std::uint32_t add(Action action, const Registration& registration);
    void pressed(HotKeyID key) const;

    HotKeys& m_system;
    std::map<std::uint32_t, Action> m_actions;
    std::map<std::uint32_t, std::unique_ptr<HotKeys::Reference>> m_refs;
    std::uint32_t m_nextID;
    bool m_installed = false;
};

} // namespace Orvello
