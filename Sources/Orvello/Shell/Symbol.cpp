#include "Orvello/Shell/Symbol.h"

#include <QHash>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <initializer_list>

namespace Orvello {

using namespace Qt::StringLiterals;

namespace {

// The drawings lie in a square of this side, and have lines of this width.
constexpr double side = 16;
constexpr double lineWidth = 1.3;

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

QPainterPath plus() { return lines({ { { 3, 8 }, { 13, 8 } }, { { 8, 3 }, { 8, 13 } } }); }

QPainterPath minus() { return lines({ { { 3, 8 }, { 13, 8 } } }); }

/// One sheet in front of another, of which only the edge is seen.
QPainterPath rectangleOnRectangle()
{
    QPainterPath path
        = lines({ { { 3.5, 9.5 }, { 1.5, 9.5 }, { 1.5, 2.5 }, { 11.5, 2.5 }, { 11.5, 4.5 } } });
    path.addRoundedRect(QRectF(4.5, 5.5, 10, 8), 1, 1);
    return path;
}

QPainterPath squareAndArrowDown()
{
    return lines({ { { 5.5, 6 }, { 2.5, 6 }, { 2.5, 14 }, { 13.5, 14 }, { 13.5, 6 }, { 10.5, 6 } },
        { { 8, 1.5 }, { 8, 10 } }, { { 5, 7.2 }, { 8, 10.2 }, { 11, 7.2 } } });
}

QPainterPath drawing(const QString& name)
{
    static const QHash<QString, QPainterPath> drawings {
        { u"plus"_s, plus() },
        { u"minus"_s, minus() },
        { u"rectangle.on.rectangle"_s, rectangleOnRectangle() },
        { u"square.and.arrow.down"_s, squareAndArrowDown() },
    };
    return drawings.value(name);
}

} // namespace

Symbol::Symbol(QQuickItem* parent)
    : QQuickPaintedItem(parent)
{
    setImplicitSize(side, side);
    connect(this, &Symbol::changed, this, [this] { update(); });
}

Symbol::~Symbol() = default;

void Symbol::paint(QPainter* painter)
{
    const double scale = std::min(width(), height()) / side;
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate((width() - side * scale) / 2, (height() - side * scale) / 2);
    painter->scale(scale, scale);
    painter->strokePath(
        drawing(m_name), QPen(m_color, lineWidth, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
}

} // namespace Orvello
