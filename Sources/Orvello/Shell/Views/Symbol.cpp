#include "Orvello/Shell/Views/Symbol.h"

#include "Orvello/Shell/Views/SymbolDrawing.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

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

namespace {

// The symbols of the scripts window.

SymbolDrawing plus()
{
    return { .strokes = lines({ { { 3, 8 }, { 13, 8 } }, { { 8, 3 }, { 8, 13 } } }),
        .penWidth = 1.3,
        .side = 16 };
}

SymbolDrawing minus()
{
    return { .strokes = lines({ { { 3, 8 }, { 13, 8 } } }), .penWidth = 1.3, .side = 16 };
}

SymbolDrawing squareAndArrowDown()
{
    return { .strokes
        = lines({ { { 5.5, 6 }, { 2.5, 6 }, { 2.5, 14 }, { 13.5, 14 }, { 13.5, 6 }, { 10.5, 6 } },
            { { 8, 1.5 }, { 8, 10 } }, { { 5, 7.2 }, { 8, 10.2 }, { 11, 7.2 } } }),
        .penWidth = 1.3,
        .side = 16 };
}

// The symbols of the prompter, which are bolder.

SymbolDrawing chevronLeft()
{
    return { .strokes = lines({ { { 6.5, 1.5 }, { 3, 5 }, { 6.5, 8.5 } } }) };
}

SymbolDrawing chevronRight()
{
    return { .strokes = lines({ { { 3.5, 1.5 }, { 7, 5 }, { 3.5, 8.5 } } }) };
}

SymbolDrawing xmark()
{
    return { .strokes = lines({ { { 2, 2 }, { 8, 8 } }, { { 8, 2 }, { 2, 8 } } }),
        .penWidth = 1.4 };
}

/// An eye, and before its lower right corner a warning triangle with an exclamation mark.
SymbolDrawing eyeTriangleBadgeExclamationmark()
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
    return { .fill = eye.united(badge.subtracted(mark)) };
}

QHash<QString, SymbolDrawing> allDrawings()
{
    QHash<QString, SymbolDrawing> drawings {
        { u"chevron.left"_s, chevronLeft() },
        { u"chevron.right"_s, chevronRight() },
        { u"eye.trianglebadge.exclamationmark"_s, eyeTriangleBadgeExclamationmark() },
        { u"minus"_s, minus() },
        { u"plus"_s, plus() },
        { u"square.and.arrow.down"_s, squareAndArrowDown() },
        { u"xmark"_s, xmark() },
    };
    drawings.insert(tourSymbols());
    return drawings;
}

SymbolDrawing drawingNamed(const QString& name)
{
    static const QHash<QString, SymbolDrawing> drawings = allDrawings();
    return drawings.value(name);
}

} // namespace

Symbol::Symbol(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    constexpr double textHeight = 16;
    setImplicitSize(textHeight, textHeight);
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
    const SymbolDrawing drawing = drawingNamed(m_name);
    const double scale = std::min(width(), height()) / drawing.side;
    painter->translate((width() - drawing.side * scale) / 2, (height() - drawing.side * scale) / 2);
    painter->scale(scale, scale);
    painter->strokePath(drawing.strokes,
        QPen(m_color, drawing.penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->fillPath(drawing.fill, m_color);
}

} // namespace Orvello
