#pragma once

#include "Orvello/Platform/Desktop/Screens.h"

namespace Orvello {

/// The screens in AppKit's own coordinates, which are those of its windows. The first one is the
/// screen that the user works on: the one with the key window, not always the one with the origin.
class CocoaScreens final : public Screens {
public:
    QList<QRectF> frames() const override;
    QPointF pointer() const override;
};

} // namespace Orvello
