#pragma once

#include "Orvello/Shell/Commands/StatusItem.h"
#include "Orvello/Shell/Windows/QtMenu.h"

#include <QObject>

#include <memory>

class QSystemTrayIcon;

namespace Orvello {

class StatusBar;

/// The status item as the toolkit makes it where there is no menu bar: a status notifier item on
/// the session bus, or an icon in an X11 tray. It is there as soon as a bar is.
class QtStatusItem final : public QObject, public StatusItem {
    Q_OBJECT

public:
    QtStatusItem(StatusBar& bar, Menu& menu); ///< Both must outlive it.
    ~QtStatusItem() override;

    void openMenu() override;

private:
    void barChanged(bool isThere);
    void makeIcon();

    QtMenu m_menu;
    std::unique_ptr<QSystemTrayIcon> m_icon;
};

/// The item in `bar`: the menu bar's own, or else the toolkit's. Both parameters must outlive it.
[[nodiscard]] std::unique_ptr<StatusItem> statusItemIn(StatusBar& bar, Menu& menu);

} // namespace Orvello
