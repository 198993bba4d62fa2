#pragma once

#include "Orvello/Platform/Desktop/DesktopServices.h"

#include <QDBusConnection>
#include <QObject>

namespace Orvello {

class LinuxDesktopServices final : public QObject, public DesktopServices {
    Q_OBJECT

public:
    explicit LinuxDesktopServices(QDBusConnection bus);
    ~LinuxDesktopServices() override;

    /// Raises the program's windows and asks for the keyboard; a program without windows stays in
    /// the background.
    void activateApplication() override;

    bool open(const QUrl& url) override;
    void reveal(const QString& path) override;

private:
    QDBusConnection m_bus;
};

} // namespace Orvello
