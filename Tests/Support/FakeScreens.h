#pragma once

#include "Orvello/Platform/Desktop/Screens.h"

namespace Orvello::Testing {

class FakeScreens final : public Screens {
public:
    QList<QRectF> frames() const override { return connected; }

    QPointF pointer() const override { return pointerNow; }

    QPointF pointerNow;
    QList<QRectF> connected { { 0, 0, 1440, 900 } }; ///< The main screen first.
};

} // namespace Orvello::Testing
