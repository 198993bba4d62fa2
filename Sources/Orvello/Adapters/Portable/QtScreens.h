#pragma once

#include "Orvello/Platform/Desktop/Screens.h"

namespace Orvello {

/// The screens as Qt knows them, turned over to an origin at the main screen's bottom left. Needs
/// the application object.
class QtScreens final : public Screens {
public:
    QList<QRectF> frames() const override;
};

/// Turns a rectangle over between coordinates that count y down from the top of a screen of the
/// given height and coordinates that count y up from its bottom. Its own inverse.
constexpr QRectF turnedOver(const QRectF& rectangle, double mainScreenHeight)
{
    return { rectangle.x(), mainScreenHeight - rectangle.y() - rectangle.height(),
        rectangle.width(), rectangle.height() };
}

} // namespace Orvello
