#include "Orvello/Adapters/Portable/QtScreens.h"

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

} // namespace Orvello
