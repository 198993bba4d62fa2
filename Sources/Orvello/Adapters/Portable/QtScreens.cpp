#include "Orvello/Adapters/Portable/QtScreens.h"

#include <QGuiApplication>
#include <QScreen>

namespace Orvello {

QList<QRectF> QtScreens::frames() const
{
    const QScreen* main = QGuiApplication::primaryScreen();
    if (!main)
        return {};
    const double mainHeight = main->geometry().height();
    QList<QRectF> frames { turnedOver(main->geometry(), mainHeight) };
    for (const QScreen* screen : QGuiApplication::screens()) {
        if (screen != main)
            frames.append(turnedOver(screen->geometry(), mainHeight));
    }
    return frames;
}

} // namespace Orvello
