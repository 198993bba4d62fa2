#include "Orvello/Shell/Windows/ViewWindow.h"

#include "Orvello/Diagnostics/AppLog.h"
#include "Orvello/Shell/Launch/LaunchOptions.h"
#include "Orvello/Shell/Windows/Renderer.h"

#include <QQmlEngine>
#include <QQmlError>
#include <QQuickView>

#include <cstdlib>

namespace Orvello::ViewWindow {

using namespace Qt::StringLiterals;

namespace {

/// The views are part of the program, but what they import is not: a module of Qt may be missing.
[[noreturn]] void exitWithout(const QString& view, const QList<QQmlError>& errors)
{
    QStringList reasons;
    for (const QQmlError& error : errors)
        reasons.append(error.toString());
    AppLog::write("LAUNCH failed: %@ could not be loaded: %@", view, reasons.join(u"; "_s));
    std::exit(ExitStatus::cannotRun);
}

} // namespace

void load(QQuickView& window, const QString& view, const QVariantMap& properties)
{
    Renderer::watch(window);
    window.engine()->addImportPath(u"qrc:/qt/qml"_s);
    window.setResizeMode(QQuickView::SizeRootObjectToView);
    window.setInitialProperties(properties);
    window.setSource(QUrl(u"qrc:/qt/qml/Orvello/%1.qml"_s.arg(view)));
    if (window.status() != QQuickView::Ready)
        exitWithout(view, window.errors());
}

} // namespace Orvello::ViewWindow
