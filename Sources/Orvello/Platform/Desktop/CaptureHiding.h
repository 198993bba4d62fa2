#pragma once

#include <QtGlobal>

namespace Orvello {

/// Keeps one window out of screen sharing, recordings and screenshots, where the window system can
/// do that. Main thread.
class CaptureHiding {
public:
    /// Which captures are known to respect it.
    enum class Reach {
        NoCapture,
        SomeCaptures, ///< Those that are made in the system's older ways.
        EveryCapture,
    };

    virtual ~CaptureHiding() = default;

    virtual Reach reach() const = 0;

    /// Hides the window from captures, or makes it capturable like any other. Where no capture
    /// respects it, the wish is remembered.
    virtual void setHidden(bool isHidden) = 0;

    /// What was set last; a new window is capturable.
    virtual bool isHidden() const = 0;

    /// The window system's number for the window; below 1 while it has none.
    virtual qint64 windowNumber() const = 0;
};

} // namespace Orvello
