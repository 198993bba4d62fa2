#pragma once

#include <QList>
#include <QRectF>

namespace Orvello {

/// The screens that are connected now. Main thread.
class Screens {
public:
    virtual ~Screens() = default;

    /// Their frames in points, the main screen first, in coordinates with the origin at the main
    /// screen's bottom left and y upward. Empty without any screen.
    virtual QList<QRectF> frames() const = 0;
};

} // namespace Orvello
