#include "Orvello/Adapters/Linux/Desktop/HotKeyNames.h"

#include <QString>

#include <algorithm>
#include <array>

namespace Orvello {

namespace {

constexpr std::array<HotKeyName, 5> names { {
    { HotKey::keyP, "AD10", "p", "P", "P" },
    { HotKey::keyUp, "UP", "Up", "Up", "↑" },
    { HotKey::keyDown, "DOWN", "Down", "Down", "↓" },
    { HotKey::keyR, "AD04", "r", "R", "R" },
    { HotKey::keyH, "AC06", "h", "H", "H" },
} };

std::string joined(std::uint32_t modifiers, const char* option, const char* command)
{
    return std::string(modifiers & HotKey::optionKey ? option : "")
        + (modifiers & HotKey::commandKey ? command : "");
}

} // namespace

const HotKeyName* hotKeyName(std::uint32_t keyCode)
{
    const auto* const name = std::ranges::find(names, keyCode, &HotKeyName::keyCode);
    return name != names.end() ? name : nullptr;
}

std::string hotKeyLabel(const HotKeyName& name, std::uint32_t modifiers)
{
    return joined(modifiers, "Alt+", "Super+") + name.label;
}

std::string hotKeyTrigger(const HotKeyName& name, std::uint32_t modifiers)
{
    return joined(modifiers, "ALT+", "LOGO+") + name.symbol;
}

QString hotKeyText(const HotKey& key)
{
    const HotKeyName* const name = hotKeyName(key.keyCode);
    return name ? QString::fromStdString(joined(key.modifiers, "Alt+", "Super+") + name->sign)
                : QString();
}

} // namespace Orvello
