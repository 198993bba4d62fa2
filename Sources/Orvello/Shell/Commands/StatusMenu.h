#pragma once

#include "Orvello/Shell/Commands/Menu.h"

#include <QCoreApplication>
#include <QString>

#include <string_view>
#include <utility>
#include <vector>

namespace Orvello {

class CommandTarget;
class HotKeys;
struct Command;

/// The menu of the status item: every command except those that are only keys, and those about the
/// prompter's own place, which the prompter's menu has as well. Titles and check marks are those of
/// the last opening.
class StatusMenu final : public Menu {
    Q_DECLARE_TR_FUNCTIONS(Orvello::StatusMenu)

public:
    /// What the user opens it on.
    enum class Owner { StatusItem, Prompter };

    /// `target` and `keys` must outlive the menu.
    StatusMenu(CommandTarget& target, const HotKeys& keys, const QString& versionText,
        Owner owner = Owner::StatusItem);

    void needsUpdate() override;

private:
    void add(Menu& menu, std::string_view name);
    void addHelp(const QString& versionText);

    CommandTarget& m_target;
    const HotKeys& m_keys;
    std::vector<std::pair<const Command*, MenuItem*>> m_lines;
};

} // namespace Orvello
