#include "Tests/Support/PrivateBus.h"

#include <QFile>
#include <QUuid>

namespace Orvello::Testing {

using namespace Qt::StringLiterals;

namespace {

constexpr int patience = 20'000; ///< A loaded machine takes its time; in milliseconds.

/// An ordinary session bus, but for the programs that a desktop starts on demand: there are none.
constexpr const char* configuration = R"(<busconfig>
  <type>session</type>
  <listen>unix:tmpdir=/tmp</listen>
  <policy context="default">
    <allow send_destination="*" eavesdrop="true"/>
    <allow eavesdrop="true"/>
    <allow own="*"/>
  </policy>
</busconfig>
)";

} // namespace

PrivateBus::PrivateBus()
{
    QFile file(m_folder.filePath(u"bus.conf"_s));
    if (!file.open(QIODevice::WriteOnly) || file.write(configuration) < 0)
        qFatal("The bus cannot be configured: %s", qPrintable(file.errorString()));
    file.close();
    m_daemon.setStandardErrorFile(QProcess::nullDevice());
    m_daemon.start(u"dbus-daemon"_s,
        { u"--config-file="_s + file.fileName(), u"--nofork"_s, u"--print-address"_s });
    QByteArray address;
    while (!address.endsWith('\n') && m_daemon.waitForReadyRead(patience))
        address += m_daemon.readAllStandardOutput();
    if (!address.endsWith('\n'))
        qFatal("dbus-daemon did not start: %s", qPrintable(m_daemon.errorString()));
    m_address = QString::fromLatin1(address.trimmed());
}

PrivateBus::~PrivateBus()
{
    for (const QString& name : m_connections)
        QDBusConnection::disconnectFromBus(name);
    m_daemon.terminate();
    m_daemon.waitForFinished(patience);
}

QDBusConnection PrivateBus::connect()
{
    m_connections.append(QUuid::createUuid().toString());
    return QDBusConnection::connectToBus(m_address, m_connections.last());
}

} // namespace Orvello::Testing
