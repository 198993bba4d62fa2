#pragma once

#include <QMenu>

#include <memory>
#include <vector>

namespace Orvello {

class Menu;

/// A menu drawn by the toolkit, or by whoever it hands its menus to. It is updated from the other
/// each time right before it opens.
class QtMenu final : public QMenu {
    Q_OBJECT

public:
    explicit QtMenu(Menu& menu); ///< `menu` must outlive it.
    ~QtMenu() override;

private:
    void addLines();
    void follow();

    Menu& m_menu;
    std::vector<std::unique_ptr<QtMenu>> m_submenus;
};

} // namespace Orvello
