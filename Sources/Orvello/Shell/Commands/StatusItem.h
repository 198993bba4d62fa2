#pragma once

namespace Orvello {

/// The program's item in the desktop's status bar, with its menu.
class StatusItem {
public:
    virtual ~StatusItem() = default;

    /// Opens the menu at the pointer, wherever that is, for desktops whose bar shows no item; below
    /// the item where the bar always does.
    virtual void openMenu() = 0;
};

} // namespace Orvello
