#pragma once

#include "Orvello/Platform/Desktop/HotKeys.h"

#include <cstdint>
#include <vector>

/// The system-wide keys, in the order of their registration.
namespace Orvello::HotKeyTable {

enum class Command { Toggle, Faster, Slower, Restart, Hide };

struct Entry {
    Command command = Command::Toggle;
    std::uint32_t keyCode = 0; ///< HotKey.
    HotKeyPurpose purpose;
};

inline constexpr std::uint32_t modifiers = HotKey::commandKey | HotKey::optionKey;

[[nodiscard]] std::vector<Entry> entries();

} // namespace Orvello::HotKeyTable
