#include "Orvello/Shell/Windows/QtStatusItem.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Platform/Desktop/StatusBar.h"
#include "Orvello/Shell/Commands/MenuBar.h"
#include "Orvello/Shell/Windows/Branding.h"

#include <QCursor>
#include <QPointer>
#include <QSystemTrayIcon>

namespace Orvello {

using namespace Qt::StringLiterals;

QtStatusItem::QtStatusItem(StatusBar& bar, Menu& menu)
    : m_menu(menu)
{
    bar.observe([self = QPointer(this)](bool isThere) {
        if (self)
            self->barChanged(isThere);
    });
}

QtStatusItem::~QtStatusItem() = default;

void QtStatusItem::openMenu() { m_menu.popup(QCursor::pos()); }

void QtStatusItem::barChanged(bool isThere)
{
    if (!isThere)
        AppLog::write("TRAY this desktop shows no status items; a right click on the prompter, or "
                      "starting Orvello again, opens the menu");
    else if (!m_icon)
        makeIcon();
}

/// Not before there is a bar: the toolkit looks for a host on the bus only once.
void QtStatusItem::makeIcon()
{
    m_icon = std::make_unique<QSystemTrayIcon>(Branding::trayIcon());
    m_icon->setToolTip(u"Orvello"_s);
    m_icon->setContextMenu(&m_menu);
    connect(m_icon.get(), &QSystemTrayIcon::activated, this,
        [this](QSystemTrayIcon::ActivationReason reason) {
            if (reason == QSystemTrayIcon::Trigger)
                openMenu();
        });
    m_icon->show();
    AppLog::write("TRAY status item shown");
}

std::unique_ptr<StatusItem> statusItemIn(StatusBar& bar, Menu& menu)
{
    if (MenuBar* const menuBar = bar.menuBar())
        return menuBar->makeStatusItem(menu, Branding::menuBarGlyph(), u"Orvello"_s);
    return std::make_unique<QtStatusItem>(bar, menu);
}

} // namespace Orvello
