#pragma once

#include <QtGlobal>

namespace Orvello {

/// Keeps one window out of screen sharing, recordings and screenshots, where the window system can
/// do that. Main thread.
class CaptureHiding {
public:
    virtual ~CaptureHiding() = default;

    /// Whether this platform can do it at all.
    virtual bool isPossible() const = 0;

    /// Hides the window from captures, or makes it capturable like any other. Where it is not
    /// possible, the wish is remembered.
    virtual void setHidden(bool isHidden) = 0;

    /// What was set last; a new window is capturable.
    virtual bool isHidden() const = 0;

    /// The window system's number for the window; below 1 while it has none.
    virtual qint64 windowNumber() const = 0;
};

} // namespace Orvello
