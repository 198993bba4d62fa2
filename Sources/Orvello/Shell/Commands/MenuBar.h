#pragma once

#include <memory>

class QIcon;
class QString;

namespace Orvello {

class Menu;
class StatusItem;

/// The bar along the top of the screen in which the system keeps a main menu for each program, and
/// the status items of all. Main thread; needs the application object.
class MenuBar {
public:
    virtual ~MenuBar() = default;

    /// Replaces the program's main menu, even one that the toolkit made.
    virtual void setMainMenu(std::unique_ptr<Menu> menu) = 0;

    /// A square status item that opens the menu at a click. The bar gives the glyph its colour, and
    /// reads the description to those who cannot see it. `menu` must outlive the item.
    virtual std::unique_ptr<StatusItem> makeStatusItem(
        Menu& menu, const QIcon& glyph, const QString& description)
        = 0;
};

} // namespace Orvello
