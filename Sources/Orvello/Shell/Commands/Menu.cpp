#include "Orvello/Shell/Commands/Menu.h"

#include <utility>

namespace Orvello {

Menu::Menu(QString title)
    : m_title(std::move(title))
{
}

MenuItem& Menu::addItem(const QString& title, std::function<void()> action)
{
    MenuItem& item = *m_items.emplace_back(std::make_unique<MenuItem>());
    item.title = title;
    item.action = std::move(action);
    return item;
}

MenuItem& Menu::addSwitch(const QString& title, std::function<void()> action)
{
    MenuItem& item = addItem(title, std::move(action));
    item.isCheckable = true;
    return item;
}

void Menu::addSeparator() { m_items.push_back(std::make_unique<MenuItem>()); }

Menu& Menu::addSubmenu(const QString& title)
{
    MenuItem& item = addItem(title, {});
    item.submenu = std::make_unique<Menu>(title);
    return *item.submenu;
}

} // namespace Orvello
