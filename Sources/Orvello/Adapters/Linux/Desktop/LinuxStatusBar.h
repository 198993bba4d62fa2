#pragma once

#include "Orvello/Adapters/Linux/Desktop/X11Tray.h"
#include "Orvello/Platform/Desktop/StatusBar.h"

#include <QDBusConnection>
#include <QDBusServiceWatcher>
#include <QObject>

#include <optional>

namespace Orvello {

/// The trays of Linux desktops: a host of status notifier items on the session bus, or an X11
/// system tray. Some desktops have neither.
class LinuxStatusBar final : public QObject, public StatusBar {
    Q_OBJECT

public:
    explicit LinuxStatusBar(QDBusConnection bus);
    ~LinuxStatusBar() override;

    MenuBar* menuBar() override { return nullptr; }
    void observe(std::function<void(bool isThere)> changed) override;

private Q_SLOTS:
    void askForHost();

private:
    void update();

    QDBusConnection m_bus;
    QDBusServiceWatcher m_watcher;
    X11Tray m_tray;
    std::function<void(bool)> m_changed;
    std::optional<bool> m_hasHost; ///< Nothing until the bus has answered.
    std::optional<bool> m_isThere;
};

} // namespace Orvello
