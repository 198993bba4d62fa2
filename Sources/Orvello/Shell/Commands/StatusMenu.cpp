#include "Orvello/Shell/Commands/StatusMenu.h"

#include "Orvello/Shell/Commands/Command.h"

#include <array>

namespace Orvello {

namespace {

constexpr std::string_view separator;
constexpr auto lines = std::to_array<std::string_view>({ "toggle", "restart", separator, "voice",
    "tracking", "stealth", "hide", separator, "scripts", "settings", "tour", "check-updates" });
constexpr auto prompterLines = std::to_array<std::string_view>({ "camera" });

} // namespace

StatusMenu::StatusMenu(
    CommandTarget& target, const HotKeys& keys, const QString& versionText, Owner owner)
    : m_target(target)
    , m_keys(keys)
{
    for (const std::string_view name : lines) {
        if (name == separator)
            addSeparator();
        else
            add(*this, name);
    }
    addHelp(versionText);
    if (owner == Owner::Prompter) {
        addSeparator();
        for (const std::string_view name : prompterLines)
            add(*this, name);
    }
    addSeparator();
    add(*this, "quit");
    needsUpdate();
}

void StatusMenu::add(Menu& menu, std::string_view name)
{
    const Command& command = Commands::named(name);
    MenuItem& item = menu.addItem({}, [this, run = command.run] { (m_target.*run)(); });
    item.isCheckable = command.isSwitch();
    if (command.menuKey != 0)
        item.keyEquivalent = QChar(command.menuKey);
    m_lines.emplace_back(&command, &item);
}

void StatusMenu::addHelp(const QString& versionText)
{
    Menu& help = addSubmenu(tr("Help"));
    add(help, "support");
    add(help, "logs");
    help.addSeparator();
    //: A line of the help menu. %1: the program's version, such as "2.1 (57)".
    help.addItem(tr("Orvello %1").arg(versionText), {});
}

void StatusMenu::needsUpdate()
{
    for (const auto& [command, item] : m_lines) {
        item->title = Commands::title(*command, m_target, m_keys);
        item->isChecked = command->isSwitch() && (m_target.*command->isOn)();
        item->isPossible = !command->isPossible || (m_target.*command->isPossible)();
    }
}

} // namespace Orvello
