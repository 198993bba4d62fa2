#pragma once

#include "Orvello/Platform/Desktop/HotKeys.h"

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <optional>

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

    /// Runs `action` at each press of the key, which the desktop may list and assign by its
    /// purpose, if it has one. Returns the id to unregister it by, even when the system refuses the
    /// key, which then never fires. Ids are never reused; running out of them ends the process.
    std::uint32_t registerHotKey(
        const HotKey& key, Action action, std::optional<HotKeyPurpose> purpose = std::nullopt);

    void unregister(std::uint32_t id); ///< An unknown id is ignored.

private:
    void pressed(HotKeyID key) const;

    HotKeys& m_system;
    std::map<std::uint32_t, Action> m_actions;
    std::map<std::uint32_t, std::unique_ptr<HotKeys::Reference>> m_refs;
    std::uint32_t m_nextID;
    bool m_installed = false;
};

} // namespace Orvello
