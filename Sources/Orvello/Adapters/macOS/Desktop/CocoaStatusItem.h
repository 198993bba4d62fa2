#pragma once

#include "Orvello/Shell/Commands/StatusItem.h"

#import <AppKit/AppKit.h>

class QIcon;
class QString;

@class CocoaMenu;

namespace Orvello {

class Menu;

/// An item of the system's menu bar. Not Qt's, which says nothing to VoiceOver.
class CocoaStatusItem final : public StatusItem {
public:
    /// `menu` must outlive it.
    CocoaStatusItem(Menu& menu, const QIcon& glyph, const QString& description);
    ~CocoaStatusItem() override;
    CocoaStatusItem(const CocoaStatusItem&) = delete;
    CocoaStatusItem& operator=(const CocoaStatusItem&) = delete;

    void openMenu() override;

private:
    CocoaMenu* m_menu;
    NSStatusItem* m_item = nil; ///< The bar itself does not hold it. Nil where it gave none.
};

} // namespace Orvello
