#pragma once

#include "Orvello/Platform/Desktop/CaptureHiding.h"
#include "Orvello/Platform/Desktop/NativePanel.h"
#include "Orvello/Platform/Early/UserDefaults.h"
#include "Orvello/Prompting/Panel/PanelFrame.h"

#include <QRect>
#include <QSize>
#include <QTimer>

#include <memory>

class QInputDevice;
class QMouseEvent;
class QScreen;
class QWindow;

namespace Orvello {

class Compositing;
class X11Shadow;
class X11StackingGuard;

/// The prompter's window on X11, around the window that shows the view. Window managers disagree
/// about what is above a full-screen window and about which windows may do without focus, so the
/// panel asks none of them: it is an override-redirect window, which no manager places, focuses or
/// assigns to a workspace. What the manager would do otherwise is done here: staying on top,
/// dragging, resizing, remembering the frame.
class X11Panel final : public NativePanel, private CaptureHiding {
    Q_OBJECT

public:
    /// `window` must not have been shown yet. All of them must outlive the panel.
    X11Panel(QWindow& window, UserDefaults& defaults, const Compositing& compositing);
    ~X11Panel() override;

    QRectF frame() const override;
    void setFrame(const QRectF& frame) override;
    void saveFrameAs(const QString& name) override;
    void show() override;
    void hide() override;
    bool isVisible() const override;
    bool isBeingResized() const override { return m_gesture.edges && m_gesture.isActive; }
    CaptureHiding& captureHiding() override { return *this; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    /// A drag of the background (no edges) or of one or two edges.
    struct Gesture {
        bool isActive = false;
        const QInputDevice* pointer = nullptr; ///< The one that the press came from.
        Qt::Edges edges;
        QPoint startPointer;
        QRect startGeometry;
    };

    /// X11 shows every window to every client; no request keeps one out.
    Reach reach() const override { return Reach::NoCapture; }
    void setHidden(bool isHidden) override { m_isHidden = isHidden; }
    bool isHidden() const override { return m_isHidden; }
    qint64 windowNumber() const override;

    bool pressed(QMouseEvent& event);
    bool moved(const QMouseEvent& event);
    bool released(const QMouseEvent& event);
    void endGesture();
    void watch(const QScreen* screen);
    void returnToScreens();
    void moveTo(const QRectF& frame);
    void setGeometry(const QRect& geometry);
    void showShadow();
    void announceSize();
    void roundCorners();
    void noteFrame();
    void saveHome();

    QWindow& m_window;
    UserDefaults& m_defaults;
    const Compositing& m_compositing;
    std::unique_ptr<X11Shadow> m_shadow;
    std::unique_ptr<X11StackingGuard> m_stackingGuard;
    QString m_autosaveKey; ///< Empty while the frame is not saved.
    QList<QRectF> m_screens; ///< Those that the panel was last placed on.
    PanelFrame::Home m_home; ///< Where the panel goes as soon as its screen is there.
    QRectF m_settledFrame; ///< The frame last set or noted. Any other was chosen by the user.
    QTimer m_screensSettling;
    QSize m_announcedSize;
    bool m_isHidden = false;
    Gesture m_gesture;
};

} // namespace Orvello
