#include "Orvello/Adapters/Linux/Desktop/X11Panel.h"

#include "Orvello/Adapters/Linux/Desktop/X11Shadow.h"
#include "Orvello/Adapters/Linux/Desktop/X11StackingGuard.h"
#include "Orvello/Adapters/Portable/QtScreens.h"
#include "Orvello/Foundation/Assign.h"
#include "Orvello/Foundation/DefaultsValue.h"
#include "Orvello/Platform/Desktop/Compositing.h"

#include <QGuiApplication>
#include <QMouseEvent>
#include <QScreen>
#include <QWheelEvent>
#include <QWindow>

#include <algorithm>
#include <chrono>
#include <optional>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// How far inside the panel a press still takes hold of its edge, in points.
constexpr int edgeWidth = 6;
constexpr std::chrono::milliseconds screensSettlingTime { 100 };
constexpr int cornerRadius = 16; ///< The card's.
constexpr int cornerWidth = 14; ///< The same along an edge near a corner, which is harder to hit.

Qt::Edges edgesAt(QPointF position, QSize size)
{
    const double toLeft = position.x();
    const double toTop = position.y();
    const double toRight = size.width() - position.x();
    const double toBottom = size.height() - position.y();
    const bool onSide = std::min(toLeft, toRight) < edgeWidth;
    const bool onEnd = std::min(toTop, toBottom) < edgeWidth;
    const int sideReach = onEnd ? cornerWidth : edgeWidth;
    const int endReach = onSide ? cornerWidth : edgeWidth;

    Qt::Edges edges;
    edges.setFlag(Qt::LeftEdge, toLeft < sideReach);
    edges.setFlag(Qt::RightEdge, toRight < sideReach);
    edges.setFlag(Qt::TopEdge, toTop < endReach);
    edges.setFlag(Qt::BottomEdge, toBottom < endReach);
    return edges;
}

Qt::CursorShape cursorFor(Qt::Edges edges)
{
    if (edges == (Qt::LeftEdge | Qt::TopEdge) || edges == (Qt::RightEdge | Qt::BottomEdge))
        return Qt::SizeFDiagCursor;
    if (edges == (Qt::RightEdge | Qt::TopEdge) || edges == (Qt::LeftEdge | Qt::BottomEdge))
        return Qt::SizeBDiagCursor;
    if (edges & (Qt::LeftEdge | Qt::RightEdge))
        return Qt::SizeHorCursor;
    if (edges & (Qt::TopEdge | Qt::BottomEdge))
        return Qt::SizeVerCursor;
    return Qt::ArrowCursor;
}

/// The geometry with the given edges moved by `delta`, inside the size limits; the opposite edges
/// stay where they are.
QRect resizedBy(QRect geometry, Qt::Edges edges, QPoint delta)
{
    const QSize smallest = NativePanel::minimumSize.toSize();
    const QSize largest = NativePanel::maximumSize.toSize();
    int width = geometry.width();
    int height = geometry.height();
    if (edges & Qt::LeftEdge)
        width -= delta.x();
    if (edges & Qt::RightEdge)
        width += delta.x();
    if (edges & Qt::TopEdge)
        height -= delta.y();
    if (edges & Qt::BottomEdge)
        height += delta.y();
    width = std::clamp(width, smallest.width(), largest.width());
    height = std::clamp(height, smallest.height(), largest.height());

    if (edges & Qt::LeftEdge)
        geometry.setLeft(geometry.right() + 1 - width);
    if (edges & Qt::TopEdge)
        geometry.setTop(geometry.bottom() + 1 - height);
    geometry.setSize({ width, height });
    return geometry;
}

} // namespace

X11Panel::X11Panel(QWindow& window, UserDefaults& defaults, const Compositing& compositing)
    : m_window(window)
    , m_defaults(defaults)
    , m_compositing(compositing)
{
    m_window.setFlags(Qt::Tool | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint
        | Qt::WindowDoesNotAcceptFocus | Qt::BypassWindowManagerHint);
    m_window.setMinimumSize(minimumSize.toSize());
    m_window.setMaximumSize(maximumSize.toSize());
    m_window.create();
    m_window.installEventFilter(this);
    m_shadow = std::make_unique<X11Shadow>();
    m_stackingGuard = std::make_unique<X11StackingGuard>(
        static_cast<std::uint32_t>(m_window.winId()), m_shadow->number());

    connect(&m_compositing, &Compositing::isOnChanged, this, &X11Panel::roundCorners);
    connect(&m_compositing, &Compositing::isOnChanged, this, &X11Panel::showShadow);

    // A change of screens comes in several pieces.
    m_screensSettling.setSingleShot(true);
    m_screensSettling.setInterval(screensSettlingTime);
    connect(&m_screensSettling, &QTimer::timeout, this, &X11Panel::returnToScreens);
    for (const QScreen* screen : QGuiApplication::screens())
        watch(screen);
    connect(qGuiApp, &QGuiApplication::screenAdded, this, &X11Panel::watch);
    for (const auto signal : { &QGuiApplication::screenAdded, &QGuiApplication::screenRemoved,
             &QGuiApplication::primaryScreenChanged })
        connect(qGuiApp, signal, &m_screensSettling, qOverload<>(&QTimer::start));
}

X11Panel::~X11Panel() { m_window.removeEventFilter(this); }

QRectF X11Panel::frame() const { return m_window.geometry(); }

void X11Panel::setFrame(const QRectF& frame)
{
    m_screens = QtScreens().frames();
    m_home = PanelFrame::homeAt(frame, m_screens);
    moveTo(frame);
    saveHome();
}

void X11Panel::moveTo(const QRectF& frame)
{
    m_settledFrame = frame.toRect();
    setGeometry(frame.toRect());
    announceSize();
}

void X11Panel::setGeometry(const QRect& geometry)
{
    m_window.setGeometry(geometry);
    m_shadow->surround(geometry);
}

void X11Panel::showShadow()
{
    m_shadow->setVisible(m_window.isVisible() && m_compositing.isOn());
    m_stackingGuard->settle();
}

void X11Panel::watch(const QScreen* screen)
{
    connect(screen, &QScreen::geometryChanged, &m_screensSettling, qOverload<>(&QTimer::start));
}

/// The home stays what it is: the panel goes back there when the screen comes back.
void X11Panel::returnToScreens()
{
    if (assign(m_screens, QtScreens().frames()))
        endGesture();
    if (!m_gesture.isActive)
        moveTo(PanelFrame::placeOf(m_home, m_screens));
}

void X11Panel::saveFrameAs(const QString& name)
{
    // The key and the text are those of the macOS window system, so that both editions read the
    // same.
    m_autosaveKey = u"NSWindow Frame "_s + name;
    const std::optional<QString> saved = DefaultsValue::asString(m_defaults.value(m_autosaveKey));
    const QList<QRectF> screens = QtScreens().frames();
    std::optional<PanelFrame::Home> home
        = saved ? PanelFrame::parsed(*saved, screens) : std::nullopt;
    if (!home)
        return;
    home->frame = PanelFrame::withSizeBetween(home->frame, minimumSize, maximumSize);
    m_screens = screens;
    moveTo(PanelFrame::placeOf(*home, screens));
    m_home = home->screen.isEmpty() ? PanelFrame::homeAt(m_settledFrame, screens) : *home;
}

void X11Panel::show()
{
    returnToScreens();
    m_window.show();
    showShadow();
}

void X11Panel::hide()
{
    m_shadow->hide();
    m_window.hide();
}

bool X11Panel::isVisible() const { return m_window.isVisible(); }

qint64 X11Panel::windowNumber() const { return static_cast<qint64>(m_window.winId()); }

bool X11Panel::eventFilter(QObject* watched, QEvent* event)
{
    if (watched != &m_window)
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
        return pressed(static_cast<QMouseEvent&>(*event));
    case QEvent::MouseMove:
        return moved(static_cast<const QMouseEvent&>(*event));
    case QEvent::MouseButtonRelease:
        return released(static_cast<const QMouseEvent&>(*event));
    case QEvent::Wheel: {
        const auto& wheel = static_cast<const QWheelEvent&>(*event);
        // One notch is 120 units, and 10 points; a touchpad sends fractions of it. What Qt calls
        // the pixel delta is the device's raw axis on X11, in no unit that two drivers agree on.
        constexpr double pointsPerAngleUnit = 1.0 / 12.0;
        Q_EMIT scrolled(wheel.angleDelta().y() * pointsPerAngleUnit);
        return true;
    }
    case QEvent::Hide:
        endGesture(); // A hidden window gets no release.
        return false;
    case QEvent::Move:
        m_shadow->surround(m_window.geometry());
        noteFrame();
        return false;
    case QEvent::Resize:
        m_shadow->surround(m_window.geometry());
        noteFrame();
        announceSize();
        return false;
    default:
        return false;
    }
}

bool X11Panel::pressed(QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || m_gesture.isActive)
        return false;
    const Qt::Edges edges = edgesAt(event.position(), m_window.size());
    if (!edges) {
        // The background is whatever part of the view does not accept the press.
        static_cast<QObject&>(m_window).event(&event);
        if (event.exclusiveGrabber(event.point(0)))
            return true;
    }
    m_gesture
        = { true, event.device(), edges, event.globalPosition().toPoint(), m_window.geometry() };
    return true;
}

bool X11Panel::moved(const QMouseEvent& event)
{
    if (m_gesture.isActive && event.device() != m_gesture.pointer)
        return true; // A second pointer drags nothing.
    // The release went to somebody else, or is lost.
    if (m_gesture.isActive && !(event.buttons() & Qt::LeftButton))
        endGesture();
    if (!m_gesture.isActive) {
        const Qt::CursorShape shape = cursorFor(edgesAt(event.position(), m_window.size()));
        if (m_window.cursor().shape() != shape)
            m_window.setCursor(shape);
        return false;
    }
    const QPoint delta = event.globalPosition().toPoint() - m_gesture.startPointer;
    setGeometry(m_gesture.edges ? resizedBy(m_gesture.startGeometry, m_gesture.edges, delta)
                                : m_gesture.startGeometry.translated(delta));
    return true;
}

bool X11Panel::released(const QMouseEvent& event)
{
    if (event.button() != Qt::LeftButton || !m_gesture.isActive)
        return false;
    if (event.device() == m_gesture.pointer)
        endGesture();
    return true;
}

void X11Panel::endGesture()
{
    if (!m_gesture.isActive)
        return;
    // The last size belongs to the gesture, although the server has yet to confirm it.
    announceSize();
    const bool wasResize = m_gesture.edges != Qt::Edges();
    m_gesture = {};
    noteFrame();
    if (wasResize)
        Q_EMIT resizeEnded();
}

/// A window that is shown, or only moved, gets a resize event all the same.
void X11Panel::announceSize()
{
    if (!assign(m_announcedSize, m_window.size()))
        return;
    roundCorners();
    Q_EMIT resized();
}

/// Without a compositor there is no transparency: what is outside of the card's corners would be
/// black, and so is cut off.
void X11Panel::roundCorners()
{
    if (m_compositing.isOn()) {
        m_window.setMask({});
        return;
    }
    const QRect area(QPoint(), m_window.size());
    QRegion mask = QRegion(area.adjusted(cornerRadius, 0, -cornerRadius, 0))
        + QRegion(area.adjusted(0, cornerRadius, 0, -cornerRadius));
    QRect corner(0, 0, 2 * cornerRadius, 2 * cornerRadius);
    corner.moveTopLeft(area.topLeft());
    mask += QRegion(corner, QRegion::Ellipse);
    corner.moveTopRight(area.topRight());
    mask += QRegion(corner, QRegion::Ellipse);
    corner.moveBottomLeft(area.bottomLeft());
    mask += QRegion(corner, QRegion::Ellipse);
    corner.moveBottomRight(area.bottomRight());
    mask += QRegion(corner, QRegion::Ellipse);
    m_window.setMask(mask);
}

void X11Panel::noteFrame()
{
    // While a gesture lasts, only its end counts. Where the screens' places are new, so may be the
    // panel's, and nobody has moved it.
    if (m_gesture.isActive || frame() == m_settledFrame || m_screens != QtScreens().frames())
        return;
    m_settledFrame = frame();
    m_home = PanelFrame::homeAt(m_settledFrame, m_screens);
    saveHome();
}

void X11Panel::saveHome()
{
    if (!m_autosaveKey.isEmpty())
        m_defaults.setValue(m_autosaveKey, PanelFrame::text(m_home, m_screens));
}

} // namespace Orvello
