#pragma once

#include <QDBusConnection>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace Orvello::Testing {

/// A D-Bus session bus of its own for as long as this object lives.
class PrivateBus {
public:
    PrivateBus();
    ~PrivateBus();

    const QString& address() const { return m_address; }

    /// A new connection to the bus. It ends with the bus at the latest.
    QDBusConnection connect();

private:
    QTemporaryDir m_folder;
    QProcess m_daemon;
    QString m_address;
    QStringList m_connections;
};

} // namespace Orvello::Testing
