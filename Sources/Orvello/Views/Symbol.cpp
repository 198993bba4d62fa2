#include "Orvello/Views/Symbol.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

/// What a symbol is drawn from, on a square of this side.
struct Drawing {
    double side = 16; ///< Also the size that the symbol has of itself.
    double penWidth = 1.3;
    QPainterPath strokes; ///< With round ends.
    QPainterPath fill;
};

QPainterPath lines(std::initializer_list<std::initializer_list<QPointF>> all)
{
    QPainterPath path;
    for (const std::initializer_list<QPointF>& points : all) {
        path.moveTo(*points.begin());
        for (const QPointF& point : points)
            path.lineTo(point);
    }
    return path;
}

Drawing plus()
{
    return { .strokes = lines({ { { 3, 8 }, { 13, 8 } }, { { 8, 3 }, { 8, 13 } } }) };
}

Drawing minus() { return { .strokes = lines({ { { 3, 8 }, { 13, 8 } } }) }; }

/// One sheet in front of another, of which only the edge is seen.
Drawing rectangleOnRectangle()
{
    QPainterPath path
        = lines({ { { 3.5, 9.5 }, { 1.5, 9.5 }, { 1.5, 2.5 }, { 11.5, 2.5 }, { 11.5, 4.5 } } });
    path.addRoundedRect(QRectF(4.5, 5.5, 10, 8), 1, 1);
    return { .strokes = path };
}

Drawing squareAndArrowDown()
{
    return { .strokes
        = lines({ { { 5.5, 6 }, { 2.5, 6 }, { 2.5, 14 }, { 13.5, 14 }, { 13.5, 6 }, { 10.5, 6 } },
            { { 8, 1.5 }, { 8, 10 } }, { { 5, 7.2 }, { 8, 10.2 }, { 11, 7.2 } } }) };
}

// The prompter's symbols are bolder and smaller.

Drawing chevronLeft()
{
    return { 10, 1.6, lines({ { { 6.5, 1.5 }, { 3, 5 }, { 6.5, 8.5 } } }), {} };
}

Drawing chevronRight()
{
    return { 10, 1.6, lines({ { { 3.5, 1.5 }, { 7, 5 }, { 3.5, 8.5 } } }), {} };
}

Drawing xmark()
{
    return { 10, 1.4, lines({ { { 2, 2 }, { 8, 8 } }, { { 8, 2 }, { 2, 8 } } }), {} };
}

/// An eye, and before its lower right corner a warning triangle with an exclamation mark.
Drawing eyeTriangleBadgeExclamationmark()
{
    QPainterPath lids(QPointF(0.5, 4.4));
    lids.quadTo({ 4.75, -1.2 }, { 9.0, 4.4 });
    lids.quadTo({ 4.75, 10.0 }, { 0.5, 4.4 });
    QPainterPath pupil;
    pupil.addEllipse(QPointF(4.6, 4.3), 1.6, 1.6);
    const QPointF top(7.3, 4.6);
    QPainterPath badge;
    badge.addPolygon(QPolygonF { top, QPointF(10, 9.6), QPointF(4.6, 9.6), top });
    QPainterPathStroker halo;
    halo.setWidth(1.6);
    halo.setJoinStyle(Qt::RoundJoin);
    const QPainterPath around = halo.createStroke(badge).united(badge);
    QPainterPath mark;
    mark.addRect(6.95, 6.3, 0.7, 1.6);
    mark.addRect(6.95, 8.3, 0.7, 0.7);
    QPainterPathStroker outline;
    outline.setWidth(0.9);
    const QPainterPath eye = outline.createStroke(lids).united(pupil).subtracted(around);
    return { 10, 0, {}, eye.united(badge.subtracted(mark)) };
}

Drawing drawingNamed(const QString& name)
{
    static const QHash<QString, Drawing> drawings {
        { u"chevron.left"_s, chevronLeft() },
        { u"chevron.right"_s, chevronRight() },
        { u"eye.trianglebadge.exclamationmark"_s, eyeTriangleBadgeExclamationmark() },
        { u"minus"_s, minus() },
        { u"plus"_s, plus() },
        { u"rectangle.on.rectangle"_s, rectangleOnRectangle() },
        { u"square.and.arrow.down"_s, squareAndArrowDown() },
        { u"xmark"_s, xmark() },
    };
    return drawings.value(name);
}

} // namespace

Symbol::Symbol(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    setAntialiasing(true);
}

Symbol::~Symbol() = default;

void Symbol::setName(const QString& name)
{
    if (std::exchange(m_name, name) == name)
        return;
    const double side = drawingNamed(name).side;
    setImplicitSize(side, side);
    update();
    Q_EMIT nameChanged();
}

void Symbol::setColor(const QColor& color)
{
    if (std::exchange(m_color, color) == color)
        return;
    update();
    Q_EMIT colorChanged();
}

void Symbol::paint(QPainter* painter)
{
    const Drawing drawing = drawingNamed(m_name);
    const double scale = std::min(width(), height()) / drawing.side;
    painter->translate((width() - drawing.side * scale) / 2, (height() - drawing.side * scale) / 2);
    painter->scale(scale, scale);
    painter->strokePath(drawing.strokes,
        QPen(m_color, drawing.penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->fillPath(drawing.fill, m_color);
}

} // namespace Orvello
