#include "Orvello/Prompting/Symbol.h"

#include "Orvello/Prompting/SymbolDrawing.h"

#include <QPainter>

#include <algorithm>
#include <utility>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

QPainterPath polyline(const QList<QPointF>& points)
{
    QPainterPath path(points.first());
    for (const QPointF& point : points.sliced(1))
        path.lineTo(point);
    return path;
}

SymbolDrawing chevronLeft()
{
    return { .strokes = polyline({ { 6.5, 1.5 }, { 3, 5 }, { 6.5, 8.5 } }) };
}

SymbolDrawing chevronRight()
{
    return { .strokes = polyline({ { 3.5, 1.5 }, { 7, 5 }, { 3.5, 8.5 } }) };
}

SymbolDrawing xmark()
{
    QPainterPath strokes = polyline({ { 2, 2 }, { 8, 8 } });
    strokes.addPath(polyline({ { 8, 2 }, { 2, 8 } }));
    return { .strokes = strokes, .penWidth = 1.4 };
}

/// An eye, and before its lower right corner a warning triangle with an exclamation mark.
SymbolDrawing eyeTriangleBadgeExclamationmark()
{
    QPainterPath strokes(QPointF(0.5, 4.4));
    strokes.quadTo({ 4.75, -1.2 }, { 9.0, 4.4 });
    strokes.quadTo({ 4.75, 10.0 }, { 0.5, 4.4 });
    QPainterPath fill;
    fill.addEllipse(QPointF(4.6, 4.3), 1.6, 1.6);
    const QPointF top(7.3, 4.6);
    const QPolygonF triangle { top, QPointF(10, 9.6), QPointF(4.6, 9.6), top };
    QPainterPath badge;
    badge.addPolygon(triangle);
    QPainterPathStroker halo;
    halo.setWidth(1.6);
    halo.setJoinStyle(Qt::RoundJoin);
    const QPainterPath around = halo.createStroke(badge).united(badge);
    QPainterPath mark;
    mark.addRect(6.95, 6.3, 0.7, 1.6);
    mark.addRect(6.95, 8.3, 0.7, 0.7);
    QPainterPathStroker outline;
    outline.setWidth(0.9);
    const QPainterPath eye = outline.createStroke(strokes).united(fill).subtracted(around);
    return { .fill = eye.united(badge.subtracted(mark)) };
}

QHash<QString, SymbolDrawing> allDrawings()
{
    QHash<QString, SymbolDrawing> drawings {
        { u"chevron.left"_s, chevronLeft() },
        { u"chevron.right"_s, chevronRight() },
        { u"xmark"_s, xmark() },
        { u"eye.trianglebadge.exclamationmark"_s, eyeTriangleBadgeExclamationmark() },
    };
    drawings.insert(tourSymbols());
    return drawings;
}

const SymbolDrawing* drawingNamed(const QString& name)
{
    static const QHash<QString, SymbolDrawing> drawings = allDrawings();
    const auto found = drawings.constFind(name);
    return found == drawings.constEnd() ? nullptr : &*found;
}

} // namespace

Symbol::Symbol(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    constexpr double size = 10;
    setImplicitSize(size, size);
    setAntialiasing(true);
}

void Symbol::setName(const QString& name)
{
    if (std::exchange(m_name, name) == name)
        return;
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
    const SymbolDrawing* drawing = drawingNamed(m_name);
    if (!drawing)
        return;
    const double scale = std::min(width(), height()) / 10;
    painter->scale(scale, scale);
    painter->strokePath(drawing->strokes,
        QPen(m_color, drawing->penWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    painter->fillPath(drawing->fill, m_color);
}

} // namespace Orvello
