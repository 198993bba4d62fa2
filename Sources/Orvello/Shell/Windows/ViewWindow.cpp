#include "Orvello/Shell/Windows/ViewWindow.h"

#include "Orvello/Shell/Windows/Renderer.h"

#include <QQmlEngine>
#include <QQuickItem>
#include <QQuickView>

namespace Orvello::ViewWindow {

using namespace Qt::StringLiterals;

void load(QQuickView& window, const QString& view, const QVariantMap& properties)
{
    Renderer::watch(window);
    window.engine()->addImportPath(u"qrc:/qt/qml"_s);
    window.setResizeMode(QQuickView::SizeRootObjectToView);
    window.setInitialProperties(properties);
    window.setSource(QUrl(u"qrc:/qt/qml/Orvello/%1.qml"_s.arg(view)));
    Q_ASSERT(window.rootObject()); // The views are part of the program.
}

} // namespace Orvello::ViewWindow
