#include "Orvello/Adapters/macOS/Desktop/CocoaMenuBar.h"

#include "Orvello/Adapters/macOS/Desktop/CocoaMenu.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaStatusItem.h"
#include "Orvello/Adapters/macOS/Early/ExceptionShield.h"

#include <utility>

namespace Orvello {

CocoaMenuBar::~CocoaMenuBar()
{
    if (m_nativeMainMenu)
        shielded([] { [NSApp setMainMenu:nil]; }); // Its lines are about to go.
}

void CocoaMenuBar::setMainMenu(std::unique_ptr<Menu> menu)
{
    CocoaMenu* const nativeMenu = [[CocoaMenu alloc] initWithMenu:*menu];
    shielded([&] { [NSApp setMainMenu:nativeMenu.nativeMenu]; });
    m_nativeMainMenu = nativeMenu;
    m_mainMenu = std::move(menu);
}

std::unique_ptr<StatusItem> CocoaMenuBar::makeStatusItem(
    Menu& menu, const QIcon& glyph, const QString& description)
{
    return std::make_unique<CocoaStatusItem>(menu, glyph, description);
}

} // namespace Orvello
