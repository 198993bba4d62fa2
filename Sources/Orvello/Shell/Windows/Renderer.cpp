#include "Orvello/Shell/Windows/Renderer.h"

#include <QCoreApplication>
#include <QQuickWindow>

#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

std::function<void(const QString&)>& failureHandler()
{
    static std::function<void(const QString&)> handler;
    return handler;
}

} // namespace

QString Renderer::nameOf(Kind kind) { return kind == Kind::Software ? u"software"_s : u"opengl"_s; }

std::optional<Renderer::Kind> Renderer::named(const QString& name)
{
    for (const Kind kind : { Kind::Software, Kind::OpenGL }) {
        if (name == nameOf(kind))
            return kind;
    }
    return std::nullopt;
}

Renderer::Kind Renderer::otherThan(Kind kind)
{
    return kind == Kind::Software ? Kind::OpenGL : Kind::Software;
}

void Renderer::use(Kind kind)
{
    if (kind == Kind::Software)
        QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    else if (kind == Kind::OpenGL)
        QQuickWindow::setGraphicsApi(QSGRendererInterface::OpenGL);
}

void Renderer::onFailure(std::function<void(const QString&)> handler)
{
    failureHandler() = std::move(handler);
}

void Renderer::watch(QQuickWindow& window)
{
    // Not in the middle of the window's first frame, which may come while it is being shown.
    QObject::connect(
        &window, &QQuickWindow::sceneGraphError, qApp,
        [](QQuickWindow::SceneGraphError /*error*/, const QString& reason) {
            if (failureHandler())
                failureHandler()(reason);
        },
        Qt::QueuedConnection);
}

} // namespace Orvello
