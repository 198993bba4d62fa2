#pragma once

#include <QObject>
#include <QRectF>
#include <QSizeF>
#include <QString>

namespace Orvello {

class CaptureHiding;

/// The one prompter window as the window system sees it: borderless, above every other window
/// (full-screen ones too), on every workspace, never given the keyboard, dragged by its background
/// and resized at its edges. The view inside it belongs to someone else. Frames are in the
/// coordinates of Screens. Main thread.
class NativePanel : public QObject {
    Q_OBJECT

public:
    /// The limits on the user's resizing.
    static constexpr QSizeF minimumSize { 340, 130 };
    static constexpr QSizeF maximumSize { 1600, 900 };

    using QObject::QObject;

    virtual QRectF frame() const = 0;
    virtual void setFrame(const QRectF& frame) = 0;

    /// Names the saved frame: a frame saved under the name in an earlier run replaces the present
    /// one at once, brought back onto a screen if it lies on none; from now on moves and resizes
    /// are saved under it.
    virtual void saveFrameAs(const QString& name) = 0;

    /// Shows the panel above everything without activating the application or taking the focus.
    virtual void show() = 0;
    virtual void hide() = 0;
    virtual bool isVisible() const = 0;

    /// Whether the user is resizing the panel with the mouse right now.
    virtual bool isBeingResized() const = 0;

    /// What keeps the panel out of captures. Lives as long as the panel.
    virtual CaptureHiding& captureHiding() = 0;

Q_SIGNALS:
    void resized();
    void resizeEnded(); ///< The user let go.
    /// The precise vertical delta of one wheel or trackpad event, upward positive.
    void scrolled(double delta);
};

} // namespace Orvello
