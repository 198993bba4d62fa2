#include "Orvello/Adapters/macOS/Desktop/CocoaPanel.h"

#include "Orvello/Adapters/macOS/Desktop/CocoaGeometry.h"
#include "Orvello/Adapters/macOS/Desktop/CocoaView.h"
#include "Orvello/Adapters/macOS/Desktop/PointerTracker.h"
#include "Orvello/Adapters/macOS/Desktop/PrompterPanel.h"
#include "Orvello/Adapters/macOS/Early/CocoaText.h"
#include "Orvello/Adapters/macOS/Early/ExceptionShield.h"
#include "Orvello/Adapters/macOS/Early/SharingType.h"
#include "Orvello/Platform/Desktop/Screens.h"
#include "Orvello/Prompting/Panel/PanelFrame.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QQuickWindow>
#include <QWindow>

namespace Orvello {

namespace {

/// Before its view is made.
QWindow& withoutFrame(QWindow& window)
{
    window.setFlags(Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    window.create();
    return window;
}

} // namespace

CocoaPanel::CocoaPanel(QWindow& view, const Screens& screens)
    : m_view(view)
    , m_screens(screens)
    , m_panel([[PrompterPanel alloc] initWithSize:cgSize(PanelFrame::initial({}).size())
                                          minimum:cgSize(minimumSize)
                                          maximum:cgSize(maximumSize)])
    , m_nativeView(nativeViewOf(withoutFrame(view)))
{
    embedView();
    observePanel();
    renewShadow();
}

CocoaPanel::~CocoaPanel()
{
    [m_panel tell:PanelEvents {}];
    shielded([&] { [m_panel orderOut:nil]; });
    [m_pointerTracker stop];
    m_view.removeEventFilter(this);
    // Qt destroys its view with the window, which outlives the panel.
    shielded([&] { [m_nativeView removeFromSuperview]; });
    shielded([&] { [m_panel close]; });
}

void CocoaPanel::embedView()
{
    NSView* const container = m_panel.contentView;
    m_nativeView.autoresizingMask = NSViewWidthSizable | NSViewHeightSizable;
    m_nativeView.frame = container.bounds;
    [container addSubview:m_nativeView];
    m_pointerTracker = [[PointerTracker alloc] initWithView:container window:&m_view];
    m_view.installEventFilter(this);
}

void CocoaPanel::observePanel()
{
    // None of them comes after the destructor, which takes them back.
    [m_panel tell:PanelEvents {
                      .scrolled = [this](CGFloat delta) { Q_EMIT scrolled(delta); },
                      .resized = [this] { Q_EMIT resized(); },
                      .resizeEnded = [this] { Q_EMIT resizeEnded(); },
                      .screensChanged = [this] { bringOntoScreen(); },
                      .placed =
                          [this](NSRect frame) {
                              return cgRect(flippedVertically(PanelFrame::placeOf(
                                  { flippedVertically(qRect(frame)), {} }, m_screens.frames())));
                          },
                  }];
}

QRectF CocoaPanel::frame() const { return flippedVertically(qRect(m_panel.frame)); }

void CocoaPanel::setFrame(const QRectF& frame)
{
    shielded([&] { [m_panel setFrame:cgRect(flippedVertically(frame)) display:YES]; });
}

void CocoaPanel::saveFrameAs(const QString& name)
{
    NSString* const autosaveName = nsString(name);
    shielded([&] {
        [m_panel setFrameUsingName:autosaveName force:YES];
        [m_panel setFrameAutosaveName:autosaveName];
    });
    bringOntoScreen(); // The screen that the frame was saved on may be gone.
}

/// The shadow has the shape of the card and of the letters on it, of which an old one would shine
/// through. Not for each frame: the window server would do little else while the text moves.
void CocoaPanel::renewShadow()
{
    constexpr int milliseconds = 250;
    m_shadowDue.setSingleShot(true);
    m_shadowDue.setInterval(milliseconds);
    connect(&m_shadowDue, &QTimer::timeout, this,
        [this] { shielded([&] { [m_panel invalidateShadow]; }); });
    if (const auto* const view = qobject_cast<QQuickWindow*>(&m_view)) {
        connect(view, &QQuickWindow::frameSwapped, this, [this] {
            if (!m_shadowDue.isActive())
                m_shadowDue.start();
        });
    }
}

/// AppKit looks after titled windows only.
void CocoaPanel::bringOntoScreen()
{
    const QRectF now = frame();
    const QRectF wanted = PanelFrame::placeOf(
        { PanelFrame::withSizeBetween(now, minimumSize, maximumSize), {} }, m_screens.frames());
    if (wanted != now)
        setFrame(wanted);
}

void CocoaPanel::show()
{
    m_view.setVisible(true); // First: Qt shows its view no earlier than its window.
    shielded([&] { [m_panel orderFrontRegardless]; });
}

void CocoaPanel::hide()
{
    shielded([&] { [m_panel orderOut:nil]; });
    // AppKit does not notify a tracking area when its window goes away under the pointer.
    QEvent leave(QEvent::Leave);
    QCoreApplication::sendEvent(&m_view, &leave);
    m_view.setVisible(false); // Ends the drawing.
}

bool CocoaPanel::isVisible() const { return m_panel.visible; }

qint64 CocoaPanel::windowNumber() const { return m_panel.windowNumber; }

bool CocoaPanel::isBeingResized() const { return m_panel.inLiveResize; }

CaptureHiding::Reach CocoaPanel::reach() const
{
    return isSharingTypeIgnored() ? Reach::SomeCaptures : Reach::EveryCapture;
}

bool CocoaPanel::isHidden() const { return m_panel.sharingType == NSWindowSharingNone; }

void CocoaPanel::setHidden(bool isHidden)
{
    shielded(
        [&] { m_panel.sharingType = isHidden ? NSWindowSharingNone : NSWindowSharingReadOnly; });
}

bool CocoaPanel::eventFilter(QObject* watched, QEvent* event)
{
    return watched == &m_view && event->type() == QEvent::MouseButtonPress
        && pressed(static_cast<QMouseEvent&>(*event));
}

/// The background is whatever part of the view does not accept the press.
bool CocoaPanel::pressed(QMouseEvent& event)
{
    NSEvent* const press = NSApp.currentEvent;
    if (event.button() != Qt::LeftButton || press.type != NSEventTypeLeftMouseDown)
        return false;
    static_cast<QObject&>(m_view).event(&event);
    if (!event.exclusiveGrabber(event.point(0))) {
        shielded([&] { [m_panel performWindowDragWithEvent:press]; });
        QMetaObject::invokeMethod(
            this, [this, press] { releaseInView(press); }, Qt::QueuedConnection);
    }
    return true;
}

/// The window server carries a drag out by itself and may never report the button's release; Qt's
/// view would believe the button pressed until the next click.
void CocoaPanel::releaseInView(NSEvent* press)
{
    shielded([&] {
        NSEvent* const release = [NSEvent mouseEventWithType:NSEventTypeLeftMouseUp
                                                    location:press.locationInWindow
                                               modifierFlags:press.modifierFlags
                                                   timestamp:press.timestamp
                                                windowNumber:m_panel.windowNumber
                                                     context:nil
                                                 eventNumber:0
                                                  clickCount:1
                                                    pressure:0];
        if (release)
            [m_nativeView mouseUp:release];
    });
}

} // namespace Orvello
