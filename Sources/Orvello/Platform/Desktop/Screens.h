#pragma once

#include <QList>
#include <QRectF>

namespace Orvello {

/// The screens that are connected now. Main thread.
class Screens {
public:
    virtual ~Screens() = default;

    /// Their frames, the main screen first. Empty without any screen. In points from the top left
    /// corner of the primary screen, y downward, like every place on the screen in any port; the
    /// primary screen is the main one, unless the user works on another.
    virtual QList<QRectF> frames() const = 0;

    /// Where the pointer is, in the same coordinates.
    virtual QPointF pointer() const = 0;
};

} // namespace Orvello
