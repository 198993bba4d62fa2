#pragma once

#include "Orvello/Platform/Desktop/Screens.h"

namespace Orvello {

/// The screens as Qt knows them. Needs the application object.
class QtScreens final : public Screens {
public:
    QList<QRectF> frames() const override;
    QPointF pointer() const override;
};

} // namespace Orvello
