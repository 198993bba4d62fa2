#pragma once

#include "Orvello/Shell/Commands/Menu.h"
#include "Orvello/Shell/Commands/MenuBar.h"

#import <AppKit/AppKit.h>

@class CocoaMenu;

namespace Orvello {

class CocoaMenuBar final : public MenuBar {
public:
    CocoaMenuBar() = default;
    ~CocoaMenuBar() override;
    CocoaMenuBar(const CocoaMenuBar&) = delete;
    CocoaMenuBar& operator=(const CocoaMenuBar&) = delete;

    /// Qt sets a menu of its own when the application object is made, and never again as long as
    /// the program makes no QMenuBar.
    void setMainMenu(std::unique_ptr<Menu> menu) override;
    std::unique_ptr<StatusItem> makeStatusItem(
        Menu& menu, const QIcon& glyph, const QString& description) override;

private:
    std::unique_ptr<Menu> m_mainMenu;
    CocoaMenu* m_nativeMainMenu = nil;
};

} // namespace Orvello
