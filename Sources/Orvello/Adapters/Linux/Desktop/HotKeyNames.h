#pragma once

#include "Orvello/Platform/Desktop/HotKeys.h"

#include <cstdint>
#include <string>

class QString;

namespace Orvello {

/// What Linux calls the keys that the product asks for.
struct HotKeyName {
    std::uint32_t keyCode;
    const char* place; ///< The X server's name for the key's place on the keyboard.
    const char* symbol; ///< What an American keyboard layout has there.
    const char* label; ///< The key's name in the log.
    const char* sign; ///< The key's name for people.
};

/// Null for a key that the product never asks for.
const HotKeyName* hotKeyName(std::uint32_t keyCode);

/// The key with its modifiers in the log, such as "Alt+Super+Up".
std::string hotKeyLabel(const HotKeyName& name, std::uint32_t modifiers);

/// The same as freedesktop.org writes shortcuts, such as "ALT+LOGO+p".
std::string hotKeyTrigger(const HotKeyName& name, std::uint32_t modifiers);

/// The same for people, such as "Alt+Super+↑"; empty for a key that the product never asks for.
QString hotKeyText(const HotKey& key);

} // namespace Orvello
