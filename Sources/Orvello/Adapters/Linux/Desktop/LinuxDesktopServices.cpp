#include "Orvello/Adapters/Linux/Desktop/LinuxDesktopServices.h"

#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDesktopServices>
#include <QFileInfo>
#include <QGuiApplication>
#include <QUrl>
#include <QWindow>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

LinuxDesktopServices::LinuxDesktopServices(QDBusConnection bus)
    : m_bus(std::move(bus))
{
}

LinuxDesktopServices::~LinuxDesktopServices() = default;

void LinuxDesktopServices::activateApplication()
{
    for (QWindow* const window : QGuiApplication::topLevelWindows()) {
        // The prompter must never have the keyboard.
        if (!window->isVisible() || window->flags().testFlag(Qt::WindowDoesNotAcceptFocus))
            continue;
        window->raise();
        window->requestActivate();
    }
}

bool LinuxDesktopServices::open(const QUrl& url) { return QDesktopServices::openUrl(url); }

void LinuxDesktopServices::reveal(const QString& path)
{
    const QUrl folder = QUrl::fromLocalFile(QFileInfo(path).path());
    if (!m_bus.isConnected()) {
        open(folder);
        return;
    }
    const QString fileManager = u"org.freedesktop.FileManager1"_s;
    QDBusMessage call = QDBusMessage::createMethodCall(
        fileManager, u"/org/freedesktop/FileManager1"_s, fileManager, u"ShowItems"_s);
    call.setArguments(
        { QStringList { QUrl::fromLocalFile(path).toString(QUrl::FullyEncoded) }, QString() });
    auto* const reply = new QDBusPendingCallWatcher(m_bus.asyncCall(call), this);
    connect(reply, &QDBusPendingCallWatcher::finished, this, [this, reply, folder] {
        reply->deleteLater();
        // Without a file manager on the bus, at least the folder can be shown.
        if (reply->isError())
            open(folder);
    });
}

} // namespace Orvello
