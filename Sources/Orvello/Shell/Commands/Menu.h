#pragma once

#include <QByteArray>
#include <QString>

#include <functional>
#include <memory>
#include <vector>

namespace Orvello {

class Menu;

/// One line of a menu, whatever shows it.
struct MenuItem {
    QString title; ///< Empty for a separator.
    std::function<void()> action; ///< Null for a line that only informs.
    QByteArray command; ///< The editing command that the action sends, if it sends one.
    /// The letter that is pressed with the command key; upper case: and shift.
    QString keyEquivalent;
    bool isCheckable = false;
    bool isChecked = false;
    bool isPossible = true; ///< Whether it can be chosen at present.
    std::unique_ptr<Menu> submenu;

    bool isSeparator() const { return title.isEmpty() && !action && !submenu; }
    /// Whether it can be chosen.
    bool isEnabled() const { return (action && isPossible) || submenu; }
};

/// A menu as a list of lines, apart from the toolkit that draws it. Lines stay where they are, so
/// that a reference to one holds as long as the menu.
class Menu {
public:
    explicit Menu(QString title = {});
    virtual ~Menu() = default;
    Menu(const Menu&) = delete;
    Menu& operator=(const Menu&) = delete;

    const QString& title() const { return m_title; }
    const std::vector<std::unique_ptr<MenuItem>>& items() const { return m_items; }

    MenuItem& addItem(const QString& title, std::function<void()> action);
    MenuItem& addSwitch(const QString& title, std::function<void()> action);
    void addSeparator();
    Menu& addSubmenu(const QString& title);

    /// Whoever shows the menu calls this each time right before it opens.
    virtual void needsUpdate() { }

private:
    QString m_title;
    std::vector<std::unique_ptr<MenuItem>> m_items;
};

} // namespace Orvello
