#include "Orvello/Adapters/Portable/QtScreens.h"

#include <QCursor>
#include <QGuiApplication>
#include <QScreen>

namespace Orvello {

QList<QRectF> QtScreens::frames() const
{
    const QScreen* main = QGuiApplication::primaryScreen();
    if (!main)
        return {};
    QList<QRectF> frames { main->geometry() };
    for (const QScreen* screen : QGuiApplication::screens()) {
        if (screen != main)
            frames.append(screen->geometry());
    }
    return frames;
}

QPointF QtScreens::pointer() const { return QCursor::pos(); }

} // namespace Orvello
