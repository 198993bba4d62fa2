#pragma once

#include "Orvello/Platform/Desktop/CaptureHiding.h"
#include "Orvello/Platform/Desktop/NativePanel.h"

#include <QTimer>

#import <AppKit/AppKit.h>

class QMouseEvent;
class QWindow;

@class PointerTracker;
@class PrompterPanel;

namespace Orvello {

class Screens;

/// The prompter's window on macOS: an NSPanel of our own with Qt's view as a subview.
///
/// Qt's own windows would not do. Its flags make no panel that leaves the active application alone,
/// and every later change of flags, screen or state would rewrite style, level and collection
/// behaviour. So:
/// - the panel's style, with the non-activating bit, is given at its creation (PrompterPanel);
/// - Qt's view lies inside a plain content view, so Qt takes the panel for somebody else's window
///   and leaves its style, level, key status and geometry alone;
/// - the panel alone is moved and resized; the view follows it by autoresizing;
/// - the Qt window is shown before the panel, because later Qt versions hide the view until then;
/// - the shadow is made anew after what is drawn, because AppKit makes it once, of what the panel
///   shows then: nothing;
/// - hovering is reported by a tracking area of our own (PointerTracker);
/// - a press that the view does not want starts a drag of the panel;
/// - the sharing type is the panel's own, which Qt never touches. Windows that Qt opens beside it,
///   such as tool tips, would be capturable, so the view must not use any.
class CocoaPanel final : public NativePanel, private CaptureHiding {
public:
    /// `view` must not have been shown. Both must outlive the panel.
    CocoaPanel(QWindow& view, const Screens& screens);
    ~CocoaPanel() override;

    QRectF frame() const override;
    void setFrame(const QRectF& frame) override;
    void saveFrameAs(const QString& name) override;
    void show() override;
    void hide() override;
    bool isVisible() const override;
    bool isBeingResized() const override;
    CaptureHiding& captureHiding() override { return *this; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Reach reach() const override;
    void setHidden(bool isHidden) override;
    bool isHidden() const override;
    qint64 windowNumber() const override;

    void embedView();
    void observePanel();
    void bringOntoScreen();
    void renewShadow();
    bool pressed(QMouseEvent& event);
    void releaseInView(NSEvent* press);

    QWindow& m_view;
    const Screens& m_screens;
    PrompterPanel* m_panel;
    NSView* m_nativeView; ///< Qt's.
    PointerTracker* m_pointerTracker;
    QTimer m_shadowDue;
};

} // namespace Orvello
