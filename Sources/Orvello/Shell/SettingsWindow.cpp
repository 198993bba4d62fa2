#include "Orvello/Shell/SettingsWindow.h"

#include "Orvello/Settings/SettingsStore.h"
#include "Orvello/Shell/SystemPalette.h"
#include "Orvello/Shell/UpdateController.h"
#include "Orvello/Shell/WindowPlacement.h"
#include "Orvello/Voice/VoiceActivityEngine.h"

#include "Version.h"

#include <QQmlEngine>
#include <QQuickItem>

namespace Orvello {

using namespace Qt::StringLiterals;

SettingsWindow::SettingsWindow(const Services& services)
    : m_form(services.settings)
{
    m_view.engine()->addImportPath(u"qrc:/qt/qml"_s);
    m_view.setTitle(tr("Orvello Settings"));
    m_view.setFlags(Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint
        | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    m_view.setResizeMode(QQuickView::SizeRootObjectToView);
    m_view.resize(contentSize);
    followSystemPalette(m_view);
    m_view.setInitialProperties({
        { u"settings"_s, QVariant::fromValue(&services.settings) },
        { u"form"_s, QVariant::fromValue(&m_form) },
        { u"voice"_s, QVariant::fromValue(&services.voice) },
        { u"updates"_s, QVariant::fromValue(&services.updates) },
        { u"version"_s, QString::fromLatin1(version) },
        { u"canExcludeFromCapture"_s, services.canExcludeFromCapture },
    });
    m_view.setSource(QUrl(u"qrc:/qt/qml/Orvello/SettingsView.qml"_s));
    Q_ASSERT(m_view.rootObject()); // The view is part of the program.
}

void SettingsWindow::makeKeyAndOrderFront() { WindowPlacement::bringToFront(m_view, contentSize); }

} // namespace Orvello
