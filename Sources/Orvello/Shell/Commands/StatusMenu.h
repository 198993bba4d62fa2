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

/// The menu of the status item, which the prompter opens too: every command except those that are
/// only keys. Titles and check marks are those of the last opening.
class StatusMenu final : public Menu {
    Q_DECLARE_TR_FUNCTIONS(Orvello::StatusMenu)

public:
    /// Both must outlive the menu.
    StatusMenu(CommandTarget& target, const HotKeys& keys, const QString& versionText);

    void needsUpdate() override;

private:
    void add(Menu& menu, std::string_view name);
    void addHelp(const QString& versionText);

    CommandTarget& m_target;
    const HotKeys& m_keys;
    std::vector<std::pair<const Command*, MenuItem*>> m_lines;
};

} // namespace Orvello
