#pragma once

#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QString>

namespace Orvello {

/// The one prompter window as the window system sees it: borderless, above every other window
/// (full-screen ones too), on every workspace, never given the keyboard, dragged by its background
/// and resized at its edges. The view inside it is somebody else's. Main thread.
///
/// Frames are in points in screen coordinates with the origin at the main screen's bottom left and
/// y upward, on every platform; adapters for window systems that count downward translate.
class NativePanel : public QObject {
    Q_OBJECT

public:
    /// The limits that the user's resizing keeps to.
    static constexpr QSizeF minimumSize { 340, 130 };
    static constexpr QSizeF maximumSize { 1600, 900 };

    /// Who else may read the window's pixels. The numbers are the macOS ones, which the log shows.
    enum class SharingType : int {
        None = 0, ///< Hidden from screen sharing, recordings and screenshots.
        ReadOnly = 1, ///< Capturable like any other window.
    };

    using QObject::QObject;

    virtual QRectF frame() const = 0;
    virtual void setFrame(const QRectF& frame) = 0;

    /// Names the saved frame: a frame saved under the name in an earlier run replaces the present
    /// one at once, brought back onto a screen if it lies on none; from now on moves and resizes
    /// are saved under it.
    virtual void setFrameAutosaveName(const QString& name) = 0;

    /// Shows the panel above everything without activating the application or taking the focus.
    virtual void orderFrontRegardless() = 0;
    virtual void orderOut() = 0;
    virtual bool isVisible() const = 0;

    /// The window system's number for the window; below 1 while it has none.
    virtual qint64 windowNumber() const = 0;

    /// Whether the user is resizing the panel with the mouse right now.
    virtual bool inLiveResize() const = 0;

    virtual SharingType sharingType() const = 0;

    /// Remembers the type and enforces it where the platform can.
    virtual void setSharingType(SharingType type) = 0;

    /// Whether this platform can keep the window out of captures at all.
    virtual bool canExcludeFromCapture() const = 0;

Q_SIGNALS:
    void didResize();
    void didEndLiveResize();
    void scrolled(double delta); ///< Precise vertical scrolling delta of one wheel or trackpad
                                 ///< event, upward positive.
};

} // namespace Orvello
